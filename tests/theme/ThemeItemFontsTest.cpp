#include <gtest/gtest.h>

#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

constexpr int32_t kGray = static_cast<int32_t>(0x80000011);
constexpr int32_t kButton = static_cast<int32_t>(0x80000012);

/// An owner whose colours and fonts tell which number was asked for.
class ActedOwner : public ThemeOwner {
public:
    int32_t Colour(int32_t index) override { return 1000 + index; }
    Ref<LFont> Font(int32_t index) override {
        if (index == missing) return nullptr;
        const Ref<LFont> font = New<LFont>();
        font->Height = index;
        return font;
    }
    int32_t missing = -99;
};

Ref<TextStyle> StyleOf(int32_t color) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->TextColor = color;
    return style;
}

Ref<LFont> FontOf(int32_t height) {
    const Ref<LFont> font = New<LFont>();
    font->Height = height;
    font->Name = "DejaVu Sans";
    return font;
}

TEST(StateColour, IsNoughtWithoutAnOwner) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    for (int32_t state = -1; state <= 9; ++state) EXPECT_EQ(item->StateColour(state), 0);
    EXPECT_EQ(item->CurrentColour(), 0);
}

struct ColourCase {
    int32_t state;
    ThemeItem::OwnerNumbers numbers;
    int32_t expected;
};

TEST(StateColour, PicksTheNumberByTheTable) {
    using N = ThemeItem::OwnerNumbers;
    const N all{1, 2, 3, 4, 5, 6, 7, 8};
    const ColourCase cases[] = {
        {E_ItemStateNormal, all, 3},
        {E_ItemStateNormal, N{1, 2, -1}, 1},
        {E_ItemStateNormal, N{1, 2, 0}, 0},  // 0 is a number like any other
        {E_ItemStateMouseOver, N{1, 0, 3, 4, 5}, 0},
        {E_ItemStateFocus, N{1, 2, 3, 4, 0}, 0},
        {E_ItemStateNormal, N{-1, 2, -1}, -1},
        {E_ItemStatePressed, N{1, 2, 3, -1}, -1},
        {E_ItemStateMouseOver, all, 2},
        {E_ItemStateMouseOver, N{1, -1, 3, 4, 5}, 5},
        {E_ItemStateMouseOver, N{1, -1, 3, 4, -1}, 1},
        {E_ItemStateFocus, all, 5},
        {E_ItemStateFocus, N{1, 2, 3, 4, -1}, 2},
        {E_ItemStateFocus, N{1, -1, 3, 4, -1}, 1},
        {E_ItemStatePressed, all, 4},
        {E_ItemStateFocusPressed, all, 6},
        {E_ItemStateGroup, all, 7},
        {E_ItemStateDisabled, all, 8},
        {E_ItemStateDefault, all, 1},
        {E_ItemStateDefault, N{0, 2, 3}, 3},
        {E_ItemStateDefault, N{-1, 2, 3}, -1},  // only 0 gives way here
        {E_ItemStateFocusMouseOver, all, 1},
        {42, all, 1},
    };
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Owner(New<ActedOwner>());
    for (const ColourCase& c : cases) {
        item->Numbers() = c.numbers;
        EXPECT_EQ(item->StateColour(c.state), 1000 + c.expected) << c.state;
    }
}

TEST(StateFont, WithAnOwnerGoesByFontNumbers) {
    const Ref<ActedOwner> owner = New<ActedOwner>();
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Owner(owner);
    auto& numbers = item->Numbers();
    numbers.NormalFont = 1;
    numbers.PressedFont = 2;
    numbers.FocusFont = 3;
    numbers.FocusPressedFont = 4;
    numbers.GroupFont = 5;
    const int32_t expected[] = {1, 3, 2, 1, 1, 3, 4, 5, 1, 1};
    for (int32_t state = 0; state <= 9; ++state) {
        EXPECT_EQ(item->StateFont(state)->Height, expected[state]) << state;
    }
    owner->missing = 3;
    EXPECT_EQ(item->StateFont(E_ItemStateFocus), nullptr);
    EXPECT_EQ(item->GetStateFont(E_ItemStateFocus)->Height, 1);
}

TEST(StateFont, WithoutAnOwnerIsTheItemsOwnEntry) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_EQ(item->StateFont(E_ItemStateNormal), nullptr);
    const Ref<LFont> normal = FontOf(10);
    item->StateFont(E_ItemStateNormal, normal);
    EXPECT_EQ(item->StateFont(E_ItemStateNormal), normal);
    EXPECT_EQ(item->Fonts()->Item("Normal"), normal);
    EXPECT_EQ(item->StateFont(E_ItemStatePressed), nullptr);
    EXPECT_EQ(item->GetStateFont(E_ItemStatePressed), normal);
    item->StateFont(E_ItemStateNormal, nullptr);
    EXPECT_EQ(item->Fonts()->Count(), 0);
}

TEST(GetStateFont, NeverAnswersNone) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> font = item->GetStateFont(E_ItemStateNormal);
    ASSERT_NE(font, nullptr);
    EXPECT_FALSE(font->Name.empty());  // taken from the platform's user interface font
    EXPECT_FALSE(item->GetStateFont(E_ItemStateNormal) == font);  // made afresh, not stored
}

TEST(GetStateFont, WithAnOwnerThatHasNoneIsMadeAfresh) {
    class EmptyOwner : public ThemeOwner {
        int32_t Colour(int32_t) override { return -1; }
        Ref<LFont> Font(int32_t) override { return nullptr; }
    };
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateNormal, FontOf(10));  // which the owner keeps from being asked
    item->Owner(New<EmptyOwner>());
    const Ref<LFont> expected = New<LFont>();
    expected->DefaultGuiFont(DEFAULT_QUALITY);
    EXPECT_TRUE(item->GetStateFont(E_ItemStateNormal)->Equal(expected));
}

TEST(CurrentFontAndStyle, AreThoseOfTheState) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> font = FontOf(10);
    const Ref<TextStyle> style = StyleOf(7);
    item->StateFont(E_ItemStatePressed, font);
    item->StateTextStyle(E_ItemStatePressed, style);
    item->State(E_ItemStatePressed);
    EXPECT_EQ(item->CurrentFont(), font);
    EXPECT_EQ(item->CurrentTextStyle(), style);
}

TEST(StateFontSetter, ReplacesTheStatesEntry) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateFocus, FontOf(1));
    const Ref<LFont> second = FontOf(2);
    item->StateFont(E_ItemStateFocus, second);
    EXPECT_EQ(item->StateFont(E_ItemStateFocus), second);
    EXPECT_EQ(item->Fonts()->Count(), 1);
}

TEST(StateFontSetter, OfWhatIsNoStateGoesByItsNumber) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> font = FontOf(3);
    const Ref<TextStyle> style = StyleOf(4);
    item->StateFont(12, font);
    item->StateTextStyle(-1, style);
    EXPECT_EQ(item->Fonts()->Item("State_#12"), font);
    EXPECT_EQ(item->TextStyles()->Item("State_#-1"), style);
    EXPECT_EQ(item->GetStateFont(12), font);
    EXPECT_EQ(item->GetStateTextStyle(-1), style);
}

TEST(StateFontSetter, OfNoneMakesTheCollectionAllTheSame) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateFocus, nullptr);
    item->StateTextStyle(E_ItemStateFocus, nullptr);
    EXPECT_EQ(item->StateFont(E_ItemStateFocus), nullptr);
    EXPECT_EQ(item->Fonts()->Count() + item->TextStyles()->Count(), 0);
}

TEST(StateFontSetter, WorksOnTheCollectionEvenWithAnOwner) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Owner(New<ActedOwner>());
    item->StateFont(E_ItemStateFocus, FontOf(33));
    EXPECT_EQ(item->Fonts()->Item("Focus")->Height, 33);
}

TEST(GetStateTextStyle, WithoutAnyStyleUsesTheSystemColours) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_EQ(item->GetStateTextStyle(E_ItemStateNormal)->TextColor, kButton);
    EXPECT_EQ(item->GetStateTextStyle(E_ItemStateDisabled)->TextColor, kGray);
    EXPECT_EQ(item->CurrentTextStyle()->TextColor, kButton);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateNormal), nullptr);
}

TEST(GetStateTextStyle, DisabledBorrowsNormalInGrey) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<TextStyle> normal = StyleOf(0x123456);
    item->StateTextStyle(E_ItemStateNormal, normal);
    const Ref<TextStyle> disabled = item->GetStateTextStyle(E_ItemStateDisabled);
    EXPECT_FALSE(disabled == normal);
    EXPECT_EQ(disabled->TextColor, kGray);
    EXPECT_EQ(normal->TextColor, 0x123456);
    EXPECT_EQ(item->GetStateTextStyle(E_ItemStatePressed), normal);
}

TEST(GetStateTextStyle, AStateWithAStyleOfItsOwnHasIt) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<TextStyle> disabled = StyleOf(1), normal = StyleOf(2);
    item->StateTextStyle(E_ItemStateDisabled, disabled);
    EXPECT_EQ(item->GetStateTextStyle(E_ItemStateDisabled), disabled);
    EXPECT_EQ(item->GetStateTextStyle(E_ItemStateNormal)->TextColor, kButton);
    item->StateTextStyle(E_ItemStateNormal, normal);
    EXPECT_EQ(item->GetStateTextStyle(E_ItemStateDisabled), disabled);
    EXPECT_EQ(disabled->TextColor, 1);
}

TEST(GetStateTextStyle, WhatIsMadeIsNotStored) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_FALSE(item->GetStateTextStyle(0) == item->GetStateTextStyle(0));
    item->StateTextStyle(E_ItemStateNormal, StyleOf(5));
    EXPECT_FALSE(item->GetStateTextStyle(3) == item->GetStateTextStyle(3));
    EXPECT_EQ(item->TextStyles()->Count(), 1);
}

TEST(CollectionProperties, AreMadeOnDemandAndShared) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFonts> fonts = item->Fonts();
    ASSERT_NE(fonts, nullptr);
    EXPECT_EQ(item->Fonts(), fonts);
    const Ref<LFonts> shared = New<LFonts>();
    item->Fonts(shared);
    EXPECT_EQ(item->Fonts(), shared);
    item->Fonts(nullptr);
    EXPECT_EQ(item->StateFont(0), nullptr);
    const Ref<TextStyles> styles = New<TextStyles>();
    item->TextStyles(styles);
    EXPECT_EQ(item->TextStyles(), styles);
}

TEST(CollectionProperties, LetLeavesThemExistingAndEmpty) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(0, FontOf(9));
    const Ref<LFonts> before = item->Fonts();
    const Ref<LFonts> other = New<LFonts>();
    other->AddItem(FontOf(8), "Normal");
    item->LetFonts(other);
    EXPECT_EQ(item->Fonts(), before);
    EXPECT_EQ(item->Fonts()->Count(), 0);
    item->StateTextStyle(0, StyleOf(1));
    item->LetTextStyles(nullptr);
    EXPECT_EQ(item->TextStyles()->Count(), 0);
}

TEST(MinimizeFonts, DropsWhatSaysNoMoreThanNormal) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->MinimizeFonts();  // nothing to do without a collection
    for (int32_t state : {0, 1, 8}) item->StateFont(state, FontOf(10));
    item->StateFont(E_ItemStatePressed, FontOf(11));
    item->MinimizeFonts();
    EXPECT_EQ(item->StateFont(1), nullptr);
    EXPECT_NE(item->StateFont(E_ItemStatePressed), nullptr);
    EXPECT_NE(item->StateFont(8), nullptr);  // never touched
    EXPECT_NE(item->StateFont(0), nullptr);
}

TEST(MinimizeFonts, LeavesAnEntryThatNothingIsComparedWith) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStatePressed, FontOf(10));
    item->MinimizeFonts();
    EXPECT_NE(item->StateFont(E_ItemStatePressed), nullptr);
    const Ref<LFont> gui = New<LFont>();
    gui->DefaultGuiFont();
    item->StateFont(E_ItemStateFocus, gui);  // what an item without a Normal font draws with
    item->MinimizeFonts();
    EXPECT_EQ(item->StateFont(E_ItemStateFocus), nullptr);
}

TEST(MinimizeFonts, ComparesWithTheOwnersFontWhereThereIsAnOwner) {
    class OneFontOwner : public ThemeOwner {
        int32_t Colour(int32_t) override { return -1; }
        Ref<LFont> Font(int32_t) override { return FontOf(20); }
    };
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateNormal, FontOf(10));
    item->StateFont(E_ItemStatePressed, FontOf(10));
    item->StateFont(E_ItemStateFocus, FontOf(20));
    item->Owner(New<OneFontOwner>());
    item->MinimizeFonts();
    EXPECT_NE(item->Fonts()->Item("Normal"), nullptr);
    EXPECT_NE(item->Fonts()->Item("Pressed"), nullptr);
    EXPECT_EQ(item->Fonts()->Item("Focus"), nullptr);
}

TEST(MinimizeTextStyles, GoesOverTheStatesUpToGroup) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    for (int32_t state = 0; state <= 8; ++state) {
        item->StateTextStyle(state, StyleOf(state == E_ItemStateDisabled ? kGray : 5));
    }
    item->MinimizeTextStyles();
    for (int32_t state = 0; state <= 8; ++state) {
        const bool kept = state == E_ItemStateNormal || state == E_ItemStateFocusMouseOver;
        EXPECT_EQ(item->StateTextStyle(state) != nullptr, kept) << state;
    }
}

TEST(MinimizeTextStyles, WithoutANormalEntryComparesWithTheSystemColours) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateTextStyle(E_ItemStatePressed, StyleOf(kButton));
    item->StateTextStyle(E_ItemStateDisabled, StyleOf(kGray));
    item->StateTextStyle(E_ItemStateFocus, StyleOf(kGray));
    item->MinimizeTextStyles();
    EXPECT_EQ(item->StateTextStyle(E_ItemStatePressed), nullptr);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateDisabled), nullptr);
    EXPECT_NE(item->StateTextStyle(E_ItemStateFocus), nullptr);
}

TEST(MinimizeTextStyles, DropsADisabledEntryThatIsTheNormalObjectItself) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<TextStyle> style = StyleOf(5);
    item->StateTextStyle(E_ItemStateNormal, style);
    item->StateTextStyle(E_ItemStateDisabled, style);
    item->MinimizeTextStyles();  // its colour changes on both sides of the comparison
    EXPECT_EQ(item->StateTextStyle(E_ItemStateDisabled), nullptr);
    EXPECT_EQ(style->TextColor, 5);
}

TEST(MinimizeTextStyles, ComparesDisabledWithTheGreyOfNormal) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->MinimizeTextStyles();
    for (int32_t state : {0, 1, 3}) item->StateTextStyle(state, StyleOf(5));
    item->MinimizeTextStyles();
    EXPECT_EQ(item->StateTextStyle(1), nullptr);
    EXPECT_NE(item->StateTextStyle(3), nullptr);  // of the Normal colour, so it says something
    item->StateTextStyle(3, StyleOf(kGray));
    item->MinimizeTextStyles();
    EXPECT_EQ(item->StateTextStyle(3), nullptr);
    EXPECT_EQ(item->StateTextStyle(0)->TextColor, 5);
}

}  // namespace
}  // namespace vxgui
