#include "vxgui/gdip/GpBrush.h"

namespace vxgui {

gdiplus::Status GpBrush::GetRectangle(gdiplus::GpRectF* Rect) {
    return ByGradient(flat::GdipGetLineRect, flat::GdipGetPathGradientRect, Rect);
}

gdiplus::Status GpBrush::GetRectangleI(gdiplus::GpRect* Rect) {
    return ByGradient(flat::GdipGetLineRectI, flat::GdipGetPathGradientRectI, Rect);
}

gdiplus::Status GpBrush::SetGammaCorrection(bool useGammaCorrection) {
    return ByGradient(flat::GdipSetLineGammaCorrection, flat::GdipSetPathGradientGammaCorrection,
                      BOOL{useGammaCorrection});
}

bool GpBrush::GetGammaCorrection() {
    BOOL on = 0;
    Check(ByGradient(flat::GdipGetLineGammaCorrection, flat::GdipGetPathGradientGammaCorrection,
                     &on));
    return on != 0;
}

int32_t GpBrush::GetBlendCount() {
    int32_t count = 0;
    Check(ByGradient(flat::GdipGetLineBlendCount, flat::GdipGetPathGradientBlendCount, &count));
    return count;
}

gdiplus::Status GpBrush::GetBlend(float* Blend, float* Positions, int32_t Count) {
    return ByGradient(flat::GdipGetLineBlend, flat::GdipGetPathGradientBlend, Blend, Positions,
                      Count);
}

gdiplus::Status GpBrush::SetBlend(const float* Blend, const float* Positions, int32_t Count) {
    return ByGradient(flat::GdipSetLineBlend, flat::GdipSetPathGradientBlend, Blend, Positions,
                      Count);
}

int32_t GpBrush::GetInterpolationColorCount() {
    int32_t count = 0;
    Check(ByGradient(flat::GdipGetLinePresetBlendCount, flat::GdipGetPathGradientPresetBlendCount,
                     &count));
    return count;
}

gdiplus::Status GpBrush::GetInterpolationColors(gdiplus::ARGB* Colors, float* Positions,
                                                int32_t Count) {
    return ByGradient(flat::GdipGetLinePresetBlend, flat::GdipGetPathGradientPresetBlend, Colors,
                      Positions, Count);
}

bool GpBrush::SetInterpolationColors(const gdiplus::ARGB* Colors, const float* Positions,
                                     int32_t Count) {
    const std::vector<gdiplus::ARGB> colors = CopyOf(Colors, Count);
    if (colors.empty()) return false;
    return Check(ByGradient(flat::GdipSetLinePresetBlend, flat::GdipSetPathGradientPresetBlend,
                            colors.data(), Positions, Count));
}

gdiplus::Status GpBrush::SetBlendBellShape(float Focus, float sScale) {
    return ByGradient(flat::GdipSetLineSigmaBlend, flat::GdipSetPathGradientSigmaBlend, Focus,
                      sScale);
}

gdiplus::Status GpBrush::SetBlendTriangularShape(float Focus, float sScale) {
    return ByGradient(flat::GdipSetLineLinearBlend, flat::GdipSetPathGradientLinearBlend, Focus,
                      sScale);
}

}  // namespace vxgui
