#pragma once

#include "vxgui/platform/gdi/text/FontFace.h"

namespace vxgui::gdi {

/// No em is larger than this many pixels; FreeType's own bound is twice as high.
constexpr int32_t kLargestEm = 32767;
/// What a height of 0 stands for: a cell of this many pixels.
constexpr int32_t kDefaultCellHeight = 12;

/// `units` of a face at an em of `em` pixels, in pixels, halves rounded up.
int32_t ScaledUnits(const DesignMetrics& design, int32_t units, int32_t em);

/// The em, in pixels, of a logical font's height: below 0 the em itself, above 0 the largest whose
/// cell fits; at least 1.
int32_t EmFromHeight(const DesignMetrics& design, int32_t height);

/// The em's width, in 64ths of a pixel, that gives characters an average of `width` pixels; 0
/// stands for the face's own proportions.
int32_t HorizontalEm(const DesignMetrics& design, int32_t em, int32_t width);

}  // namespace vxgui::gdi
