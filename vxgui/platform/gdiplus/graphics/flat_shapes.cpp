#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/graphics/Fills.h"
#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus/graphics/Shapes.h"
#include "vxgui/platform/gdiplus_drawing.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Stroke(GpGraphics* graphics, GpPen* pen, const PathPoints& path) {
    return DrawWith<Pen>(graphics, pen, [&](Graphics& found, Pen& stroke) {
        return StrokeShape(found, stroke, path);
    });
}

template <class Point>
GpStatus StrokeLines(GpGraphics* graphics, GpPen* pen, const Point* points, INT count) {
    return Flat([&] {
        if (!points || count < 2) return InvalidParameter;
        return Stroke(graphics, pen, LinesThrough(ToFloats(points, count)));
    });
}

template <class Rect>
GpStatus StrokeRectangles(GpGraphics* graphics, GpPen* pen, const Rect* rects, INT count) {
    return Flat([&] {
        if (!rects || count < 1) return InvalidParameter;
        return Stroke(graphics, pen, Outlines(ToFloats(rects, count)));
    });
}

template <class Rect>
GpStatus FillRectangles(GpGraphics* graphics, GpBrush* brush, const Rect* rects, INT count) {
    if (!rects || count < 1) return InvalidParameter;
    return DrawWith<Brush>(graphics, brush, [&](Graphics& found, Brush& paint) {
        GpStatus status = Ok;
        for (INT i = 0; i < count && status == Ok; ++i) {
            status = FillRectangle(found, paint, ToFloat(rects[i]));
        }
        return status;
    });
}

}  // namespace

extern "C" {

GpStatus GdipDrawLine(GpGraphics* graphics, GpPen* pen, REAL x1, REAL y1, REAL x2, REAL y2) {
    const GpPointF points[] = {{x1, y1}, {x2, y2}};
    return StrokeLines(graphics, pen, points, 2);
}

GpStatus GdipDrawLineI(GpGraphics* graphics, GpPen* pen, INT x1, INT y1, INT x2, INT y2) {
    const GpPoint points[] = {{x1, y1}, {x2, y2}};
    return StrokeLines(graphics, pen, points, 2);
}

GpStatus GdipDrawLines(GpGraphics* graphics, GpPen* pen, const GpPointF* points, INT count) {
    return StrokeLines(graphics, pen, points, count);
}

GpStatus GdipDrawLinesI(GpGraphics* graphics, GpPen* pen, const GpPoint* points, INT count) {
    return StrokeLines(graphics, pen, points, count);
}

GpStatus GdipDrawRectangle(GpGraphics* graphics, GpPen* pen, REAL x, REAL y, REAL width,
                           REAL height) {
    const GpRectF rect{x, y, width, height};
    return StrokeRectangles(graphics, pen, &rect, 1);
}

GpStatus GdipDrawRectangleI(GpGraphics* graphics, GpPen* pen, INT x, INT y, INT width, INT height) {
    const GpRect rect{x, y, width, height};
    return StrokeRectangles(graphics, pen, &rect, 1);
}

GpStatus GdipDrawRectangles(GpGraphics* graphics, GpPen* pen, const GpRectF* rects, INT count) {
    return StrokeRectangles(graphics, pen, rects, count);
}

GpStatus GdipDrawRectanglesI(GpGraphics* graphics, GpPen* pen, const GpRect* rects, INT count) {
    return StrokeRectangles(graphics, pen, rects, count);
}

GpStatus GdipDrawPath(GpGraphics* graphics, GpPen* pen, GpPath* path) {
    return FlatOn<Path>(path, [&](Path& shape) { return Stroke(graphics, pen, shape.data); });
}

GpStatus GdipFillPath(GpGraphics* graphics, GpBrush* brush, GpPath* path) {
    return FlatOn<Path>(path, [&](Path& shape) {
        return DrawWith<Brush>(graphics, brush, [&](Graphics& found, Brush& paint) {
            return FillShape(found, paint, shape.data, shape.fillMode);
        });
    });
}

GpStatus GdipFillRectangles(GpGraphics* graphics, GpBrush* brush, const GpRectF* rects, INT count) {
    return FillRectangles(graphics, brush, rects, count);
}

GpStatus GdipFillRectanglesI(GpGraphics* graphics, GpBrush* brush, const GpRect* rects, INT count) {
    return FillRectangles(graphics, brush, rects, count);
}

GpStatus GdipFillRectangle(GpGraphics* graphics, GpBrush* brush, REAL x, REAL y, REAL width,
                           REAL height) {
    const GpRectF rect{x, y, width, height};
    return FillRectangles(graphics, brush, &rect, 1);
}

GpStatus GdipFillRectangleI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                            INT height) {
    const GpRect rect{x, y, width, height};
    return FillRectangles(graphics, brush, &rect, 1);
}

GpStatus GdipGraphicsClear(GpGraphics* graphics, ARGB color) {
    return SetOfGraphics(graphics, [&](Graphics& found) { ClearTo(found, color); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
