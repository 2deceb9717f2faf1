#pragma once

#include <ostream>
#include <string>

#include "vxgui/base/Variant.h"

namespace vxgui::tool {

/// What a compiled skin holds: its items with their strips, and how much else there is. A
/// damaged one raises a `SkinError`.
void TellSkin(const ByteArray& bytes, const std::string& file, std::ostream& out);

}  // namespace vxgui::tool
