#pragma once

#include "vxgui/platform/gdi/PixelTarget.h"

namespace vxgui::gdi {

/// The colours of a bitmap of 1 or 8 bits that was made without any: black and white, or three
/// bits of red, three of green, two of blue.
const ColorTable& DeviceColors(int depth);

}  // namespace vxgui::gdi
