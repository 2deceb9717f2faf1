#pragma once

#include <string>

#include "tools/vxgui/Sheet.h"

namespace vxgui::tool {

/// The picture as a PNG inside its own address, "data:image/png;base64,...".
std::string DataUri(const Sheet& sheet);

}  // namespace vxgui::tool
