#pragma once

#include <optional>
#include <span>
#include <vector>

#include "vxgui/pixels/ByteTable.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus_effects.h"

namespace vxgui::gdiplus {

/// Straight 32-bit pixels in rows without gaps.
struct EffectPicture {
    INT width = 0, height = 0;
    std::vector<ARGB> pixels;

    size_t RowSize() const { return static_cast<size_t>(width); }
    std::span<ARGB> Row(INT y) { return {&pixels[static_cast<size_t>(y) * RowSize()], RowSize()}; }
};

/// What an effect handle names.
class Effect : public FlatObject {
public:
    /// The record of parameters.
    virtual std::vector<BYTE> Parameters() const = 0;
    virtual GpStatus Parameters(std::span<const BYTE> bytes) = 0;

    /// How many pixels around a pixel count for it.
    virtual INT Reach() const { return 0; }
    /// True when a result of its own is larger by the reach on each side.
    virtual bool Expands() const { return false; }
    /// The tables of an effect that is nothing else.
    virtual std::optional<ChannelTables> Tables() const { return std::nullopt; }
    /// Changes `area` of the picture, whose first pixel is `origin` of the bitmap. What lies around
    /// the area may be read.
    virtual void Apply(EffectPicture& picture, const GpRect& area, GpPoint origin) const = 0;
};

/// Applies an effect to a part, which must lie in the bitmap.
void ApplyEffect(Bitmap& bitmap, const Effect& effect, const GpRect& part);
/// The result of a part as a bitmap of its own; `place` is where it lies on the bitmap. None when
/// it would be too large.
Ref<Bitmap> EffectOn(const Bitmap& bitmap, const Effect& effect, const GpRect& part, GpRect* place);

}  // namespace vxgui::gdiplus
