#pragma once

#include <array>
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

/// The sizes that an item is shown at: its own, a wider one, and one that is larger both ways.
std::array<gdi::SIZE, 3> GallerySizes(ThemeItem& item, bool captioned);

/// Where everything of a gallery goes: a card for each item, and on it the nine states at the
/// item's own size and at two larger ones, with the item's caption on those.
GalleryPage LayOutGallery(const Skin& skin);

/// The page at a factor, with the items of the skin at that factor: each edge of the layout is
/// scaled and rounded once.
GalleryPage ScaledPage(const GalleryPage& page, const Skin& scaled, double factor);

}  // namespace vxgui::tool
