#include "vxgui/platform/gdiplus/graphics/GraphicsCall.h"
#include "vxgui/platform/gdiplus_graphics.h"

namespace vxgui::gdiplus {
namespace {

template <class Mode>
GpStatus GetMode(GpGraphics* graphics, Mode* result, Mode GraphicsState::*mode) {
    return GetOfGraphics(graphics, result, [&](Graphics& found) { return found.state.*mode; });
}

/// Modes count from 0 to `last`. `stored` is what takes the place of `value`.
template <class Mode>
GpStatus SetMode(GpGraphics* graphics, Mode GraphicsState::*mode, Mode value, Mode last,
                 Mode stored) {
    if (value < Mode{} || value > last) return InvalidParameter;
    return SetOfGraphics(graphics, [&](Graphics& found) { found.state.*mode = stored; });
}

// Modes that only say how much trouble to take are kept as what they come to.
SmoothingMode Resolved(SmoothingMode mode) {
    if (mode == SmoothingModeHighQuality) return SmoothingModeAntiAlias;
    return mode < SmoothingModeHighQuality ? SmoothingModeNone : mode;
}

InterpolationMode Resolved(InterpolationMode mode) {
    if (mode == InterpolationModeHighQuality) return InterpolationModeHighQualityBicubic;
    return mode < InterpolationModeHighQuality ? InterpolationModeBilinear : mode;
}

}  // namespace

extern "C" {

GpStatus GdipSetRenderingOrigin(GpGraphics* graphics, INT x, INT y) {
    return SetOfGraphics(graphics, [&](Graphics& found) { found.state.renderingOrigin = {x, y}; });
}

GpStatus GdipGetRenderingOrigin(GpGraphics* graphics, INT* x, INT* y) {
    if (!x || !y) return InvalidParameter;
    return SetOfGraphics(graphics, [&](Graphics& found) {
        *x = found.state.renderingOrigin.X;
        *y = found.state.renderingOrigin.Y;
    });
}

GpStatus GdipSetCompositingMode(GpGraphics* graphics, CompositingMode mode) {
    return SetMode(graphics, &GraphicsState::compositingMode, mode, CompositingModeSourceCopy,
                   mode);
}

GpStatus GdipGetCompositingMode(GpGraphics* graphics, CompositingMode* mode) {
    return GetMode(graphics, mode, &GraphicsState::compositingMode);
}

GpStatus GdipSetCompositingQuality(GpGraphics* graphics, CompositingQuality quality) {
    return SetMode(graphics, &GraphicsState::compositingQuality, quality,
                   CompositingQualityAssumeLinear, quality);
}

GpStatus GdipGetCompositingQuality(GpGraphics* graphics, CompositingQuality* quality) {
    return GetMode(graphics, quality, &GraphicsState::compositingQuality);
}

GpStatus GdipSetSmoothingMode(GpGraphics* graphics, SmoothingMode mode) {
    return SetMode(graphics, &GraphicsState::smoothingMode, mode, SmoothingModeAntiAlias8x8,
                   Resolved(mode));
}

GpStatus GdipGetSmoothingMode(GpGraphics* graphics, SmoothingMode* mode) {
    return GetMode(graphics, mode, &GraphicsState::smoothingMode);
}

GpStatus GdipSetInterpolationMode(GpGraphics* graphics, InterpolationMode mode) {
    return SetMode(graphics, &GraphicsState::interpolationMode, mode,
                   InterpolationModeHighQualityBicubic, Resolved(mode));
}

GpStatus GdipGetInterpolationMode(GpGraphics* graphics, InterpolationMode* mode) {
    return GetMode(graphics, mode, &GraphicsState::interpolationMode);
}

GpStatus GdipSetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode mode) {
    return SetMode(graphics, &GraphicsState::pixelOffsetMode, mode, PixelOffsetModeHalf, mode);
}

GpStatus GdipGetPixelOffsetMode(GpGraphics* graphics, PixelOffsetMode* mode) {
    return GetMode(graphics, mode, &GraphicsState::pixelOffsetMode);
}

GpStatus GdipSetTextRenderingHint(GpGraphics* graphics, TextRenderingHint hint) {
    return SetMode(graphics, &GraphicsState::textRenderingHint, hint,
                   TextRenderingHintClearTypeGridFit, hint);
}

GpStatus GdipGetTextRenderingHint(GpGraphics* graphics, TextRenderingHint* hint) {
    return GetMode(graphics, hint, &GraphicsState::textRenderingHint);
}

GpStatus GdipSetTextContrast(GpGraphics* graphics, UINT contrast) {
    constexpr UINT kStrongest = 12;
    return SetMode(graphics, &GraphicsState::textContrast, contrast, kStrongest, contrast);
}

GpStatus GdipGetTextContrast(GpGraphics* graphics, UINT* contrast) {
    return GetMode(graphics, contrast, &GraphicsState::textContrast);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
