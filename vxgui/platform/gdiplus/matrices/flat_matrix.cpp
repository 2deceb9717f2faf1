#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus_matrix.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Combine(GpMatrix* matrix, const Affine& change, MatrixOrder order) {
    if (!IsOrder(order)) return InvalidParameter;
    return FlatSet<Matrix>(
        matrix, [&](Matrix& found) { found.value = Combined(found.value, change, order); });
}

}  // namespace

extern "C" {

GpStatus GdipSetMatrixElements(GpMatrix* matrix, REAL m11, REAL m12, REAL m21, REAL m22, REAL dx,
                               REAL dy) {
    return FlatSet<Matrix>(matrix,
                           [&](Matrix& found) { found.value = {m11, m12, m21, m22, dx, dy}; });
}

GpStatus GdipGetMatrixElements(const GpMatrix* matrix, REAL* matrixOut) {
    if (!matrixOut) return InvalidParameter;
    return FlatSet<Matrix>(matrix, [&](Matrix& found) {
        const Affine& a = found.value;
        for (const REAL element : {a.m11, a.m12, a.m21, a.m22, a.dx, a.dy}) *matrixOut++ = element;
    });
}

GpStatus GdipMultiplyMatrix(GpMatrix* matrix, const GpMatrix* matrix2, MatrixOrder order) {
    return FlatOn<Matrix>(matrix2,
                          [&](Matrix& second) { return Combine(matrix, second.value, order); });
}

GpStatus GdipTranslateMatrix(GpMatrix* matrix, REAL offsetX, REAL offsetY, MatrixOrder order) {
    return Combine(matrix, Affine::Translation(offsetX, offsetY), order);
}

GpStatus GdipScaleMatrix(GpMatrix* matrix, REAL scaleX, REAL scaleY, MatrixOrder order) {
    return Combine(matrix, Affine::Scaling(scaleX, scaleY), order);
}

GpStatus GdipRotateMatrix(GpMatrix* matrix, REAL angle, MatrixOrder order) {
    return Combine(matrix, Affine::Rotation(angle), order);
}

GpStatus GdipShearMatrix(GpMatrix* matrix, REAL shearX, REAL shearY, MatrixOrder order) {
    return Combine(matrix, Affine::Shearing(shearX, shearY), order);
}

GpStatus GdipInvertMatrix(GpMatrix* matrix) {
    return FlatOn<Matrix>(matrix, [](Matrix& found) {
        const auto inverse = Inverse(found.value);
        if (!inverse) return InvalidParameter;
        found.value = *inverse;
        return Ok;
    });
}

GpStatus GdipIsMatrixInvertible(const GpMatrix* matrix, BOOL* result) {
    return FlatGet<Matrix>(matrix, result,
                           [](Matrix& found) { return Inverse(found.value).has_value(); });
}

GpStatus GdipIsMatrixIdentity(const GpMatrix* matrix, BOOL* result) {
    return FlatGet<Matrix>(matrix, result, [](Matrix& found) { return found.value == Affine{}; });
}

GpStatus GdipIsMatrixEqual(const GpMatrix* matrix, const GpMatrix* matrix2, BOOL* result) {
    return FlatOn<Matrix>(matrix2, [&](Matrix& second) {
        return FlatGet<Matrix>(matrix, result,
                               [&](Matrix& found) { return found.value == second.value; });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
