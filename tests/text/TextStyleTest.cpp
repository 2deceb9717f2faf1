#include "vxgui/text/TextStyle.h"

#include <gtest/gtest.h>

namespace vxgui {
namespace {

Ref<TextStyle> FilledStyle() {
    Ref<TextStyle> style = New<TextStyle>();
    style->Create(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12);
    return style;
}

TEST(TextStyle, ANewOneHasTheDocumentedValues) {
    const Ref<TextStyle> style = New<TextStyle>();
    EXPECT_EQ(style->TextColor, 0);
    EXPECT_EQ(style->TextContrast, 4);
    EXPECT_EQ(style->TextStyle, 0);
    EXPECT_EQ(style->TextAlignHorz, 0);
    EXPECT_EQ(style->TextAlignVert, 0);
    EXPECT_EQ(style->FormatFlags, 0);
    EXPECT_EQ(style->DTFlags, 0u);
    EXPECT_EQ(style->ShadowColor, 0);
    EXPECT_EQ(style->ShadowThickness, 4);
    EXPECT_EQ(style->ShadowX, 0);
    EXPECT_EQ(style->ShadowY, 0);
    EXPECT_EQ(style->ShadowOffsetX, 0);
    EXPECT_EQ(style->ShadowOffsetY, 0);
}

TEST(TextStyle, CreateSetsEachFieldInItsOrder) {
    const Ref<TextStyle> style = FilledStyle();
    EXPECT_EQ(style->TextColor, 1);
    EXPECT_EQ(style->TextAlignHorz, 2);
    EXPECT_EQ(style->TextAlignVert, 3);
    EXPECT_EQ(style->TextStyle, 4);
    EXPECT_EQ(style->TextContrast, 5);
    EXPECT_EQ(style->ShadowColor, 6);
    EXPECT_EQ(style->ShadowThickness, 7);
    EXPECT_EQ(style->ShadowX, 8);
    EXPECT_EQ(style->ShadowY, 9);
    EXPECT_EQ(style->ShadowOffsetX, 10);
    EXPECT_EQ(style->ShadowOffsetY, 11);
    EXPECT_EQ(style->FormatFlags, 12);
}

TEST(TextStyle, CreateWithoutArgumentsKeepsNoDefault) {
    const Ref<TextStyle> style = FilledStyle(), expected = New<TextStyle>();
    style->Create();
    expected->TextContrast = 0;
    expected->ShadowThickness = 0;
    EXPECT_TRUE(style->Equal(expected));
}

TEST(TextStyleEqual, IsTrueForItselfAndFalseForNone) {
    const Ref<TextStyle> style = FilledStyle();
    EXPECT_TRUE(style->Equal(style));
    EXPECT_FALSE(style->Equal(nullptr));
}

TEST(TextStyleEqual, DoesNotCompareTheFlagsOfTheLastDrawing) {
    const Ref<TextStyle> a = FilledStyle(), b = FilledStyle();
    a->DTFlags = DT_CENTER;
    EXPECT_TRUE(a->Equal(b));
}

TEST(TextStyleEqual, ADifferenceInAnyOtherFieldCounts) {
    using Style = class TextStyle;
    int32_t Style::*const fields[] = {
        &Style::TextColor,       &Style::TextContrast,  &Style::TextStyle,
        &Style::TextAlignHorz,   &Style::TextAlignVert, &Style::ShadowColor,
        &Style::ShadowThickness, &Style::ShadowX,       &Style::ShadowY,
        &Style::ShadowOffsetX,   &Style::ShadowOffsetY, &Style::FormatFlags};
    const Ref<TextStyle> style = FilledStyle();
    for (size_t i = 0; i < std::size(fields); ++i) {
        const Ref<TextStyle> other = FilledStyle();
        ++((*other).*fields[i]);
        EXPECT_FALSE(style->Equal(other)) << i;
    }
}

TEST(TextStyleClone, CopiesAllButTheFlagsOfTheLastDrawing) {
    const Ref<TextStyle> style = FilledStyle();
    style->DTFlags = DT_CENTER;
    const Ref<TextStyle> copy = style->Clone();
    EXPECT_FALSE(copy == style);
    EXPECT_TRUE(copy->Equal(style));
    EXPECT_EQ(copy->DTFlags, 0u);
}

TEST(TextStyleEnumerations, HaveThePublishedValues) {
    const struct {
        int32_t value, expected;
    } cases[] = {
        {TextStyleNormal, 0},      {TextStyleShadowRight, 1},     {TextStyleOutLine, 2},
        {TextAlignHorzLeft, 0},    {TextAlignHorzCenter, 1},      {TextAlignHorzRight, 2},
        {TextAlignHorzJustify, 3}, {TextAlignHorzJustifyChar, 4}, {TextAlignVertTop, 0},
        {TextAlignVertCenter, 1},  {TextAlignVertBottom, 2},      {TextAlignVertJustify, 3},
    };
    for (const auto& c : cases) EXPECT_EQ(c.value, c.expected) << &c - cases;
}

TEST(DrawTextFlagsEnumeration, HasThePublishedValues) {
    const struct {
        uint32_t value, expected;
    } cases[] = {
        {DT_LEFT, 0},
        {DT_TOP, 0},
        {DT_CENTER, 1},
        {DT_RIGHT, 2},
        {DT_VCENTER, 4},
        {DT_BOTTOM, 8},
        {DT_WORDBREAK, 16},
        {DT_SINGLELINE, 32},
        {DT_EXPANDTABS, 64},
        {DT_TABSTOP, 128},
        {DT_NOCLIP, 256},
        {DT_EXTERNALLEADING, 512},
        {DT_CALCRECT, 1024},
        {DT_NOPREFIX, 2048},
        {DT_INTERNAL, 4096},
        {DT_EDITCONTROL, 8192},
        {DT_PATH_ELLIPSIS, 16384},
        {DT_END_ELLIPSIS, 32768},
        {DT_MODIFYSTRING, 65536},
        {DT_RTLREADING, 131072},
        {DT_WORD_ELLIPSIS, 262144},
        {DT_NOFULLWIDTHCHARBREAK, 524288},
        {DT_HIDEPREFIX, 1048576},
        {DT_PREFIXONLY, 2097152},
    };
    for (const auto& c : cases) EXPECT_EQ(c.value, c.expected) << &c - cases;
}

}  // namespace
}  // namespace vxgui
