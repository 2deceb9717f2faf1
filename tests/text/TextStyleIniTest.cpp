#include <gmock/gmock.h>

#include "ActedDefineFile.h"
#include "TextTestSupport.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using test::ActedDefineFile;
using test::DefineFileOf;

Ref<TextStyle> StyleOf(const String& lines) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->FromIniFile(DefineFileOf(lines), "S");
    return style;
}

TEST(StyleSection, WithoutKeysLeavesTheShadow) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->Create(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12);
    style->FromIniFile(DefineFileOf(""), "S");
    EXPECT_EQ(style->TextColor, 0);
    EXPECT_EQ(style->TextContrast, 4);
    EXPECT_EQ(style->TextAlignHorz, 0);
    EXPECT_EQ(style->TextAlignVert, 0);
    EXPECT_EQ(style->FormatFlags, 0);
    EXPECT_EQ(style->TextStyle, 0);
    EXPECT_EQ(style->ShadowColor, 6);
    EXPECT_EQ(style->ShadowThickness, 7);
    EXPECT_EQ(style->ShadowX, 8);
    EXPECT_EQ(style->ShadowY, 9);
    EXPECT_EQ(style->ShadowOffsetX, 10);
    EXPECT_EQ(style->ShadowOffsetY, 11);
}

TEST(StyleSection, IsReadInItsOrderWithItsDefaults) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    New<TextStyle>()->FromIniFile(file, "S");
    EXPECT_THAT(file->reads,
                testing::ElementsAre("text TextColor ", "integer TextContrast 4",
                                     "integer TextAlignHorz 0", "integer TextAlignVert 0",
                                     "integer FormatFlags 0", "integer DrawStyle 0",
                                     "integer TextStyle 0", "integer DrawingStyle 0"));
}

TEST(StyleSection, TheShadowIsReadInItsOrder) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    file->values = {{"DrawStyle", "5"}};
    New<TextStyle>()->FromIniFile(file, "S");
    file->reads.erase(file->reads.begin(), file->reads.begin() + 6);
    EXPECT_THAT(file->reads,
                testing::ElementsAre("text ShadowColor ", "integer ShadowB 0", "integer ShadowG 0",
                                     "integer ShadowR 0", "text Shadow ", "integer ShadowX 0",
                                     "integer ShadowY 0", "text ShadowOffsetY ",
                                     "text ShadowOffset ", "integer ShadowThickness 4"));
    file->reads.clear();
    file->values = {
        {"DrawStyle", "1"}, {"ShadowColor", "1"}, {"Shadow", "2"}, {"ShadowOffsetY", "3"}};
    New<TextStyle>()->FromIniFile(file, "S");
    file->reads.erase(file->reads.begin(), file->reads.begin() + 6);
    EXPECT_THAT(file->reads,
                testing::ElementsAre("text ShadowColor ", "text Shadow ", "text ShadowOffsetY ",
                                     "integer ShadowOffsetX 0", "integer ShadowOffsetY 0"));
}

struct KeyRow {
    const char* lines;
    int32_t TextStyle::*field;
    int32_t expected;
};
class StyleKey : public testing::TestWithParam<KeyRow> {};
INSTANTIATE_TEST_SUITE_P(
    , StyleKey,
    testing::Values(
        KeyRow{"TextColor=255,0,0", &TextStyle::TextColor, 255},
        KeyRow{"TextColor=0xFF ; red", &TextStyle::TextColor, 255},
        KeyRow{"TextContrast=12", &TextStyle::TextContrast, 12},
        KeyRow{"TextContrast=13", &TextStyle::TextContrast, 0},
        KeyRow{"TextContrast=14", &TextStyle::TextContrast, 1},
        KeyRow{"TextContrast=-14", &TextStyle::TextContrast, -1},
        KeyRow{"TextAlignHorz=4", &TextStyle::TextAlignHorz, 4},
        KeyRow{"TextAlignHorz=5", &TextStyle::TextAlignHorz, 0},
        KeyRow{"TextAlignHorz=-6", &TextStyle::TextAlignHorz, -1},
        KeyRow{"TextAlignVert=3", &TextStyle::TextAlignVert, 3},
        KeyRow{"TextAlignVert=6", &TextStyle::TextAlignVert, 2},
        KeyRow{"FormatFlags=16388", &TextStyle::FormatFlags, 16388},
        // The draw style has three keys, the newest first.
        KeyRow{"DrawStyle=3\nTextStyle=4\nDrawingStyle=5", &TextStyle::TextStyle, 3},
        KeyRow{"TextStyle=4\nDrawingStyle=5", &TextStyle::TextStyle, 4},
        KeyRow{"DrawingStyle=5", &TextStyle::TextStyle, 5},
        KeyRow{"DrawStyle=6\nTextStyle=4", &TextStyle::TextStyle, 4},
        KeyRow{"DrawStyle=6\nDrawingStyle=5", &TextStyle::TextStyle, 5},
        KeyRow{"DrawStyle=7\nTextStyle=4", &TextStyle::TextStyle, 1},
        KeyRow{"TextStyle=7", &TextStyle::TextStyle, 1},
        KeyRow{"TextStyle=6\nDrawingStyle=5", &TextStyle::TextStyle, 0},
        KeyRow{"DrawingStyle=8", &TextStyle::TextStyle, 2},
        KeyRow{"DrawStyle=-1", &TextStyle::TextStyle, -1},
        // The colour has a key, or three.
        KeyRow{"DrawStyle=1\nShadowColor=1,2,3\nShadowR=9", &TextStyle::ShadowColor, 0x030201},
        KeyRow{"DrawStyle=1\nShadowR=1\nShadowG=2\nShadowB=3", &TextStyle::ShadowColor, 0x030201},
        KeyRow{"DrawStyle=1\nShadowR=256\nShadowG=999", &TextStyle::ShadowColor, 0x00FFFF},
        KeyRow{"DrawStyle=1\nShadowR=-5\nShadowG=1", &TextStyle::ShadowColor, 0x000100},
        // The size of the shadow.
        KeyRow{"DrawStyle=1\nShadowX=0", &TextStyle::ShadowX, 1},
        KeyRow{"DrawStyle=1\nShadowY=-7", &TextStyle::ShadowY, 1},
        KeyRow{"DrawStyle=1\nShadowX=300", &TextStyle::ShadowX, 300},
        KeyRow{"DrawStyle=1\nShadow=3,4", &TextStyle::ShadowX, 3},
        KeyRow{"DrawStyle=1\nShadow=3,4", &TextStyle::ShadowY, 4},
        KeyRow{"DrawStyle=1\nShadow=300", &TextStyle::ShadowX, 44},
        KeyRow{"DrawStyle=1\nShadow=300", &TextStyle::ShadowY, 44},
        KeyRow{"DrawStyle=1\nShadow=3,400", &TextStyle::ShadowY, 400},
        KeyRow{"DrawStyle=1\nShadow=2.5", &TextStyle::ShadowX, 2},
        KeyRow{"DrawStyle=1\nShadow=3\nShadowX=8", &TextStyle::ShadowX, 3},
        KeyRow{"DrawStyle=1\nShadow=wide\nShadowX=8", &TextStyle::ShadowX, 8},
        KeyRow{"DrawStyle=1\nShadow=256", &TextStyle::ShadowX, 1},
        // The offset: the pair of keys counts when the second is there.
        KeyRow{"DrawStyle=1\nShadowOffset=2", &TextStyle::ShadowOffsetX, 2},
        KeyRow{"DrawStyle=1\nShadowOffset=2", &TextStyle::ShadowOffsetY, 2},
        KeyRow{"DrawStyle=1\nShadowOffset=2,5", &TextStyle::ShadowOffsetY, 5},
        KeyRow{"DrawStyle=1\nShadowOffset=-1", &TextStyle::ShadowOffsetX, 255},
        // A comma stands between digits, or the text is no number at all.
        KeyRow{"DrawStyle=1\nShadowOffset=1,-2", &TextStyle::ShadowOffsetX, 0},
        KeyRow{"DrawStyle=1\nShadowOffset=2\nShadowOffsetY=0", &TextStyle::ShadowOffsetX, 0},
        KeyRow{"DrawStyle=1\nShadowOffset=2\nShadowOffsetX=7\nShadowOffsetY=9",
               &TextStyle::ShadowOffsetX, 7},
        KeyRow{"DrawStyle=1\nShadowOffset=2\nShadowOffsetX=7\nShadowOffsetY=9",
               &TextStyle::ShadowOffsetY, 9},
        KeyRow{"DrawStyle=1\nShadowOffset=2\nShadowOffsetX=7", &TextStyle::ShadowOffsetX, 2},
        KeyRow{"DrawStyle=1\nShadowOffset=2\nShadowOffsetY=far", &TextStyle::ShadowOffsetX, 2},
        // The thickness belongs to draw style 5.
        KeyRow{"DrawStyle=5\nShadowThickness=9", &TextStyle::ShadowThickness, 9},
        KeyRow{"DrawStyle=4\nShadowThickness=9", &TextStyle::ShadowThickness, 4},
        // Without a draw style there is no shadow.
        KeyRow{"ShadowX=9", &TextStyle::ShadowX, 0},
        KeyRow{"DrawStyle=-2\nShadowX=9", &TextStyle::ShadowX, 0}));

TEST_P(StyleKey, SetsItsField) {
    EXPECT_EQ((*StyleOf(GetParam().lines)).*GetParam().field, GetParam().expected);
}

TEST(StyleSection, OffsetsWithoutAKeyStayAsTheyAre) {
    for (const char* lines : {"DrawStyle=1", "DrawStyle=1\nShadowOffset=far"}) {
        const Ref<TextStyle> style = New<TextStyle>();
        style->ShadowOffsetX = 5;
        style->ShadowOffsetY = 6;
        style->FromIniFile(DefineFileOf(lines), "S");
        EXPECT_EQ(style->ShadowOffsetX, 5);
        EXPECT_EQ(style->ShadowOffsetY, 6);
    }
}

TEST(StyleSection, AThicknessWithoutAKeyIsNeutral) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->ShadowThickness = 9;
    style->FromIniFile(DefineFileOf("DrawStyle=5"), "S");
    EXPECT_EQ(style->ShadowThickness, 4);
}

TEST(StyleSection, AnAlphaOf128RaisesOverflow) {
    EXPECT_EQ(test::ErrorOf([] { StyleOf("TextColor=1,2,3,128"); }), 6);
}

TEST(StyleSection, OfNoFileRaises) {
    EXPECT_EQ(test::ErrorOf([] { New<TextStyle>()->FromIniFile(nullptr, "S"); }), 91);
}

}  // namespace
}  // namespace vxgui
