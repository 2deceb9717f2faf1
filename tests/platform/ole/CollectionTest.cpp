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

TEST(CollectionTest, FindsEveryKeyOfFewAndOfMany) {
    Collection<int> items;
    const auto key = [](int n) { return "Key" + String::FromInt(n); };
    const auto allFound = [&](int first, int last) {
        for (int n = first; n <= last; ++n) {
            if (!items.Contains(key(n)) || items.Find("KEY" + String::FromInt(n)) != n)
                return false;
        }
        return !items.Contains(key(first - 1)) && !items.Contains(key(last + 1));
    };
    for (int n = 1; n <= 40; ++n) {
        items.Add(n, key(n));
        items.Add(-n);  // without a key
        ASSERT_TRUE(allFound(1, n)) << n;
    }
    for (int n = 1; n < 40; ++n) {
        items.Remove(key(n));
        ASSERT_TRUE(allFound(n + 1, 40)) << n;
    }
    for (int n = 41; n <= 60; ++n) items.Add(n, key(n));
    EXPECT_TRUE(allFound(40, 60));
}

TEST(CollectionTest, ReplacingPutsTheNewItemAtTheEnd) {
    Collection<int> items;
    for (int n = 1; n <= 30; ++n) items.Add(n, "Key" + String::FromInt(n));
    items.AddReplacing(99, "key7");
    EXPECT_EQ(items.Count(), 30);
    EXPECT_EQ(items.Item(30), 99);
    EXPECT_EQ(items.Item("KEY7"), 99);
    EXPECT_EQ(items.Item(7), 8);
    items.AddReplacing(5, {});
    EXPECT_EQ(items.Count(), 31);
}

TEST(CollectionTest, ReplacingTakesTheCollectionsOwnKey) {
    for (const int count : {3, 30}) {
        Collection<int> items;
        for (int n = 1; n <= count; ++n) items.Add(n, "Key" + String::FromInt(n));
        items.AddReplacing(99, items.Key(2));
        EXPECT_EQ(items.Count(), count);
        EXPECT_EQ(items.Item("key2"), 99);
        EXPECT_EQ(items.Key(count), "key2");
        EXPECT_EQ(items.Item("key3"), 3);
    }
}

}  // namespace
}  // namespace vxgui::ole
