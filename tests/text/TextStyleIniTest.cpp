#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/text/TextSupport.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

constexpr int32_t kOverflow = 6, kObjectNotSet = 91;

/// The style that the lines of a section make of one whose every field was 77.
Ref<TextStyle> Read(const String& lines) {
    Ref<TextStyle> style = New<TextStyle>();
    style->Create(77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77, 77);
    style->FromIniFile(test::SectionOf(lines), "s");
    return style;
}

/// The same with draw style 1, so that the shadow is read.
Ref<TextStyle> ReadShadow(const String& lines) { return Read("DrawStyle=1\n" + lines); }

TEST(TextStyleFromIniFile, AnEmptySectionGivesTheDefaultsAndLeavesTheShadow) {
    const Ref<TextStyle> style = Read(""), expected = New<TextStyle>();
    expected->Create(0, 0, 0, 0, 4, 77, 77, 77, 77, 77, 77, 0);
    EXPECT_TRUE(style->Equal(expected));
}

TEST(TextStyleFromIniFile, EachKeyHasItsField) {
    const Ref<TextStyle> style = Read(
        "TextColor=1,2,3 ; dark\nTextContrast=12\nTextAlignHorz=4\nTextAlignVert=3\n"
        "FormatFlags=16384\nDrawStyle=5\nShadowColor=4,5,6\nShadowX=2\nShadowY=3\n"
        "ShadowOffsetX=-4\nShadowOffsetY=-5\nShadowThickness=9\n");
    const Ref<TextStyle> expected = New<TextStyle>();
    expected->Create(0x030201, 4, 3, 5, 12, 0x060504, 9, 2, 3, -4, -5, 16384);
    EXPECT_TRUE(style->Equal(expected));
}

TEST(TextStyleFromIniFile, NumbersAreBroughtIntoRangeByATruncatingRemainder) {
    const struct {
        const char* line;
        int32_t contrast, horz, vert;
    } cases[] = {
        {"TextContrast=13", 0, 0, 0}, {"TextContrast=14", 1, 0, 0}, {"TextContrast=-14", -1, 0, 0},
        {"TextAlignHorz=5", 4, 0, 0}, {"TextAlignHorz=9", 4, 4, 0}, {"TextAlignHorz=-6", 4, -1, 0},
        {"TextAlignVert=4", 4, 0, 0}, {"TextAlignVert=7", 4, 0, 3}, {"TextAlignVert=-5", 4, 0, -1},
    };
    for (const auto& c : cases) {
        const Ref<TextStyle> style = Read(c.line);
        EXPECT_EQ(style->TextContrast, c.contrast) << c.line;
        EXPECT_EQ(style->TextAlignHorz, c.horz) << c.line;
        EXPECT_EQ(style->TextAlignVert, c.vert) << c.line;
    }
}

TEST(TextStyleFromIniFile, AnAlphaOf128RaisesTheOverflowError) {
    EXPECT_EQ(test::RaisedBy([] { Read("TextColor=1,2,3,128"); }), kOverflow);
    EXPECT_EQ(test::RaisedBy([] { ReadShadow("ShadowColor=1,2,3,128"); }), kOverflow);
}

TEST(TextStyleFromIniFile, NoFileRaisesObjectNotSet) {
    EXPECT_EQ(test::RaisedBy([] { New<TextStyle>()->FromIniFile(nullptr, "s"); }), kObjectNotSet);
}

TEST(TextStyleDrawStyle, IsReadUnderThreeKeysThatFillEachOthersGaps) {
    const struct {
        const char* lines;
        int32_t style;
    } cases[] = {
        {"DrawStyle=3\nTextStyle=2\nDrawingStyle=1", 3},
        {"TextStyle=2\nDrawingStyle=1", 2},
        {"DrawingStyle=4", 4},
        {"DrawStyle=0\nTextStyle=0\nDrawingStyle=4", 4},
        {"DrawStyle=6\nTextStyle=2", 2},  // 6 leaves no remainder and so counts as absent
        {"DrawStyle=12\nDrawingStyle=3", 3},
        {"DrawStyle=7", 1},
        {"TextStyle=7", 1},
        {"DrawingStyle=8", 2},
        {"TextStyle=6\nDrawingStyle=3", 0},  // but 6 here isn't absent, and leaves 0 in the end
        {"DrawStyle=-1\nTextStyle=2", -1},
        {"TextStyle=-8", -2},
    };
    for (const auto& c : cases) EXPECT_EQ(Read(c.lines)->TextStyle, c.style) << c.lines;
}

TEST(TextStyleShadow, IsReadForADrawStyleAboveNoughtAlone) {
    const char* const shadow = "ShadowColor=1,2,3\nShadow=5\nShadowOffset=6\nShadowThickness=7\n";
    for (const char* draw : {"DrawStyle=0\n", "DrawStyle=-1\n", "TextStyle=6\n"}) {
        const Ref<TextStyle> style = Read(String(draw) + shadow);
        EXPECT_EQ(style->ShadowColor, 77) << draw;
        EXPECT_EQ(style->ShadowX, 77) << draw;
        EXPECT_EQ(style->ShadowOffsetX, 77) << draw;
        EXPECT_EQ(style->ShadowThickness, 77) << draw;
    }
    EXPECT_EQ(ReadShadow(shadow)->ShadowX, 5);
}

TEST(TextStyleShadow, TheColourWinsOverItsThreeChannels) {
    const char* const channels = "ShadowR=1\nShadowG=2\nShadowB=300\n";
    EXPECT_EQ(ReadShadow(String("ShadowColor=0xFF\n") + channels)->ShadowColor, 0xFF);
    EXPECT_EQ(ReadShadow(channels)->ShadowColor, 0xFF0201);
    EXPECT_EQ(ReadShadow("ShadowR=-5\nShadowG=256")->ShadowColor, 0x00FF00);
    EXPECT_EQ(ReadShadow("")->ShadowColor, 0);
    EXPECT_EQ(ReadShadow(String("ShadowColor=none\n") + channels)->ShadowColor, 0);
}

TEST(TextStyleShadow, TheSizeIsReadAsAPairOrByTwoKeys) {
    const struct {
        const char* lines;
        int32_t x, y;
    } cases[] = {
        {"Shadow=3,4", 3, 4},
        {"Shadow=3", 3, 3},
        {"Shadow=300", 44, 44},    // the low eight bits
        {"Shadow=3,300", 3, 300},  // but the second number has all of its bits
        {"Shadow=2.5", 2, 2},
        {"Shadow=3.5", 4, 4},
        {"Shadow=1,2,3", 1, 2},
        {"Shadow=&hFF", 255, 255},
        {"Shadow=3,4\nShadowX=8\nShadowY=9", 3, 4},
        {"Shadow=3, 4\nShadowX=8\nShadowY=9", 8, 9},  // a blank behind the comma: no number
        {"Shadow=big\nShadowX=8\nShadowY=9", 8, 9},
        {"ShadowX=8\nShadowY=9", 8, 9},
        {"ShadowX=300", 300, 1},
    };
    for (const auto& c : cases) {
        const Ref<TextStyle> style = ReadShadow(c.lines);
        EXPECT_EQ(style->ShadowX, c.x) << c.lines;
        EXPECT_EQ(style->ShadowY, c.y) << c.lines;
    }
}

TEST(TextStyleShadow, ASizeBelowOneIsRaisedToOne) {
    const struct {
        const char* lines;
        int32_t x, y;
    } cases[] = {{"", 1, 1},
                 {"ShadowX=0\nShadowY=5", 1, 5},
                 {"ShadowX=5\nShadowY=-3", 5, 1},
                 {"Shadow=0", 1, 1},
                 {"Shadow=256,-1", 1, 1}};
    for (const auto& c : cases) {
        const Ref<TextStyle> style = ReadShadow(c.lines);
        EXPECT_EQ(style->ShadowX, c.x) << c.lines;
        EXPECT_EQ(style->ShadowY, c.y) << c.lines;
    }
}

TEST(TextStyleShadow, TheOffsetIsReadByTwoKeysOrAsAPair) {
    const struct {
        const char* lines;
        int32_t x, y;
    } cases[] = {
        {"ShadowOffsetX=1\nShadowOffsetY=2\nShadowOffset=9", 1, 2},
        {"ShadowOffsetX=-1\nShadowOffsetY=-2", -1, -2},
        {"ShadowOffsetY=2", 0, 2},
        {"ShadowOffset=2", 2, 2},
        {"ShadowOffset=2,3", 2, 3},
        {"ShadowOffset=-1", 255, 255},  // the low eight bits
        {"ShadowOffset=2,-3", 77, 77},  // no number as a whole, so the offsets stay
        {"ShadowOffset=258,1", 2, 1},
        {"ShadowOffsetX=1\nShadowOffset=2", 2, 2},  // the test is made on the other key
        {"ShadowOffsetX=1\nShadowOffsetY=\nShadowOffset=2", 2, 2},
        {"ShadowOffsetX=1\nShadowOffsetY=low\nShadowOffset=2", 2, 2},
        {"ShadowOffsetX=1", 77, 77},
        {"", 77, 77},
    };
    for (const auto& c : cases) {
        const Ref<TextStyle> style = ReadShadow(c.lines);
        EXPECT_EQ(style->ShadowOffsetX, c.x) << c.lines;
        EXPECT_EQ(style->ShadowOffsetY, c.y) << c.lines;
    }
}

TEST(TextStyleShadow, TheThicknessIsReadForDrawStyleFiveAlone) {
    for (int32_t draw = 1; draw <= 5; ++draw) {
        const String line = "DrawStyle=" + String::FromInt(draw) + "\n";
        const bool read = draw == 5;
        EXPECT_EQ(Read(line + "ShadowThickness=9")->ShadowThickness, read ? 9 : 77) << draw;
        EXPECT_EQ(Read(line)->ShadowThickness, read ? 4 : 77) << draw;
    }
}

}  // namespace
}  // namespace vxgui
