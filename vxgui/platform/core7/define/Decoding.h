#pragma once

#include <string>

#include "vxgui/base/Variant.h"

namespace vxgui::core7 {

/// The text of a define file's bytes, without its byte-order mark.
struct DecodedText {
    std::u16string text;
    bool malformed = false;  ///< something became U+FFFD or was cut that the mark had promised
};

/// UTF-8, UTF-16LE or UTF-16BE by the byte-order mark; without one UTF-8 if the bytes are well
/// formed, else the ANSI code page of the apartment.
DecodedText DecodeDefineBytes(const ByteArray& bytes);

}  // namespace vxgui::core7
