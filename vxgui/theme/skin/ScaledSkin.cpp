#include "vxgui/theme/skin/ScaledSkin.h"

#include "vxgui/theme/Scaling.h"

namespace vxgui {

Skin ScaledSkin(const Skin& skin, double factor) {
    Scaling scaling(factor);
    Skin scaled = skin;
    if (skin.set) scaled.set = skin.set->Scaled(factor);
    for (SkinItem& entry : scaled.items) {
        const Ref<ThemeItem> ofSet = scaled.set ? scaled.set->Item(entry.section) : nullptr;
        entry.item = ofSet ? ofSet : entry.item->ScaledBy(scaling);
    }
    return scaled;
}

}  // namespace vxgui
