#include "vxgui/gdip/GpPen.h"

#include "vxgui/gdip/GpBrush.h"

namespace vxgui {

gdiplus::GpPen* GpPen::Handle() {
    if (!handle_) Create(0xFF000000, 1, gdiplus::UnitPixel);
    return handle_;
}

bool GpPen::Create(gdiplus::ARGB Color, float Width, gdiplus::Unit Unit) {
    return Make(flat::GdipCreatePen1, Color, Width, Unit);
}

bool GpPen::CreateWithBrush(gdiplus::GpBrush* hGpBrush, float Width, gdiplus::Unit Unit) {
    return Make(flat::GdipCreatePen2, hGpBrush, Width, Unit);
}

bool GpPen::SetWidth(float Width) { return Check(flat::GdipSetPenWidth(Handle(), Width)); }

bool GpPen::GetWidth(float& Width) {
    Width = 0;
    return Check(flat::GdipGetPenWidth(Handle(), &Width));
}

gdiplus::Unit GpPen::Unit() { return Asked<gdiplus::Unit>(flat::GdipGetPenUnit); }
void GpPen::Unit(gdiplus::Unit value) { Check(flat::GdipSetPenUnit(Handle(), value)); }

bool GpPen::SetLineCap(gdiplus::LineCap StartCap, gdiplus::LineCap EndCap,
                       gdiplus::DashCap DashCap) {
    return Check(flat::GdipSetPenLineCap197819(Handle(), StartCap, EndCap, DashCap));
}

bool GpPen::SetStartCap(gdiplus::LineCap StartCap) {
    return Check(flat::GdipSetPenStartCap(Handle(), StartCap));
}

bool GpPen::SetEndCap(gdiplus::LineCap EndCap) {
    return Check(flat::GdipSetPenEndCap(Handle(), EndCap));
}

bool GpPen::SetDashCap(gdiplus::DashCap DashCap) {
    return Check(flat::GdipSetPenDashCap197819(Handle(), DashCap));
}

gdiplus::LineCap GpPen::StartCap() { return Asked<gdiplus::LineCap>(flat::GdipGetPenStartCap); }
gdiplus::LineCap GpPen::EndCap() { return Asked<gdiplus::LineCap>(flat::GdipGetPenEndCap); }
gdiplus::DashCap GpPen::DashCap() { return Asked<gdiplus::DashCap>(flat::GdipGetPenDashCap197819); }

gdiplus::LineJoin GpPen::LineJoin() { return Asked<gdiplus::LineJoin>(flat::GdipGetPenLineJoin); }
void GpPen::LineJoin(gdiplus::LineJoin value) { Check(flat::GdipSetPenLineJoin(Handle(), value)); }

void GpPen::MiterLimit(float value) { Check(flat::GdipSetPenMiterLimit(Handle(), value)); }

gdiplus::PenAlignment GpPen::Alignment() {
    return Asked<gdiplus::PenAlignment>(flat::GdipGetPenMode);
}
void GpPen::Alignment(gdiplus::PenAlignment value) { Check(flat::GdipSetPenMode(Handle(), value)); }

void GpPen::Color(gdiplus::ARGB value) { Check(flat::GdipSetPenColor(Handle(), value)); }

Ref<GpBrush> GpPen::Brush() {
    gdiplus::GpBrush* copy = nullptr;
    const bool got = Check(flat::GdipGetPenBrushFill(Handle(), &copy));
    return got ? Holding<GpBrush>(copy) : nullptr;
}
void GpPen::Brush(const Ref<GpBrush>& value) {
    Check(flat::GdipSetPenBrushFill(Handle(), value ? value->Handle() : nullptr));
}

gdiplus::PenType GpPen::PenType() { return Asked<gdiplus::PenType>(flat::GdipGetPenFillType); }

gdiplus::DashStyle GpPen::DashStyle() {
    return Asked<gdiplus::DashStyle>(flat::GdipGetPenDashStyle);
}
void GpPen::DashStyle(gdiplus::DashStyle value) {
    Check(flat::GdipSetPenDashStyle(Handle(), value));
}

void GpPen::DashOffset(float value) { Check(flat::GdipSetPenDashOffset(Handle(), value)); }

bool GpPen::GetDashPattern(float* Dash, int32_t Count) {
    return Check(flat::GdipGetPenDashArray(Handle(), Dash, Count));
}

bool GpPen::SetDashPattern(const float* Dash, int32_t Count) {
    return Check(flat::GdipSetPenDashArray(Handle(), Dash, Count));
}

bool GpPen::GetCompoundArray(float* Compound, int32_t Count) {
    return Check(flat::GdipGetPenCompoundArray(Handle(), Compound, Count));
}

bool GpPen::SetCompoundArray(const float* Compound, int32_t Count) {
    return Check(flat::GdipSetPenCompoundArray(Handle(), Compound, Count));
}

}  // namespace vxgui
