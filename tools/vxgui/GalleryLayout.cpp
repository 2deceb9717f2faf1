#include "tools/vxgui/GalleryLayout.h"

#include <algorithm>
#include <array>

#include "tools/vxgui/ItemSize.h"

namespace vxgui::tool {
namespace {

constexpr int32_t kPageWidth = 1240;
constexpr int32_t kPageMargin = 16;
constexpr int32_t kCardMargin = 14;
constexpr int32_t kTitleHeight = 24;
constexpr int32_t kCellMargin = 6;
constexpr int32_t kGap = 8;

// The item's own size, a wider one, and one that is larger both ways.
std::array<gdi::SIZE, 3> SizesOf(ThemeItem& item) {
    const gdi::SIZE own = OwnSize(item);
    const int32_t wider = own.cx + std::clamp(own.cx / 2, 24, 72);
    return {own, {wider, own.cy}, {wider, own.cy + std::clamp(own.cy / 2, 16, 48)}};
}

/// Places cells from left to right and begins a new row where the next one doesn't fit.
class Flow {
public:
    Flow(int32_t left, int32_t top, int32_t right)
        : left_(left), right_(right), x_(left), y_(top) {}

    void NewRow() {
        if (x_ == left_) return;
        x_ = left_;
        y_ += rowHeight_ + kGap;
        rowHeight_ = 0;
    }
    GalleryCell Place(int32_t state, gdi::SIZE size) {
        const int32_t width = size.cx + 2 * kCellMargin, height = size.cy + 2 * kCellMargin;
        if (x_ + width > right_) NewRow();
        const gdi::RECT ground{x_, y_, x_ + width, y_ + height};
        x_ += width + kGap;
        rowHeight_ = std::max(rowHeight_, height);
        reach_ = std::max(reach_, ground.right);
        return {state, ground.left + kCellMargin, ground.top + kCellMargin, size, ground};
    }
    int32_t Bottom() const { return y_ + rowHeight_; }
    int32_t Reach() const { return reach_; }

private:
    int32_t left_, right_, x_, y_;
    int32_t rowHeight_ = 0;
    int32_t reach_ = 0;
};

GalleryCard LayOutCard(const Ref<ThemeItem>& item, const String& name, int32_t top) {
    GalleryCard card{item, name, {kPageMargin, top, kPageWidth - kPageMargin, top}, {}};
    Flow flow(card.box.left + kCardMargin, top + kCardMargin + kTitleHeight,
              card.box.right - kCardMargin);
    for (const gdi::SIZE& size : SizesOf(*item)) {
        flow.NewRow();
        for (int32_t state = 0; state < E_ItemStateMax; ++state)
            card.cells.push_back(flow.Place(state, size));
    }
    card.box.right = std::max(card.box.right, flow.Reach() + kCardMargin);
    card.box.bottom = flow.Bottom() + kCardMargin;
    return card;
}

}  // namespace

GalleryPage LayOutGallery(const Skin& skin) {
    GalleryPage page;
    int32_t y = kPageMargin;
    for (int32_t n = 1; n <= skin.set->ThemeItems()->Count(); ++n) {
        const String section = NumberedSection("Theme_", n);
        page.cards.push_back(LayOutCard(skin.set->Item(section), skin.NameOf(section), y));
        page.width = std::max(page.width, page.cards.back().box.right + kPageMargin);
        y = page.cards.back().box.bottom + kPageMargin;
    }
    page.height = y;
    return page;
}

}  // namespace vxgui::tool
