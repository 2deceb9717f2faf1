#include "vxgui/platform/ole_guid.h"

#include <string_view>

namespace vxgui::ole {
namespace {

// Where the two digits of each byte stand in the text.
constexpr size_t kPlaces[] = {7, 5, 3, 1, 12, 10, 17, 15, 20, 22, 25, 27, 29, 31, 33, 35};
constexpr std::u16string_view kForm = u"{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";

int DigitOf(char16_t unit) {
    if (unit >= u'0' && unit <= u'9') return unit - u'0';
    const auto lower = static_cast<char16_t>(unit | 0x20);
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

bool HasForm(std::u16string_view text) {
    if (text.size() != kForm.size()) return false;
    for (size_t i = 0; i < text.size(); ++i) {
        if (kForm[i] == u'x' ? DigitOf(text[i]) < 0 : text[i] != kForm[i]) return false;
    }
    return true;
}

}  // namespace

bool IIDFromString(const String& text, GuidBytes* bytes) {
    *bytes = {};
    const std::u16string_view units = text.units();
    if (!HasForm(units)) return false;
    for (size_t i = 0; i < bytes->size(); ++i) {
        const int high = DigitOf(units[kPlaces[i]]), low = DigitOf(units[kPlaces[i] + 1]);
        (*bytes)[i] = static_cast<uint8_t>(high * 16 + low);
    }
    return true;
}

}  // namespace vxgui::ole
