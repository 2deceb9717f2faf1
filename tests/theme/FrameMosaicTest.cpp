#include "vxgui/theme/FrameMosaic.h"

#include <gtest/gtest.h>

#include <random>

#include "vxgui/platform/gdi.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/surface/MosaicPaint.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

/// Stands in for a surface without doing anything else: it is asked piece by piece.
class StandIn : public cAlphaDIBSection {};

constexpr int32_t kWidth = 70, kHeight = 50;

struct Canvas {
    explicit Canvas(bool bottomUp)
        : dc(gdi::CreateHostDC({words.data(), kWidth, kHeight, kWidth * 4, bottomUp})) {}
    ~Canvas() { gdi::DeleteDC(dc); }
    std::vector<uint32_t> words = [] {
        std::mt19937 random(3);
        std::vector<uint32_t> noise(kWidth * kHeight);
        for (uint32_t& word : noise) word = static_cast<uint32_t>(random());
        return noise;
    }();
    gdi::HDC dc;
};

class Dice {
public:
    explicit Dice(uint32_t seed) : random_(seed) {}
    int32_t From(int32_t low, int32_t high) {
        return low + static_cast<int32_t>(random_() % static_cast<uint32_t>(high - low + 1));
    }

private:
    std::mt19937 random_;
};

template <class Surface>
Ref<ThemeItem> ItemOf(Dice dice) {
    const Ref<cAlphaDIBSection> image = New<Surface>();
    const int32_t count = dice.From(1, 3), vertical = dice.From(0, 1);
    const int32_t along = dice.From(1, 24) * count, across = dice.From(1, 24);
    vertical ? image->Create(across, along) : image->Create(along, across);
    for (ARGB& pixel : image->Pixels()) {
        const auto alpha = static_cast<uint8_t>(dice.From(0, 2) * 100);
        pixel = {static_cast<uint8_t>(dice.From(0, 255)), static_cast<uint8_t>(dice.From(0, 255)),
                 static_cast<uint8_t>(dice.From(0, 255)), alpha};
        if (dice.From(0, 3) == 0) pixel = {255, 0, 255, alpha};  // the key
    }
    const Ref<ThemeItem> item = New<ThemeItem>();
    constexpr int32_t kModes[] = {PerPixel, PerPixel, Trans, Normal};
    item->SetImage(image, count, vertical, kModes[dice.From(0, 3)],
                   static_cast<uint8_t>(dice.From(0, 2) ? 255 : dice.From(0, 252)));
    item->SetImageMargin(dice.From(-1, 9), dice.From(-1, 9), dice.From(-1, 9), dice.From(-1, 9));
    item->SetTile(dice.From(0, 5), dice.From(0, 1), dice.From(0, 1), dice.From(0, 1),
                  dice.From(0, 1));
    item->FrameCount(count + (dice.From(0, 20) == 0));  // a frame that may be partly outside
    return item;
}

gdi::HRGN TwoBoxes(Dice& dice) {
    const auto box = [&] {
        return gdi::CreateRectRgn(dice.From(-5, 40), dice.From(-5, 30), dice.From(10, 80),
                                  dice.From(10, 60));
    };
    const gdi::HRGN both = box(), other = box();
    gdi::CombineRgn(both, both, other, gdi::RGN_XOR);
    gdi::DeleteObject(other);
    return both;
}

template <class Surface>
std::vector<uint32_t> Painted(Dice dice) {
    Canvas canvas(dice.From(0, 1) == 1);
    const gdi::HRGN clip = dice.From(0, 2) ? nullptr : TwoBoxes(dice);
    if (clip) gdi::SelectObject(canvas.dc, clip);
    const int32_t x = dice.From(-30, 60), y = dice.From(-30, 40);
    const int32_t w = dice.From(-1, 90), h = dice.From(-1, 70), frame = dice.From(0, 2);
    const Ref<ThemeItem> item = ItemOf<Surface>(dice);
    item->DrawBackground(canvas.dc, x, y, w, h, frame, -1);
    if (clip) gdi::DeleteObject(clip);
    return canvas.words;
}

TEST(FrameMosaic, LeavesThePixelsThatThePiecesLeave) {
    for (uint32_t seed = 0; seed < 20000; ++seed) {
        ASSERT_EQ(Painted<cAlphaDIBSection>(Dice(seed)), Painted<StandIn>(Dice(seed))) << seed;
    }
}

TEST(FrameMosaic, IsForTheLibrarysOwnBlendAndSurfaceAlone) {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(MayPaintMosaics(*surface));
    EXPECT_FALSE(MayPaintMosaics(*New<StandIn>()));
}

SlicedAxis Sliced(int32_t start, int32_t size) { return SliceAxis({start, size}, {0, 30}, 4, 4); }

TEST(FrameMosaic, FitsWhereNoBandsOverlapAndNoneIsTooLarge) {
    const SlicedAxis fits = Sliced(-7, 100);
    const auto bothFit = [](const SlicedAxis& x, const SlicedAxis& y) {
        return FrameMosaic::Fits(x, y, 30, 30);
    };
    EXPECT_TRUE(bothFit(fits, fits));
    EXPECT_TRUE(bothFit(fits, Sliced(0, 8)));  // no middle
    EXPECT_FALSE(FrameMosaic::Fits(fits, fits, 29, 30));
    EXPECT_FALSE(FrameMosaic::Fits(fits, fits, 30, 29));
    for (const SlicedAxis& other :
         {Sliced(0, 7), Sliced(0, 0), Sliced(0, -3), Sliced(0, FrameMosaic::kMost + 1),
          Sliced(INT32_MAX - 50, 100), SliceAxis({0, 100}, {0, 30}, -1, 4)}) {
        EXPECT_FALSE(bothFit(fits, other));
        EXPECT_FALSE(bothFit(other, fits));
    }
    EXPECT_TRUE(bothFit(fits, Sliced(0, FrameMosaic::kMost)));
}

/// The bands of each part and the rows in each, as (bands, rows).
std::vector<std::array<size_t, 2>> PartsOf(const FrameTiling& tiling) {
    const SlicedAxis axis = Sliced(10, 100);
    const FrameMosaic mosaic(axis, axis, tiling);
    std::vector<std::array<size_t, 2>> parts;
    for (const gdi::MosaicPart& part : mosaic.Parts())
        parts.push_back({part.size(), part[0].rows.size()});
    return parts;
}

TEST(FrameMosaic, IsOneBandUnlessItsTilingsDiffer) {
    using Parts = std::vector<std::array<size_t, 2>>;
    EXPECT_EQ(PartsOf({}), (Parts{{1, 100}}));
    EXPECT_EQ(PartsOf({true, true, true, true, true, true}), (Parts{{1, 100}}));
    EXPECT_EQ(PartsOf({.left = true}), (Parts{{2, 100}}));
    EXPECT_EQ(PartsOf({.down = true}), (Parts{{3, 100}}));
    EXPECT_EQ(PartsOf({.top = true}), (Parts{{1, 4}, {1, 96}}));
    EXPECT_EQ(PartsOf({.across = true}), (Parts{{1, 4}, {1, 92}, {1, 4}}));
}

/// What a frame leaves whose surface's context shows a lower picture, of which the frame's upper
/// rows alone are there.
template <class Surface>
std::vector<uint32_t> PaintedFromALowerPicture() {
    Canvas canvas(false);
    const Ref<cAlphaDIBSection> image = New<Surface>();
    image->Create(30, 30);
    uint8_t* bits = nullptr;
    const gdi::HBITMAP lower = gdi::CreateDib(30, 20, 32, &bits);
    std::fill_n(bits, 30 * 20 * 4, uint8_t{90});
    const gdi::HGDIOBJ before = gdi::SelectObject(image->hDC(), lower);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(image, 1, 0, PerPixel);
    item->SetImageMargin(4, 4, 4, 4);
    item->SetTile(TileXStretchY, 0, 0, 0, 0);
    item->DrawBackground(canvas.dc, 0, 0, kWidth, kHeight, 0, -1);
    gdi::SelectObject(image->hDC(), before);
    gdi::DeleteObject(lower);
    return canvas.words;
}

TEST(FrameMosaic, IsPaintedWholeOrPieceByPiece) {
    EXPECT_EQ(PaintedFromALowerPicture<cAlphaDIBSection>(), PaintedFromALowerPicture<StandIn>());
}

}  // namespace
}  // namespace vxgui
