#pragma once

#include <string>

#include "vxgui/gdip/GpEffectParams.h"

namespace vxgui::tool {

/// Reads 256 lines of R,G,B,A; empty lines and those that begin with # don't count. A `ToolError`
/// names the file and the line of what is wrong.
ColorLUTParams ReadEffectTable(const std::string& path);

}  // namespace vxgui::tool
