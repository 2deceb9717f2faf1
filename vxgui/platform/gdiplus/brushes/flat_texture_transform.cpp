#include "vxgui/platform/gdiplus/brushes/TextureBrush.h"
#include "vxgui/platform/gdiplus/brushes/WrappedCalls.h"
#include "vxgui/platform/gdiplus_texture.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipGetTextureWrapMode(GpBrush* brush, WrapMode* wrapmode) {
    return brushes::GetWrap<TextureBrush>(brush, wrapmode);
}

GpStatus GdipSetTextureWrapMode(GpBrush* brush, WrapMode wrapmode) {
    return brushes::SetWrap<TextureBrush>(brush, wrapmode);
}

GpStatus GdipGetTextureTransform(GpBrush* brush, GpMatrix* matrix) {
    return brushes::GetTransform<TextureBrush>(brush, matrix);
}

GpStatus GdipSetTextureTransform(GpBrush* brush, const GpMatrix* matrix) {
    return brushes::SetTransform<TextureBrush>(brush, matrix);
}

GpStatus GdipResetTextureTransform(GpBrush* brush) {
    return brushes::ResetTransform<TextureBrush>(brush);
}

GpStatus GdipMultiplyTextureTransform(GpBrush* brush, const GpMatrix* matrix, MatrixOrder order) {
    return brushes::MultiplyTransform<TextureBrush>(brush, matrix, order);
}

GpStatus GdipTranslateTextureTransform(GpBrush* brush, REAL dx, REAL dy, MatrixOrder order) {
    return brushes::ChangeTransform<TextureBrush>(brush, Affine::Translation(dx, dy), order);
}

GpStatus GdipScaleTextureTransform(GpBrush* brush, REAL sx, REAL sy, MatrixOrder order) {
    return brushes::ChangeTransform<TextureBrush>(brush, Affine::Scaling(sx, sy), order);
}

GpStatus GdipRotateTextureTransform(GpBrush* brush, REAL angle, MatrixOrder order) {
    return brushes::ChangeTransform<TextureBrush>(brush, Affine::Rotation(angle), order);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
