#include "vxgui/gdip/GpPath.h"

namespace vxgui {

gdiplus::GpPath* GpPath::Handle() {
    if (!handle_) Create();
    return handle_;
}

bool GpPath::Create(gdiplus::FillMode FillMode) { return Make(flat::GdipCreatePath, FillMode); }

template <class Point, class Call>
bool GpPath::CreateFrom(const Point* points, const uint8_t* types, int32_t count,
                        gdiplus::FillMode mode, const Call& call) {
    const std::vector<Point> copy = CopyOf(points, count);
    return !copy.empty() && Make(call, copy.data(), types, count, mode);
}

bool GpPath::CreatePoints(const gdiplus::GpPointF* Points, const uint8_t* Types, int32_t Count,
                          gdiplus::FillMode FillMode) {
    return CreateFrom(Points, Types, Count, FillMode, flat::GdipCreatePath2);
}

bool GpPath::CreatePointsI(const gdiplus::GpPoint* Points, const uint8_t* Types, int32_t Count,
                           gdiplus::FillMode FillMode) {
    return CreateFrom(Points, Types, Count, FillMode, flat::GdipCreatePath2I);
}

bool GpPath::Reset() { return Check(flat::GdipResetPath(Handle())); }

int32_t GpPath::PointCount() { return Asked<int32_t>(flat::GdipGetPointCount); }

bool GpPath::GetPointTypes(uint8_t* Types, int32_t Count) {
    return Check(flat::GdipGetPathTypes(Handle(), Types, Count));
}

bool GpPath::GetPointPoints(gdiplus::GpPointF* Points, int32_t Count) {
    return Check(flat::GdipGetPathPoints(Handle(), Points, Count));
}

bool GpPath::GetPointPointsI(gdiplus::GpPoint* Points, int32_t Count) {
    return Check(flat::GdipGetPathPointsI(Handle(), Points, Count));
}

gdiplus::FillMode GpPath::FillMode() { return Asked<gdiplus::FillMode>(flat::GdipGetPathFillMode); }
void GpPath::FillMode(gdiplus::FillMode value) {
    Check(flat::GdipSetPathFillMode(Handle(), value));
}

gdiplus::GpPathData GpPath::PathData() {
    const int32_t count = PointCount();
    const auto room = static_cast<size_t>(count) + 1;  // an empty path needs arrays too
    mPoints.resize(room);
    mTypes.resize(room);
    gdiplus::GpPathData data{count, mPoints.data(), mTypes.data()};
    return Check(flat::GdipGetPathData(Handle(), &data)) ? data : gdiplus::GpPathData{};
}

bool GpPath::StartFigure() { return Check(flat::GdipStartPathFigure(Handle())); }

bool GpPath::CloseFigure() { return Check(flat::GdipClosePathFigure(Handle())); }

bool GpPath::CloseAllFigures() { return Check(flat::GdipClosePathFigures(Handle())); }

bool GpPath::SetMarker() { return Check(flat::GdipSetPathMarker(Handle())); }

bool GpPath::ClearMarkers() { return Check(flat::GdipClearPathMarkers(Handle())); }

bool GpPath::Reverse() { return Check(flat::GdipReversePath(Handle())); }

bool GpPath::GetLastPoint(gdiplus::GpPointF& LastPoint) {
    LastPoint = {};
    return Check(flat::GdipGetPathLastPoint(Handle(), &LastPoint));
}

}  // namespace vxgui
