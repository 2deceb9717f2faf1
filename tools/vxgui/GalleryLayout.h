#pragma once

#include <vector>

#include "vxgui/platform/gdi_types.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {

/// One item in one state at one size, on its piece of checkered ground.
struct GalleryCell {
    int32_t state;
    gdi::RECT ground;
    gdi::RECT item;
    bool captioned;
};

/// All cells of one item, under its name.
struct GalleryCard {
    Ref<ThemeItem> item;
    String name;
    String caption;
    gdi::RECT box;
    gdi::RECT title;
    std::vector<GalleryCell> cells;
};

struct GalleryPage {
    int32_t width = 0;
    int32_t height = 0;
    std::vector<GalleryCard> cards;
};

/// Where everything of a gallery goes: a card for each item, and on it the nine states at the
/// item's own size and at two larger ones, with the item's caption on those.
GalleryPage LayOutGallery(const Skin& skin);

}  // namespace vxgui::tool
