#pragma once

#include <vector>

#include "vxgui/platform/gdiplus/text/GlyphMasks.h"
#include "vxgui/platform/gdiplus/text/MaskPlace.h"
#include "vxgui/platform/gdiplus/text/StringLayout.h"

namespace vxgui::gdiplus {

/// A glyph's image with its place on the device.
struct MaskGlyph {
    GlyphMasks::Image image;
    INT left, top;

    GpRect Box() const { return {left, top, image->width, image->rows}; }
};

/// How the glyphs of a layout look at a place, upright ones or those that are turned in a column.
GlyphLook LookOf(const StringLayout& layout, const MaskPlace& place, bool turned);

/// The glyphs of a layout that have ink, each on the pixel, or part of one, where its pen stands.
std::vector<MaskGlyph> FindMaskGlyphs(const StringLayout& layout, const MaskPlace& place);

}  // namespace vxgui::gdiplus
