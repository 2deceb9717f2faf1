#include "vxgui/theme/FrameTable.h"

#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "vxgui/theme/ThemeEnums.h"

namespace vxgui {
namespace {

constexpr int32_t kOverflow = 6;
constexpr std::array<uint8_t, 9> kNewFrames{0, 1, 2, 3, 4, 5, 6, 7, 8};

TEST(RawFrame, FollowsTheOrder) {
    const struct {
        int32_t state, order0, order1;
    } rows[] = {
        {E_ItemStateNormal, 0, 0},
        {E_ItemStateMouseOver, 3, 1},
        {E_ItemStateFocusMouseOver, 3, 1},
        {E_ItemStatePressed, 1, 2},
        {E_ItemStateDisabled, 2, 3},
        {E_ItemStateDefault, 4, 4},
        {E_ItemStateFocus, 5, 5},
        {E_ItemStateFocusPressed, 6, 6},
        {E_ItemStateGroup, 7, 7},
        {-1, 0, 0},
        {9, 0, 0},
    };
    for (const auto& row : rows) {
        FrameTable table;
        table.order = 0;
        EXPECT_EQ(table.RawFrame(row.state), row.order0) << row.state;
        table.order = 1;
        EXPECT_EQ(table.RawFrame(row.state), row.order1) << row.state;
    }
}

TEST(RawFrame, OfTheOwnTableIsTheStatesEntry) {
    FrameTable table;
    table.order = -1;
    table.frames = {19, 18, 17, 16, 15, 14, 13, 12, 255};
    for (int32_t state = 0; state < 9; ++state) {
        EXPECT_EQ(table.RawFrame(state), table.frames[static_cast<size_t>(state)]);
    }
    EXPECT_EQ(table.RawFrame(-1), 0);
    EXPECT_EQ(table.RawFrame(9), 0);
}

TEST(RawFrame, OfAnUnknownOrderIsNought) {
    for (const int32_t order : {2, -2, 255}) {
        FrameTable table;
        table.order = order;
        for (int32_t state = -1; state < 10; ++state) EXPECT_EQ(table.RawFrame(state), 0) << order;
    }
}

TEST(BorrowedState, IsTheNextOneOnTheWayToNormal) {
    const struct {
        int32_t from, to;
    } rows[] = {
        {E_ItemStateNormal, -1},
        {E_ItemStateGroup, -1},
        {E_ItemStateMouseOver, E_ItemStateNormal},
        {E_ItemStatePressed, E_ItemStateNormal},
        {E_ItemStateDisabled, E_ItemStateNormal},
        {E_ItemStateDefault, E_ItemStateMouseOver},
        {E_ItemStateFocusMouseOver, E_ItemStateMouseOver},
        {E_ItemStateFocus, E_ItemStateDefault},
        {E_ItemStateFocusPressed, E_ItemStatePressed},
    };
    for (const auto& row : rows) EXPECT_EQ(BorrowedState(row.from), row.to) << row.from;
}

TEST(FrameTableAssign, EachKindOfNumberIsJudgedByItsValue) {
    const struct {
        Variant element;
        uint8_t entry;  // of state Pressed, whose entry is 2 before
    } cases[] = {
        {0, 0},       {255, 255}, {256, 2},     {-1, 255},      {-2147483647, 255},
        {0.5, 0},     {1.5, 2},   {254.5, 254}, {255.25, 255},  {256.0, 2},
        {-0.25, 255}, {7.5f, 8},  {true, 255},  {false, 0},     {"12", 12},
        {"", 2},      {"1 2", 2}, {"&h10", 16}, {Variant(), 2}, {VariantArray{1}, 2},
    };
    for (const auto& c : cases) {
        FrameTable table;
        table.Assign(VariantArray{0, 1, c.element, 33});
        EXPECT_EQ(table.frames[2], c.entry) << &c - cases;
        EXPECT_EQ(table.frames[3], 33) << "reading must go on: " << &c - cases;
    }
}

TEST(FrameTableAssign, BetweenALastHalfAnd256RaisesTheOverflowError) {
    for (const double value : {255.5, 255.75, 255.999}) {
        FrameTable table;
        EXPECT_EQ(test::RaisedBy([&] { table.Assign(VariantArray{9, value, 9}); }), kOverflow);
        EXPECT_EQ(table.order, -1);
        EXPECT_EQ(table.frames[0], 9);  // what came before it stays
        EXPECT_EQ(table.frames[2], 2);
    }
}

TEST(FrameTableAssign, AnEmptyArrayChangesTheOrderAlone) {
    for (const Variant& list : {Variant(VariantArray()), Variant(ByteArray())}) {
        FrameTable table;
        table.Assign(list);
        EXPECT_EQ(table.order, -1);
        EXPECT_EQ(table.frames, kNewFrames);
    }
}

}  // namespace
}  // namespace vxgui
