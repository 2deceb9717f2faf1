#pragma once

#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/Units.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus/graphics/ImagePart.h"

namespace vxgui::gdiplus {

/// Runs `draw(graphics, bitmap)`, which answers a status.
template <class Draw>
GpStatus WithImage(GpGraphics* graphics, GpImage* image, Draw draw) {
    return DrawWith<Bitmap>(graphics, image, draw);
}

/// Runs `draw(object)` with the object of kind `T` behind a handle, or with null for no handle.
template <class T, class Draw>
GpStatus WithOptional(const void* handle, Draw draw) {
    if (!handle) return draw(static_cast<const T*>(nullptr));
    return FlatOn<T>(handle, [&](const T& found) { return draw(&found); });
}

inline GpRectF WholeOf(const Bitmap& bitmap) {
    return {0, 0, static_cast<REAL>(bitmap.Width()), static_cast<REAL>(bitmap.Height())};
}

constexpr bool IsSourceUnit(Unit unit) { return unit >= UnitDisplay && unit <= UnitMillimeter; }

inline GpRectF InPixels(const GpRectF& rect, Unit unit, const Bitmap& bitmap) {
    const REAL x = PixelsPer(unit, bitmap.dpiX), y = PixelsPer(unit, bitmap.dpiY);
    return {rect.X * x, rect.Y * y, rect.Width * x, rect.Height * y};
}

/// Upper left, upper right, lower left.
struct Corners {
    GpPointF points[3];
};
inline Corners CornersOf(const GpRectF& r) {
    return {{{r.X, r.Y}, {r.X + r.Width, r.Y}, {r.X, r.Y + r.Height}}};
}

}  // namespace vxgui::gdiplus
