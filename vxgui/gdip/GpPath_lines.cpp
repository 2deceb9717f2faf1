#include "vxgui/gdip/GpPath.h"

namespace vxgui {

using gdiplus::Status;

Status GpPath::AddLine(float X1, float Y1, float X2, float Y2) {
    return flat::GdipAddPathLine(Handle(), X1, Y1, X2, Y2);
}

Status GpPath::AddLines(const gdiplus::GpPointF* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathLine2);
}

Status GpPath::AddArc(float X, float Y, float Width, float Height, float StartAngle,
                      float SweepAngle) {
    return flat::GdipAddPathArc(Handle(), X, Y, Width, Height, StartAngle, SweepAngle);
}

Status GpPath::AddBezier(float X1, float Y1, float X2, float Y2, float X3, float Y3, float X4,
                         float Y4) {
    return flat::GdipAddPathBezier(Handle(), X1, Y1, X2, Y2, X3, Y3, X4, Y4);
}

Status GpPath::AddBeziers(const gdiplus::GpPointF* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathBeziers);
}

Status GpPath::AddCurve(const gdiplus::GpPointF* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathCurve);
}

Status GpPath::AddCurve2(const gdiplus::GpPointF* Points, int32_t Count, float Tension) {
    return WithItems(Points, Count, flat::GdipAddPathCurve2, Tension);
}

Status GpPath::AddCurve3(const gdiplus::GpPointF* Points, int32_t Count, int32_t Offset,
                         int32_t NumberOfSegments, float Tension) {
    return WithItems(Points, Count, flat::GdipAddPathCurve3, Offset, NumberOfSegments, Tension);
}

Status GpPath::AddLineI(int32_t X1, int32_t Y1, int32_t X2, int32_t Y2) {
    return flat::GdipAddPathLineI(Handle(), X1, Y1, X2, Y2);
}

Status GpPath::AddLinesI(const gdiplus::GpPoint* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathLine2I);
}

Status GpPath::AddArcI(int32_t X, int32_t Y, int32_t Width, int32_t Height, float StartAngle,
                       float SweepAngle) {
    return flat::GdipAddPathArcI(Handle(), X, Y, Width, Height, StartAngle, SweepAngle);
}

Status GpPath::AddBezierI(int32_t X1, int32_t Y1, int32_t X2, int32_t Y2, int32_t X3, int32_t Y3,
                          int32_t X4, int32_t Y4) {
    return flat::GdipAddPathBezierI(Handle(), X1, Y1, X2, Y2, X3, Y3, X4, Y4);
}

Status GpPath::AddBeziersI(const gdiplus::GpPoint* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathBeziersI);
}

Status GpPath::AddCurveI(const gdiplus::GpPoint* Points, int32_t Count) {
    return WithItems(Points, Count, flat::GdipAddPathCurveI);
}

Status GpPath::AddCurve2I(const gdiplus::GpPoint* Points, int32_t Count, float Tension) {
    return WithItems(Points, Count, flat::GdipAddPathCurve2I, Tension);
}

Status GpPath::AddCurve3I(const gdiplus::GpPoint* Points, int32_t Count, int32_t Offset,
                          int32_t NumberOfSegments, float Tension) {
    return WithItems(Points, Count, flat::GdipAddPathCurve3I, Offset, NumberOfSegments, Tension);
}

}  // namespace vxgui
