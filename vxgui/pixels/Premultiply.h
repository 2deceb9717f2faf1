#pragma once

#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// Straight to premultiplied, in place: colours become c * (Alpha + 1) / 256, truncated, but 0
/// under a clear alpha. The factor keeps opaque pixels exactly as they are.
VXPLATFORM_API void Premultiply(std::span<ARGB> pixels);

}  // namespace vxgui
