#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {

bool GpGraphics::SetRenderingOrigin(int32_t X, int32_t Y) {
    return Check(flat::GdipSetRenderingOrigin(handle_, X, Y));
}

bool GpGraphics::GetRenderingOrigin(int32_t& X, int32_t& Y) {
    X = Y = 0;
    return Check(flat::GdipGetRenderingOrigin(handle_, &X, &Y));
}

gdiplus::CompositingMode GpGraphics::CompositingMode() {
    return Asked<gdiplus::CompositingMode>(flat::GdipGetCompositingMode);
}
void GpGraphics::CompositingMode(gdiplus::CompositingMode value) {
    Check(flat::GdipSetCompositingMode(handle_, value));
}

gdiplus::CompositingQuality GpGraphics::CompositingQuality() {
    return Asked<gdiplus::CompositingQuality>(flat::GdipGetCompositingQuality);
}
void GpGraphics::CompositingQuality(gdiplus::CompositingQuality value) {
    Check(flat::GdipSetCompositingQuality(handle_, value));
}

gdiplus::SmoothingMode GpGraphics::SmoothingMode() {
    return Asked<gdiplus::SmoothingMode>(flat::GdipGetSmoothingMode);
}
void GpGraphics::SmoothingMode(gdiplus::SmoothingMode value) {
    Check(flat::GdipSetSmoothingMode(handle_, value));
}

gdiplus::InterpolationMode GpGraphics::InterpolationMode() {
    return Asked<gdiplus::InterpolationMode>(flat::GdipGetInterpolationMode);
}
void GpGraphics::InterpolationMode(gdiplus::InterpolationMode value) {
    Check(flat::GdipSetInterpolationMode(handle_, value));
}

gdiplus::PixelOffsetMode GpGraphics::PixelOffsetMode() {
    return Asked<gdiplus::PixelOffsetMode>(flat::GdipGetPixelOffsetMode);
}
void GpGraphics::PixelOffsetMode(gdiplus::PixelOffsetMode value) {
    Check(flat::GdipSetPixelOffsetMode(handle_, value));
}

gdiplus::TextRenderingHint GpGraphics::TextRenderingHint() {
    return Asked<gdiplus::TextRenderingHint>(flat::GdipGetTextRenderingHint);
}
void GpGraphics::TextRenderingHint(gdiplus::TextRenderingHint value) {
    Check(flat::GdipSetTextRenderingHint(handle_, value));
}

uint32_t GpGraphics::TextContrast() { return Asked<uint32_t>(flat::GdipGetTextContrast); }
void GpGraphics::TextContrast(uint32_t value) { Check(flat::GdipSetTextContrast(handle_, value)); }

gdiplus::Unit GpGraphics::PageUnit() { return Asked<gdiplus::Unit>(flat::GdipGetPageUnit); }
void GpGraphics::PageUnit(gdiplus::Unit value) { Check(flat::GdipSetPageUnit(handle_, value)); }

float GpGraphics::PageScale() { return Asked<float>(flat::GdipGetPageScale); }
void GpGraphics::PageScale(float value) { Check(flat::GdipSetPageScale(handle_, value)); }

bool GpGraphics::ResetTransform() { return Check(flat::GdipResetWorldTransform(handle_)); }

bool GpGraphics::TranslateTransform(float dx, float dy, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipTranslateWorldTransform(handle_, dx, dy, Order));
}

bool GpGraphics::ScaleTransform(float sx, float sy, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipScaleWorldTransform(handle_, sx, sy, Order));
}

bool GpGraphics::RotateTransform(float Angle, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipRotateWorldTransform(handle_, Angle, Order));
}

bool GpGraphics::ResetClip() { return Check(flat::GdipResetClip(handle_)); }

bool GpGraphics::GetClipBoundsRectF(gdiplus::GpRectF* Rect) {
    return Check(flat::GdipGetClipBounds(handle_, Rect));
}

bool GpGraphics::GetClipBoundsRectL(gdiplus::GpRect* Rect) {
    return Check(flat::GdipGetClipBoundsI(handle_, Rect));
}

}  // namespace vxgui
