#include "vxgui/platform/gdiplus/text/DigitText.h"

namespace vxgui::gdiplus {
namespace {

// The low ten bits of a language number, and the zero of its digits (Unicode's code charts).
struct LanguageDigits {
    LANGID primary;
    char16_t zero;
};
constexpr LanguageDigits kNational[] = {
    {0x01, 0x0660}, {0x1E, 0x0E50}, {0x20, 0x06F0}, {0x29, 0x06F0}, {0x39, 0x0966}, {0x45, 0x09E6},
    {0x46, 0x0A66}, {0x47, 0x0AE6}, {0x48, 0x0B66}, {0x49, 0x0BE6}, {0x4A, 0x0C66}, {0x4B, 0x0CE6},
    {0x4C, 0x0D66}, {0x4D, 0x09E6}, {0x4E, 0x0966}, {0x4F, 0x0966}, {0x50, 0x1810}, {0x51, 0x0F20},
    {0x53, 0x17E0}, {0x54, 0x0ED0}, {0x55, 0x1040}, {0x57, 0x0966}, {0x59, 0x0660}, {0x61, 0x0966},
    {0x63, 0x06F0}, {0x8C, 0x06F0},
};

}  // namespace

char16_t ZeroOf(const FormatSettings& format) {
    const bool replaces = format.digitSubstitute == StringDigitSubstituteNational ||
                          format.digitSubstitute == StringDigitSubstituteTraditional;
    const LANGID primary = format.digitLanguage & 0x3FF;
    for (const LanguageDigits& row : kNational) {
        if (replaces && row.primary == primary) return row.zero;
    }
    return u'0';
}

std::u16string_view WithDigits(std::u16string_view text, const FormatSettings& format,
                               std::u16string* storage) {
    const char16_t zero = ZeroOf(format);
    if (zero == u'0' || text.find_first_of(u"0123456789") == text.npos) return text;
    *storage = text;
    for (char16_t& unit : *storage) {
        if (unit >= u'0' && unit <= u'9') unit = static_cast<char16_t>(unit - u'0' + zero);
    }
    return *storage;
}

}  // namespace vxgui::gdiplus
