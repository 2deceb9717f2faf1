#include "vxgui/platform/gdi/text/Utf8Text.h"

#include "vxgui/base/Utf.h"

namespace vxgui::gdi {
namespace {

bool IsHigh(char16_t unit) { return (unit & 0xFC00) == 0xD800; }
bool IsLow(char16_t unit) { return (unit & 0xFC00) == 0xDC00; }

char32_t CodeAt(std::u16string_view text, size_t at) {
    const char16_t unit = text[at];
    if (IsHigh(unit) && at + 1 < text.size() && IsLow(text[at + 1])) {
        return 0x10000 + ((unit & 0x3FFu) << 10) + (text[at + 1] & 0x3FFu);
    }
    return IsHigh(unit) || IsLow(unit) || IsShapeless(unit) ? 0xFFFD : unit;
}

}  // namespace

bool IsShapeless(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029 ||
           unit >= 0xFFFE;
}

Utf8Text::Utf8Text(std::u16string_view text) {
    bytes.reserve(text.size());
    units.reserve(text.size() + 1);
    for (size_t i = 0; i < text.size();) {
        const char32_t code = CodeAt(text, i);
        AppendUtf8(bytes, code);
        units.resize(bytes.size(), static_cast<int32_t>(i));
        i += code > 0xFFFF ? 2 : 1;
    }
    units.push_back(static_cast<int32_t>(text.size()));
}

}  // namespace vxgui::gdi
