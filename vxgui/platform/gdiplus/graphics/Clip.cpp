#include "vxgui/platform/gdiplus/Clip.h"

#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"

namespace vxgui::gdiplus {
namespace {

// As wide as the box of a region without bounds.
gdi::PixelRegion AllPixels() {
    return gdi::PixelRegion(gdi::RECT{-4194304, -4194304, 4194304, 4194304});
}

gdi::PixelRegion PixelsOf(const Clip& clip) {
    return clip.IsInfinite() ? AllPixels() : *clip.Pixels();
}

GpRectF BoundsOf(const gdi::PixelRegion& pixels) {
    const gdi::RECT box = pixels.Bounds();
    return {static_cast<REAL>(box.left), static_cast<REAL>(box.top),
            static_cast<REAL>(box.right - box.left), static_cast<REAL>(box.bottom - box.top)};
}

}  // namespace

void Clip::CombinePixels(const Clip& other, CombineMode mode) {
    constexpr int kModes[] = {gdi::RGN_COPY, gdi::RGN_AND,  gdi::RGN_OR,
                              gdi::RGN_XOR,  gdi::RGN_DIFF, gdi::RGN_DIFF};
    const gdi::PixelRegion mine = PixelsOf(*this), others = PixelsOf(other);
    const bool reversed = mode == CombineModeComplement;
    gdi::PixelRegion result;
    result.Combine(reversed ? others : mine, reversed ? mine : others, kModes[mode]);
    box_ = mode == CombineModeIntersect ? CommonBox(box_, other.box_) : BoundsOf(result);
    pixels_ = std::move(result);
}

void Clip::Combine(const Clip& other, CombineMode mode) {
    if (mode == CombineModeReplace || (mode == CombineModeIntersect && IsInfinite())) {
        *this = other;
    } else if (mode == CombineModeUnion && (IsInfinite() || other.IsInfinite())) {
        *this = Clip();
    } else if (mode != CombineModeIntersect || !other.IsInfinite()) {
        CombinePixels(other, mode);
    }
}

void Clip::Shift(REAL dx, REAL dy) {
    if (IsInfinite()) return;
    box_.X += dx;
    box_.Y += dy;
    pixels_ = pixels_->Shifted(DeviceInt(std::nearbyint(dx)), DeviceInt(std::nearbyint(dy)));
}

}  // namespace vxgui::gdiplus
