#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus_matrix.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Create(const Affine& value, GpMatrix** matrix) {
    return FlatCreate(matrix, [&] { return HandOut(matrix, New<Matrix>(value)); });
}

}  // namespace

extern "C" {

GpStatus GdipCreateMatrix(GpMatrix** matrix) { return Create({}, matrix); }

GpStatus GdipCreateMatrix2(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy,
                           GpMatrix** matrix) {
    return Create({m11, m12, m21, m22, dx, dy}, matrix);
}

GpStatus GdipCreateMatrix3(const GpRectF* rect, const GpPointF* dstplg, GpMatrix** matrix) {
    return FlatCreate(matrix, [&] {
        if (!rect || !dstplg) return InvalidParameter;
        const auto value = RectToParallelogram(*rect, dstplg);
        return value ? HandOut(matrix, New<Matrix>(*value)) : OutOfMemory;
    });
}

GpStatus GdipCreateMatrix3I(const GpRect* rect, const GpPoint* dstplg, GpMatrix** matrix) {
    if (!rect || !dstplg) return GdipCreateMatrix3(nullptr, nullptr, matrix);
    const GpRectF rectF = ToFloat(*rect);
    const GpPointF corners[3] = {ToFloat(dstplg[0]), ToFloat(dstplg[1]), ToFloat(dstplg[2])};
    return GdipCreateMatrix3(&rectF, corners, matrix);
}

GpStatus GdipCloneMatrix(GpMatrix* matrix, GpMatrix** cloneMatrix) {
    return FlatCreate(cloneMatrix, [&] {
        return FlatOn<Matrix>(
            matrix, [&](Matrix& found) { return HandOut(cloneMatrix, New<Matrix>(found.value)); });
    });
}

GpStatus GdipDeleteMatrix(GpMatrix* matrix) { return FlatDelete<Matrix>(matrix); }

}  // extern "C"

}  // namespace vxgui::gdiplus
