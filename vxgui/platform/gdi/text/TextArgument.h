#pragma once

#include <string>
#include <string_view>

namespace vxgui::gdi {

/// A text argument: `count` units, or up to the zero for -1. False for no text with a count, and
/// for another negative count.
inline bool TextArgument(const char16_t* text, int count, std::u16string_view* view) {
    if (count < -1 || (!text && count != 0)) return false;
    if (count == -1) {
        *view = text;
    } else {
        *view = {text, static_cast<size_t>(count)};
    }
    return true;
}

}  // namespace vxgui::gdi
