#include "vxgui/gdip/GpBrush.h"

namespace vxgui {

bool GpBrush::CreatePathBrush(const gdiplus::GpPointF* Points, int32_t Count,
                              gdiplus::WrapMode Mode) {
    const std::vector<gdiplus::GpPointF> points = CopyOf(Points, Count);
    return !points.empty() && Make(flat::GdipCreatePathGradient, points.data(), Count, Mode);
}

bool GpBrush::CreatePathBrushI(const gdiplus::GpPoint* Points, int32_t Count,
                               gdiplus::WrapMode Mode) {
    const std::vector<gdiplus::GpPoint> points = CopyOf(Points, Count);
    return !points.empty() && Make(flat::GdipCreatePathGradientI, points.data(), Count, Mode);
}

bool GpBrush::CreatePathBrushFromPath(gdiplus::GpPath* hGpPath) {
    return Make(flat::GdipCreatePathGradientFromPath, hGpPath);
}

gdiplus::ARGB GpBrush::CenterColor() {
    return Asked<gdiplus::ARGB>(flat::GdipGetPathGradientCenterColor);
}

void GpBrush::CenterColor(gdiplus::ARGB value) {
    flat::GdipSetPathGradientCenterColor(handle_, value);
}

gdiplus::Status GpBrush::GetSurroundColors(gdiplus::ARGB* Colors, int32_t& Count) {
    return flat::GdipGetPathGradientSurroundColorsWithCount(handle_, Colors, &Count);
}

bool GpBrush::SetSurroundColors(const gdiplus::ARGB* Colors, int32_t Count) {
    const std::vector<gdiplus::ARGB> colors = CopyOf(Colors, Count);
    return !colors.empty() &&
           Check(flat::GdipSetPathGradientSurroundColorsWithCount(handle_, colors.data(), &Count));
}

gdiplus::GpPath* GpBrush::Path() {
    gdiplus::GpPath* path = nullptr;
    if (!Check(flat::GdipCreatePath(gdiplus::FillModeAlternate, &path))) return nullptr;
    if (Check(flat::GdipGetPathGradientPath(handle_, path))) return path;
    flat::GdipDeletePath(path);
    return nullptr;
}

void GpBrush::Path(gdiplus::GpPath* value) { flat::GdipSetPathGradientPath(handle_, value); }

gdiplus::GpPointF GpBrush::CenterPoint() {
    return Asked<gdiplus::GpPointF>(flat::GdipGetPathGradientCenterPoint);
}

void GpBrush::CenterPoint(const gdiplus::GpPointF& value) {
    flat::GdipSetPathGradientCenterPoint(handle_, &value);
}

gdiplus::GpPoint GpBrush::CenterPointI() {
    return Asked<gdiplus::GpPoint>(flat::GdipGetPathGradientCenterPointI);
}

void GpBrush::CenterPointI(const gdiplus::GpPoint& value) {
    flat::GdipSetPathGradientCenterPointI(handle_, &value);
}

int32_t GpBrush::PointCount() { return Asked<int32_t>(flat::GdipGetPathGradientPointCount); }

int32_t GpBrush::SurroundColorCount() {
    return Asked<int32_t>(flat::GdipGetPathGradientSurroundColorCount);
}

gdiplus::Status GpBrush::GetFocusScales(float* xScale, float* yScale) {
    return flat::GdipGetPathGradientFocusScales(handle_, xScale, yScale);
}

gdiplus::Status GpBrush::SetFocusScales(float xScale, float yScale) {
    return flat::GdipSetPathGradientFocusScales(handle_, xScale, yScale);
}

}  // namespace vxgui
