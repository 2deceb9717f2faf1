#include "vxgui/theme/ThemeEnums.h"

#include <gtest/gtest.h>

namespace vxgui {
namespace {

template <class Value>
struct Case {
    Value value;
    Value expected;
};

template <class Value, size_t Count>
void ExpectAll(const Case<Value> (&cases)[Count]) {
    for (const auto& c : cases) EXPECT_EQ(c.value, c.expected) << &c - cases;
}

TEST(ThemeEnumerations, HaveThePublishedValues) {
    ExpectAll<int32_t>({
        {E_ItemStateNormal, 0},
        {E_ItemStateMouseOver, 1},
        {E_ItemStatePressed, 2},
        {E_ItemStateDisabled, 3},
        {E_ItemStateDefault, 4},
        {E_ItemStateFocus, 5},
        {E_ItemStateFocusPressed, 6},
        {E_ItemStateGroup, 7},
        {E_ItemStateFocusMouseOver, 8},
        {E_ItemStateMax, 9},
        {Normal, 0},
        {Trans, 1},
        {PerPixel, 2},
        {StretchXStretchY, 0},
        {TileXTileY, 1},
        {TileXStretchY, 2},
        {StretchXTileY, 3},
        {CopyXYFillRest, 4},
        {Normal_Pressed_Disabled_MouseOver_DefaultFocus, 0},
        {Normal_MouseOver_Pressed_Disabled_DefaultFocus, 1},
    });
}

TEST(AlignmentEnumeration, IsColumnTimesThreePlusRow) {
    const int32_t names[3][3] = {{Lefttop, LeftCenter, LeftBottom},
                                 {CenterTop, CenterCenter, CenterBottom},
                                 {RightTop, RightCenter, RightBottom}};
    for (int32_t column = 0; column < 3; ++column) {
        for (int32_t row = 0; row < 3; ++row) EXPECT_EQ(names[column][row], column * 3 + row);
    }
}

TEST(CopyToFlags, HaveThePublishedValues) {
    ExpectAll<uint32_t>({
        {COPYTO_Image, 0x80000000},
        {COPYTO_ImageProp, 0x40000000},
        {COPYTO_ImageMargin, 0x20000000},
        {COPYTO_ContentMargin, 0x10000000},
        {COPYTO_Glyph, 0x08000000},
        {COPYTO_GlyphProp, 0x04000000},
        {COPYTO_FontsMask, 0x03000000},
        {COPYTO_FontsSet, 0x02000000},
        {COPYTO_FontsLet, 0x01000000},
        {COPYTO_TextStylesMask, 0x00C00000},
        {COPYTO_TextStylesSet, 0x00800000},
        {COPYTO_TextStylesLet, 0x00400000},
        {COPYTO_NoImage, 0x7E800000},
        {COPYTO_NoGlyph, 0xF6800000},
    });
}

}  // namespace
}  // namespace vxgui
