#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui {

/// The colour that a define file writes as "red, green, blue", "red, green, blue, alpha", a
/// decimal number, or a hexadecimal one after "0x" or "&h"; 0 for what is none of these. A remark
/// behind a ";" is cut off `text` itself. An alpha of 128 raises the overflow error.
VXGUI_API int32_t ParseColorText(String& text);

}  // namespace vxgui
