#include "tools/view/ShownItem.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generated/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/view/Ground.h"
#include "tools/view/ItemFacts.h"
#include "tools/view/PickedPixel.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::view {
namespace {

using testing::Contains;
using testing::ElementsAre;

class Shown : public testing::Test {
protected:
    const Skin skin_ = LoadSkin(VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme");

    ShownItem Of(const char* name, int32_t state = E_ItemStateNormal) const {
        return {FindItem(skin_, name), "", {60, 30}, state};
    }
};

TEST_F(Shown, ItemIsPaintedWhereItIsToStandAndNowhereElse) {
    tool::Sheet sheet(100, 60);
    sheet.Fill(0xFF123456);
    PaintShown(sheet, Of("Header"), {20, 10});
    sheet.MakeOpaque();
    for (int32_t y = 0; y < 60; ++y) {
        for (int32_t x = 0; x < 100; ++x) {
            const bool inside = x >= 20 && x < 80 && y >= 10 && y < 40;
            if (inside) continue;
            ASSERT_EQ(sheet.At(x, y), 0xFF123456) << x << "," << y;
        }
    }
    EXPECT_NE(sheet.At(50, 25), 0xFF123456);
}

TEST_F(Shown, ItemHasItsOwnColoursWhateverStandsBehindIt) {
    tool::Sheet sheet(60, 30);
    PaintStraight(sheet, Of("EditFrame"));
    EXPECT_EQ(sheet.At(0, 0) >> 24, 0u);  // the key of the corner
    EXPECT_EQ(sheet.At(30, 15) >> 24, 255u);
    PaintStraight(sheet, Of("StatusBar"));
    EXPECT_NEAR(static_cast<double>(sheet.At(30, 15) >> 24), 204, 1);  // a fifth lets through
}

TEST_F(Shown, ItemWithoutAnyIsNothing) {
    tool::Sheet sheet(8, 8);
    PaintStraight(sheet, {nullptr, "text", {8, 8}, 0});
    EXPECT_EQ(sheet.At(4, 4), 0u);
    EXPECT_TRUE(FactsOf({nullptr, "", {8, 8}, 0}).empty());
}

std::vector<std::string> LinesOf(const ShownItem& shown) {
    std::vector<std::string> lines;
    for (const Fact& fact : FactsOf(shown)) lines.push_back(fact.name + ": " + fact.value);
    return lines;
}

TEST_F(Shown, FactsTellFrameAndMargins) {
    EXPECT_THAT(LinesOf(Of("PushButton", E_ItemStatePressed)),
                testing::AllOf(Contains("Frame: 2 of 0 to 5"), Contains("Margins: 11, 9, 11, 9"),
                               Contains("Transparency: alpha channel"),
                               Contains("Content: 12, 5, 12, 8"), Contains("Centre: stretched")));
    EXPECT_THAT(LinesOf(Of("PushButton", E_ItemStateGroup)), Contains("Frame: none in this state"));
    EXPECT_THAT(LinesOf(Of("ScrollThumb")),
                testing::AllOf(Contains("Centre: stretched across, tiled down; tiled left, right"),
                               Contains("Transparency: key colour")));
    EXPECT_THAT(LinesOf(Of("StatusBar")), Contains("Opacity: 204 of 255"));
    EXPECT_THAT(LinesOf(Of("CheckBox", E_ItemStatePressed)), Contains("Glyph frame: 2 of 0 to 5"));
}

TEST(MainColours, CountNearOnesTogetherAndClearOnesNot) {
    tool::Sheet sheet(4, 2);
    sheet.Fill(0);
    for (int32_t x = 0; x < 3; ++x) sheet.At(x, 0) = 0xFF402010 + static_cast<uint32_t>(x);
    sheet.At(3, 0) = 0xFFF0F0F0;
    EXPECT_THAT(MainColours(sheet, 9), ElementsAre(0xFF402011, 0xFFF0F0F0));
    EXPECT_THAT(MainColours(sheet, 1), ElementsAre(0xFF402011));
}

TEST(PickedPixel, TellsPlaceScreenColourAndTheItemsOwnBytes) {
    const PickedPixel pixel{{3, -2}, 0xFF0A0B0C, true, 0x80010203};
    EXPECT_EQ(pixel.Place(), "3, -2");
    EXPECT_EQ(pixel.Hex(), "#0A0B0C");
    EXPECT_EQ(pixel.Bgra(), "3 2 1 128");
    EXPECT_EQ((PickedPixel{{0, 0}, 0, false, 7}.Bgra()), "");
}

TEST(Ground, IsAColourChecksOrAPictureOverAndOver) {
    tool::Sheet sheet(40, 40);
    GroundOf("#0A141e").Paint(sheet);
    EXPECT_EQ(sheet.At(39, 39), 0xFF0A141Eu);
    GroundOf("checks").Paint(sheet);
    EXPECT_NE(sheet.At(0, 0), sheet.At(8, 0));
    tool::Sheet picture(3, 2);
    picture.Fill(0xFF112233);
    picture.At(2, 1) = 0xFFFFEEDD;
    const test::TemporaryFolder folder;
    picture.WritePng(folder.Path("p.png").Utf8());
    GroundOf(folder.Path("p.png").Utf8()).Paint(sheet);
    for (int32_t y = 0; y < 40; ++y) {
        for (int32_t x = 0; x < 40; ++x)
            ASSERT_EQ(sheet.At(x, y), picture.At(x % 3, y % 2)) << x << "," << y;
    }
}

TEST(Ground, ThatIsNoPictureIsRefused) {
    EXPECT_THROW(GroundOf("/nowhere/ground.png"), tool::ToolError);
    EXPECT_THROW(GroundOf("#12345G"), tool::ToolError);
}

}  // namespace
}  // namespace vxgui::view
