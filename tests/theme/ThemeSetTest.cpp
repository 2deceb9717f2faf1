#include "vxgui/theme/ThemeSet.h"

#include <gtest/gtest.h>

namespace vxgui {
namespace {

int32_t NumberOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

TEST(ThemeItemsCollection, ADuplicateKeyRaisesAndReplacesNothing) {
    const Ref<ThemeItems> items = New<ThemeItems>();
    const Ref<ThemeItem> first = New<ThemeItem>();
    items->AddItem(first, "Button");
    EXPECT_EQ(NumberOf([&] { items->AddItem(New<ThemeItem>(), "BUTTON"); }), 457);
    EXPECT_EQ(items->Item("button"), first);
    EXPECT_EQ(items->Count(), 1);
}

TEST(ThemeItemsCollection, UnknownItemsReadAsNoneAndAreRemovedInSilence) {
    const Ref<ThemeItems> items = New<ThemeItems>();
    items->AddItem(New<ThemeItem>());
    EXPECT_EQ(items->Item("none"), nullptr);
    EXPECT_EQ(items->Item(2), nullptr);
    items->Remove("none");
    items->Remove(2);
    EXPECT_EQ(items->Count(), 1);
    items->Remove(1);
    EXPECT_EQ(items->Count(), 0);
}

TEST(ThemeItemsCollection, IsWalkedInOrder) {
    const Ref<ThemeItems> items = New<ThemeItems>();
    for (int32_t i = 1; i <= 3; ++i) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->BackgroundEffect(i);
        items->AddItem(item);
    }
    int32_t seen = 0;
    for (const Ref<ThemeItem>& item : *items) EXPECT_EQ(item->BackgroundEffect(), ++seen);
    EXPECT_EQ(seen, 3);
}

TEST(ThemeSetPalette, NeverHoldsAColourTwice) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    EXPECT_EQ(set->AddColour(0xFF), 0);
    EXPECT_EQ(set->AddColour(0xFF00), 1);
    EXPECT_EQ(set->AddColour(0xFF), 0);
    EXPECT_EQ(set->AddColour(5), 2);
    EXPECT_EQ(set->Colour(1), 0xFF00);
}

TEST(ThemeSetPalette, OutsideItsBoundsIsMinusOne) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->AddColour(1);
    EXPECT_EQ(set->Colour(-1), -1);
    EXPECT_EQ(set->Colour(1), -1);
}

TEST(ThemeSetPalette, WithoutAnyColourReadingRaisesTheSubscriptError) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    EXPECT_EQ(NumberOf([&] { set->Colour(0); }), 9);
}

TEST(ThemeSetFonts, AddedOnesAreNumberedFromOne) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<LFont> font = New<LFont>();
    EXPECT_EQ(set->AddFont(font), 1);
    EXPECT_EQ(set->Font(1), font);
    EXPECT_EQ(set->Font(2), nullptr);
    EXPECT_EQ(set->Font(0), nullptr);
}

TEST(ThemeSetFonts, TheFirstReadWithoutAPoolMakesOne) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<LFont> made = set->Font(2);
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(set->Fonts()->Item("Font2"), made);
    const Ref<LFont> font = New<LFont>();
    EXPECT_EQ(set->AddFont(font), 2);  // counts the one that was made, and takes its key
    EXPECT_EQ(set->Font(2), font);
    EXPECT_EQ(set->Fonts()->Count(), 1);
}

TEST(ThemeSetItems, AreFoundByNameAndNeverSetTwice) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    EXPECT_EQ(set->Item("Button"), nullptr);
    const Ref<ThemeItem> item = New<ThemeItem>();
    set->Item("Button", item);
    EXPECT_EQ(set->Item("Button"), item);
    EXPECT_EQ(NumberOf([&] { set->Item("Button", New<ThemeItem>()); }), 457);
}

TEST(ThemeSetItems, AreMadeAgainAfterTheyWereTakenAway) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->ThemeItems(nullptr);
    EXPECT_EQ(set->Item("Button"), nullptr);
    set->Item("Button", New<ThemeItem>());
    EXPECT_NE(set->Item("Button"), nullptr);
}

TEST(ThemeSetDispose, LetsGoOfAllButThePalette) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->AddColour(77);
    set->AddFont(New<LFont>());
    set->Item("Button", New<ThemeItem>());
    set->Dispose();
    EXPECT_EQ(set->Item("Button"), nullptr);
    EXPECT_EQ(set->Fonts(), nullptr);
    EXPECT_EQ(set->TextStyles(), nullptr);
    EXPECT_EQ(set->ThemeItems(), nullptr);
    EXPECT_EQ(set->Colour(0), 77);
}

TEST(NumberedSections, HaveAtLeastTwoDigits) {
    EXPECT_EQ(NumberedSection("Font_", 9), "Font_09");
    EXPECT_EQ(NumberedSection("Font_", 10), "Font_10");
    EXPECT_EQ(NumberedSection("Font_", 100), "Font_100");
    EXPECT_EQ(NumberedSection("Font_", 0), "Font_00");
}

}  // namespace
}  // namespace vxgui
