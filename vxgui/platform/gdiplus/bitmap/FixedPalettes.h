#pragma once

#include "vxgui/platform/gdiplus/bitmap/Palette.h"

namespace vxgui::gdiplus {

/// The colours of a fixed palette type: black and white; the system's 16 and those of a cube of 2
/// to 6 intensities a channel that aren't among them; or the largest cubes alone. Empty for types
/// that aren't fixed.
std::vector<ARGB> FixedColors(PaletteType type);

/// How far the intensities of a palette type lie apart, on a scale of 255.
int IntensityStep(PaletteType type);

}  // namespace vxgui::gdiplus
