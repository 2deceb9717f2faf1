#pragma once

#include "tools/view/recolour/Recolour.h"
#include "vxgui/base/Variant.h"

namespace vxgui::view {

/// Changes the colours of a BMP file where they stand: its palette, or its 24-bit or 32-bit pixels.
/// The file keeps its form, and with it all that a reader makes of that. False, with the bytes as
/// they were, for any other kind of BMP and for what is none.
bool RecolourBmp(ByteArray& file, const Recolour& how, const KeyColours& keys);

}  // namespace vxgui::view
