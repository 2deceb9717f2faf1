#include "vxgui/gdip/GpPath.h"

namespace vxgui {

using gdiplus::Status;

Status GpPath::AddClosedCurve(const gdiplus::GpPointF* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathClosedCurve);
}

Status GpPath::AddClosedCurve2(const gdiplus::GpPointF* Points, int32_t Count, float Tension) {
    return WithItems(Points, Count, flat::GdipAddPathClosedCurve2, Tension);
}

Status GpPath::AddRectangle(float X, float Y, float Width, float Height) {
    return flat::GdipAddPathRectangle(Handle(), X, Y, Width, Height);
}

Status GpPath::AddRectangles(const gdiplus::GpRectF* Rects, int32_t Count) {
    return WithItems(Rects, Count, flat::GdipAddPathRectangles);
}

Status GpPath::AddEllipse(float X, float Y, float Width, float Height) {
    return flat::GdipAddPathEllipse(Handle(), X, Y, Width, Height);
}

Status GpPath::AddPie(float X, float Y, float Width, float Height, float StartAngle,
                      float SweepAngle) {
    return flat::GdipAddPathPie(Handle(), X, Y, Width, Height, StartAngle, SweepAngle);
}

Status GpPath::AddPolygon(const gdiplus::GpPointF* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathPolygon);
}

Status GpPath::AddPath(gdiplus::GpPath* hGpPath, bool bConnect) {
    return flat::GdipAddPathPath(Handle(), hGpPath, bConnect);
}

Status GpPath::AddClosedCurveI(const gdiplus::GpPoint* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathClosedCurveI);
}

Status GpPath::AddClosedCurve2I(const gdiplus::GpPoint* Points, int32_t Count, float Tension) {
    return WithItems(Points, Count, flat::GdipAddPathClosedCurve2I, Tension);
}

Status GpPath::AddRectangleI(int32_t X, int32_t Y, int32_t Width, int32_t Height) {
    return flat::GdipAddPathRectangleI(Handle(), X, Y, Width, Height);
}

Status GpPath::AddRectanglesI(const gdiplus::GpRect* Rects, int32_t Count) {
    return WithItems(Rects, Count, flat::GdipAddPathRectanglesI);
}

Status GpPath::AddEllipseI(int32_t X, int32_t Y, int32_t Width, int32_t Height) {
    return flat::GdipAddPathEllipseI(Handle(), X, Y, Width, Height);
}

Status GpPath::AddPieI(int32_t X, int32_t Y, int32_t Width, int32_t Height, float StartAngle,
                       float SweepAngle) {
    return flat::GdipAddPathPieI(Handle(), X, Y, Width, Height, StartAngle, SweepAngle);
}

Status GpPath::AddPolygonI(const gdiplus::GpPoint* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathPolygonI);
}

}  // namespace vxgui
