#include "vxgui/gdip/GpBrush.h"

namespace vxgui {

void GpBrush::SetHandle(gdiplus::GpBrush*& pHandle) {
    GpOwner::SetHandle(pHandle);
    GetType();
}

void GpBrush::Dispose() {
    GpOwner::Dispose();
    mType = kUnknown;
}

int32_t GpBrush::GetType() {
    auto type = static_cast<gdiplus::BrushType>(kUnknown);
    if (mType == kUnknown && Check(flat::GdipGetBrushType(handle_, &type))) mType = type;
    return mType;
}

bool GpBrush::CreateSolidBrush(gdiplus::ARGB Color) {
    return Make(flat::GdipCreateSolidFill, Color);
}

bool GpBrush::SetColor(gdiplus::ARGB Color) {
    if (mType != gdiplus::BrushTypeSolidColor) return CreateSolidBrush(Color);
    return Check(flat::GdipSetSolidFillColor(handle_, Color));
}

gdiplus::ARGB GpBrush::GetColor() { return Asked<gdiplus::ARGB>(flat::GdipGetSolidFillColor); }

bool GpBrush::CreateHatchBrush(gdiplus::HatchStyle Style, gdiplus::ARGB ForegroundColor,
                               gdiplus::ARGB BackgroundColor) {
    return Make(flat::GdipCreateHatchBrush, Style, ForegroundColor, BackgroundColor);
}

gdiplus::HatchStyle GpBrush::GetHatchStyle() {
    return Asked<gdiplus::HatchStyle>(flat::GdipGetHatchStyle);
}

gdiplus::ARGB GpBrush::GetForegroundColor() {
    return Asked<gdiplus::ARGB>(flat::GdipGetHatchForegroundColor);
}

gdiplus::ARGB GpBrush::GetBackgroundColor() {
    return Asked<gdiplus::ARGB>(flat::GdipGetHatchBackgroundColor);
}

}  // namespace vxgui
