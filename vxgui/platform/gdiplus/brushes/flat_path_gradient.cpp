#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {
namespace {

GpStatus SetCenter(GpBrush* brush, GpPointF center) {
    return FlatSet<PathBrush>(brush, [&](PathBrush& found) { found.center = center; });
}

}  // namespace

extern "C" {

GpStatus GdipGetPathGradientCenterColor(GpBrush* brush, ARGB* color) {
    return FlatGet<PathBrush>(brush, color, [](PathBrush& found) { return found.centerColor; });
}

GpStatus GdipSetPathGradientCenterColor(GpBrush* brush, ARGB color) {
    return FlatSet<PathBrush>(brush, [&](PathBrush& found) { found.centerColor = color; });
}

GpStatus GdipGetPathGradientSurroundColorsWithCount(GpBrush* brush, ARGB* color, INT* count) {
    if (!color || !count) return InvalidParameter;
    return FlatOn<PathBrush>(brush, [&](PathBrush& found) {
        const auto have = static_cast<INT>(found.surround.size());
        if (*count < have) return InsufficientBuffer;
        std::ranges::copy(found.surround, color);
        *count = have;
        return Ok;
    });
}

GpStatus GdipSetPathGradientSurroundColorsWithCount(GpBrush* brush, const ARGB* color, INT* count) {
    if (!color || !count || *count < 1) return InvalidParameter;
    return FlatOn<PathBrush>(brush, [&](PathBrush& found) {
        if (static_cast<size_t>(*count) > found.Points().Count()) return InvalidParameter;
        found.surround.assign(color, color + *count);
        return Ok;
    });
}

GpStatus GdipGetPathGradientSurroundColorCount(GpBrush* brush, INT* count) {
    return FlatGet<PathBrush>(
        brush, count, [](PathBrush& found) { return static_cast<INT>(found.surround.size()); });
}

GpStatus GdipGetPathGradientPointCount(GpBrush* brush, INT* count) {
    return FlatGet<PathBrush>(
        brush, count, [](PathBrush& found) { return static_cast<INT>(found.Points().Count()); });
}

GpStatus GdipGetPathGradientPath(GpBrush* brush, GpPath* path) {
    return FlatOn<Path>(path, [&](Path& to) {
        return FlatSet<PathBrush>(brush, [&](PathBrush& found) {
            to.data = found.Points();
            to.fillMode = found.Filling();
            to.newFigure = true;
        });
    });
}

GpStatus GdipSetPathGradientPath(GpBrush* brush, const GpPath* path) {
    return FlatOn<Path>(path, [&](Path& from) {
        if (from.data.Count() < 2) return InvalidParameter;
        return FlatSet<PathBrush>(
            brush, [&](PathBrush& found) { found.Points(from.data, from.fillMode); });
    });
}

GpStatus GdipGetPathGradientCenterPoint(GpBrush* brush, GpPointF* point) {
    return FlatGet<PathBrush>(brush, point, [](PathBrush& found) { return found.center; });
}

GpStatus GdipGetPathGradientCenterPointI(GpBrush* brush, GpPoint* point) {
    return FlatGet<PathBrush>(brush, point,
                              [](PathBrush& found) { return RoundPoint(found.center); });
}

GpStatus GdipSetPathGradientCenterPoint(GpBrush* brush, const GpPointF* point) {
    return point ? SetCenter(brush, *point) : InvalidParameter;
}

GpStatus GdipSetPathGradientCenterPointI(GpBrush* brush, const GpPoint* point) {
    return point ? SetCenter(brush, ToFloat(*point)) : InvalidParameter;
}

GpStatus GdipGetPathGradientFocusScales(GpBrush* brush, REAL* xScale, REAL* yScale) {
    if (!xScale || !yScale) return InvalidParameter;
    return FlatSet<PathBrush>(brush, [&](PathBrush& found) {
        *xScale = found.focusScales.X;
        *yScale = found.focusScales.Y;
    });
}

GpStatus GdipSetPathGradientFocusScales(GpBrush* brush, REAL xScale, REAL yScale) {
    return FlatSet<PathBrush>(brush, [&](PathBrush& found) {
        found.focusScales = {xScale, yScale};
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
