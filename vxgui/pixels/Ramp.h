#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"

namespace vxgui {

/// Fills a row of pixels with colours of a ramp that repeats: pixel i has the place
/// `start` + i * `step`, a whole number being one length of the ramp. `mirrored` runs every other
/// length backwards.
VXPLATFORM_API void FillRamp(std::span<uint32_t> row, std::span<const uint32_t> ramp, double start,
                             double step, bool mirrored);

}  // namespace vxgui
