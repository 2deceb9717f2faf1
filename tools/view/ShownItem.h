#pragma once

#include "tools/vxgui/Sheet.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui::view {

/// An item as it is looked at: in which state, how large, with what caption.
struct ShownItem {
    Ref<ThemeItem> item;  ///< none paints nothing
    String caption;
    gdi::SIZE size{1, 1};
    int32_t state = E_ItemStateNormal;
};

/// Paints an item with its left top corner at `at`.
void PaintShown(tool::Sheet& sheet, const ShownItem& shown, gdi::POINT at);

/// The whole item, whatever stands behind it, with straight alpha.
void PaintStraight(tool::Sheet& sheet, const ShownItem& shown);

}  // namespace vxgui::view
