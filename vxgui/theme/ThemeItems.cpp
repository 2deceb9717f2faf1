#include "vxgui/theme/ThemeItems.h"

#include "vxgui/frame/modUtilities.h"

namespace vxgui {

ThemeItems::ThemeItems() { SetUpApartment(); }
ThemeItems::~ThemeItems() = default;

void ThemeItems::AddItem(const Ref<ThemeItem>& Item, const String& sKey) { items_.Add(Item, sKey); }
Ref<ThemeItem> ThemeItems::Item(int32_t index) const { return items_.Item(index); }
Ref<ThemeItem> ThemeItems::Item(const String& key) const { return items_.Item(key); }
int32_t ThemeItems::Count() const { return items_.Count(); }

// What is removed may hold the last reference to this collection, by way of its owner.
void ThemeItems::Remove(int32_t index) {
    const KeepAlive keep(this);
    items_.Remove(index);
}

void ThemeItems::Remove(const String& key) {
    const KeepAlive keep(this);
    items_.Remove(key);
}

}  // namespace vxgui
