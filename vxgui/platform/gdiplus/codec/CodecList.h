#pragma once

#include <vector>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// The records of the codecs with all of these `ImageCodecFlags`, in the published order. What they
/// point to stays for good.
std::vector<ImageCodecInfo> CodecsWith(DWORD flags);

}  // namespace vxgui::gdiplus
