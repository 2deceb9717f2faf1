#pragma once

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/types.h"

namespace vxgui::kernel {

/// The system's own text for an error code, in one line; empty where it has none.
VXPLATFORM_API String FormatMessageA(DWORD code);

}  // namespace vxgui::kernel
