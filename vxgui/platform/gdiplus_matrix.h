#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Matrices of 3 by 2 for row vectors: x' = x m11 + y m21 + dx, y' = x m12 + y m22 + dy. An `order`
/// says whether a change comes before what the matrix does already or after it.
namespace vxgui::gdiplus {

extern "C" {

/// The identity. What these make is released with `GdipDeleteMatrix`.
VXPLATFORM_API GpStatus GdipCreateMatrix(GpMatrix** matrix);
VXPLATFORM_API GpStatus GdipCreateMatrix2(REAL m11, REAL m12, REAL m21, REAL m22, REAL dx, REAL dy,
                                          GpMatrix** matrix);
/// Takes `rect` to the parallelogram with these three corners: upper left, upper right, lower left.
/// A rectangle without area gives `OutOfMemory`.
VXPLATFORM_API GpStatus GdipCreateMatrix3(const GpRectF* rect, const GpPointF* dstplg,
                                          GpMatrix** matrix);
VXPLATFORM_API GpStatus GdipCreateMatrix3I(const GpRect* rect, const GpPoint* dstplg,
                                           GpMatrix** matrix);
VXPLATFORM_API GpStatus GdipCloneMatrix(GpMatrix* matrix, GpMatrix** cloneMatrix);
VXPLATFORM_API GpStatus GdipDeleteMatrix(GpMatrix* matrix);

VXPLATFORM_API GpStatus GdipSetMatrixElements(GpMatrix* matrix, REAL m11, REAL m12, REAL m21,
                                              REAL m22, REAL dx, REAL dy);
/// Six floats: m11, m12, m21, m22, dx, dy.
VXPLATFORM_API GpStatus GdipGetMatrixElements(const GpMatrix* matrix, REAL* matrixOut);

VXPLATFORM_API GpStatus GdipMultiplyMatrix(GpMatrix* matrix, const GpMatrix* matrix2,
                                           MatrixOrder order);
VXPLATFORM_API GpStatus GdipTranslateMatrix(GpMatrix* matrix, REAL offsetX, REAL offsetY,
                                            MatrixOrder order);
VXPLATFORM_API GpStatus GdipScaleMatrix(GpMatrix* matrix, REAL scaleX, REAL scaleY,
                                        MatrixOrder order);
/// By degrees, clockwise on a screen.
VXPLATFORM_API GpStatus GdipRotateMatrix(GpMatrix* matrix, REAL angle, MatrixOrder order);
VXPLATFORM_API GpStatus GdipShearMatrix(GpMatrix* matrix, REAL shearX, REAL shearY,
                                        MatrixOrder order);
/// `InvalidParameter` for a matrix that has no inverse.
VXPLATFORM_API GpStatus GdipInvertMatrix(GpMatrix* matrix);

/// In place. The vector forms leave dx and dy out, the integer forms round halves upwards.
VXPLATFORM_API GpStatus GdipTransformMatrixPoints(GpMatrix* matrix, GpPointF* pts, INT count);
VXPLATFORM_API GpStatus GdipTransformMatrixPointsI(GpMatrix* matrix, GpPoint* pts, INT count);
VXPLATFORM_API GpStatus GdipVectorTransformMatrixPoints(GpMatrix* matrix, GpPointF* pts, INT count);
VXPLATFORM_API GpStatus GdipVectorTransformMatrixPointsI(GpMatrix* matrix, GpPoint* pts, INT count);

VXPLATFORM_API GpStatus GdipIsMatrixInvertible(const GpMatrix* matrix, BOOL* result);
VXPLATFORM_API GpStatus GdipIsMatrixIdentity(const GpMatrix* matrix, BOOL* result);
VXPLATFORM_API GpStatus GdipIsMatrixEqual(const GpMatrix* matrix, const GpMatrix* matrix2,
                                          BOOL* result);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_MATRIX(X)        \
    X(GdipCloneMatrix)                 \
    X(GdipCreateMatrix)                \
    X(GdipCreateMatrix2)               \
    X(GdipCreateMatrix3)               \
    X(GdipCreateMatrix3I)              \
    X(GdipDeleteMatrix)                \
    X(GdipGetMatrixElements)           \
    X(GdipInvertMatrix)                \
    X(GdipIsMatrixEqual)               \
    X(GdipIsMatrixIdentity)            \
    X(GdipIsMatrixInvertible)          \
    X(GdipMultiplyMatrix)              \
    X(GdipRotateMatrix)                \
    X(GdipScaleMatrix)                 \
    X(GdipSetMatrixElements)           \
    X(GdipShearMatrix)                 \
    X(GdipTransformMatrixPoints)       \
    X(GdipTransformMatrixPointsI)      \
    X(GdipTranslateMatrix)             \
    X(GdipVectorTransformMatrixPoints) \
    X(GdipVectorTransformMatrixPointsI)
