#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus_pen.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Combine(GpPen* pen, const Affine& change, MatrixOrder order) {
    if (!IsOrder(order)) return InvalidParameter;
    return FlatSet<Pen>(
        pen, [&](Pen& found) { found.transform = Combined(found.transform, change, order); });
}

}  // namespace

extern "C" {

GpStatus GdipSetPenTransform(GpPen* pen, GpMatrix* matrix) {
    return FlatOn<Pen>(pen, [&](Pen& found) {
        const auto value = MatrixOrIdentity(matrix);
        if (!value) return InvalidParameter;
        found.transform = *value;
        return Ok;
    });
}

GpStatus GdipGetPenTransform(GpPen* pen, GpMatrix* matrix) {
    return FlatOn<Matrix>(matrix, [&](Matrix& out) {
        return FlatSet<Pen>(pen, [&](Pen& found) { out.value = found.transform; });
    });
}

GpStatus GdipResetPenTransform(GpPen* pen) {
    return FlatSet<Pen>(pen, [](Pen& found) { found.transform = {}; });
}

GpStatus GdipMultiplyPenTransform(GpPen* pen, const GpMatrix* matrix, MatrixOrder order) {
    return FlatOn<Matrix>(matrix,
                          [&](Matrix& change) { return Combine(pen, change.value, order); });
}

GpStatus GdipTranslatePenTransform(GpPen* pen, REAL dx, REAL dy, MatrixOrder order) {
    return Combine(pen, Affine::Translation(dx, dy), order);
}

GpStatus GdipScalePenTransform(GpPen* pen, REAL sx, REAL sy, MatrixOrder order) {
    return Combine(pen, Affine::Scaling(sx, sy), order);
}

GpStatus GdipRotatePenTransform(GpPen* pen, REAL angle, MatrixOrder order) {
    return Combine(pen, Affine::Rotation(angle), order);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
