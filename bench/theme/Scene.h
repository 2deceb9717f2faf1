#pragma once

#include <vector>

#include "bench/theme/Frame.h"

namespace vxgui::bench {

/// A window full of controls: a thousand items of four kinds, each with a glyph, in a grid that
/// fills 1920 x 1080.
class Scene {
public:
    static constexpr int kWidth = 1920, kHeight = 1080, kItems = 1000;

    Scene() {
        for (const bool tiled : {false, true}) {
            items_.push_back(WithGlyph(PerPixelItem(tiled)));
            items_.push_back(WithGlyph(PlainItem(tiled ? Trans : Normal, tiled)));
        }
    }

    void Draw(gdi::HDC dc) const {
        for (int i = 0; i < kItems; ++i) {
            const auto& item = items_[static_cast<size_t>(i) % items_.size()];
            item->DrawBackground(dc, i % kColumns * kCellWidth, i / kColumns * kCellHeight,
                                 kCellWidth, kCellHeight, -1, -1);
        }
    }

private:
    static constexpr int kColumns = 40, kCellWidth = 48, kCellHeight = 43, kGlyph = 13;

    static Ref<ThemeItem> PlainItem(int32_t mode, bool tiled) {
        std::vector<uint32_t> words = StraightPicture(kFrame, kFrame, false);
        for (size_t i = 0; i < words.size(); i += 3) words[i] = 0xFFFF00FF;
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->SetImage(SurfaceOf(kFrame, kFrame, words), 1, 0, mode);
        item->SetImageMargin(kMargin, kMargin, kMargin, kMargin);
        if (tiled) item->SetTile(TileXTileY, 1, 1, 1, 1);
        return item;
    }
    static Ref<ThemeItem> WithGlyph(const Ref<ThemeItem>& item) {
        const Ref<cAlphaDIBSection> glyph =
            SurfaceOf(kGlyph, kGlyph, StraightPicture(kGlyph, kGlyph, true));
        item->SetGlyph(glyph, 1, 0, PerPixel, 255, DefaultTransColor, CenterCenter);
        return item;
    }

    std::vector<Ref<ThemeItem>> items_;
};

}  // namespace vxgui::bench
