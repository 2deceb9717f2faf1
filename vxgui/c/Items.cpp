#include "vxgui/c/Border.h"
#include "vxgui/c/Handles.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/theme/ItemLook.h"
#include "vxgui/theme/ItemPainter.h"

using namespace vxgui;
using namespace vxgui::c;

namespace {

constexpr const char* kItem = "what vxgui_skin_item or vxgui_skin_find_item answers";
constexpr int32_t kLargest = 32767;

bool IsState(int32_t state) { return state >= 0 && state < E_ItemStateMax; }

void RequireState(int32_t state) {
    if (!IsState(state))
        Refuse("no state " + String::FromInt(state) + "; a number from 0 to 8 was expected");
}

gdi::RECT BoxOf(const vxgui_rectangle& where) {
    for (const int32_t extent : {where.width, where.height}) {
        if (extent < 0 || extent > kLargest) {
            Refuse("an item can't be drawn " + String::FromInt(where.width) + " by " +
                   String::FromInt(where.height) + " pixels large; 0 to 32767 were expected");
        }
    }
    for (const int32_t place : {where.x, where.y}) {
        if (place < -kLargest || place > kLargest)
            Refuse("an item can't be drawn at " + String::FromInt(where.x) + ", " +
                   String::FromInt(where.y) + "; -32767 to 32767 were expected");
    }
    return {where.x, where.y, where.x + where.width, where.y + where.height};
}

// A text for each state, for as long as the program runs.
const char* NameOf(int32_t state) {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> all;
        for (int32_t each = 0; each < E_ItemStateMax; ++each)
            all.push_back(ThemeItem::StateName(each).Utf8());
        return all;
    }();
    return names[static_cast<size_t>(state)].c_str();
}

}  // namespace

const char* vxgui_item_name(const vxgui_item* item) {
    return Guarded<const char*>(nullptr, [&] { return Required(item, kItem).name.c_str(); });
}

const char* vxgui_item_caption(const vxgui_item* item) {
    return Guarded<const char*>(nullptr, [&] { return Required(item, kItem).caption.c_str(); });
}

int32_t vxgui_item_kind(const vxgui_item* item) {
    return Guarded(-1, [&] { return static_cast<int32_t>(Required(item, kItem).kind); });
}

const char* vxgui_state_name(int32_t state) {
    return Guarded<const char*>(nullptr, [&] {
        RequireState(state);
        return NameOf(state);
    });
}

int32_t vxgui_item_shows(vxgui_item* item, int32_t state) {
    return Guarded(-1, [&] {
        RequireState(state);
        return ShowsInState(*Required(item, kItem).item, state) ? 1 : 0;
    });
}

int32_t vxgui_item_size(vxgui_item* item, int32_t* width, int32_t* height) {
    return Guarded(0, [&] {
        const gdi::SIZE size = OwnSize(*Required(item, kItem).item);
        Required(width, "where the width goes") = size.cx;
        Required(height, "where the height goes") = size.cy;
        return 1;
    });
}

int32_t vxgui_item_draw(vxgui_item* item, int32_t state, const char* caption,
                        const vxgui_pixels* pixels, const vxgui_rectangle* rectangle) {
    return Guarded(0, [&] {
        ThemeItem& drawn = *Required(item, kItem).item;
        const vxgui_pixels& to = Required(pixels, "a vxgui_pixels");
        const gdi::RECT box = BoxOf(Required(rectangle, "a vxgui_rectangle"));
        RequireState(state);
        Global();  // sets the calling thread up
        if (!PaintItem(drawn, state, caption, {to.top, to.width, to.height, to.stride, false}, box))
            Refuse("no pixels that can be drawn on: " + String::FromInt(to.width) + " by " +
                   String::FromInt(to.height) + ", " + String::FromInt(to.stride) +
                   " bytes a row; a width and a height above 0, and an address and rows of a "
                   "multiple of 4 bytes were expected");
        return 1;
    });
}
