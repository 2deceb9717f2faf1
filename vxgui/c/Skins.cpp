#include <algorithm>
#include <memory>

#include "vxgui/c/Border.h"
#include "vxgui/c/Handles.h"
#include "vxgui/frame/Version.h"
#include "vxgui/frame/VxGuiGlobal.h"

using namespace vxgui;
using namespace vxgui::c;

namespace {

constexpr const char* kSkin = "what vxgui_skin_load answers";

vxgui_item HandleOf(const SkinItem& item) {
    return {item.name.Utf8(), item.caption.Utf8(),
            item.ofDesktop ? VXGUI_KIND_DESKTOP : VXGUI_KIND_CONTROL, item.item};
}

}  // namespace

vxgui_skin::vxgui_skin(Skin loaded) : skin(std::move(loaded)) {
    for (const SkinItem& item : skin.items) items.push_back(HandleOf(item));
}

int32_t vxgui_version(void) { return LibraryVersion(); }

const char* vxgui_last_error(void) { return LastError(); }

vxgui_skin* vxgui_skin_load(const char* path) {
    return Guarded<vxgui_skin*>(nullptr, [&] {
        const char& name = Required(path, "the path of a skin's file");
        Global();  // sets the calling thread up
        return std::make_unique<vxgui_skin>(LoadSkin(&name)).release();
    });
}

void vxgui_skin_free(vxgui_skin* skin) { delete skin; }

int32_t vxgui_skin_item_count(const vxgui_skin* skin) {
    return Guarded(-1, [&] { return static_cast<int32_t>(Required(skin, kSkin).items.size()); });
}

vxgui_item* vxgui_skin_item(vxgui_skin* skin, int32_t index) {
    return Guarded<vxgui_item*>(nullptr, [&] {
        std::vector<vxgui_item>& items = Required(skin, kSkin).items;
        if (index < 0 || static_cast<size_t>(index) >= items.size()) {
            RefuseSkin(skin->skin.path,
                       "no item " + String::FromInt(index) + "; a number from 0 to " +
                           String::FromInt(std::ssize(items) - 1) + " was expected");
        }
        return &items[static_cast<size_t>(index)];
    });
}

vxgui_item* vxgui_skin_find_item(vxgui_skin* skin, const char* name) {
    return Guarded<vxgui_item*>(nullptr, [&] {
        vxgui_skin& owner = Required(skin, kSkin);
        const Ref<ThemeItem> found = FindItem(owner.skin, &Required(name, "the name of an item"));
        return &*std::ranges::find(owner.items, found, &vxgui_item::item);
    });
}
