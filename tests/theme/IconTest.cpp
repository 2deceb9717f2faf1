#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "tests/text/TextCanvas.h"
#include "tests/theme/RecordingSurface.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/surface/Himetric.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

using test::RecordingSurface;
using test::TextCanvas;
using Calls = std::vector<std::string>;

/// A picture object that writes down what is asked of it.
class ActedPicture : public ole::Picture {
public:
    gdi::HGDIOBJ Handle() const override { return nullptr; }
    int16_t Type() const override { return 1; }
    int32_t Width() const override { return 847; }   // 32 pixels at 96 dots an inch
    int32_t Height() const override { return 423; }  // 16
    void Render(gdi::HDC, int32_t x, int32_t y, int32_t cx, int32_t cy, int32_t sourceX,
                int32_t sourceY, int32_t sourceCx, int32_t sourceCy) const override {
        rendered = {x, y, cx, cy, sourceX, sourceY, sourceCx, sourceCy};
    }
    bool SaveAsFile(ByteArray*) const override { return false; }

    mutable std::vector<int32_t> rendered;
};

struct Edges {
    int32_t right = 100;
    int32_t bottom = 60;
};

int32_t Draw(const Ref<ThemeItem>& item, const Ref<Object>& icon, Edges& edges, int32_t left = 0,
             int32_t top = 0) {
    return item->DrawIcon(nullptr, icon, 0, -1, left, top, edges.right, edges.bottom);
}

TEST(Icon, NoneIsPaintedAsNothingAndTheMarginsComeOff) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetIconMargin(1, 2, 3, 4);
    TextCanvas canvas(100, 60);
    int32_t right = 100, bottom = 60;
    EXPECT_EQ(item->DrawIcon(canvas.dc, nullptr, 0, -1, 0, 0, right, bottom), 0);
    EXPECT_EQ(right, 97);
    EXPECT_EQ(bottom, 56);
    EXPECT_TRUE(canvas.IsBlank());
}

TEST(Icon, AnObjectOfAnotherClassIsRefusedAtOnce) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetIconMargin(1, 2, 3, 4);
    Edges edges;
    EXPECT_EQ(Draw(item, New<LFont>(), edges), -1);
    EXPECT_EQ(edges.right, 100);
    EXPECT_EQ(edges.bottom, 60);
}

TEST(Icon, IsASquareOfItsWidth) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->IconWidth(16);
    item->IconHeight(32);
    item->IconTransMode(3);
    const Ref<RecordingSurface> icon = New<RecordingSurface>(20, 10);
    Edges edges;
    EXPECT_EQ(Draw(item, icon, edges), 0);
    EXPECT_EQ(icon->calls, Calls{"copy 0 0 16 16 0 0 20 10"});
}

TEST(Icon, WithoutAWidthHasItsOwnSize) {
    for (int32_t width : {0, -1}) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->IconWidth(width);
        item->IconHeight(32);
        item->IconTransMode(3);
        const Ref<RecordingSurface> icon = New<RecordingSurface>(20, 10);
        Edges edges;
        Draw(item, icon, edges);
        EXPECT_EQ(icon->calls, Calls{"copy 0 0 20 10 0 0 20 10"});
    }
}

TEST(Icon, IsAlignedInColumnsAndRows) {
    const int32_t xs[] = {0, 42, 84}, ys[] = {0, 22, 44};
    for (int32_t align = 0; align < 9; ++align) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->IconWidth(16);
        item->IconAlign(align);
        item->IconTransMode(3);
        const Ref<RecordingSurface> icon = New<RecordingSurface>(16, 16);
        Edges edges;
        Draw(item, icon, edges);
        EXPECT_EQ(icon->calls[0], "copy " + std::to_string(xs[align / 3]) + " " +
                                      std::to_string(ys[align % 3]) + " 16 16 0 0 16 16");
    }
}

TEST(Icon, IsAlignedInsideItsMargins) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->IconWidth(16);
    item->IconAlign(4);
    item->IconTransMode(3);
    item->SetIconMargin(5, 6, 7, 9);
    const Ref<RecordingSurface> icon = New<RecordingSurface>(16, 16);
    Edges edges;
    Draw(item, icon, edges, 10, 20);
    // (93 - 16 - 15) / 2 and (51 - 16 - 26) / 2, truncated.
    EXPECT_EQ(icon->calls, Calls{"copy 46 30 16 16 0 0 16 16"});
    EXPECT_EQ(edges.right, 93);
    EXPECT_EQ(edges.bottom, 51);
}

TEST(Icon, EdgesOfMinusOneHaveNoDefault) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->IconWidth(16);
    item->IconAlign(8);
    item->IconTransMode(3);
    const Ref<RecordingSurface> icon = New<RecordingSurface>(16, 16);
    Edges edges{-1, -1};
    Draw(item, icon, edges);
    EXPECT_EQ(icon->calls, Calls{"copy -17 -17 16 16 0 0 16 16"});
}

TEST(Icon, LargerThanItsAreaSticksOutByATruncatedHalf) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->IconAlign(4);
    item->IconTransMode(3);
    const Ref<RecordingSurface> icon = New<RecordingSurface>(20, 20);
    Edges edges{15, 14};
    Draw(item, icon, edges);
    EXPECT_EQ(icon->calls, Calls{"copy -2 -3 20 20 0 0 20 20"});
}

TEST(Icon, FlagsAndStateHaveNoEffect) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->IconTransMode(3);
    const Ref<RecordingSurface> icon = New<RecordingSurface>(8, 8);
    for (const uint32_t flags : {0u, 0xFFFFFFFFu}) {
        for (const int32_t state : {-1, 3, 99}) {
            icon->calls.clear();
            int32_t right = 100, bottom = 60;
            EXPECT_EQ(item->DrawIcon(nullptr, icon, flags, state, 5, 6, right, bottom), 0);
            EXPECT_EQ(icon->calls, Calls{"copy 5 6 8 8 0 0 8 8"});
        }
    }
    EXPECT_EQ(item->State(), E_ItemStateNormal);
}

TEST(Icon, TheTransparencyModeChoosesThePainter) {
    const struct {
        int32_t mode;
        bool alpha;
        const char* painted;
    } cases[] = {{2, true, "alpha 0 0 8 8 0 0 8 8 254 channel"},
                 {2, false, "alpha 0 0 8 8 0 0 8 8 254 none"},
                 {1, true, "key 0 0 8 8 0 0 8 8 4660"},
                 {1, false, "key 0 0 8 8 0 0 8 8 4660"},
                 {3, true, "copy 0 0 8 8 0 0 8 8"},
                 {0, true, "alpha 0 0 8 8 0 0 8 8 254 channel"},
                 {0, false, "key 0 0 8 8 0 0 8 8 4660"},
                 {77, true, "alpha 0 0 8 8 0 0 8 8 254 channel"},
                 {-1, false, "key 0 0 8 8 0 0 8 8 4660"}};
    for (const auto& [mode, alpha, painted] : cases) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->IconTransMode(mode);
        item->IconWidth(0);
        const Ref<RecordingSurface> icon = New<RecordingSurface>(8, 8);
        icon->hasAlpha = alpha;
        icon->TransparentColor(0x1234);
        Edges edges;
        Draw(item, icon, edges);
        ASSERT_FALSE(icon->calls.empty());
        EXPECT_EQ(icon->calls.back(), painted) << mode;
        if (icon->calls.size() > 1) {
            EXPECT_EQ(icon->asked, (std::vector{0, 0, -1, -1}));
        }
    }
}

TEST(Icon, APictureIsRenderedUpright) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<ActedPicture> icon = New<ActedPicture>();
    item->IconAlign(8);
    for (int32_t width : {0, 24}) {
        item->IconWidth(width);
        TextCanvas canvas(10, 10);
        int32_t right = 100, bottom = 60;
        EXPECT_EQ(item->DrawIcon(canvas.dc, icon, 0, -1, 0, 0, right, bottom), 0);
        const int32_t cx = width ? width : HimetricToPixels(canvas.dc, 847);
        const int32_t cy = width ? width : HimetricToPixels(canvas.dc, 423);
        EXPECT_EQ(icon->rendered,
                  (std::vector<int32_t>{100 - cx, 60 - cy, cx, cy, 0, 423, 847, -423}));
    }
}

/// An owner whose colours tell which number was asked for.
class ActedColours : public ThemeOwner {
public:
    int32_t Colour(int32_t index) override { return 0x010203 * index; }
    Ref<LFont> Font(int32_t) override { return nullptr; }
};

TEST(MenuArrow, HasTheColoursOfThreeStates) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Owner(New<ActedColours>());
    item->Numbers().NormalColour = 1;
    item->Numbers().FocusColour = 5;
    item->Numbers().DisabledColour = 9;
    const Ref<cAlphaDIBSection> image = item->CreateMenuArrow()->Image();
    const struct {
        int x, y, number;
    } places[] = {{0, 0, 1}, {3, 3, 1}, {4, 0, 5}, {7, 3, 5}, {8, 1, 9}, {11, 5, 9}};
    for (const auto& [x, y, number] : places) {
        // A pixel has blue in its lowest byte, a COLORREF red.
        EXPECT_EQ(image->GetPixel(x, y) & 0xFFFFFF, 0x030201 * number) << x << "," << y;
    }
}

TEST(MenuArrow, IsThreeTrianglesOnMagenta) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<ThemeItem> arrow = item->CreateMenuArrow();
    ASSERT_TRUE(arrow && arrow->Image());
    const Ref<cAlphaDIBSection> image = arrow->Image();
    ASSERT_EQ(image->Width(), 12);
    ASSERT_EQ(image->Height(), 8);
    const int columns[12][2] = {{0, 7}, {1, 5}, {2, 3}, {3, 1}, {0, 7}, {1, 5},
                                {2, 3}, {3, 1}, {1, 8}, {2, 6}, {3, 4}, {4, 2}};
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 12; ++x) {
            const auto [top, height] = std::pair{columns[x][0], columns[x][1]};
            const bool painted = y >= top && y < top + height;
            EXPECT_EQ(image->GetPixel(x, y) & 0xFFFFFF, painted ? 0 : 0xFF00FF) << x << "," << y;
        }
    }
    EXPECT_EQ(arrow->FrameCount(), 3);
    EXPECT_EQ(arrow->TransMode(), 0);
    EXPECT_EQ(arrow->ImageAlpha(), 0);
    EXPECT_EQ(image->TransparentColor(), 1);
    EXPECT_EQ(arrow->StateFrame(E_ItemStateMouseOver), 1);
    EXPECT_EQ(arrow->StateFrame(E_ItemStatePressed), 2);
}

// Red where it is drawn; by the image and by the bitmap that has it.
TEST(Icon, ImagesAndBitmapsAreScaledToTheirPlace) {
    const test::GdiplusSession session;
    const Ref<GpBitmap> bitmap = New<GpBitmap>();
    ASSERT_TRUE(bitmap->Create(4, 2));
    for (int32_t i = 0; i < 8; ++i) bitmap->SetPixel(i % 4, i / 4, 0xFFFF0000);
    for (const Ref<Object>& icon : {Ref<Object>(bitmap), Ref<Object>(bitmap->Image())}) {
        for (const int32_t size : {0, 8}) {
            const Ref<ThemeItem> item = New<ThemeItem>();
            item->IconWidth(size);
            item->IconAlign(0);
            const Ref<cAlphaDIBSection> canvas = New<cAlphaDIBSection>();
            ASSERT_TRUE(canvas->Create(20, 20));
            int32_t right = 20, bottom = 20;
            EXPECT_EQ(item->DrawIcon(canvas->hDC(), icon, 0, -1, 3, 5, right, bottom), 0);
            const auto red = [&](int32_t x, int32_t y) {
                return (canvas->GetPixel(x, y) & 0xFF0000) == 0xFF0000;
            };
            const int32_t width = size ? size : 4, height = size ? size : 2;
            EXPECT_TRUE(red(4, 6));
            EXPECT_TRUE(red(3 + width - 2, 5 + height - 1)) << size;
            EXPECT_FALSE(red(3 + width + 1, 5)) << size;
            EXPECT_FALSE(red(3, 5 + height + 1)) << size;
            EXPECT_FALSE(red(2, 5));
        }
    }
}

}  // namespace
}  // namespace vxgui
