#include "vxgui/theme/ThemeSet.h"

#include <gtest/gtest.h>

#include "tests/support/Errors.h"

namespace vxgui {
namespace {

using test::RaisedBy;

TEST(ThemeItemsCollection, ADuplicateKeyRaisesAndReplacesNothing) {
    const Ref<ThemeItems> items = New<ThemeItems>();
    const Ref<ThemeItem> first = New<ThemeItem>();
    items->AddItem(first, "Button");
    EXPECT_EQ(RaisedBy([&] { items->AddItem(New<ThemeItem>(), "BUTTON"); }), 457);
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

TEST(ThemeItemsCollection, AnItemIsFoundByIndexOrKey) {
    const Ref<ThemeItems> items = New<ThemeItems>();
    const Ref<ThemeItem> first = New<ThemeItem>(), second = New<ThemeItem>();
    items->AddItem(first, "");
    items->AddItem(second, "Button");
    EXPECT_EQ(items->Item(1), first);
    EXPECT_EQ(items->Item(2), second);
    EXPECT_EQ(items->Item("Button"), second);
    EXPECT_EQ(items->Item(""), nullptr);
    items->Remove("Button");
    EXPECT_EQ(items->Item("Button"), nullptr);
    EXPECT_EQ(items->Count(), 1);
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
    EXPECT_EQ(RaisedBy([&] { set->Colour(0); }), 9);
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
    EXPECT_EQ(RaisedBy([&] { set->Item("Button", New<ThemeItem>()); }), 457);
}

TEST(ThemeSetItems, AreMadeAgainAfterTheyWereTakenAway) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->ThemeItems(nullptr);
    EXPECT_EQ(set->Item("Button"), nullptr);
    set->Item("Button", New<ThemeItem>());
    EXPECT_NE(set->Item("Button"), nullptr);
}

TEST(ThemeSetItems, AreThereFromTheStartAndThePoolsAreNot) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    ASSERT_NE(set->ThemeItems(), nullptr);
    EXPECT_EQ(set->ThemeItems()->Count(), 0);
    EXPECT_EQ(set->Fonts(), nullptr);
    EXPECT_EQ(set->TextStyles(), nullptr);
}

TEST(ThemeSetPools, AreSharedWithWhoSetsThem) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<TextStyles> styles = New<TextStyles>();
    const Ref<ThemeItems> items = New<ThemeItems>();
    set->Fonts(fonts);
    set->TextStyles(styles);
    set->ThemeItems(items);
    EXPECT_EQ(set->Fonts(), fonts);
    EXPECT_EQ(set->TextStyles(), styles);
    EXPECT_EQ(set->ThemeItems(), items);
    set->AddFont(New<LFont>());
    EXPECT_EQ(fonts->Count(), 1);
}

/// A set that tells when it ends, held by nobody but the owner of its only item.
class CircleSet : public ThemeSet {
public:
    static CircleSet* Make(bool* ended) {
        const Ref<CircleSet> set = New<CircleSet>(ended);
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->Owner(set);
        set->Item("Button", item);
        return set.get();
    }
    explicit CircleSet(bool* ended) : ended_(ended) {}

protected:
    ~CircleSet() override { *ended_ = true; }

private:
    bool* ended_;
};

TEST(ThemeSetDispose, MayLetGoOfTheLastReferenceToTheSetItself) {
    bool ended = false;
    CircleSet::Make(&ended)->Dispose();
    EXPECT_TRUE(ended);
}

TEST(ThemeItemsCollection, MayRemoveWhatHoldsItsLastReference) {
    for (const bool byKey : {true, false}) {
        bool ended = false;
        ThemeItems* const items = CircleSet::Make(&ended)->ThemeItems().get();
        byKey ? items->Remove("Button") : items->Remove(1);
        EXPECT_TRUE(ended);
    }
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
