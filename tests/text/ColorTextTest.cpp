#include "vxgui/text/ColorText.h"

#include <gtest/gtest.h>

#include "TextTestSupport.h"

namespace vxgui {
namespace {

struct ColorRow {
    const char* text;
    uint32_t color;
    const char* left;  ///< what the text becomes; null when it stays
};

class ColorText : public testing::TestWithParam<ColorRow> {};
INSTANTIATE_TEST_SUITE_P(
    , ColorText,
    testing::Values(
        ColorRow{"255,0,0", 0xFF, nullptr}, ColorRow{"0,0,255,200", 0xC8FF0000, nullptr},
        ColorRow{"0xFF", 0xFF, nullptr}, ColorRow{"255", 0xFF, nullptr},
        ColorRow{"255; a remark", 0xFF, "255"}, ColorRow{" 255 ;a;b", 0xFF, "255"},
        ColorRow{"1,2,3,200", 0xC8030201, nullptr}, ColorRow{"0xFFFF", 0xFFFFFFFF, nullptr},
        ColorRow{"1,2", 0, nullptr}, ColorRow{"", 0, nullptr}, ColorRow{";255", 0, ""},
        ColorRow{"1,2,3 ; 4", 0x030201, "1,2,3"}, ColorRow{"1,2;,3", 0, "1,2"},
        // Each part is its leading number, rounded and cut to a byte.
        ColorRow{"256,257,258", 0x020100, nullptr}, ColorRow{"-1,0,0", 0xFF, nullptr},
        ColorRow{"0.5,1.5,2.5", 0x020200, nullptr}, ColorRow{"1x, 2 y,z", 0x000201, nullptr},
        ColorRow{",,", 0, nullptr}, ColorRow{",,7", 0x070000, nullptr},
        ColorRow{"&hFF,&h10,0", 0x0010FF, nullptr},
        // The fourth part is the alpha; more parts are ignored.
        ColorRow{"0,0,0,0", 0, nullptr}, ColorRow{"0,0,0,1", 0x01000000, nullptr},
        ColorRow{"0,0,0,127", 0x7F000000, nullptr}, ColorRow{"0,0,0,129", 0x81000000, nullptr},
        ColorRow{"0,0,0,255", 0xFF000000, nullptr}, ColorRow{"0,0,0,256", 0, nullptr},
        ColorRow{"1,2,3,4,5", 0x04030201, nullptr},
        // A number without a comma.
        ColorRow{"16711935", 0xFF00FF, nullptr}, ColorRow{"-1", 0xFFFFFFFF, nullptr},
        ColorRow{"&hFF00FF", 0xFF00FF, nullptr}, ColorRow{"&HFFFF", 0xFFFFFFFF, nullptr},
        ColorRow{"0XFF00FF", 0xFF00FF, nullptr}, ColorRow{"0x80000005", 0x80000005, nullptr},
        ColorRow{"2.5", 2, nullptr}, ColorRow{"3.5", 4, nullptr}, ColorRow{"1e2", 100, nullptr},
        ColorRow{"-2147483648", 0x80000000, nullptr}, ColorRow{"-2147483649", 0, nullptr},
        ColorRow{"2147483646", 0x7FFFFFFE, nullptr}, ColorRow{"2147483647", 0, nullptr},
        ColorRow{"4294967295", 0, nullptr},
        // Anything else.
        ColorRow{"red", 0, nullptr}, ColorRow{"#FF0000", 0, nullptr}, ColorRow{"0x", 0, nullptr},
        ColorRow{"0xG", 0, nullptr}, ColorRow{"12px", 0, nullptr}, ColorRow{" 0xFF", 0, nullptr},
        ColorRow{"x0FF", 0, nullptr}, ColorRow{"0", 0, nullptr}));

TEST_P(ColorText, IsReadAsAColour) {
    String text = GetParam().text;
    EXPECT_EQ(static_cast<uint32_t>(ParseColorText(text)), GetParam().color);
    EXPECT_EQ(text, String(GetParam().left ? GetParam().left : GetParam().text));
}

TEST(ColorTextAlpha, Of128AloneRaisesOverflow) {
    for (int alpha = 0; alpha < 256; ++alpha) {
        String text = "1,2,3," + String::FromInt(alpha);
        if (alpha == 128) {
            EXPECT_EQ(test::ErrorOf([&] { ParseColorText(text); }), 6);
        } else {
            EXPECT_EQ(static_cast<uint32_t>(ParseColorText(text)),
                      static_cast<uint32_t>(alpha) << 24 | 0x030201);
        }
    }
    String wrapped = "1,2,3,384";
    EXPECT_EQ(test::ErrorOf([&] { ParseColorText(wrapped); }), 6) << "384 and 255 is 128";
}

}  // namespace
}  // namespace vxgui
