#include "vxgui/gdip/GpMatrix.h"
#include "vxgui/gdip/GpPen.h"

namespace vxgui {

Ref<GpMatrix> GpPen::Transform() {
    Check(flat::GdipSetPenTransform(Handle(), nullptr));
    return New<GpMatrix>();
}
void GpPen::Transform(const Ref<GpMatrix>& value) {
    Check(flat::GdipSetPenTransform(Handle(), GpMatrix::HandleOf(value)));
}

bool GpPen::ResetTransform() { return Check(flat::GdipResetPenTransform(Handle())); }

bool GpPen::MultiplyTransform(const Ref<GpMatrix>& Matrix, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipMultiplyPenTransform(Handle(), GpMatrix::HandleOf(Matrix), Order));
}

bool GpPen::TranslateTransform(float dx, float dy, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipTranslatePenTransform(Handle(), dx, dy, Order));
}

bool GpPen::ScaleTransform(float sx, float sy, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipScalePenTransform(Handle(), sx, sy, Order));
}

bool GpPen::RotateTransform(float Angle, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipRotatePenTransform(Handle(), Angle, Order));
}

}  // namespace vxgui
