#include "vxgui/text/ColorText.h"

#include <gtest/gtest.h>

#include "tests/support/Errors.h"

namespace vxgui {
namespace {

constexpr int32_t kOverflow = 6;

struct Case {
    const char* text;
    uint32_t color;
};

int32_t Parse(String text) { return ParseColorText(text); }

void ExpectAll(const std::vector<Case>& cases) {
    for (const Case& c : cases) EXPECT_EQ(Parse(c.text), static_cast<int32_t>(c.color)) << c.text;
}

TEST(ParseColorText, ThreeNumbersAreRedGreenAndBlue) {
    ExpectAll({{"255,0,0", 0x0000FF},
               {"1,2,3", 0x030201},
               {" 1 , 2 , 3 ", 0x030201},
               {"300,-1,256", 0x00FF2C},   // the low eight bits of each
               {"1.5,2.5,3.5", 0x040202},  // halves go to even
               {"&hFF,&h10,x", 0x0010FF},  // a part without a number is 0
               {"0xFF,1,1", 0x010100},     // "0x" means something in front of a whole text alone
               {"1,,3", 0x030001}});
}

TEST(ParseColorText, FewerThanThreeNumbersAreNoColour) {
    ExpectAll({{"1,2", 0}, {"255,", 0}, {",", 0}});
}

TEST(ParseColorText, AFourthNumberIsTheAlpha) {
    ExpectAll({{"0,0,255,200", 0xC8FF0000},
               {"1,2,3,200", 0xC8030201},
               {"1,2,3,0", 0x00030201},
               {"1,2,3,456", 0xC8030201},
               {"1,2,3,200,99", 0xC8030201}});
}

TEST(ParseColorText, EveryAlphaBut128IsTaken) {
    for (uint32_t alpha = 0; alpha < 256; ++alpha) {
        const String text = String("1,2,3,") + String::FromInt(alpha);
        if (alpha == 128) continue;
        EXPECT_EQ(Parse(text), static_cast<int32_t>(alpha << 24 | 0x030201)) << alpha;
    }
}

TEST(ParseColorText, AnAlphaOf128RaisesTheOverflowError) {
    for (const char* text : {"1,2,3,128", "0,0,0,384", "0,0,0,-128"}) {
        EXPECT_EQ(test::RaisedBy([&] { Parse(text); }), kOverflow) << text;
    }
}

TEST(ParseColorText, ASingleNumberIsTheColourItself) {
    ExpectAll({{"255", 255},
               {"  255  ", 255},
               {"-1", 0xFFFFFFFF},
               {"2.5", 2},
               {"3.5", 4},
               {"1e3", 1000},
               {"&hFF0000", 0xFF0000},
               {"&hFFFF", 0xFFFFFFFF},
               {"&hFFFFFFFF", 0xFFFFFFFF}});
}

TEST(ParseColorText, ANumberOutsideItsRangeIsNoColour) {
    ExpectAll({{"2147483646", 2147483646},
               {"2147483647", 0},  // the one 32-bit number that the range leaves out
               {"4294967295", 0},
               {"-2147483648", 0x80000000},
               {"-2147483649", 0}});
}

TEST(ParseColorText, AfterZeroXFollowHexadecimalDigits) {
    ExpectAll({{"0xFF", 255},
               {"0Xff", 255},
               {"0xFFFF", 0xFFFFFFFF},
               {"0x00FFFF", 0x00FFFF},
               {"0x80000011", 0x80000011},
               {"0x", 0},
               {"0xG", 0},
               {" 0xFF", 0}});  // the two characters must be the first
}

TEST(ParseColorText, AnyOtherTextIsNoColour) {
    ExpectAll({{"", 0}, {"red", 0}, {"12px", 0}, {"#FF0000", 0}, {"&h", 0}, {"1 2 3", 0}});
}

TEST(ParseColorText, ARemarkIsCutOffTheTextItself) {
    const struct {
        const char *text, *rest;
        int32_t color;
    } cases[] = {{"255;red", "255", 255},
                 {" 255 ; red ; not blue", "255", 255},
                 {"1,2,3 ;,4", "1,2,3", 0x030201},
                 {"0xFF;", "0xFF", 255},
                 {"; 255", "", 0}};
    for (const auto& c : cases) {
        String text = c.text;
        EXPECT_EQ(ParseColorText(text), c.color) << c.text;
        EXPECT_EQ(text, c.rest);
    }
}

TEST(ParseColorText, ATextWithoutARemarkStaysAsItIs) {
    for (const char* whole : {" 255 ", "0xFF", "1,2,3"}) {
        String text = whole;
        ParseColorText(text);
        EXPECT_EQ(text, whole);
    }
}

}  // namespace
}  // namespace vxgui
