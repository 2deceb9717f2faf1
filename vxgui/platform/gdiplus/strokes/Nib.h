#pragma once

#include "vxgui/platform/gdiplus/Stroke.h"

namespace vxgui::gdiplus {

/// A pen where it draws: strokes are computed in a space in which its nib is round.
struct Nib {
    Affine space;  ///< to the world; no shift
    Affine toSpace;
    REAL width;   ///< in that space
    REAL pixels;  ///< of the device, a unit of that space
};

/// None for a pen that is flattened to nothing. It is at least `thinnest` pixels wide: what is
/// drawn is never thinner than a pixel.
std::optional<Nib> NibOf(const PenSettings& pen, const StrokePlace& place, REAL thinnest = 1);

/// How far from the path a stroke reaches, in half widths.
REAL ReachOf(const PenSettings& pen, bool hasJoins);

}  // namespace vxgui::gdiplus
