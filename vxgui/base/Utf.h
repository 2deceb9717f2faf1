#pragma once

#include <string>
#include <string_view>

#include "vxgui/base/Export.h"

namespace vxgui {

/// Conversions between the Unicode encodings (RFC 3629, RFC 2781). What is malformed becomes
/// U+FFFD, one for each maximal malformed run of a UTF-8 sequence, one for each lone surrogate.
VXPLATFORM_API std::u16string Utf16FromUtf8(std::string_view utf8);
VXPLATFORM_API std::string Utf8FromUtf16(std::u16string_view utf16);

/// True when every byte belongs to a well-formed UTF-8 sequence.
VXPLATFORM_API bool IsUtf8(std::string_view bytes);

/// Appends one code point to UTF-8 text.
VXPLATFORM_API void AppendUtf8(std::string& text, char32_t code);

}  // namespace vxgui
