#pragma once

#include <string>
#include <string_view>

#include "vxgui/platform/limits.h"

namespace vxgui::gdi {

/// A text argument: `count` units, or up to the zero for -1. False for no text with a count, for
/// another negative count, and for more units than the apartment's limit.
inline bool TextArgument(const char16_t* text, int count, std::u16string_view* view) {
    if (count < -1 || (!text && count != 0)) return false;
    if (count == -1) {
        *view = text;
    } else {
        *view = {text, static_cast<size_t>(count)};
    }
    return view->size() <= ApartmentLimits().textUnits;
}

}  // namespace vxgui::gdi
