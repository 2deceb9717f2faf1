#include "vxgui/theme/Scaling.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {

Ref<ThemeSet> ThemeSet::Scaled(double Factor) {
    const KeepAlive keep(this);
    Scaling scaling(Factor);
    Ref<ThemeSet> set = New<ThemeSet>();
    scaling.Know(Ref<ThemeOwner>(this), set);
    set->palette_ = palette_;
    set->fonts_ = scaling.Of(fonts_);
    set->styles_ = scaling.Of(styles_);
    if (!items_) set->items_ = nullptr;
    for (int32_t n = 1; items_ && n <= items_->Count(); ++n) {
        const Ref<ThemeItem> item = items_->Item(n);
        set->items_->AddItem(item ? item->ScaledBy(scaling) : nullptr, items_->KeyOf(n));
    }
    return set;
}

}  // namespace vxgui
