#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "vxgui/base/Error.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {
namespace {

using ::testing::HasSubstr;

Ref<PropertyBag> Read(const ByteArray& bytes) {
    const auto bag = New<PropertyBag>();
    bag->Contents(bytes);
    return bag;
}

// What the bag says against `bytes`; empty when it takes them. A refusal must leave it alone.
std::string Refusal(const ByteArray& bytes) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("old", 1);
    const ByteArray before = bag->Contents();
    try {
        bag->Contents(bytes);
        return {};
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 5);
        EXPECT_EQ(bag->Contents(), before);
        return error.Description().Utf8();
    }
}

TEST(BagContentsTest, AreAMapOfDefiniteLength) {
    const auto bag = New<PropertyBag>();
    EXPECT_EQ(bag->Contents(), ByteArray{0xA0});
    bag->WriteProperty("a", 1);
    bag->WriteProperty("b", -1);
    bag->WriteProperty("c", true);
    bag->WriteProperty("d", 1.5f);
    bag->WriteProperty("e", "x");
    bag->WriteProperty("f", ByteArray{7, 8});
    const ByteArray expected{0xA6, 0x61, 'a', 0x01, 0x61, 'b',  0x20, 0x61, 'c',
                             0xF5, 0x61, 'd', 0xFA, 0x3F, 0xC0, 0x00, 0x00, 0x61,
                             'e',  0x61, 'x', 0x61, 'f',  0x42, 7,    8};
    EXPECT_EQ(bag->Contents(), expected);
}

TEST(BagContentsTest, AnEmptyArrayEmptiesTheBag) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("a", 1);
    bag->Contents({});
    EXPECT_TRUE(bag->Names().empty());
}

TEST(BagContentsTest, IntegersOfAnyWidthAreRead) {
    EXPECT_EQ(Read({0xA1, 0x61, 'a', 0x19, 0x01, 0x00})->ReadProperty("a"), Variant(256));
    const auto wide = ByteArray{0xA1, 0x61, 'a', 0x1B, 0, 0, 0, 0, 0x7F, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(Read(wide)->ReadProperty("a"), Variant(INT32_MAX));
    const auto low = ByteArray{0xA1, 0x61, 'a', 0x3A, 0x7F, 0xFF, 0xFF, 0xFF};
    EXPECT_EQ(Read(low)->ReadProperty("a"), Variant(INT32_MIN));
}

TEST(BagContentsTest, IntegersOfOneOrTwoBytesAreReadWhateverFollows) {
    const ByteArray start{0xA2, 0x61, 'a'}, next{0x61, 'b', 0xF5};
    for (const int sign : {0, 0x20}) {
        for (int number = 0; number < 256; ++number) {
            ByteArray bytes = start;
            if (number < 24) bytes.push_back(static_cast<uint8_t>(sign | number));
            if (number >= 24)
                bytes.insert(bytes.end(),
                             {static_cast<uint8_t>(sign | 24), static_cast<uint8_t>(number)});
            const size_t behind = bytes.size();
            bytes.insert(bytes.end(), next.begin(), next.end());
            const auto bag = Read(bytes);
            EXPECT_EQ(bag->ReadProperty("a"), Variant(sign ? -1 - number : number));
            EXPECT_EQ(bag->ReadProperty("b"), Variant(true));
            bytes.resize(behind);
            bytes[0] = 0xA1;
            EXPECT_EQ(Read(bytes)->ReadProperty("a"), Variant(sign ? -1 - number : number));
        }
    }
    EXPECT_THAT(Refusal({0xA1, 0x61, 'a', 0x18}), HasSubstr("end early, at byte 3"));
    EXPECT_THAT(Refusal({0xA1, 0x61, 'a', 0x1C, 0}), HasSubstr("malformed item, at byte 3"));
}

TEST(BagContentsTest, AHalfFloatIsRead) {
    EXPECT_EQ(Read({0xA1, 0x61, 'a', 0xF9, 0x3E, 0x00})->ReadProperty("a"), Variant(1.5f));
}

TEST(BagContentsTest, ALoneSurrogateBecomesTheReplacementCharacter) {
    const auto bag = New<PropertyBag>();
    bag->WriteProperty("a", String(std::u16string{0xD800, u'x'}));
    EXPECT_EQ(Read(bag->Contents())->ReadProperty("a"), Variant(String(u"\xFFFDx")));
}

struct RefusalCase {
    ByteArray bytes;
    const char* why;
};

TEST(BagContentsTest, WhatIsNoBagIsRefusedWithTheReason) {
    const RefusalCase cases[] = {
        {{0x01}, "There is no map, at byte 0"},
        {{0x80}, "There is no map"},
        {{0xBF, 0xFF}, "There is no map"},  // a map whose length is left open
        {{0xA1}, "More entries than bytes"},
        {{0xA1, 0x61, 'a'}, "The contents end early, at byte 3"},
        {{0xBB, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x60, 0x00}, "More entries"},
        {{0xBA, 0x40, 0x00, 0x00, 0x00, 0x60, 0x00}, "More entries than bytes are claimed"},
        {{0xA1, 0x7B, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 'a'}, "end early, at byte 1"},
        {{0xA1, 0x61, 'a', 0x5B, 0x7F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}, "end early"},
        {{0xA1, 0x61, 'a', 0x5A, 0x40, 0x00, 0x00, 0x00}, "The contents end early, at byte 3"},
        {{0xA1, 0x01, 0x01}, "A name that is no text, at byte 1"},
        {{0xA1, 0x41, 'a', 0x01}, "A name that is no text"},
        {{0xA1, 0x61, 'a', 0xA0}, "A value of a kind that no property has, at byte 3"},
        {{0xA1, 0x61, 'a', 0x80}, "A value of a kind"},            // an array
        {{0xA1, 0x61, 'a', 0xC1, 0x01}, "A value of a kind"},      // a tag
        {{0xA1, 0x61, 'a', 0xF6}, "A value of a kind"},            // null
        {{0xA1, 0x61, 'a', 0xF7}, "A value of a kind"},            // undefined
        {{0xA1, 0x61, 'a', 0x5F, 0xFF}, "A value of a kind"},      // bytes, length left open
        {{0xA1, 0x61, 'a', 0x7F, 0xFF}, "A value of a kind"},      // text, length left open
        {{0xA1, 0x61, 'a', 0xFF}, "A value of a kind"},            // an end of nothing
        {{0xA1, 0x61, 'a', 0xE0}, "A malformed item"},             // an unassigned simple value
        {{0xA1, 0x61, 'a', 0x1C}, "A malformed item, at byte 3"},  // a reserved length
        {{0xA1, 0x61, 'a', 0x61, 0xFF}, "Text that is not UTF-8, at byte 3"},
        {{0xA1, 0x61, 0x80, 0x01}, "Text that is not UTF-8, at byte 1"},
        {{0xA1, 0x61, 'a', 0x1A, 0x80, 0x00, 0x00, 0x00}, "more than 32 bits, at byte 3"},
        {{0xA1, 0x61, 'a', 0x3A, 0x80, 0x00, 0x00, 0x00}, "more than 32 bits"},
        {{0xA1, 0x61, 'a', 0x1B, 0, 0, 0, 1, 0, 0, 0, 0}, "more than 32 bits"},
        {{0xA2, 0x61, 'a', 0x01, 0x61, 'a', 0x02}, "The name \"a\" stands twice"},
        {{0xA2, 0x61, 'a', 0x01, 0x61, 'A', 0x02}, "The name \"A\" stands twice"},
        {{0xA0, 0x00}, "Something follows the map, at byte 1"},
        {{0xA1, 0x61, 'a', 0x01, 0xA0}, "Something follows the map, at byte 4"},
    };
    for (const auto& c : cases) EXPECT_THAT(Refusal(c.bytes), HasSubstr(c.why));
}

TEST(BagContentsTest, DeepNestingIsRefusedAtItsFirstLevel) {
    for (const uint8_t opener : {0x81, 0xA1, 0xC1, 0x9F, 0xBF}) {
        ByteArray bytes{0xA1, 0x61, 'a'};
        bytes.insert(bytes.end(), 1000000, opener);
        EXPECT_THAT(Refusal(bytes), HasSubstr("A value of a kind that no property has, at byte 3"));
    }
}

// Makes bags of any content, the same for the same seed.
class BagMaker {
public:
    explicit BagMaker(uint32_t seed) : random_(seed) {}

    Ref<PropertyBag> Make(size_t most) {
        const auto bag = New<PropertyBag>();
        for (size_t left = random_() % (most + 1); left > 0; --left) {
            bag->WriteProperty(Text(8), Value());
        }
        return bag;
    }

    uint32_t Number() { return static_cast<uint32_t>(random_()); }

private:
    Variant Value() {
        switch (random_() % 6) {
            case 0:
                return random_() % 2 == 0;
            case 1:
                return static_cast<int32_t>(random_() >> random_() % 32);
            case 2:
                return static_cast<float>(static_cast<int32_t>(random_())) / 64;
            case 3:
                return static_cast<int32_t>(random_()) / 3.0;
            case 4:
                return Text(random_() % 50 == 0 ? 70000 : 40);
            default:
                return Blob();
        }
    }
    // Latin, Chinese and, in pairs, beyond the first plane; never half a pair.
    String Text(size_t most) {
        std::u16string text;
        for (size_t left = random_() % (most + 1); left > 0; --left) {
            const uint32_t kind = random_() % 3;
            if (kind == 0)
                text += static_cast<char16_t>(random_() % 0x250);
            else if (kind == 1)
                text += static_cast<char16_t>(0x4E00 + random_() % 0x5000);
            else
                text += {static_cast<char16_t>(0xD800 + random_() % 0x400),
                         static_cast<char16_t>(0xDC00 + random_() % 0x400)};
        }
        return text;
    }
    ByteArray Blob() {
        ByteArray bytes(random_() % (random_() % 50 == 0 ? 70000 : 300));
        for (uint8_t& byte : bytes) byte = static_cast<uint8_t>(random_());
        return bytes;
    }

    std::mt19937 random_;
};

TEST(BagContentsTest, TenThousandBagsComeBackAsTheyWere) {
    for (uint32_t seed = 0; seed < 10000; ++seed) {
        const auto bag = BagMaker(seed).Make(12);
        const auto copy = Read(bag->Contents());
        ASSERT_EQ(copy->Names(), bag->Names()) << seed;
        for (const String& name : bag->Names()) {
            ASSERT_EQ(copy->ReadProperty(name), bag->ReadProperty(name)) << seed << name.Utf8();
        }
        ASSERT_EQ(copy->Contents(), bag->Contents()) << seed;
    }
}

TEST(BagContentsTest, EveryTruncationIsRefused) {
    for (uint32_t seed = 0; seed < 40; ++seed) {
        const ByteArray bytes = BagMaker(seed).Make(6)->Contents();
        const size_t step = bytes.size() / 500 + 1;
        for (size_t size = 1; size < bytes.size(); size += step) {
            ASSERT_NE(Refusal(ByteArray(bytes.begin(), bytes.begin() + size)), "") << seed << size;
        }
    }
}

// Either the change is refused or what was read can be written and read again.
TEST(BagContentsTest, EveryChangedByteIsRefusedOrGivesASoundBag) {
    for (uint32_t seed = 0; seed < 20; ++seed) {
        const ByteArray bytes = BagMaker(seed).Make(4)->Contents();
        for (size_t at = 0; at < std::min<size_t>(bytes.size(), 1000); ++at) {
            for (const int value : {0x00, 0x1B, 0x7F, 0x9F, 0xBB, 0xC0, 0xFF, bytes[at] ^ 1}) {
                ByteArray changed = bytes;
                changed[at] = static_cast<uint8_t>(value);
                if (!Refusal(changed).empty()) continue;
                const auto bag = Read(changed);
                ASSERT_EQ(Read(bag->Contents())->Contents(), bag->Contents());
            }
        }
    }
}

TEST(BagContentsTest, NoiseNeverHarms) {
    BagMaker maker(1);
    for (int round = 0; round < 20000; ++round) {
        ByteArray bytes(maker.Number() % 24 + 1);
        for (uint8_t& byte : bytes) byte = static_cast<uint8_t>(maker.Number() >> 8);
        if (round % 2 == 0) bytes[0] = static_cast<uint8_t>(0xA0 | bytes[0] % 4);
        if (Refusal(bytes).empty()) Read(bytes);
    }
}

}  // namespace
}  // namespace vxgui::ole
