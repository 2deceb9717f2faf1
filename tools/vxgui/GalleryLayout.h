#pragma once

#include <vector>

#include "tools/vxgui/Skin.h"
#include "vxgui/platform/gdi_types.h"

namespace vxgui::tool {

/// One item in one state at one size, on its piece of checkered ground.
struct GalleryCell {
    int32_t state;
    int32_t x, y;
    gdi::SIZE size;
    gdi::RECT ground;
};

/// All cells of one item.
struct GalleryCard {
    Ref<ThemeItem> item;
    String name;
    gdi::RECT box;
    std::vector<GalleryCell> cells;
};

struct GalleryPage {
    int32_t width = 0;
    int32_t height = 0;
    std::vector<GalleryCard> cards;
};

/// Where everything of a gallery goes: a card for each item, and on it the nine states at the
/// item's own size and at two larger ones, wrapped to the width of the page.
GalleryPage LayOutGallery(const Skin& skin);

}  // namespace vxgui::tool
