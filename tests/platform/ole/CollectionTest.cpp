#include "vxgui/platform/Collection.h"

#include <gtest/gtest.h>

#include <functional>

namespace vxgui::ole {
namespace {

int32_t NumberOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const Error& error) {
        return error.Number();
    }
    return 0;
}

TEST(CollectionTest, KeysAreComparedWithoutRegardToCase) {
    Collection<int> items;
    items.Add(7, "Font_01");
    EXPECT_EQ(items.Item("FONT_01"), 7);
    EXPECT_EQ(NumberOf([&] { items.Add(8, "font_01"); }), 457);
    EXPECT_EQ(items.Count(), 1);
}

TEST(CollectionTest, IndexesStartAtOne) {
    Collection<int> items;
    items.Add(1);
    items.Add(2);
    EXPECT_EQ(items.Item(2), 2);
    EXPECT_EQ(NumberOf([&] { items.Item(0); }), 9);
    EXPECT_EQ(NumberOf([&] { items.Item(3); }), 9);
}

TEST(CollectionTest, AnUnknownKeyRaises) {
    Collection<int> items;
    EXPECT_EQ(NumberOf([&] { items.Item("none"); }), 5);
    EXPECT_EQ(NumberOf([&] { items.Remove("none"); }), 5);
    EXPECT_EQ(items.Find("none"), 0);
}

TEST(CollectionTest, RemovalKeepsOrderAndKeys) {
    Collection<int> items;
    items.Add(1, "a");
    items.Add(2, "b");
    items.Add(3, "c");
    items.Remove("a");
    EXPECT_EQ(items.Item("c"), 3);
    EXPECT_EQ(items.Item(1), 2);
    items.Add(4, "a");
    EXPECT_EQ(items.Item(3), 4);
}

}  // namespace
}  // namespace vxgui::ole
