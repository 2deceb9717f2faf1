#include "vxgui/platform/gdi/text/WrapPlaces.h"

#include <pango/pango.h>

#include <algorithm>

#include "vxgui/platform/gdi/text/Utf8Text.h"

namespace vxgui::gdi {
namespace {

/// Thai and all that is written without spaces lies from here up.
bool IsUnspaced(char16_t unit) { return unit >= 0x0E00; }

bool IsLead(char byte) { return (byte & 0xC0) != 0x80; }

}  // namespace

WrapPlaces::WrapPlaces(std::u16string_view paragraph, bool fullWidth) {
    if (!fullWidth || std::none_of(paragraph.begin(), paragraph.end(), IsUnspaced)) return;
    const Utf8Text utf8(paragraph);
    std::vector<PangoLogAttr> places(paragraph.size() + 1);
    const auto characters = std::count_if(utf8.bytes.begin(), utf8.bytes.end(), IsLead);
    pango_get_log_attrs(utf8.bytes.data(), static_cast<int>(utf8.bytes.size()), -1,
                        pango_language_from_string("en"), places.data(),
                        static_cast<int>(characters) + 1);
    before_.resize(paragraph.size());
    size_t character = 0;
    for (size_t byte = 0; byte < utf8.bytes.size(); ++byte) {
        if (!IsLead(utf8.bytes[byte])) continue;
        const auto unit = static_cast<size_t>(utf8.units[byte]);
        const bool unspaced =
            unit > 0 && (IsUnspaced(paragraph[unit]) || IsUnspaced(paragraph[unit - 1]));
        before_[unit] = unspaced && places[character].is_line_break;
        ++character;
    }
}

}  // namespace vxgui::gdi
