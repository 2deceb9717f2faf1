#pragma once

#include <string_view>

namespace vxgui {

/// What define files and the numbers in them may be padded with: space and tab.
constexpr bool IsBlank(char16_t unit) { return unit == u' ' || unit == u'\t'; }

constexpr std::u16string_view TrimLeadingBlanks(std::u16string_view text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    return text;
}

constexpr std::u16string_view TrimTrailingBlanks(std::u16string_view text) {
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

constexpr std::u16string_view TrimBlanks(std::u16string_view text) {
    return TrimTrailingBlanks(TrimLeadingBlanks(text));
}

}  // namespace vxgui
