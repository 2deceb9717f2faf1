#include "vxgui/platform/ole_bag.h"

#include <gtest/gtest.h>

#include "vxgui/base/Error.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {
namespace {

Ref<PropertyBag> SampleBag() {
    const Ref<PropertyBag> bag = New<PropertyBag>();
    bag->WriteProperty("Width", 120);
    bag->WriteProperty("Below", -7);
    bag->WriteProperty("Shown", true);
    bag->WriteProperty("Text", "确 定");
    bag->WriteProperty("Bytes", ByteArray{1, 2, 255});
    bag->WriteProperty("Half", 0.5f);
    bag->WriteProperty("Tenth", 0.1);
    bag->WriteProperty("Größe", 9);
    return bag;
}

TEST(BagReader, GivesWhatTheBagGivesInWhateverOrderAndCase) {
    const Ref<PropertyBag> bag = SampleBag();
    const ByteArray contents = bag->Contents();
    BagReader reader;
    reader.Open(contents);
    const char* const names[] = {"Width", "Below", "Shown", "Text",   "Bytes", "Half",
                                 "Tenth", "WIDTH", "tenth", "Absent", "Below", "below"};
    for (const char* name : names) {
        EXPECT_EQ(reader.ReadProperty(name), bag->ReadProperty(name)) << name;
        EXPECT_EQ(reader.Has(name), bag->Has(name)) << name;
    }
}

TEST(BagReader, ReadsOneBagAfterTheOther) {
    BagReader reader;
    EXPECT_FALSE(reader.Has("Width"));
    const ByteArray first = SampleBag()->Contents();
    const Ref<PropertyBag> other = New<PropertyBag>();
    for (int i = 0; i < 2000; ++i) other->WriteProperty("Name" + String::FromInt(i), i);
    const ByteArray second = other->Contents(), empty;
    reader.Open(first);
    reader.Open(second);
    EXPECT_FALSE(reader.Has("Width"));
    EXPECT_EQ(reader.ReadProperty("name1999"), Variant(1999));
    reader.Open(first);
    EXPECT_FALSE(reader.Has("name1999"));
    EXPECT_EQ(reader.ReadProperty("Width"), Variant(120));
    reader.Open(empty);
    EXPECT_FALSE(reader.Has("Width"));
}

TEST(BagReader, ReadsBagsWhoseNamesComeInOtherOrdersAndAreOthers) {
    const char* const names[] = {"Width", "height", "Left", "A name of more than 24 bytes"};
    BagReader reader;
    for (size_t bag = 0; bag < 200; ++bag) {
        const Ref<PropertyBag> written = New<PropertyBag>();
        for (size_t i = 0; i < 4; ++i) {
            const size_t n = bag % 5 < 3 ? i : (bag + 3 - i) % 4;
            const String name = bag % 3 == 1 ? String(names[n]).Lower() : names[n];
            if ((bag + n) % 6 != 0) written->WriteProperty(name, static_cast<int32_t>(bag * 5 + n));
            if (bag % 4 == i) written->WriteProperty(bag % 8 < 4 ? "Über" : "ÜBER", 1);
        }
        const ByteArray contents = written->Contents();
        reader.Open(contents);
        for (const char* name : names) {
            EXPECT_EQ(reader.ReadProperty(name), written->ReadProperty(name)) << bag << name;
        }
    }
}

TEST(BagReader, RefusesANameThatStandsTwiceAfterBagsWhereItStoodOnce) {
    BagReader reader;
    const ByteArray good{0xA2, 0x61, 'a', 0x01, 0x61, 'b', 0x02};
    const ByteArray twice{0xA3, 0x61, 'a', 0x01, 0x61, 'b', 0x02, 0x61, 'a', 0x03};
    for (int i = 0; i < 3; ++i) {
        reader.Open(good);
        EXPECT_EQ(reader.ReadProperty("b"), Variant(2));
        EXPECT_THROW(reader.Open(twice), Error);
        EXPECT_FALSE(reader.Has("a"));
    }
}

TEST(BagReader, ReadsIntegersAndLeavesWhatIsNoneAlone) {
    const ByteArray contents = SampleBag()->Contents();
    BagReader reader;
    reader.Open(contents);
    int32_t value = 3;
    EXPECT_TRUE(reader.ReadInteger("Absent", &value));
    EXPECT_FALSE(reader.ReadInteger("Shown", &value));
    EXPECT_FALSE(reader.ReadInteger("Half", &value));
    EXPECT_EQ(value, 3);
    EXPECT_TRUE(reader.ReadInteger("BELOW", &value));
    EXPECT_EQ(value, -7);
    EXPECT_TRUE(reader.ReadInteger("Width", &value));
    EXPECT_EQ(value, 120);
}

TEST(BagReader, ReadsBytesAndLeavesWhatIsNoneAlone) {
    const ByteArray contents = SampleBag()->Contents(), before{9};
    BagReader reader;
    reader.Open(contents);
    std::span<const uint8_t> value = before;
    EXPECT_TRUE(reader.ReadBytes("Absent", &value));
    EXPECT_FALSE(reader.ReadBytes("Text", &value));
    EXPECT_FALSE(reader.ReadBytes("Width", &value));
    EXPECT_EQ(ByteArray(value.begin(), value.end()), before);
    EXPECT_TRUE(reader.ReadBytes("bytes", &value));
    EXPECT_EQ(ByteArray(value.begin(), value.end()), (ByteArray{1, 2, 255}));
}

/// What is raised for contents, by the bag itself or by a reader.
String Refusal(const ByteArray& contents, bool inPlace) {
    try {
        BagReader reader;
        const Ref<PropertyBag> bag = New<PropertyBag>();
        inPlace ? reader.Open(contents) : bag->Contents(contents);
    } catch (const Error& error) {
        return error.Description();
    }
    return {};
}

TEST(BagReader, RefusesWhatTheBagRefuses) {
    const ByteArray whole = SampleBag()->Contents();
    for (size_t at = 0; at < whole.size(); ++at) {
        for (const int change : {1, 0x20, 0x80, 0xFF}) {
            ByteArray damaged = whole;
            damaged[at] = static_cast<uint8_t>(damaged[at] ^ change);
            ASSERT_EQ(Refusal(damaged, true).empty(), Refusal(damaged, false).empty())
                << at << " " << change;
        }
        const ByteArray cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at));
        ASSERT_EQ(Refusal(cut, true), Refusal(cut, false)) << at;
    }
    // Names that differ in case alone, of ASCII letters and of others.
    EXPECT_EQ(Refusal({0xA2, 0x61, 'a', 0x01, 0x61, 'A', 0x02}, true),
              String("The name \"A\" stands twice"));
    EXPECT_FALSE(Refusal({0xA2, 0x62, 0xC3, 0xA4, 0x01, 0x62, 0xC3, 0x84, 0x02}, true).empty());
}

TEST(BagReader, HoldsNothingAfterARefusal) {
    BagReader reader;
    const ByteArray whole = SampleBag()->Contents();
    reader.Open(whole);
    EXPECT_THROW(reader.Open(ByteArray{0xA2, 0x61, 'a', 0x01, 0x61, 'A', 0x02}), Error);
    EXPECT_FALSE(reader.Has("a"));
    EXPECT_FALSE(reader.Has("Width"));
}

}  // namespace
}  // namespace vxgui::ole
