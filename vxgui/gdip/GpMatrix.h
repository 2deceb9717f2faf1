#pragma once

#include "vxgui/gdip/GpObject.h"

namespace vxgui {

/// A matrix of 3 by 2. Reading its handle makes an identity when there is none.
class VXGUI_API GpMatrix : public GpOwner<GpMatrix, gdiplus::GpMatrix> {
public:
    static constexpr auto kDelete = flat::GdipDeleteMatrix;
    static constexpr auto kClone = flat::GdipCloneMatrix;

    gdiplus::GpMatrix* Handle();
    /// The handle of a matrix, null for none.
    VXGUI_LOCAL static gdiplus::GpMatrix* HandleOf(const Ref<GpMatrix>& matrix) {
        return matrix ? matrix->Handle() : nullptr;
    }

    bool CreateF(float m11, float m12, float m21, float m22, float dx, float dy);
    /// Makes the matrix from a rectangle and three points, for which it takes (m11, m12, m21, m22)
    /// and (dx, dy), (0, m11), (m12, m21): that is meant, odd as it is.
    bool CreateI(int32_t m11, int32_t m12, int32_t m21, int32_t m22, int32_t dx, int32_t dy);
    bool SetElements(float m11, float m12, float m21, float m22, float dx, float dy);
    /// Six floats.
    bool GetElements(float* Elements);

    bool Multiply(const Ref<GpMatrix>& Matrix,
                  gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool Translate(float offsetX, float offsetY,
                   gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool ScaleMatrix(float scaleX, float scaleY,
                     gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool Rotate(float Angle, gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool Shear(float shearX, float shearY,
               gdiplus::MatrixOrder Order = gdiplus::MatrixOrderPrepend);
    bool Invert();

    /// The array is worked on as a copy, and written when the call succeeded. A count of 0 or less
    /// calls nothing and answers false.
    bool TransformPoints(gdiplus::GpPointF* Points, int32_t Count);
    bool TransformPointsI(gdiplus::GpPoint* Points, int32_t Count);
    bool TransformVectors(gdiplus::GpPointF* Points, int32_t Count);
    bool TransformVectorsI(gdiplus::GpPoint* Points, int32_t Count);

    /// False too when the question fails.
    bool IsInvertible();
    bool IsIdentity();
    bool Equals(const Ref<GpMatrix>& Matrix);

private:
    template <class Point, class Call>
    bool Transform(Point* points, int32_t count, const Call& call);
};

}  // namespace vxgui
