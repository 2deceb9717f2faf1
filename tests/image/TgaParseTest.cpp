#include <gtest/gtest.h>

#include "tests/image/TgaBytes.h"
#include "vxgui/image/TgaExtension.h"
#include "vxgui/image/modTGA.h"

namespace vxgui {
namespace {

using test::TgaBytes;

int32_t Parse(const std::vector<uint8_t>& bytes, TgaRecord& record) {
    return TgaParse(record, bytes.data(), static_cast<int32_t>(bytes.size()));
}
int32_t Parse(const TgaBytes& tga) {
    TgaRecord record;
    return Parse(tga.Bytes(), record);
}

TEST(TgaParse, ABlockBelow18BytesIsTooShort) {
    TgaRecord record;
    EXPECT_EQ(Parse(std::vector<uint8_t>(17), record), 2);
    EXPECT_EQ(TgaParse(record, nullptr, 17), 2);
    EXPECT_EQ(TgaParse(record, nullptr, -1), 2);
    EXPECT_NE(Parse(std::vector<uint8_t>(18), record), 2);
}

TEST(TgaParse, ABlockThatIsNotThereIsUnreadable) {
    TgaRecord record;
    EXPECT_EQ(TgaParse(record, nullptr, 18), 1);
    EXPECT_EQ(TgaParse(record, reinterpret_cast<void*>(16), 18), 1);
}

TEST(TgaParse, KnowsSixImageTypes) {
    for (int type = 0; type < 256; ++type) {
        const TgaBytes tga{
            .mapType = 1, .imageType = type, .mapLength = 1, .mapEntrySize = 24, .depth = 8};
        const bool known =
            type == 1 || type == 2 || type == 3 || type == 9 || type == 10 || type == 11;
        EXPECT_EQ(Parse(tga), known ? 0 : 3) << type;
    }
}

TEST(TgaParse, AMappedPictureNeedsItsMap) {
    for (const int type : {1, 9}) {
        const TgaBytes good{
            .mapType = 1, .imageType = type, .mapLength = 2, .mapEntrySize = 24, .depth = 8};
        EXPECT_EQ(Parse(good), 0);
        for (const int mapType : {0, 2, 255}) {
            TgaBytes tga = good;
            tga.mapType = mapType;
            tga.mapLength = 0;  // the type is looked at first
            EXPECT_EQ(Parse(tga), 4) << mapType;
        }
        TgaBytes tga = good;
        tga.mapLength = 0;
        tga.mapEntrySize = 7;  // the length is looked at before the entry size
        EXPECT_EQ(Parse(tga), 5);
    }
}

TEST(TgaParse, KnowsFourEntrySizesAndFiveDepths) {
    for (int bits = 0; bits < 256; ++bits) {
        const bool entry = bits == 15 || bits == 16 || bits == 24 || bits == 32;
        EXPECT_EQ(
            Parse({.mapType = 1, .imageType = 1, .mapLength = 1, .mapEntrySize = bits, .depth = 9}),
            entry ? 8 : 6);
        for (const int type : {1, 2, 3, 9, 10, 11}) {
            const TgaBytes tga{
                .mapType = 1, .imageType = type, .mapLength = 1, .mapEntrySize = 24, .depth = bits};
            EXPECT_EQ(Parse(tga), entry || bits == 8 ? 0 : 8) << type << " of depth " << bits;
        }
    }
}

TEST(TgaParse, TrueColourAndGreyDoNotLookAtTheMap) {
    EXPECT_EQ(Parse({.mapType = 7, .imageType = 2, .mapEntrySize = 3}), 0);
    EXPECT_EQ(Parse({.mapType = 1, .imageType = 3, .mapEntrySize = 3, .depth = 8}), 0);
}

TEST(TgaParse, ReadsTheHeaderFields) {
    const TgaBytes tga{.idLength = 3,
                       .mapType = 1,
                       .imageType = 1,
                       .mapFirst = 0x1234,
                       .mapLength = 2,
                       .mapEntrySize = 32,
                       .width = 0x5678,
                       .height = 0x9ABC,
                       .depth = 8,
                       .descriptor = 0x30,
                       .map = {1, 2, 3, 4, 5, 6, 7, 8},
                       .pixels = {9}};
    const std::vector<uint8_t> bytes = tga.Bytes();
    TgaRecord record;
    ASSERT_EQ(Parse(bytes, record), 0);
    EXPECT_EQ(record.start, bytes.data());
    EXPECT_EQ(record.size, static_cast<int32_t>(bytes.size()));
    EXPECT_EQ(record.header.idLength, 3);
    EXPECT_EQ(record.header.mapFirst, 0x1234);
    EXPECT_EQ(record.header.mapLength, 2);
    EXPECT_EQ(record.header.mapEntrySize, 32);
    EXPECT_EQ(record.header.width, 0x5678);
    EXPECT_EQ(record.header.height, 0x9ABC);
    EXPECT_EQ(record.header.depth, 8);
    EXPECT_EQ(record.header.descriptor, 0x30);
    EXPECT_EQ(record.imageData, bytes.data() + 18 + 3 + 8);
    EXPECT_EQ(record.attributesType, 3);
}

TEST(TgaParse, PointsNoFurtherThanTheBlocksEnd) {
    const std::vector<uint8_t> bytes =
        TgaBytes{.idLength = 0, .mapLength = 1000, .mapEntrySize = 32}.Bytes();
    TgaRecord record;
    ASSERT_EQ(Parse(bytes, record), 0);
    EXPECT_EQ(record.imageData, bytes.data() + bytes.size());
}

// The comparison is of bytes with characters, and never matches.
TEST(TgaParse, NeverRecognisesItsFooter) {
    TgaBytes tga{.pixels = std::vector<uint8_t>(600), .footer = true, .extensionOffset = 18};
    tga.pixels[494] = 4;
    const std::vector<uint8_t> bytes = tga.Bytes();
    TgaRecord record;
    ASSERT_EQ(Parse(bytes, record), 0);
    EXPECT_EQ(record.footer, nullptr);
    EXPECT_EQ(record.extension, nullptr);
    EXPECT_EQ(record.attributesType, 3);
    EXPECT_EQ(record.footerBytes[0], 18) << "the bytes are kept all the same";
    EXPECT_EQ(record.footerBytes[8], 'T');
}

TEST(TgaExtension, GivesTheAttributesTypeWithinItsBounds) {
    TgaBytes tga{.idLength = 2, .pixels = std::vector<uint8_t>(600), .footer = true};
    tga.pixels[494] = 4;    // of an area right behind the identification
    tga.pixels.back() = 7;  // of an area that ends with the footer's start
    const int32_t size = static_cast<int32_t>(tga.Bytes().size());
    struct Case {
        int32_t offset, result;
        uint8_t type;
    };
    for (const Case& each : {Case{19, 2, 3}, Case{20, 0, 4}, Case{size - 521, 0, 7},
                             Case{size - 520, 3, 3}, Case{-1, 2, 3}, Case{0, 2, 3}}) {
        tga.extensionOffset = static_cast<uint32_t>(each.offset);
        const std::vector<uint8_t> bytes = tga.Bytes();
        TgaRecord record;
        ASSERT_EQ(Parse(bytes, record), 0);
        EXPECT_EQ(ReadTgaExtension(record), each.result) << each.offset;
        EXPECT_EQ(record.attributesType, each.type) << each.offset;
        EXPECT_EQ(record.extension, each.result ? nullptr : bytes.data() + each.offset);
    }
}

TEST(TgaHasFooter, MatchesTheSignatureAtTheEnd) {
    std::vector<uint8_t> bytes = TgaBytes{.pixels = {1, 2, 3}, .footer = true}.Bytes();
    const auto has = [&] { return TgaHasFooter(bytes.data(), static_cast<int32_t>(bytes.size())); };
    EXPECT_TRUE(has());
    bytes.push_back(0);
    EXPECT_FALSE(has()) << "it must be the end";
    bytes.pop_back();
    for (size_t i = bytes.size() - 18; i < bytes.size(); ++i) {
        bytes[i] ^= 1;
        EXPECT_FALSE(has()) << i;
        bytes[i] ^= 1;
    }
    EXPECT_FALSE(TgaHasFooter(nullptr, 100));
    EXPECT_FALSE(TgaHasFooter(reinterpret_cast<void*>(16), 100));
    EXPECT_FALSE(TgaHasFooter(bytes.data(), -1));
}

TEST(TgaHasFooter, ABlockOf44BytesHasNone) {
    std::vector<uint8_t> bytes = TgaBytes{.footer = true}.Bytes();
    ASSERT_EQ(bytes.size(), 44u);
    EXPECT_FALSE(TgaHasFooter(bytes.data(), 44));
    bytes.insert(bytes.begin() + 18, 0);
    EXPECT_TRUE(TgaHasFooter(bytes.data(), 45));
}

}  // namespace
}  // namespace vxgui
