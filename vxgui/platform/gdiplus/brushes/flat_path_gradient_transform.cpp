#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus/brushes/WrappedCalls.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipGetPathGradientWrapMode(GpBrush* brush, WrapMode* wrapmode) {
    return brushes::GetWrap<PathBrush>(brush, wrapmode);
}

GpStatus GdipSetPathGradientWrapMode(GpBrush* brush, WrapMode wrapmode) {
    return brushes::SetWrap<PathBrush>(brush, wrapmode);
}

GpStatus GdipGetPathGradientTransform(GpBrush* brush, GpMatrix* matrix) {
    return brushes::GetTransform<PathBrush>(brush, matrix);
}

GpStatus GdipSetPathGradientTransform(GpBrush* brush, const GpMatrix* matrix) {
    return brushes::SetTransform<PathBrush>(brush, matrix);
}

GpStatus GdipResetPathGradientTransform(GpBrush* brush) {
    return brushes::ResetTransform<PathBrush>(brush);
}

GpStatus GdipMultiplyPathGradientTransform(GpBrush* brush, const GpMatrix* matrix,
                                           MatrixOrder order) {
    return brushes::MultiplyTransform<PathBrush>(brush, matrix, order);
}

GpStatus GdipTranslatePathGradientTransform(GpBrush* brush, REAL dx, REAL dy, MatrixOrder order) {
    return brushes::ChangeTransform<PathBrush>(brush, Affine::Translation(dx, dy), order);
}

GpStatus GdipScalePathGradientTransform(GpBrush* brush, REAL sx, REAL sy, MatrixOrder order) {
    return brushes::ChangeTransform<PathBrush>(brush, Affine::Scaling(sx, sy), order);
}

GpStatus GdipRotatePathGradientTransform(GpBrush* brush, REAL angle, MatrixOrder order) {
    return brushes::ChangeTransform<PathBrush>(brush, Affine::Rotation(angle), order);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
