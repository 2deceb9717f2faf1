#include "tools/view/ViewedItem.h"

#include "vxgui/theme/ThemeEnums.h"

namespace vxgui::view {

void ViewedItem::Focus(bool focused) {
    focused_ = focused;
    heldByKey_ = heldByKey_ && focused;
}

int32_t ViewedItem::State() const {
    if (fixed_) return *fixed_;
    if (!enabled_) return E_ItemStateDisabled;
    if ((held_ && over_) || heldByKey_) {
        return focused_ ? E_ItemStateFocusPressed : E_ItemStatePressed;
    }
    if (over_) return focused_ ? E_ItemStateFocusMouseOver : E_ItemStateMouseOver;
    if (focused_) return E_ItemStateFocus;
    return default_ ? E_ItemStateDefault : E_ItemStateNormal;
}

}  // namespace vxgui::view
