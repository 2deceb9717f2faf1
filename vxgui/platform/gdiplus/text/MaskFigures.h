#pragma once

#include "vxgui/platform/gdiplus/text/TextMask.h"

/// What cairo paints of a text's coverage.
namespace vxgui::gdiplus {

/// The lines under and through a text.
void FillBars(const TextMask& mask, const StringLayout& layout, const MaskPlace& place);

/// Glyphs and bars from their outlines.
void FillOutlines(const TextMask& mask, const StringLayout& layout, const MaskPlace& place);

}  // namespace vxgui::gdiplus
