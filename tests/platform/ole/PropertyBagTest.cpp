#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vxgui/base/Error.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(PropertyBagTest, EachKindOfValueIsKept) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("flag", true);
    bag->WriteProperty("count", 42);
    bag->WriteProperty("single", 1.5f);
    bag->WriteProperty("double", 0.1);
    bag->WriteProperty("text", u"\x786E\x5B9A");
    bag->WriteProperty("bytes", ByteArray{0, 255, 0});
    EXPECT_EQ(bag->ReadProperty("flag"), Variant(true));
    EXPECT_EQ(bag->ReadProperty("count"), Variant(42));
    EXPECT_EQ(bag->ReadProperty("single"), Variant(1.5f));
    EXPECT_EQ(bag->ReadProperty("double"), Variant(0.1));
    EXPECT_EQ(bag->ReadProperty("text"), Variant(String(u"\x786E\x5B9A")));
    EXPECT_EQ(bag->ReadProperty("bytes"), Variant(ByteArray{0, 255, 0}));
}

/// Keeps one number.
struct Counter : Object, Persistent {
    void SaveTo(const Ref<PropertyBag>& bag) override { bag->WriteProperty("Count", count); }
    void RestoreFrom(const Ref<PropertyBag>& bag) override {
        count = *bag->ReadProperty("Count", 0).As<int32_t>();
    }
    int32_t count = 0;
};

TEST(PropertyBagTest, AnObjectIsKeptByTheContentsOfABagOfItsOwn) {
    const auto bag = New<PropertyBag>(), inner = New<PropertyBag>();
    const auto counter = New<Counter>(), other = New<Counter>();
    counter->count = 42;
    bag->WriteProperty("object", counter);
    inner->WriteProperty("Count", 42);
    EXPECT_EQ(bag->ReadProperty("object"), Variant(inner->Contents()));
    EXPECT_TRUE(bag->RestoreProperty("object", *other));
    EXPECT_EQ(other->count, 42);
}

TEST(PropertyBagTest, WhatIsNoStoredObjectLeavesTheObject) {
    const auto bag = New<PropertyBag>();
    const auto counter = New<Counter>();
    counter->count = 7;
    bag->WriteProperty("number", 1);
    bag->WriteProperty("damaged", ByteArray{1, 2, 3});
    EXPECT_FALSE(bag->RestoreProperty("none", *counter));
    EXPECT_FALSE(bag->RestoreProperty("number", *counter));
    EXPECT_THROW(bag->RestoreProperty("damaged", *counter), Error);
    EXPECT_EQ(counter->count, 7);
}

TEST(PropertyBagTest, WhatIsMissingReadsAsTheDefault) {
    const auto bag = New<PropertyBag>();
    EXPECT_EQ(bag->ReadProperty("none", 7), Variant(7));
    EXPECT_TRUE(bag->ReadProperty("none").IsEmpty());
    EXPECT_FALSE(bag->Has("none"));
}

TEST(PropertyBagTest, AValueThatEqualsTheDefaultIsNotStored) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("Height", 12, 12);
    bag->WriteProperty("Name", String(), String());
    EXPECT_THAT(bag->Names(), IsEmpty());
    EXPECT_EQ(bag->ReadProperty("Height", 5), Variant(5));
}

TEST(PropertyBagTest, AnEqualNumberOfAnotherKindIsNotTheDefault) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("a", 1.0f, 1);
    bag->WriteProperty("b", true, 1);
    EXPECT_THAT(bag->Names(), ElementsAre("a", "b"));
}

TEST(PropertyBagTest, WithoutADefaultAlwaysStores) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("Version", 0);
    bag->WriteProperty("Name", String());
    bag->WriteProperty("Bytes", ByteArray());
    EXPECT_THAT(bag->Names(), ElementsAre("Version", "Name", "Bytes"));
}

TEST(PropertyBagTest, WritingTheDefaultTakesAnOlderValueAway) {
    const auto bag = New<PropertyBag>();
    for (const char* name : {"a", "b", "c"}) bag->WriteProperty(name, 1);
    bag->WriteProperty("A", 0, 0);
    EXPECT_THAT(bag->Names(), ElementsAre("b", "c"));
    EXPECT_EQ(bag->ReadProperty("c"), Variant(1));
    bag->WriteProperty("c", 2);
    EXPECT_EQ(bag->ReadProperty("b"), Variant(1));
    EXPECT_EQ(bag->ReadProperty("c"), Variant(2));
}

TEST(PropertyBagTest, NamesAreComparedWithoutRegardToCaseAndKeepTheirPlace) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("First", 1);
    bag->WriteProperty("Second", 2);
    bag->WriteProperty("FIRST", 3);
    EXPECT_THAT(bag->Names(), ElementsAre("First", "Second"));
    EXPECT_EQ(bag->ReadProperty("first"), Variant(3));
    EXPECT_TRUE(bag->Has("sEcOnD"));
}

TEST(PropertyBagTest, OtherKindsOfValuesAreRefused) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("a", 1);
    const Variant refused[] = {Variant(VariantArray{Variant(1)}), Variant(Ref<Object>(bag))};
    for (const Variant& value : refused) {
        try {
            bag->WriteProperty("a", value);
            ADD_FAILURE() << "nothing was raised";
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), 13);
        }
    }
    EXPECT_THROW(bag->WriteProperty("a", Variant(), 5), Error);
    EXPECT_EQ(bag->ReadProperty("a"), Variant(1));
}

TEST(PropertyBagTest, ABagNestsAsABytesValue) {
    const auto inner = New<PropertyBag>();
    inner->WriteProperty("Height", -12);
    const auto outer = New<PropertyBag>();
    outer->WriteProperty("FontNormal", inner->Contents());

    const auto outerRead = New<PropertyBag>();
    outerRead->Contents(outer->Contents());
    const Variant value = outerRead->ReadProperty("FontNormal");
    const auto innerRead = New<PropertyBag>();
    innerRead->Contents(*value.As<ByteArray>());
    EXPECT_EQ(innerRead->ReadProperty("Height"), Variant(-12));
}

}  // namespace
}  // namespace vxgui::ole
