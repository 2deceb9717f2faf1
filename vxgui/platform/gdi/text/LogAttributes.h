#pragma once

#include <pango/pango.h>

#include <string_view>
#include <vector>

namespace vxgui::gdi {

/// What may be done before each unit of a paragraph (a line begun, a cursor placed ...), and
/// before its end; nothing inside of characters of several units.
std::vector<PangoLogAttr> LogAttributesOf(std::u16string_view paragraph);

}  // namespace vxgui::gdi
