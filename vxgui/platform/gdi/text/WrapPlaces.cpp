#include "vxgui/platform/gdi/text/WrapPlaces.h"

#include <algorithm>

#include "vxgui/platform/gdi/text/LogAttributes.h"

namespace vxgui::gdi {
namespace {

/// Thai and all that is written without spaces lies from here up.
bool IsUnspaced(char16_t unit) { return unit >= 0x0E00; }

}  // namespace

WrapPlaces::WrapPlaces(std::u16string_view paragraph, bool fullWidth) {
    if (!fullWidth || std::none_of(paragraph.begin(), paragraph.end(), IsUnspaced)) return;
    const std::vector<PangoLogAttr> attributes = LogAttributesOf(paragraph);
    before_.resize(paragraph.size());
    for (size_t unit = 1; unit < paragraph.size(); ++unit) {
        const bool unspaced = IsUnspaced(paragraph[unit]) || IsUnspaced(paragraph[unit - 1]);
        before_[unit] = unspaced && attributes[unit].is_line_break;
    }
}

}  // namespace vxgui::gdi
