#pragma once

#include <span>

#include "vxgui/platform/gdiplus/Attributes.h"
#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

/// The pixels of an image as they are drawn: adjusted by its attributes and premultiplied.
class ImageSource {
public:
    /// `attributes` may be null.
    ImageSource(const Bitmap& bitmap, const ImageAttributes* attributes);

    INT Width() const { return static_cast<INT>(bitmap_.Width()); }
    INT Height() const { return static_cast<INT>(bitmap_.Height()); }
    /// Pixels from (x, y) to the right, which must lie in the image.
    void Read(INT x, INT y, std::span<ARGB> pixels) const;
    /// What shows beyond the edges under `WrapModeClamp`.
    ARGB Outside() const { return outside_; }
    /// How the image goes on beyond its edges; none to leave out what lies there.
    std::optional<WrapMode> Wrap() const { return wrap_; }
    bool IsAdjusted() const { return adjustment_ != nullptr; }

private:
    const Bitmap& bitmap_;
    const ColorAdjustment* const adjustment_;
    std::optional<WrapMode> wrap_;
    ARGB outside_ = 0;
};

}  // namespace vxgui::gdiplus
