#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// Whether any pixel has another alpha than `alpha`. The scan ends soon after the first one.
VXPLATFORM_API bool HasOtherAlpha(std::span<const ARGB> pixels, uint8_t alpha);

}  // namespace vxgui
