#include "vxgui/text/TextStyle.h"

#include <gtest/gtest.h>

#include "vxgui/text/TextStyles.h"

namespace vxgui {
namespace {

/// A style with no field at its default.
Ref<TextStyle> Unusual() {
    const Ref<TextStyle> style = New<TextStyle>();
    style->Create(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12);
    return style;
}

TEST(TextStyle, ANewOneHasItsDefaults) {
    const Ref<TextStyle> style = New<TextStyle>();
    EXPECT_EQ(style->TextColor, 0);
    EXPECT_EQ(style->TextContrast, 4);
    EXPECT_EQ(style->TextStyle, TextStyleNormal);
    EXPECT_EQ(style->TextAlignHorz, TextAlignHorzLeft);
    EXPECT_EQ(style->TextAlignVert, TextAlignVertTop);
    EXPECT_EQ(style->FormatFlags, 0);
    EXPECT_EQ(style->DTFlags, 0u);
    EXPECT_EQ(style->ShadowColor, 0);
    EXPECT_EQ(style->ShadowThickness, 4);
    EXPECT_EQ(style->ShadowX, 0);
    EXPECT_EQ(style->ShadowY, 0);
    EXPECT_EQ(style->ShadowOffsetX, 0);
    EXPECT_EQ(style->ShadowOffsetY, 0);
}

TEST(TextStyle, CreateSetsEachField) {
    const Ref<TextStyle> style = Unusual();
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
    const Ref<TextStyle> style = Unusual();
    style->DTFlags = 77;
    style->Create();
    EXPECT_EQ(style->TextContrast, 0) << "a new object has 4";
    EXPECT_EQ(style->ShadowThickness, 0) << "a new object has 4";
    EXPECT_EQ(style->TextColor, 0);
    EXPECT_EQ(style->FormatFlags, 0);
    EXPECT_EQ(style->DTFlags, 77u);
}

TEST(TextStyle, EqualComparesEveryFieldButTheFlagsOfTheLastDrawing) {
    const Ref<TextStyle> style = Unusual();
    EXPECT_TRUE(style->Equal(style));
    EXPECT_FALSE(style->Equal(nullptr));
    int32_t TextStyle::*const fields[] = {
        &TextStyle::TextColor,       &TextStyle::TextContrast,  &TextStyle::TextStyle,
        &TextStyle::TextAlignHorz,   &TextStyle::TextAlignVert, &TextStyle::ShadowColor,
        &TextStyle::ShadowThickness, &TextStyle::ShadowX,       &TextStyle::ShadowY,
        &TextStyle::ShadowOffsetX,   &TextStyle::ShadowOffsetY, &TextStyle::FormatFlags};
    for (int32_t TextStyle::*const field : fields) {
        const Ref<TextStyle> other = Unusual();
        ++((*other).*field);
        EXPECT_FALSE(style->Equal(other));
    }
    const Ref<TextStyle> other = Unusual();
    other->DTFlags = 5;
    EXPECT_TRUE(style->Equal(other));
}

TEST(TextStyle, ACloneHasWhatEqualCompares) {
    const Ref<TextStyle> style = Unusual();
    style->DTFlags = 5;
    const Ref<TextStyle> clone = style->Clone();
    EXPECT_TRUE(clone->Equal(style));
    EXPECT_EQ(clone->DTFlags, 0u);
}

TEST(TextStyle, EnumerationsHaveThePublishedValues) {
    EXPECT_EQ(TextStyleNormal, 0);
    EXPECT_EQ(TextStyleShadowRight, 1);
    EXPECT_EQ(TextStyleOutLine, 2);
    EXPECT_EQ(TextAlignHorzLeft, 0);
    EXPECT_EQ(TextAlignHorzCenter, 1);
    EXPECT_EQ(TextAlignHorzRight, 2);
    EXPECT_EQ(TextAlignHorzJustify, 3);
    EXPECT_EQ(TextAlignHorzJustifyChar, 4);
    EXPECT_EQ(TextAlignVertTop, 0);
    EXPECT_EQ(TextAlignVertCenter, 1);
    EXPECT_EQ(TextAlignVertBottom, 2);
    EXPECT_EQ(TextAlignVertJustify, 3);
}

TEST(TextStyle, FormatFlagsHaveThePublishedValues) {
    EXPECT_EQ(DT_LEFT, 0u);
    EXPECT_EQ(DT_TOP, 0u);
    const uint32_t flags[] = {
        DT_CENTER,       DT_RIGHT,        DT_VCENTER,    DT_BOTTOM,        DT_WORDBREAK,
        DT_SINGLELINE,   DT_EXPANDTABS,   DT_TABSTOP,    DT_NOCLIP,        DT_EXTERNALLEADING,
        DT_CALCRECT,     DT_NOPREFIX,     DT_INTERNAL,   DT_EDITCONTROL,   DT_PATH_ELLIPSIS,
        DT_END_ELLIPSIS, DT_MODIFYSTRING, DT_RTLREADING, DT_WORD_ELLIPSIS, DT_NOFULLWIDTHCHARBREAK,
        DT_HIDEPREFIX,   DT_PREFIXONLY};
    uint32_t expected = 1;
    for (const uint32_t flag : flags) {
        EXPECT_EQ(flag, expected);
        expected *= 2;
    }
    EXPECT_EQ(DT_PREFIXONLY, 2097152u);
}

TEST(TextStyles, AddMakesAStyleOfItsArguments) {
    const Ref<TextStyles> styles = New<TextStyles>();
    const Ref<TextStyle> style = styles->Add("key", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11);
    const Ref<TextStyle> expected = Unusual();
    expected->FormatFlags = 0;
    EXPECT_TRUE(style->Equal(expected));
    EXPECT_EQ(styles->Item("key"), style);
    EXPECT_EQ(styles->Add()->TextContrast, 0);
    EXPECT_EQ(styles->Count(), 2);
}

TEST(TextStyles, AddItemReplacesUnderAKeyThatExists) {
    const Ref<TextStyles> styles = New<TextStyles>();
    styles->Add("a", 1);
    styles->Add("b", 2);
    const Ref<TextStyle> third = New<TextStyle>();
    styles->AddItem(third, "a");
    EXPECT_EQ(styles->Count(), 2);
    EXPECT_EQ(styles->Item("a"), third);
    EXPECT_EQ(styles->Item(2), third) << "the new one is last";
}

TEST(TextStyles, ForgiveWhatIsNotThere) {
    const Ref<TextStyles> styles = New<TextStyles>();
    styles->Add("a", 1);
    EXPECT_EQ(styles->Item("b"), nullptr);
    EXPECT_EQ(styles->Item(2), nullptr);
    styles->Remove("b");
    styles->Remove(2);
    EXPECT_EQ(styles->Count(), 1);
    styles->Remove(1);
    EXPECT_EQ(styles->Count(), 0);
}

TEST(TextStyles, AreWalkedInTheirOrderAndCleared) {
    const Ref<TextStyles> styles = New<TextStyles>();
    styles->Add("", 1);
    styles->Add("b", 2);
    int32_t expected = 1;
    for (const Ref<TextStyle>& style : *styles) EXPECT_EQ(style->TextColor, expected++);
    EXPECT_EQ(expected, 3);
    styles->Remove("b");
    EXPECT_EQ(styles->Count(), 1);
    styles->Clear();
    EXPECT_EQ(styles->Count(), 0);
}

}  // namespace
}  // namespace vxgui
