#pragma once

#include "vxgui/platform/gdiplus/Attributes.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/brushes/WrappedBrush.h"

namespace vxgui::gdiplus {

/// Repeats a part of a bitmap, whose upper left corner lies at the origin of the brush.
class TextureBrush final : public WrappedBrush {
public:
    /// Keeps a copy of the part, which must lie in the bitmap. `adjustment` may be null.
    TextureBrush(const Bitmap& bitmap, const GpRect& part, const ColorAdjustment* adjustment,
                 WrapMode wrap);
    TextureBrush(const TextureBrush&) = default;

    BrushType Type() const override { return BrushTypeTextureFill; }
    Ref<Brush> Clone() const override { return New<TextureBrush>(*this); }
    Pattern MakePattern(const PatternPlace& place) const override;

    using WrappedBrush::Wrap;
    void Wrap(WrapMode wrap) override;

    /// The part as a bitmap of its own, with straight 32-bit pixels.
    Ref<Bitmap> Image() const;

private:
    void BuildCell();

    INT width_, height_;
    std::vector<ARGB> pixels_;  ///< straight
    std::vector<ARGB> cell_;    ///< premultiplied, with the mirror images that the wrap mode needs
};

}  // namespace vxgui::gdiplus
