#pragma once

#include <cstdint>
#include <string_view>

#include "vxgui/base/Export.h"

namespace vxgui {

/// Case folding as `String::Lower` does it, unit by unit, without a folded copy.
VXPLATFORM_API char16_t FoldUnit(char16_t unit);
VXPLATFORM_API bool EqualFolded(std::u16string_view a, std::u16string_view b);
/// The same for texts that differ in case alone, within one run of the program.
VXPLATFORM_API uint64_t FoldedHash(std::u16string_view text);

/// The same of bytes, of which ASCII letters alone are folded.
VXPLATFORM_API bool EqualFolded(std::string_view a, std::string_view b);
VXPLATFORM_API uint64_t FoldedHash(std::string_view text);

}  // namespace vxgui
