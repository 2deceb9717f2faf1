#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {

template <class Item, class Draw>
bool GpGraphics::DrawItems(gdiplus::GpPen* pen, const Item* items, int32_t count,
                           const Draw& draw) {
    const std::vector<Item> copy = CopyOf(items, count);
    return !copy.empty() && Check(draw(handle_, pen, copy.data(), count));
}

bool GpGraphics::DrawLine(gdiplus::GpPen* hPen, float X1, float Y1, float X2, float Y2) {
    return Check(flat::GdipDrawLine(handle_, hPen, X1, Y1, X2, Y2));
}

bool GpGraphics::DrawLineI(gdiplus::GpPen* hPen, int32_t X1, int32_t Y1, int32_t X2, int32_t Y2) {
    return Check(flat::GdipDrawLineI(handle_, hPen, X1, Y1, X2, Y2));
}

bool GpGraphics::DrawLines(gdiplus::GpPen* hPen, const gdiplus::GpPointF* Points, int32_t Count) {
    return DrawItems(hPen, Points, Count, flat::GdipDrawLines);
}

bool GpGraphics::DrawLinesI(gdiplus::GpPen* hPen, const gdiplus::GpPoint* Points, int32_t Count) {
    return DrawItems(hPen, Points, Count, flat::GdipDrawLinesI);
}

bool GpGraphics::DrawRectangle(gdiplus::GpPen* hPen, float X, float Y, float Width, float Height) {
    return Check(flat::GdipDrawRectangle(handle_, hPen, X, Y, Width, Height));
}

bool GpGraphics::DrawRectangleI(gdiplus::GpPen* hPen, int32_t X, int32_t Y, int32_t Width,
                                int32_t Height) {
    return Check(flat::GdipDrawRectangleI(handle_, hPen, X, Y, Width, Height));
}

bool GpGraphics::DrawRectangles(gdiplus::GpPen* hPen, const gdiplus::GpRectF* Rects,
                                int32_t Count) {
    return DrawItems(hPen, Rects, Count, flat::GdipDrawRectangles);
}

bool GpGraphics::DrawRectanglesI(gdiplus::GpPen* hPen, const gdiplus::GpRect* Rects,
                                 int32_t Count) {
    return DrawItems(hPen, Rects, Count, flat::GdipDrawRectanglesI);
}

bool GpGraphics::DrawPath(gdiplus::GpPen* hPen, gdiplus::GpPath* hPath) {
    return Check(flat::GdipDrawPath(handle_, hPen, hPath));
}

bool GpGraphics::FillRectangle(gdiplus::GpBrush* hBrush, float X, float Y, float Width,
                               float Height) {
    return Check(flat::GdipFillRectangle(handle_, hBrush, X, Y, Width, Height));
}

bool GpGraphics::FillRectangleI(gdiplus::GpBrush* hBrush, int32_t X, int32_t Y, int32_t Width,
                                int32_t Height) {
    return Check(flat::GdipFillRectangleI(handle_, hBrush, X, Y, Width, Height));
}

bool GpGraphics::FillPath(gdiplus::GpBrush* hBrush, gdiplus::GpPath* hPath) {
    return Check(flat::GdipFillPath(handle_, hBrush, hPath));
}

}  // namespace vxgui
