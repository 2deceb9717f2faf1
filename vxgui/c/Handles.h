#pragma once

#include <string>

#include "vxgui/theme/skin/Skin.h"
#include "vxgui/vxgui_c.h"

/// What the handles of the C interface stand for. Texts are kept as the caller gets them.
struct VXGUI_LOCAL vxgui_item {
    std::string name;
    std::string caption;
    vxgui_kind kind;
    vxgui::Ref<vxgui::ThemeItem> item;
};

struct VXGUI_LOCAL vxgui_skin {
    explicit vxgui_skin(vxgui::Skin loaded);

    vxgui::Skin skin;
    std::vector<vxgui_item> items;
};
