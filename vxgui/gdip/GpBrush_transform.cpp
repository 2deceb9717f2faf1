#include "vxgui/gdip/GpBrush.h"

namespace vxgui {

gdiplus::WrapMode GpBrush::GetWrapMode() {
    auto wrap = gdiplus::WrapModeTile;
    Check(ByKind(flat::GdipGetTextureWrapMode, flat::GdipGetLineWrapMode,
                 flat::GdipGetPathGradientWrapMode, &wrap));
    return wrap;
}

gdiplus::Status GpBrush::SetWrapMode(gdiplus::WrapMode WrapMode) {
    return ByKind(flat::GdipSetTextureWrapMode, flat::GdipSetLineWrapMode,
                  flat::GdipSetPathGradientWrapMode, WrapMode);
}

gdiplus::Status GpBrush::GetTransform(gdiplus::GpMatrix* hGpMatrix) {
    return ByKind(flat::GdipGetTextureTransform, flat::GdipGetLineTransform,
                  flat::GdipGetPathGradientTransform, hGpMatrix);
}

gdiplus::Status GpBrush::SetTransform(gdiplus::GpMatrix* hGpMatrix) {
    return ByKind(flat::GdipSetTextureTransform, flat::GdipSetLineTransform,
                  flat::GdipSetPathGradientTransform, hGpMatrix);
}

gdiplus::Status GpBrush::ResetTransform() {
    return ByKind(flat::GdipResetTextureTransform, flat::GdipResetLineTransform,
                  flat::GdipResetPathGradientTransform);
}

gdiplus::Status GpBrush::MultiplyTransform(gdiplus::GpMatrix* hGpMatrix,
                                           gdiplus::MatrixOrder Order) {
    return ByKind(flat::GdipMultiplyTextureTransform, flat::GdipMultiplyLineTransform,
                  flat::GdipMultiplyPathGradientTransform, hGpMatrix, Order);
}

gdiplus::Status GpBrush::TranslateTransform(float dX, float dY, gdiplus::MatrixOrder Order) {
    return ByKind(flat::GdipTranslateTextureTransform, flat::GdipTranslateLineTransform,
                  flat::GdipTranslatePathGradientTransform, dX, dY, Order);
}

gdiplus::Status GpBrush::ScaleTransform(float sX, float sY, gdiplus::MatrixOrder Order) {
    return ByKind(flat::GdipScaleTextureTransform, flat::GdipScaleLineTransform,
                  flat::GdipScalePathGradientTransform, sX, sY, Order);
}

gdiplus::Status GpBrush::RotateTransform(float Angle, gdiplus::MatrixOrder Order) {
    return ByKind(flat::GdipRotateTextureTransform, flat::GdipRotateLineTransform,
                  flat::GdipRotatePathGradientTransform, Angle, Order);
}

}  // namespace vxgui
