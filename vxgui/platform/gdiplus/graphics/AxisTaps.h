#pragma once

#include <vector>

#include "vxgui/platform/gdiplus/graphics/ImageAxis.h"

namespace vxgui::gdiplus {

/// Which source pixels make up each target pixel along an axis, and how much of each.
struct AxisTaps {
    /// Weights of a target pixel sum up to this exactly, so that even areas stay even.
    static constexpr int kBits = 14;
    static constexpr INT kOne = 1 << kBits;

    INT begin = 0;             ///< the first target pixel
    INT count = 0;             ///< target pixels
    INT taps = 1;              ///< source pixels of each
    std::vector<INT> first;    ///< the first of them, for each target pixel; neighbours follow
    std::vector<INT> weights;  ///< `taps` for each target pixel

    INT First(INT i) const { return first[static_cast<size_t>(i)]; }
    const INT* Weights(INT i) const { return &weights[static_cast<size_t>(i) * taps]; }
};

/// The taps of the target pixels in [begin, end). A pixel is sampled at its middle when `middle`
/// says so, else at its upper left corner; an axis that mirrors or prefilters always at the
/// middle, since it would lose its first pixel, or look moved.
AxisTaps MakeTaps(const ImageAxis& axis, InterpolationMode mode, bool middle, INT begin, INT end);

/// True for the modes that filter an image before they shrink it.
constexpr bool Prefilters(InterpolationMode mode) {
    return mode == InterpolationModeHighQualityBilinear ||
           mode == InterpolationModeHighQualityBicubic;
}

}  // namespace vxgui::gdiplus
