#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// The level of a factor: 256 for 1, rounded, halves to even, and held to 0 to 65536.
VXPLATFORM_API int32_t LevelOfFactor(float factor);

/// Each of the four channels becomes min(255, c * level / 256), truncated; `level` is 0 to 65536.
VXPLATFORM_API void ScaleLevel(std::span<ARGB> pixels, int32_t level);

}  // namespace vxgui
