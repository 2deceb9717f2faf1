#pragma once

#include <string>

#include "vxgui/platform/gdiplus/text/StringFormat.h"

namespace vxgui::gdiplus {

/// The zero of the digits that a format writes in place of the European ones; '0' for none.
char16_t ZeroOf(const FormatSettings& format);

/// The text with its digits replaced; itself where the format wants none, else in `storage`.
std::u16string_view WithDigits(std::u16string_view text, const FormatSettings& format,
                               std::u16string* storage);

}  // namespace vxgui::gdiplus
