#include <gtest/gtest.h>

#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

// Expected frames: a row for each frame count from 0 to 8, a column for each state.
constexpr int32_t kOrder0[9][9] = {{255, 255, 255, 255, 255, 255, 255, 255, 255},
                                   {0, 0, 0, 0, 0, 0, 0, 255, 0},
                                   {0, 0, 1, 0, 0, 0, 1, 255, 0},
                                   {0, 0, 1, 2, 0, 0, 1, 255, 0},
                                   {0, 3, 1, 2, 3, 3, 1, 255, 3},
                                   {0, 3, 1, 2, 4, 4, 1, 255, 3},
                                   {0, 3, 1, 2, 4, 5, 1, 255, 3},
                                   {0, 3, 1, 2, 4, 5, 6, 255, 3},
                                   {0, 3, 1, 2, 4, 5, 6, 7, 3}};
constexpr int32_t kOrder1[9][9] = {{255, 255, 255, 255, 255, 255, 255, 255, 255},
                                   {0, 0, 0, 0, 0, 0, 0, 255, 0},
                                   {0, 1, 0, 0, 1, 1, 0, 255, 1},
                                   {0, 1, 2, 0, 1, 1, 2, 255, 1},
                                   {0, 1, 2, 3, 1, 1, 2, 255, 1},
                                   {0, 1, 2, 3, 4, 4, 2, 255, 1},
                                   {0, 1, 2, 3, 4, 5, 2, 255, 1},
                                   {0, 1, 2, 3, 4, 5, 6, 255, 1},
                                   {0, 1, 2, 3, 4, 5, 6, 7, 1}};

void ExpectTable(int32_t order, const int32_t (&table)[9][9]) {
    for (int32_t count = 0; count <= 8; ++count) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->FrameOrder(order);
        item->FrameCount(count);
        for (int32_t state = 0; state <= 8; ++state) {
            EXPECT_EQ(item->StateFrame(state), table[count][state]) << count << " " << state;
        }
    }
}

TEST(StateFrame, FollowsTheFirstNamedOrderEntryByEntry) { ExpectTable(0, kOrder0); }
TEST(StateFrame, FollowsTheSecondNamedOrderEntryByEntry) { ExpectTable(1, kOrder1); }

TEST(StateFrame, DefaultBorrowsFromMouseOverAndGroupFromNobody) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(4);
    EXPECT_EQ(item->StateFrame(E_ItemStateDefault), 1);
    EXPECT_EQ(item->StateFrame(E_ItemStateGroup), 255);
}

TEST(StateFrame, GroupNeverBorrowsAFrame) {
    for (int32_t order : {0, 1}) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->FrameOrder(order);
        item->FrameCount(7);
        EXPECT_EQ(item->StateFrame(E_ItemStateGroup), 255);
        item->FrameCount(8);
        EXPECT_EQ(item->StateFrame(E_ItemStateGroup), 7);
    }
}

TEST(StateFrame, NoFrameInTheTableIsNoFrameWhateverTheCount) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFrames(VariantArray{Variant(0), Variant(-1)});
    for (int32_t count : {1, 8, 300}) {
        item->FrameCount(count);
        EXPECT_EQ(item->StateFrame(E_ItemStateMouseOver), 255);
    }
}

TEST(StateFrame, AFrameBeyondTheStripFallsBackThroughTheTable) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(2);
    item->StateFrames(VariantArray{Variant(1), Variant(9), Variant(9)});
    EXPECT_EQ(item->StateFrame(E_ItemStateMouseOver), 1);
    EXPECT_EQ(item->StateFrame(E_ItemStatePressed), 1);
    EXPECT_EQ(item->StateFrame(E_ItemStateFocusPressed), 1);
    EXPECT_EQ(item->StateFrame(E_ItemStateDefault), 1);
}

TEST(StateFrame, OfTheOwnTableGoesTheWholeWayToNormal) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    item->StateFrames(ByteArray{2, 9, 9, 9, 9, 9, 9, 9, 9});
    for (int32_t state = 0; state < 9; ++state) {
        EXPECT_EQ(item->StateFrame(state), state == E_ItemStateGroup ? 255 : 2) << state;
    }
    item->StateFrames(ByteArray{3});
    EXPECT_EQ(item->StateFrame(E_ItemStateNormal), 255);
    EXPECT_EQ(item->StateFrame(E_ItemStateFocus), 255);
}

TEST(StateFrame, BorrowsTheFrameThatTheTableKeepsFromIt) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    item->StateFrames(ByteArray{0, 255, 1, 2, 9, 9, 9});
    EXPECT_EQ(item->StateFrame(E_ItemStateDefault), 255);  // MouseOver has none, and says so
    EXPECT_EQ(item->StateFrame(E_ItemStateFocus), 255);
    EXPECT_EQ(item->StateFrame(E_ItemStateFocusPressed), 1);
}

TEST(StateFrame, OutsideTheStatesIsFrameNought) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(1);
    for (int32_t state : {-1, 9, 1000}) EXPECT_EQ(item->StateFrame(state), 0);
}

TEST(StateFrame, OutsideTheStatesAndWithoutFramesTheWalkEndsWithNone) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_EQ(item->StateFrame(9), 255);
    EXPECT_EQ(item->GlyphStateFrame(-1), 255);
}

TEST(GlyphStateFrame, OnlyTheFirstStepAsksTheGlyphsTable) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    item->GlyphFrames(3);
    item->GlyphStateFrames(VariantArray{Variant(2), Variant(7)});
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateNormal), 2);
    // MouseOver has no frame 7, so Normal is asked: by the image's rule it is 0, not 2.
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateMouseOver), 0);
}

TEST(GlyphStateFrame, IsTestedAgainstTheStoredGlyphFrames) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(4);
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateNormal), 255);  // no stored count yet
    item->GlyphFrames(1);
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateNormal), 0);
    // The image's rule answers 1 for MouseOver, which the glyph doesn't have; so on to Normal.
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateMouseOver), 0);
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateDefault), 0);
}

TEST(GlyphStateFrame, FollowsTheNamedOrderOfItsOwn) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(8);
    item->GlyphFrames(8);
    item->FrameOrder(0);  // the image's order alone
    for (int32_t state = 0; state < 9; ++state) {
        EXPECT_EQ(item->GlyphStateFrame(state), kOrder1[8][state]) << state;
    }
}

TEST(GlyphStateFrame, BorrowsByTheImagesOrder) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(8);
    item->FrameOrder(0);
    item->GlyphFrames(4);
    // Default has the glyph frame 4, which isn't there; MouseOver is frame 3 by the image's order.
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateDefault), 3);
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateGroup), 255);
}

TEST(GlyphStateFrame, NoFrameOfTheImageEndsTheWalk) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->GlyphFrames(1);  // and the image has no frames at all
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStateNormal), 0);
    EXPECT_EQ(item->GlyphStateFrame(E_ItemStatePressed), 255);
}

TEST(StateNames, AreTheNineNamesAndNumbersBeyond) {
    const char* const names[] = {"Normal", "MouseOver",    "Pressed", "Disabled",      "Default",
                                 "Focus",  "FocusPressed", "Group",   "FocusMouseOver"};
    for (int32_t state = 0; state < 9; ++state)
        EXPECT_EQ(ThemeItem::StateName(state), names[state]);
    EXPECT_EQ(ThemeItem::StateName(9), "State_#9");
    EXPECT_EQ(ThemeItem::StateName(-1), "State_#-1");
}

TEST(StateFramesProperty, ThreeElementsChangeThreeEntries) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFrames(VariantArray{Variant(5), Variant(6), Variant(7)});
    EXPECT_EQ(item->FrameOrder(), -1);
    EXPECT_EQ(item->StateFrames(), (ByteArray{5, 6, 7, 3, 4, 5, 6, 7, 8}));
}

TEST(StateFramesProperty, WhatIsNoArrayChangesNothing) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFrames(Variant(3));
    item->StateFrames(Variant("1,2"));
    item->StateFrames(Variant());
    EXPECT_EQ(item->FrameOrder(), 1);
    EXPECT_EQ(item->StateFrames(), (ByteArray{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(StateFramesProperty, EachElementIsJudgedByItself) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFrames(VariantArray{Variant(-1), Variant("no number"), Variant(300), Variant(7.5)});
    EXPECT_EQ(item->StateFrames(), (ByteArray{255, 1, 2, 8, 4, 5, 6, 7, 8}));
}

TEST(StateFramesProperty, NumbersInTextAndBytesCountToo) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFrames(VariantArray{Variant(" 4 "), Variant("-2"), Variant("2.5")});
    EXPECT_EQ(item->StateFrames(), (ByteArray{4, 255, 2, 3, 4, 5, 6, 7, 8}));
    item->GlyphStateFrames(ByteArray{9, 9, 9, 9, 9, 9, 9, 9, 9, 1, 1});
    EXPECT_EQ(item->GlyphStateFrames(), ByteArray(9, 9));
}

TEST(StateFramesProperty, JustBelow256RaisesTheOverflowError) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    try {
        item->StateFrames(VariantArray{Variant(255.75)});
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 6);
    }
}

TEST(StateProperty, FixesTheFramesUntilItIsSetAgain) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    EXPECT_EQ(item->CurrentFrame(), 0);
    item->State(E_ItemStatePressed);
    EXPECT_EQ(item->CurrentFrame(), 2);
    item->FrameCount(8);
    item->FrameOrder(0);
    EXPECT_EQ(item->CurrentFrame(), 2);
    item->State(E_ItemStatePressed);
    EXPECT_EQ(item->CurrentFrame(), 1);
}

}  // namespace
}  // namespace vxgui
