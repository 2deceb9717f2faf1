#include "tools/vxgui/GalleryLayout.h"

#include <algorithm>
#include <array>

#include "vxgui/theme/ItemLook.h"
#include "vxgui/theme/ScaledLength.h"

namespace vxgui::tool {
namespace {

constexpr int32_t kPageWidth = 1300;
constexpr int32_t kPageMargin = 16;
constexpr int32_t kCardMargin = 14;
constexpr int32_t kTitleHeight = 24;
constexpr int32_t kTitleWidth = 200;
constexpr int32_t kCellMargin = 6;
constexpr int32_t kGap = 8;
constexpr int32_t kCaptionWidth = 112;

gdi::RECT Moved(const gdi::RECT& rect, int32_t x, int32_t y) {
    return {rect.left + x, rect.top + y, rect.right + x, rect.bottom + y};
}

gdi::RECT Times(const gdi::RECT& rect, double factor) {
    return {ScaledLength(rect.left, factor), ScaledLength(rect.top, factor),
            ScaledLength(rect.right, factor), ScaledLength(rect.bottom, factor)};
}

/// Places boxes from left to right and begins a new row where the next one doesn't fit.
class Flow {
public:
    Flow(int32_t left, int32_t top, int32_t right, int32_t gap)
        : left_(left), right_(right), gap_(gap), x_(left), y_(top) {}

    void NewRow() {
        if (x_ == left_) return;
        x_ = left_;
        y_ += rowHeight_ + gap_;
        rowHeight_ = 0;
    }
    gdi::RECT Place(int32_t width, int32_t height) {
        if (x_ + width > right_) NewRow();
        const gdi::RECT box{x_, y_, x_ + width, y_ + height};
        x_ += width + gap_;
        rowHeight_ = std::max(rowHeight_, height);
        reach_ = std::max(reach_, box.right);
        return box;
    }
    int32_t Bottom() const { return y_ + rowHeight_; }
    int32_t Reach() const { return reach_; }

private:
    int32_t left_, right_, gap_, x_, y_;
    int32_t rowHeight_ = 0;
    int32_t reach_ = 0;
};

// The card as it stands by itself, its top left corner at the origin.
GalleryCard LayOutCard(const SkinItem& shown) {
    const auto& [section, name, caption, item, ofDesktop] = shown;
    GalleryCard card{item, name, caption, {}, {}, {}};
    Flow flow(kCardMargin, kCardMargin + kTitleHeight, kPageWidth - 2 * kPageMargin - kCardMargin,
              kGap);
    const auto sizes = GallerySizes(*item, !caption.empty());
    for (size_t i = 0; i < sizes.size(); ++i) {
        flow.NewRow();
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            const gdi::RECT ground =
                flow.Place(sizes[i].cx + 2 * kCellMargin, sizes[i].cy + 2 * kCellMargin);
            const gdi::RECT inner{ground.left + kCellMargin, ground.top + kCellMargin,
                                  ground.right - kCellMargin, ground.bottom - kCellMargin};
            card.cells.push_back(
                {state, ground, inner, i > 0 && !caption.empty() && ShowsInState(*item, state)});
        }
    }
    const int32_t right = std::max(flow.Reach(), kCardMargin + kTitleWidth);
    card.title = {kCardMargin, kCardMargin / 2, right, kCardMargin / 2 + kTitleHeight};
    card.box = {0, 0, right + kCardMargin, flow.Bottom() + kCardMargin};
    return card;
}

void MoveCard(GalleryCard& card, int32_t x, int32_t y) {
    card.box = Moved(card.box, x, y);
    card.title = Moved(card.title, x, y);
    for (GalleryCell& cell : card.cells) {
        cell.ground = Moved(cell.ground, x, y);
        cell.item = Moved(cell.item, x, y);
    }
}

}  // namespace

std::array<gdi::SIZE, 3> GallerySizes(ThemeItem& item, bool captioned) {
    const gdi::SIZE own = OwnSize(item);
    const int32_t wider =
        std::max(own.cx + std::clamp(own.cx / 2, 24, 72), captioned ? kCaptionWidth : 0);
    return {own, {wider, own.cy}, {wider, own.cy + std::clamp(own.cy / 2, 16, 48)}};
}

GalleryPage LayOutGallery(const Skin& skin) {
    GalleryPage page;
    Flow shelves(kPageMargin, kPageMargin, kPageWidth - kPageMargin, kPageMargin);
    for (const SkinItem& item : skin.items) {
        GalleryCard card = LayOutCard(item);
        const gdi::RECT place = shelves.Place(card.box.right, card.box.bottom);
        MoveCard(card, place.left, place.top);
        page.cards.push_back(std::move(card));
    }
    page.width = std::max(shelves.Reach(), kTitleWidth) + kPageMargin;
    page.height = shelves.Bottom() + kPageMargin;
    return page;
}

GalleryPage ScaledPage(const GalleryPage& page, const Skin& scaled, double factor) {
    GalleryPage larger = page;
    larger.width = ScaledLength(page.width, factor);
    larger.height = ScaledLength(page.height, factor);
    for (size_t i = 0; i < larger.cards.size(); ++i) {
        GalleryCard& card = larger.cards[i];
        card.item = scaled.items[i].item;
        card.box = Times(card.box, factor);
        card.title = Times(card.title, factor);
        for (GalleryCell& cell : card.cells) {
            cell.ground = Times(cell.ground, factor);
            cell.item = Times(cell.item, factor);
        }
    }
    return larger;
}

}  // namespace vxgui::tool
