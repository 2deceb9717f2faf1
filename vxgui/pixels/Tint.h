#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// Gives all pixels the colour `color` (red lowest) under their own alpha, premultiplied as
/// `Premultiply` does it.
VXPLATFORM_API void Tint(std::span<ARGB> pixels, uint32_t color);

}  // namespace vxgui
