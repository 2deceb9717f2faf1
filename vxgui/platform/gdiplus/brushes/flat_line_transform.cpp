#include "vxgui/platform/gdiplus/brushes/LineBrush.h"
#include "vxgui/platform/gdiplus/brushes/WrappedCalls.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipGetLineWrapMode(GpBrush* brush, WrapMode* wrapmode) {
    return brushes::GetWrap<LineBrush>(brush, wrapmode);
}

GpStatus GdipSetLineWrapMode(GpBrush* brush, WrapMode wrapmode) {
    if (wrapmode == WrapModeClamp) return InvalidParameter;
    return brushes::SetWrap<LineBrush>(brush, wrapmode);
}

GpStatus GdipGetLineTransform(GpBrush* brush, GpMatrix* matrix) {
    return brushes::GetTransform<LineBrush>(brush, matrix);
}

GpStatus GdipSetLineTransform(GpBrush* brush, const GpMatrix* matrix) {
    return brushes::SetTransform<LineBrush>(brush, matrix);
}

GpStatus GdipResetLineTransform(GpBrush* brush) {
    return brushes::ResetTransform<LineBrush>(brush);
}

GpStatus GdipMultiplyLineTransform(GpBrush* brush, const GpMatrix* matrix, MatrixOrder order) {
    return brushes::MultiplyTransform<LineBrush>(brush, matrix, order);
}

GpStatus GdipTranslateLineTransform(GpBrush* brush, REAL dx, REAL dy, MatrixOrder order) {
    return brushes::ChangeTransform<LineBrush>(brush, Affine::Translation(dx, dy), order);
}

GpStatus GdipScaleLineTransform(GpBrush* brush, REAL sx, REAL sy, MatrixOrder order) {
    return brushes::ChangeTransform<LineBrush>(brush, Affine::Scaling(sx, sy), order);
}

GpStatus GdipRotateLineTransform(GpBrush* brush, REAL angle, MatrixOrder order) {
    return brushes::ChangeTransform<LineBrush>(brush, Affine::Rotation(angle), order);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
