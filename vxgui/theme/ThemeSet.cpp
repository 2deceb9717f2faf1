#include "vxgui/theme/ThemeSet.h"

#include "vxgui/theme/FontPool.h"

namespace vxgui {

ThemeSet::ThemeSet() : items_(New<vxgui::ThemeItems>()) {}
ThemeSet::~ThemeSet() = default;

Ref<LFont> ThemeSet::Font(int32_t Index) {
    return FontByKey(fonts_, "Font" + String::FromInt(Index));
}

int32_t ThemeSet::AddFont(const Ref<LFont>& ft) {
    if (!fonts_) fonts_ = New<LFonts>();
    const int32_t number = fonts_->Count() + 1;
    fonts_->AddItem(ft, "Font" + String::FromInt(number));
    return number;
}

Ref<ThemeItem> ThemeSet::Item(const String& ItemName) const {
    return items_ ? items_->Item(ItemName) : nullptr;
}

Ref<ThemeItem> ThemeSet::Item(int32_t Index) const {
    return items_ ? items_->Item(Index) : nullptr;
}

void ThemeSet::Item(const String& ItemName, const Ref<ThemeItem>& value) {
    if (!items_) items_ = New<vxgui::ThemeItems>();
    items_->AddItem(value, ItemName);
}

void ThemeSet::Dispose() {
    const KeepAlive keep(this);  // an item may hold its owner's last reference
    items_ = nullptr;
    fonts_ = nullptr;
    styles_ = nullptr;
}

}  // namespace vxgui
