#include "vxgui/platform/gdiplus/brushes/GradientCalls.h"
#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipSetPathGradientGammaCorrection(GpBrush* brush, BOOL useGammaCorrection) {
    return brushes::SetGamma<PathBrush>(brush, useGammaCorrection);
}

GpStatus GdipGetPathGradientGammaCorrection(GpBrush* brush, BOOL* useGammaCorrection) {
    return brushes::GetGamma<PathBrush>(brush, useGammaCorrection);
}

GpStatus GdipGetPathGradientBlendCount(GpBrush* brush, INT* count) {
    return brushes::CountStops<PathBrush>(brush, &Blend::factors, count);
}

GpStatus GdipGetPathGradientBlend(GpBrush* brush, REAL* blend, REAL* positions, INT count) {
    return brushes::GetStops<PathBrush>(brush, &Blend::factors, blend, positions, count);
}

GpStatus GdipSetPathGradientBlend(GpBrush* brush, const REAL* blend, const REAL* positions,
                                  INT count) {
    return brushes::SetBlend<PathBrush>(brush, blend, positions, count);
}

GpStatus GdipGetPathGradientPresetBlendCount(GpBrush* brush, INT* count) {
    return brushes::CountStops<PathBrush>(brush, &Blend::presets, count);
}

GpStatus GdipGetPathGradientPresetBlend(GpBrush* brush, ARGB* blend, REAL* positions, INT count) {
    return brushes::GetStops<PathBrush>(brush, &Blend::presets, blend, positions, count);
}

GpStatus GdipSetPathGradientPresetBlend(GpBrush* brush, const ARGB* blend, const REAL* positions,
                                        INT count) {
    return brushes::SetPresets<PathBrush>(brush, blend, positions, count);
}

GpStatus GdipSetPathGradientSigmaBlend(GpBrush* brush, REAL focus, REAL scale) {
    return brushes::SetShape<PathBrush>(brush, &Blend::Bell, focus, scale);
}

GpStatus GdipSetPathGradientLinearBlend(GpBrush* brush, REAL focus, REAL scale) {
    return brushes::SetShape<PathBrush>(brush, &Blend::Triangle, focus, scale);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
