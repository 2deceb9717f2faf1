#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus/Stroke.h"
#include "vxgui/platform/gdiplus/paths/Flatten.h"
#include "vxgui/platform/gdiplus/paths/PolygonSets.h"
#include "vxgui/platform/gdiplus_path.h"

namespace vxgui::gdiplus {
namespace {

constexpr REAL kFlatness = 0.05f;  // pixels: a hit test is finer than what is drawn

/// Where a graphics draws, the plain place for null; none for a dead handle.
std::optional<StrokePlace> PlaceOf(const GpGraphics* handle) {
    if (!handle) return StrokePlace{};
    const Ref<Graphics> graphics = Find<Graphics>(handle);
    if (!graphics) return {};
    return StrokePlace{graphics->WorldToDevice(), graphics->Target().DpiX()};
}

/// The room that a pen of any caps and joins needs around a box, as published: its width, times the
/// limit of its miters.
REAL MarginOf(const Pen& pen) {
    const bool mitered = pen.lineJoin == LineJoinMiter || pen.lineJoin == LineJoinMiterClipped;
    return pen.width * (mitered ? std::max<REAL>(1, pen.miterLimit) : 1);
}

GpRectF Inflated(const GpRectF& r, REAL by) {
    return {r.X - by, r.Y - by, r.Width + 2 * by, r.Height + 2 * by};
}

}  // namespace

extern "C" {

GpStatus GdipGetPathWorldBounds(GpPath* path, GpRectF* bounds, const GpMatrix* matrix,
                                const GpPen* pen) {
    if (!bounds) return InvalidParameter;
    return FlatOn<Path>(path, [&](Path& found) {
        const auto map = MatrixOrIdentity(matrix);
        const Ref<Pen> with = Find<Pen>(pen);
        if (!map || (pen && !with)) return InvalidParameter;
        PathPoints mapped = found.data;
        mapped.Transform(*map);
        *bounds = BoundsOfPoints(mapped.points);
        if (with && !mapped.IsEmpty()) *bounds = Inflated(*bounds, MarginOf(*with));
        return Ok;
    });
}

GpStatus GdipGetPathWorldBoundsI(GpPath* path, GpRect* bounds, const GpMatrix* matrix,
                                 const GpPen* pen) {
    if (!bounds) return InvalidParameter;
    GpRectF box{};
    const GpStatus status = GdipGetPathWorldBounds(path, &box, matrix, pen);
    if (status == Ok) {
        *bounds = {RoundCoordinate(box.X), RoundCoordinate(box.Y), RoundCoordinate(box.Width),
                   RoundCoordinate(box.Height)};
    }
    return status;
}

GpStatus GdipIsVisiblePathPoint(GpPath* path, REAL x, REAL y, GpGraphics* graphics, BOOL* result) {
    if (!result) return InvalidParameter;
    return FlatOn<Path>(path, [&](Path& found) {
        const auto place = PlaceOf(graphics);
        if (!place) return InvalidParameter;
        const Affine& device = place->worldToDevice;
        *result = Fills(FilledPolygons(found.data, device, kFlatness), Mapped(device, {x, y}),
                        found.fillMode);
        return Ok;
    });
}

GpStatus GdipIsVisiblePathPointI(GpPath* path, INT x, INT y, GpGraphics* graphics, BOOL* result) {
    return GdipIsVisiblePathPoint(path, x, y, graphics, result);
}

GpStatus GdipIsOutlineVisiblePathPoint(GpPath* path, REAL x, REAL y, GpPen* pen,
                                       GpGraphics* graphics, BOOL* result) {
    if (!result) return InvalidParameter;
    return FlatOn<Path>(path, [&](Path& found) {
        const auto place = PlaceOf(graphics);
        const Ref<Pen> with = Find<Pen>(pen);
        if (!place || !with) return InvalidParameter;
        *result =
            Fills(StrokePolygons(*with, found.data, *place, kFlatness), {x, y}, FillModeWinding);
        return Ok;
    });
}

GpStatus GdipIsOutlineVisiblePathPointI(GpPath* path, INT x, INT y, GpPen* pen,
                                        GpGraphics* graphics, BOOL* result) {
    return GdipIsOutlineVisiblePathPoint(path, x, y, pen, graphics, result);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
