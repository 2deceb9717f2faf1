#pragma once

#include "vxgui/text/KeyedItems.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {

/// Theme items in their order, by index from 1 or by key; keys are compared without regard to
/// case. An unknown index or key reads as none.
class VXGUI_API ThemeItems : public Object {
public:
    ThemeItems();

    /// Adds at the end, under `sKey` if it isn't empty. Unlike fonts and styles, an item is never
    /// replaced: a key that is there already raises error 457.
    void AddItem(const Ref<ThemeItem>& Item, const String& sKey = {});
    Ref<ThemeItem> Item(int32_t index) const;
    Ref<ThemeItem> Item(const String& key) const;
    int32_t Count() const;
    void Remove(int32_t index);
    void Remove(const String& key);

    KeyedItems<ThemeItem>::Iterator begin() const { return items_.begin(); }
    KeyedItems<ThemeItem>::Iterator end() const { return items_.end(); }

    // For the library's own classes.
    VXGUI_LOCAL const String& KeyOf(int32_t index) const { return items_.KeyOf(index); }

protected:
    ~ThemeItems() override;

private:
    KeyedItems<ThemeItem> items_;
};

}  // namespace vxgui
