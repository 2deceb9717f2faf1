#include "vxgui/platform/gdiplus/brushes/GradientCalls.h"
#include "vxgui/platform/gdiplus/brushes/LineBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipSetLineGammaCorrection(GpBrush* brush, BOOL useGammaCorrection) {
    return brushes::SetGamma<LineBrush>(brush, useGammaCorrection);
}

GpStatus GdipGetLineGammaCorrection(GpBrush* brush, BOOL* useGammaCorrection) {
    return brushes::GetGamma<LineBrush>(brush, useGammaCorrection);
}

GpStatus GdipGetLineBlendCount(GpBrush* brush, INT* count) {
    return brushes::CountStops<LineBrush>(brush, &Blend::factors, count);
}

GpStatus GdipGetLineBlend(GpBrush* brush, REAL* blend, REAL* positions, INT count) {
    return brushes::GetStops<LineBrush>(brush, &Blend::factors, blend, positions, count);
}

GpStatus GdipSetLineBlend(GpBrush* brush, const REAL* blend, const REAL* positions, INT count) {
    return brushes::SetBlend<LineBrush>(brush, blend, positions, count);
}

GpStatus GdipGetLinePresetBlendCount(GpBrush* brush, INT* count) {
    return brushes::CountStops<LineBrush>(brush, &Blend::presets, count);
}

GpStatus GdipGetLinePresetBlend(GpBrush* brush, ARGB* blend, REAL* positions, INT count) {
    return brushes::GetStops<LineBrush>(brush, &Blend::presets, blend, positions, count);
}

GpStatus GdipSetLinePresetBlend(GpBrush* brush, const ARGB* blend, const REAL* positions,
                                INT count) {
    return brushes::SetPresets<LineBrush>(brush, blend, positions, count);
}

GpStatus GdipSetLineSigmaBlend(GpBrush* brush, REAL focus, REAL scale) {
    return brushes::SetShape<LineBrush>(brush, &Blend::Bell, focus, scale);
}

GpStatus GdipSetLineLinearBlend(GpBrush* brush, REAL focus, REAL scale) {
    return brushes::SetShape<LineBrush>(brush, &Blend::Triangle, focus, scale);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
