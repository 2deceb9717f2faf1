#pragma once

#include <algorithm>

#include "vxgui/base/CaseFolding.h"

namespace vxgui {

/// Whether a text is a name in ASCII without regard to case: as `String::EqualsNoCase`, without a
/// copy of either.
inline bool IsNamed(std::u16string_view text, std::string_view name) {
    return std::ranges::equal(text, name, [](char16_t unit, char letter) {
        const auto wanted = static_cast<char16_t>(letter);
        return unit == wanted || FoldUnit(unit) == FoldUnit(wanted);
    });
}

}  // namespace vxgui
