#pragma once

#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdi/PixelTarget.h"
#include "vxgui/platform/gdiplus/Affine.h"

namespace vxgui::gdiplus {

/// Device coordinates beyond this never show; it keeps differences within 32 bits.
constexpr double kFarthest = 1 << 28;

/// A device coordinate as an integer; what is no number gives the lowest.
inline INT DeviceInt(double value) {
    return static_cast<INT>(value > -kFarthest ? std::min(value, kFarthest) : -kFarthest);
}

constexpr gdi::RECT ToRECT(const GpRect& r) { return {r.X, r.Y, r.X + r.Width, r.Y + r.Height}; }
constexpr GpRect FromRECT(const gdi::RECT& r) {
    return {r.left, r.top, r.right - r.left, r.bottom - r.top};
}
constexpr GpRect Common(const GpRect& a, const GpRect& b) {
    return FromRECT(gdi::Intersection(ToRECT(a), ToRECT(b)));
}
constexpr bool IsEmpty(const GpRect& r) { return r.Width <= 0 || r.Height <= 0; }

/// What two boxes share; 0 throughout when they share nothing.
inline GpRectF CommonBox(const GpRectF& a, const GpRectF& b) {
    const REAL left = std::max(a.X, b.X), top = std::max(a.Y, b.Y);
    const REAL right = std::min(a.X + a.Width, b.X + b.Width);
    const REAL bottom = std::min(a.Y + a.Height, b.Y + b.Height);
    return right > left && bottom > top ? GpRectF{left, top, right - left, bottom - top}
                                        : GpRectF{};
}

/// The box around a transformed one.
inline GpRectF BoxOf(const GpRectF& box, const Affine& transform) {
    const GpPointF corners[] = {transform.Apply({box.X, box.Y}),
                                transform.Apply({box.X + box.Width, box.Y}),
                                transform.Apply({box.X, box.Y + box.Height}),
                                transform.Apply({box.X + box.Width, box.Y + box.Height})};
    GpPointF low = corners[0], high = corners[0];
    for (const GpPointF& p : corners) {
        low = {std::min(low.X, p.X), std::min(low.Y, p.Y)};
        high = {std::max(high.X, p.X), std::max(high.Y, p.Y)};
    }
    return {low.X, low.Y, high.X - low.X, high.Y - low.Y};
}

/// The pixels that a box in device coordinates touches.
inline GpRect PixelsAround(const GpRectF& box) {
    const INT left = DeviceInt(std::floor(box.X)), top = DeviceInt(std::floor(box.Y));
    const INT right = DeviceInt(std::ceil(static_cast<double>(box.X) + box.Width));
    const INT bottom = DeviceInt(std::ceil(static_cast<double>(box.Y) + box.Height));
    return {left, top, right - left, bottom - top};
}

}  // namespace vxgui::gdiplus
