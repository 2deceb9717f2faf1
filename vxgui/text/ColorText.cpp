#include "vxgui/text/ColorText.h"

#include "vxgui/base/Error.h"
#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"

namespace vxgui {

namespace {

uint32_t Channel(const String& text) { return RoundHalfEven<uint32_t>(LeadingNumber(text)) & 255; }

/// An alpha in the top byte of a colour. 128 is the one value that is meant to fail: up to it
/// the byte is multiplied into place as a positive number, and only those above get the top bit.
uint32_t TopByte(uint32_t alpha) {
    if (alpha == 128) throw Error(ErrorNumber::Overflow, "ParseColorText", "Overflow");
    return alpha << 24;
}

int32_t ParseChannels(const std::vector<String>& parts) {
    if (parts.size() < 3) return 0;
    const uint32_t rgb = Channel(parts[0]) | Channel(parts[1]) << 8 | Channel(parts[2]) << 16;
    const uint32_t alpha = parts.size() > 3 ? TopByte(Channel(parts[3])) : 0;
    return static_cast<int32_t>(alpha | rgb);
}

int32_t ParseNumber(const String& text) {
    if (!IsNumeric(text)) return 0;
    const double value = LeadingNumber(text);
    return value >= -2147483648.0 && value < 2147483647.0 ? RoundHalfEven(value) : 0;
}

}  // namespace

int32_t ParseColorText(String& text) {
    const size_t remark = text.Find(u';');
    if (remark != String::npos) text = text.Left(remark).Trim();
    if (text.Find(u',') != String::npos) return ParseChannels(text.Split(u','));
    const bool zeroX = text.Left(2).EqualsNoCase("0x");
    return ParseNumber(zeroX ? "&h" + text.Mid(2) : text);
}

}  // namespace vxgui
