#include <array>
#include <new>

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi/shapes/DcPath.h"
#include "vxgui/platform/gdi/shapes/EllipseArc.h"
#include "vxgui/platform/gdi/shapes/Stroke.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

PathPoint PathPointOf(POINT point) {
    return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

// Lines from the position through all points, recorded or drawn; the position moves to the last.
void LineThrough(DeviceContext& dc, std::span<const PathPoint> points) {
    const POINT from = dc.state.position;
    if (DcPath* const path = OpenPath(dc)) {
        path->LineFrom(from, points);
    } else {
        Stroke(dc, std::array{PathPointOf(from), points.front()});
        Stroke(dc, points);
    }
    dc.state.position = {RoundHalfEven<LONG>(points.back().x),
                         RoundHalfEven<LONG>(points.back().y)};
}

// The arc of the two arc calls as lines; without points when its box has no inside.
std::vector<PathPoint> ArcPoints(const DeviceContext& dc, RECT box, POINT start, POINT end) {
    box = InOrder(box);
    if (IsEmpty(box)) return {};
    return Flatten(ArcInBox(box, start, end, dc.state.arcDirection == AD_CLOCKWISE));
}

}  // namespace

BOOL MoveToEx(HDC dc, int x, int y, POINT* old) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    if (old) *old = context->state.position;
    context->state.position = {x, y};
    if (DcPath* const path = OpenPath(*context)) path->StartFigure();
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL LineTo(HDC dc, int x, int y) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    LineThrough(*context, std::array{PathPointOf({x, y})});
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL Arc(HDC dc, int left, int top, int right, int bottom, int startX, int startY, int endX,
         int endY) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    const std::vector<PathPoint> points =
        ArcPoints(*context, {left, top, right, bottom}, {startX, startY}, {endX, endY});
    if (points.empty()) return 1;
    if (DcPath* const path = OpenPath(*context)) {
        path->AddFigure(points);
    } else {
        Stroke(*context, points);
    }
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL ArcTo(HDC dc, int left, int top, int right, int bottom, int startX, int startY, int endX,
           int endY) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    const std::vector<PathPoint> points =
        ArcPoints(*context, {left, top, right, bottom}, {startX, startY}, {endX, endY});
    if (!points.empty()) LineThrough(*context, points);
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

int SetArcDirection(HDC dc, int direction) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    if (direction != AD_COUNTERCLOCKWISE && direction != AD_CLOCKWISE) return 0;
    return std::exchange(context->state.arcDirection, direction);
}

}  // namespace vxgui::gdi
