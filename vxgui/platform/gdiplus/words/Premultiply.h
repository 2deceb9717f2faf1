#pragma once

#include <algorithm>
#include <span>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// A straight pixel with its colours multiplied by its alpha, rounded.
constexpr ARGB Premultiplied(ARGB pixel) {
    const ARGB alpha = pixel >> 24;
    if (alpha == 255) return pixel;
    ARGB result = alpha << 24;
    for (int shift = 0; shift < 24; shift += 8) {
        result |= ((pixel >> shift & 255) * alpha + 127) / 255 << shift;
    }
    return result;
}

/// The same for all pixels of a row, in place.
void PremultiplyRow(std::span<ARGB> pixels);

/// The straight pixel nearest to a premultiplied one; a clear one loses its colours.
constexpr ARGB Straight(ARGB pixel) {
    const ARGB alpha = pixel >> 24;
    if (alpha == 255) return pixel;
    if (alpha == 0) return 0;
    ARGB result = alpha << 24;
    for (int shift = 0; shift < 24; shift += 8) {
        result |= std::min(255u, ((pixel >> shift & 255) * 255 + alpha / 2) / alpha) << shift;
    }
    return result;
}

}  // namespace vxgui::gdiplus
