#pragma once

#include "vxgui/base/String.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui {

/// Breaks text into lines that fit the rectangle's width, with tabs expanded, and paints them.
/// `Align` is a text alignment (2 right, 6 centre), which the context keeps; -1 spreads the words
/// over the width. From the first line that was too long on every later line is spread, the last
/// one too. The result is the height of all lines.
int32_t DrawJustifiedText(gdi::HDC hDC, const String& Text, int32_t nCount, const gdi::RECT& Rect,
                          int32_t Align);

}  // namespace vxgui
