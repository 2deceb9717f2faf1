#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"

namespace vxgui {

/// The library's version, major * 100 + minor: 902 is 9.02.
VXGUI_API int32_t LibraryVersion();

}  // namespace vxgui
