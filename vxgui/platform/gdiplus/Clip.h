#pragma once

#include <optional>

#include "vxgui/platform/gdi/PixelRegion.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// What every region that has no bounds answers as its box.
constexpr GpRectF kInfiniteBox{-4194304, -4194304, 8388608, 8388608};

/// A set of pixels that may be drawn on. A pixel belongs to a shape when the point at which it is
/// sampled does: a clip has no soft edges.
class Clip {
public:
    /// All pixels.
    Clip() = default;
    /// `box`, in device coordinates, are the shape's own edges, which may lie within pixels.
    Clip(gdi::PixelRegion pixels, const GpRectF& box) : pixels_(std::move(pixels)), box_(box) {}

    bool IsInfinite() const { return !pixels_; }
    bool IsEmpty() const { return pixels_ && pixels_->Empty(); }
    /// Null when it is infinite.
    const gdi::PixelRegion* Pixels() const { return pixels_ ? &*pixels_ : nullptr; }
    GpRectF Box() const { return box_; }

    void Combine(const Clip& other, CombineMode mode);
    /// Moves it, by whole pixels.
    void Shift(REAL dx, REAL dy);

private:
    void CombinePixels(const Clip& other, CombineMode mode);

    std::optional<gdi::PixelRegion> pixels_;
    GpRectF box_ = kInfiniteBox;
};

}  // namespace vxgui::gdiplus
