#include "vxgui/gdip/GpMatrix.h"

#include <algorithm>

namespace vxgui {

gdiplus::GpMatrix* GpMatrix::Handle() {
    if (!handle_) flat::GdipCreateMatrix(&handle_);
    return handle_;
}

bool GpMatrix::CreateF(float m11, float m12, float m21, float m22, float dx, float dy) {
    return Make(flat::GdipCreateMatrix2, m11, m12, m21, m22, dx, dy);
}

bool GpMatrix::CreateI(int32_t m11, int32_t m12, int32_t m21, int32_t m22, int32_t dx, int32_t dy) {
    const gdiplus::GpRect rect{m11, m12, m21, m22};
    const gdiplus::GpPoint points[] = {{dx, dy}, {0, m11}, {m12, m21}};
    return Make(flat::GdipCreateMatrix3I, &rect, points);
}

bool GpMatrix::SetElements(float m11, float m12, float m21, float m22, float dx, float dy) {
    return Check(flat::GdipSetMatrixElements(Handle(), m11, m12, m21, m22, dx, dy));
}

bool GpMatrix::GetElements(float* Elements) {
    return Check(flat::GdipGetMatrixElements(Handle(), Elements));
}

bool GpMatrix::Multiply(const Ref<GpMatrix>& Matrix, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipMultiplyMatrix(Handle(), HandleOf(Matrix), Order));
}

bool GpMatrix::Translate(float offsetX, float offsetY, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipTranslateMatrix(Handle(), offsetX, offsetY, Order));
}

bool GpMatrix::ScaleMatrix(float scaleX, float scaleY, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipScaleMatrix(Handle(), scaleX, scaleY, Order));
}

bool GpMatrix::Rotate(float Angle, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipRotateMatrix(Handle(), Angle, Order));
}

bool GpMatrix::Shear(float shearX, float shearY, gdiplus::MatrixOrder Order) {
    return Check(flat::GdipShearMatrix(Handle(), shearX, shearY, Order));
}

bool GpMatrix::Invert() { return Check(flat::GdipInvertMatrix(Handle())); }

template <class Point, class Call>
bool GpMatrix::Transform(Point* points, int32_t count, const Call& call) {
    std::vector<Point> copy = CopyOf(points, count);
    if (copy.empty() || !Check(call(Handle(), copy.data(), count))) return false;
    std::copy(copy.begin(), copy.end(), points);
    return true;
}

bool GpMatrix::TransformPoints(gdiplus::GpPointF* Points, int32_t Count) {
    return Transform(Points, Count, flat::GdipTransformMatrixPoints);
}

bool GpMatrix::TransformPointsI(gdiplus::GpPoint* Points, int32_t Count) {
    return Transform(Points, Count, flat::GdipTransformMatrixPointsI);
}

bool GpMatrix::TransformVectors(gdiplus::GpPointF* Points, int32_t Count) {
    return Transform(Points, Count, flat::GdipVectorTransformMatrixPoints);
}

bool GpMatrix::TransformVectorsI(gdiplus::GpPoint* Points, int32_t Count) {
    return Transform(Points, Count, flat::GdipVectorTransformMatrixPointsI);
}

bool GpMatrix::IsInvertible() { return Asked<BOOL>(flat::GdipIsMatrixInvertible) != 0; }

bool GpMatrix::IsIdentity() { return Asked<BOOL>(flat::GdipIsMatrixIdentity) != 0; }

bool GpMatrix::Equals(const Ref<GpMatrix>& Matrix) {
    BOOL result = 0;
    return Check(flat::GdipIsMatrixEqual(Handle(), HandleOf(Matrix), &result)) && result;
}

}  // namespace vxgui
