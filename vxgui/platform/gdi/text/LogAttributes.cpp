#include "vxgui/platform/gdi/text/LogAttributes.h"

#include <algorithm>

#include "vxgui/platform/gdi/text/Utf8Text.h"

namespace vxgui::gdi {
namespace {

bool IsLead(char byte) { return (byte & 0xC0) != 0x80; }

}  // namespace

std::vector<PangoLogAttr> LogAttributesOf(std::u16string_view paragraph) {
    const Utf8Text utf8(paragraph);
    std::vector<PangoLogAttr> places(paragraph.size() + 1);
    const auto characters = std::count_if(utf8.bytes.begin(), utf8.bytes.end(), IsLead);
    pango_get_log_attrs(utf8.bytes.data(), static_cast<int>(utf8.bytes.size()), -1,
                        pango_language_from_string("en"), places.data(),
                        static_cast<int>(characters) + 1);
    std::vector<PangoLogAttr> units(paragraph.size() + 1);
    size_t character = 0;
    for (size_t byte = 0; byte < utf8.bytes.size(); ++byte) {
        if (IsLead(utf8.bytes[byte]))
            units[static_cast<size_t>(utf8.units[byte])] = places[character++];
    }
    units.back() = places[character];
    return units;
}

}  // namespace vxgui::gdi
