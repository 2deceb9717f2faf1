#pragma once

#include "vxgui/platform/gdiplus/Affine.h"
#include "vxgui/platform/gdiplus_enums.h"

namespace vxgui::gdiplus {

/// How a layout comes to a device.
struct MaskPlace {
    Affine world;   ///< to device pixels; the shift is that of the layout rectangle's corner
    GpRect within;  ///< what may be seen
    TextRenderingHint hint = TextRenderingHintSystemDefault;
    UINT contrast = 4;

    /// Pixels are covered wholly or not at all.
    bool IsMono() const {
        return hint == TextRenderingHintSingleBitPerPixel ||
               hint == TextRenderingHintSingleBitPerPixelGridFit;
    }
    /// Glyphs are fitted to the grid of pixels.
    bool IsFitted() const {
        return hint != TextRenderingHintSingleBitPerPixel && hint != TextRenderingHintAntiAlias;
    }
};

}  // namespace vxgui::gdiplus
