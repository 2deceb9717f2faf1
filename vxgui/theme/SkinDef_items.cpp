#include "vxgui/base/Attempt.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/SkinParts.h"
#include "vxgui/theme/StyleModule.h"

namespace vxgui {

Ref<ThemeItem> SkinDef::ReadSkinItem(const UisSource& source, const String& name) {
    const SkinPart part = SkinPartOf(name.Utf8());
    Ref<ThemeItem> item = New<ThemeItem>();
    item->Owner(pools_);
    // An item that couldn't be read is still one: it paints what it got.
    item->FromUis(part.inUis ? uis_ : taskbar_, source, name, part.image);
    return item;
}

void SkinDef::AddItem(const String& name, const Ref<ThemeItem>& item) {
    if (!items_) items_ = New<ThemeItems>();
    items_->AddItem(item, name);
}

Ref<ThemeItem> SkinDef::Item(const String& ItemName) try {
    const KeepAlive keep(this);
    Ref<ThemeItem> item = items_ ? items_->Item(ItemName) : nullptr;
    if (item) return item;
    if (!skinName_.empty()) {
        item = ReadSkinItem(skinPath_, ItemName);
    } else if (!styleModule_.empty()) {
        // The module is loaded for as long as its pictures are read.
        if (const LoadedModule module(styleModule_); module)
            item = ReadSkinItem(module.get(), ItemName);
    }
    if (item) AddItem(ItemName, item);
    return item;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("SkinDef.Item");
}

void SkinDef::Item(const String& ItemName, const Ref<ThemeItem>& value) try {
    const KeepAlive keep(this);
    AddItem(ItemName, value);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("SkinDef.Item");
}

void SkinDef::XPTaskbarItemNames(std::vector<String>& Names, int32_t& Last) {
    constexpr size_t kRoom = 51;
    Names.assign(kRoom, String());
    Last = -1;
    for (const SkinPart& part : SkinParts()) Names[static_cast<size_t>(++Last)] = part.name;
}

// One bad part costs only that part.
void SkinDef::LoadSkinItem(const UisSource& source, const String& name) {
    Attempt([&] { AddItem(name, ReadSkinItem(source, name)); });
}

void SkinDef::LoadSkinItems() {
    std::vector<String> names;
    int32_t last = 0;
    XPTaskbarItemNames(names, last);
    names.resize(static_cast<size_t>(last) + 1);
    const auto loadAll = [&](const UisSource& source) {
        for (const String& name : names) LoadSkinItem(source, name);
    };
    if (!skinName_.empty()) return loadAll(skinPath_);
    if (styleModule_.empty()) return;
    if (const LoadedModule module(styleModule_); module) loadAll(module.get());
}

}  // namespace vxgui
