#include <gtest/gtest.h>

#include "tests/image/TgaBytes.h"
#include "tests/support/Images.h"
#include "vxgui/image/TgaPalette.h"
#include "vxgui/image/modTGA.h"
#include "vxgui/platform/codecs.h"

namespace vxgui {
namespace {

using test::TgaBytes;
using Colours = std::vector<ARGB>;

struct Result {
    int32_t status;
    Colours pixels;
};

Result ToArray(const TgaBytes& tga) {
    const std::vector<uint8_t> bytes = tga.Bytes();
    TgaRecord record;
    EXPECT_EQ(TgaParse(record, bytes.data(), static_cast<int32_t>(bytes.size())), 0);
    const int32_t status = TgaDecodeToArray(record);
    return {status, record.pixels};
}

// The surface's pixels start as a mark, and one more behind them must stay.
constexpr ARGB kMark{9, 9, 9, 9};
Result ToSurface(const TgaBytes& tga) {
    const std::vector<uint8_t> bytes = tga.Bytes();
    TgaRecord record;
    EXPECT_EQ(TgaParse(record, bytes.data(), static_cast<int32_t>(bytes.size())), 0);
    Colours pixels(static_cast<size_t>(tga.width * tga.height) + 1, kMark);
    const int32_t status = TgaDecodeToSurfaceBits(record, pixels.data());
    EXPECT_EQ(pixels.back(), kMark);
    pixels.pop_back();
    return {status, pixels};
}

ARGB Grey(uint8_t value) { return {255, 255, 255, value}; }
Colours Greys(const std::vector<uint8_t>& values) {
    Colours colours;
    for (const uint8_t value : values) colours.push_back(Grey(value));
    return colours;
}

TgaBytes Mapped(int entrySize, std::vector<uint8_t> map, int length, std::vector<uint8_t> pixels) {
    const int width = static_cast<int>(pixels.size());
    return {.mapType = 1,
            .imageType = 1,
            .mapLength = length,
            .mapEntrySize = entrySize,
            .width = width,
            .depth = 8,
            .map = std::move(map),
            .pixels = std::move(pixels)};
}

TEST(TgaDecode, AnEmptyPictureGives9) {
    EXPECT_EQ(ToArray({.width = 0}).status, 9);
    EXPECT_EQ(ToArray({.height = 0}).status, 9);
    EXPECT_EQ(ToArray({.width = 0, .height = 0, .depth = 15}).status, 9);
}

TEST(TgaDecode, EachTypeHasItsDepths) {
    struct Row {
        int type;
        std::vector<int> depths;
    };
    for (const Row& row : {Row{1, {8, 16, 24}}, Row{2, {16, 24, 32}}, Row{3, {8}},
                           Row{9, {8, 16, 24}}, Row{10, {16, 24, 32}}, Row{11, {8}}}) {
        for (const int depth : {8, 15, 16, 24, 32}) {
            const TgaBytes tga{.mapType = row.type % 8 == 1,
                               .imageType = row.type,
                               .mapLength = 1,
                               .mapEntrySize = 24,
                               .depth = depth,
                               .map = std::vector<uint8_t>(row.type % 8 == 1 ? 3 : 0),
                               .pixels = {0, 0, 0, 0, 0}};
            const bool fits = std::count(row.depths.begin(), row.depths.end(), depth) == 1;
            EXPECT_EQ(ToArray(tga).status, fits ? 0 : 8) << row.type << " of depth " << depth;
        }
    }
}

TEST(TgaDecode, Depth15PassesTheHeaderAndIsThenRefused) {
    EXPECT_EQ(ToArray({.depth = 15, .pixels = {0, 0}}).status, 8);
    EXPECT_EQ(ToArray({.depth = 15}).status, 8) << "without any pixels too";
}

TEST(TgaDecode, Rgb555LeavesTheLowBitsClear) {
    for (uint32_t value = 0; value <= 0xFFFF; ++value) {
        const ARGB expected{static_cast<uint8_t>((value & 31) << 3),
                            static_cast<uint8_t>((value >> 5 & 31) << 3),
                            static_cast<uint8_t>((value >> 10 & 31) << 3),
                            static_cast<uint8_t>(value >> 15 ? 255 : 0)};
        ASSERT_EQ(Rgb555(static_cast<uint16_t>(value)), expected);
    }
}

TEST(TgaDecode, TrueColourOf16BitsHasBit15AsAlpha) {
    const Result result = ToArray({.width = 2, .depth = 16, .pixels = {0xFF, 0x7F, 0x1F, 0x80}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.pixels, (Colours{{248, 248, 248, 0}, {248, 0, 0, 255}}));
}

TEST(TgaDecode, TrueColourOf24BitsIsOpaque) {
    EXPECT_EQ(ToArray({.width = 2, .depth = 24, .pixels = {1, 2, 3, 4, 5, 6}}).pixels,
              (Colours{{1, 2, 3, 255}, {4, 5, 6, 255}}));
}

TEST(TgaDecode, TrueColourOf32BitsIsTakenAsItIs) {
    for (const int descriptor : {0x00, 0x20}) {  // a block copy, and pixel by pixel
        EXPECT_EQ(ToArray({.width = 2,
                           .depth = 32,
                           .descriptor = descriptor,
                           .pixels = {1, 2, 3, 4, 5, 6, 7, 0}})
                      .pixels,
                  (Colours{{1, 2, 3, 4}, {5, 6, 7, 0}}));
    }
}

TEST(TgaDecode, GreyIsAWhitePictureWithThatMask) {
    EXPECT_EQ(ToArray({.imageType = 3, .width = 3, .depth = 8, .pixels = {0, 128, 255}}).pixels,
              (Colours{{255, 255, 255, 0}, {255, 255, 255, 128}, {255, 255, 255, 255}}));
}

TEST(TgaDecode, TheDescriptorTurnsRowsAndColumns) {
    struct Row {
        int descriptor;
        std::vector<uint8_t> expected;  // the bottom row first
    };
    for (const Row& row : {Row{0x00, {1, 2, 3, 4, 5, 6}}, Row{0x10, {3, 2, 1, 6, 5, 4}},
                           Row{0x20, {4, 5, 6, 1, 2, 3}}, Row{0x30, {6, 5, 4, 3, 2, 1}}}) {
        for (const int others : {0, 0xCF}) {  // no other bit counts
            const Result result = ToArray({.imageType = 3,
                                           .width = 3,
                                           .height = 2,
                                           .depth = 8,
                                           .descriptor = row.descriptor | others,
                                           .pixels = {1, 2, 3, 4, 5, 6}});
            EXPECT_EQ(result.pixels, Greys(row.expected)) << row.descriptor;
        }
    }
}

TEST(TgaDecode, TheFirstRowOfATopDownFileIsTheHighestOutputRow) {
    const Result result = ToArray({.imageType = 3,
                                   .width = 1,
                                   .height = 3,
                                   .depth = 8,
                                   .descriptor = 0x20,
                                   .pixels = {10, 20, 30}});
    EXPECT_EQ(result.pixels[2], Grey(10));
}

TEST(TgaDecode, SkipsTheIdentification) {
    EXPECT_EQ(ToArray({.idLength = 5, .pixels = {1, 2, 3}}).pixels, (Colours{{1, 2, 3, 255}}));
}

TEST(TgaDecode, PixelsThatEndEarlyAreUnreadable) {
    EXPECT_EQ(ToArray({.width = 2, .depth = 24, .pixels = {1, 2, 3, 4, 5}}).status, 1);
    EXPECT_EQ(ToArray({.width = 2, .depth = 32, .pixels = {1, 2, 3, 4, 5, 6, 7}}).status, 1);
    EXPECT_EQ(ToArray({.width = 2, .depth = 16, .pixels = {1, 2, 3}}).status, 1);
    TgaBytes mapped = Mapped(24, {1, 2, 3}, 1, {0});
    mapped.width = 2;
    EXPECT_EQ(ToArray(mapped).status, 1);
}

TEST(TgaDecode, AGreyPictureThatEndsEarlyIsNotTested) {
    const Result result = ToArray({.imageType = 3, .width = 3, .depth = 8, .pixels = {7}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.pixels, (Colours{Grey(7), {}, {}}));
}

TEST(TgaPalette, MapsOf24And32BitsBeginAt0WhateverTheirFirstEntry) {
    TgaBytes tga = Mapped(24, {1, 2, 3, 4, 5, 6}, 2, {0, 1});
    tga.mapFirst = 5;
    EXPECT_EQ(ToArray(tga).pixels, (Colours{{1, 2, 3, 255}, {4, 5, 6, 255}}));
    tga = Mapped(32, {1, 2, 3, 4, 5, 6, 7, 8}, 2, {1, 0});
    tga.mapFirst = 5;
    EXPECT_EQ(ToArray(tga).pixels, (Colours{{5, 6, 7, 8}, {1, 2, 3, 4}}));
}

TEST(TgaPalette, MapsOf15And16BitsBeginAtTheirFirstEntry) {
    // Three entries: red, green and blue without bit 15. The length bounds the index.
    const std::vector<uint8_t> map = {0x00, 0x7C, 0xE0, 0x03, 0x1F, 0x00};
    for (const int entrySize : {15, 16}) {
        const uint8_t alpha = entrySize == 15 ? 255 : 0;
        TgaBytes tga = Mapped(entrySize, map, 3, {0, 1, 2});
        EXPECT_EQ(ToArray(tga).pixels,
                  (Colours{{0, 0, 248, alpha}, {0, 248, 0, alpha}, {248, 0, 0, alpha}}));
        tga.mapFirst = 2;
        EXPECT_EQ(ToArray(tga).pixels, (Colours{{}, {}, {0, 0, 248, alpha}}));
    }
}

TEST(TgaPalette, AnEntryOf16BitsHasItsOwnAlpha) {
    EXPECT_EQ(ToArray(Mapped(16, {0x1F, 0x80, 0x1F, 0x00}, 2, {0, 1})).pixels,
              (Colours{{248, 0, 0, 255}, {248, 0, 0, 0}}));
}

TEST(TgaPalette, RunsFromZeroToFirstEntryPlusLength) {
    const std::vector<uint8_t> bytes = [] {
        TgaBytes tga = Mapped(24, {1, 2, 3}, 1, {0});
        tga.mapFirst = 7;
        return tga.Bytes();
    }();
    TgaRecord record;
    ASSERT_EQ(TgaParse(record, bytes.data(), static_cast<int32_t>(bytes.size())), 0);
    ASSERT_EQ(ReadTgaPalette(record), 0);
    EXPECT_EQ(record.palette.size(), 8u);
    EXPECT_EQ(record.imageData, bytes.data() + 21);
}

TEST(TgaPalette, MustEndWithinTheBlock) {
    struct Row {
        int entrySize, bytes;
    };
    for (const Row& row : {Row{15, 2}, Row{16, 2}, Row{24, 3}, Row{32, 4}}) {
        const std::vector<uint8_t> map(static_cast<size_t>(row.bytes * 3));
        TgaBytes tga{.mapType = 1,
                     .imageType = 3,
                     .mapLength = 3,
                     .mapEntrySize = row.entrySize,
                     .depth = 8,
                     .map = map};
        EXPECT_EQ(ToArray(tga).status, 0) << row.entrySize;
        tga.map.pop_back();
        EXPECT_EQ(ToArray(tga).status, 7) << row.entrySize;
    }
}

TEST(TgaPalette, IsReadForEveryImageType) {
    EXPECT_EQ(ToArray({.mapType = 1, .mapEntrySize = 24, .pixels = {1, 2, 3}}).status, 5);
    EXPECT_EQ(
        ToArray({.mapType = 1, .mapLength = 1, .mapEntrySize = 8, .pixels = {1, 2, 3}}).status, 6);
    EXPECT_EQ(ToArray({.mapType = 1,
                       .mapLength = 1,
                       .mapEntrySize = 24,
                       .map = {7, 7, 7},
                       .pixels = {1, 2, 3}})
                  .pixels,
              (Colours{{1, 2, 3, 255}}));
}

TEST(TgaPalette, WithoutAMapThePixelsFollowWhateverTheHeaderSaysOfOne) {
    EXPECT_EQ(
        ToArray({.mapType = 0, .mapLength = 9, .mapEntrySize = 24, .pixels = {1, 2, 3}}).pixels,
        (Colours{{1, 2, 3, 255}}));
    EXPECT_EQ(
        ToArray({.mapType = 2, .mapLength = 9, .mapEntrySize = 24, .pixels = {1, 2, 3}}).pixels,
        (Colours{{1, 2, 3, 255}}));
}

TEST(TgaDecode, AnIndexOutsideTheMapStopsWithItsNegative) {
    const std::vector<uint8_t> map = {1, 2, 3, 4, 5, 6};
    const Result result = ToArray(Mapped(24, map, 2, {1, 2, 0}));
    EXPECT_EQ(result.status, -2) << "an index equal to the length";
    EXPECT_EQ(result.pixels, (Colours{{4, 5, 6, 255}, {}, {}}));
    EXPECT_EQ(ToArray(Mapped(24, map, 2, {255})).status, -255);
}

TEST(TgaDecode, IndexesHave8Or16Or24Bits) {
    std::vector<uint8_t> map(3 * 300);
    map[3 * 290] = 42;
    for (const int depth : {16, 24}) {
        TgaBytes tga = Mapped(24, map, 300, {});
        tga.width = 2;
        tga.depth = depth;
        for (const int index : {290, 0}) {
            for (int i = 0; i < depth / 8; ++i)
                tga.pixels.push_back(static_cast<uint8_t>(index >> 8 * i));
        }
        EXPECT_EQ(ToArray(tga).pixels, (Colours{{42, 0, 0, 255}, {0, 0, 0, 255}})) << depth;
        tga.pixels[1] = 2;  // 546
        EXPECT_EQ(ToArray(tga).status, -(0x200 + 290 % 256)) << depth;
    }
}

TEST(TgaDecode, RunsAreUnpacked) {
    const TgaBytes tga{.imageType = 10,
                       .width = 3,
                       .height = 2,
                       .depth = 24,
                       .pixels = {0x82, 1, 2, 3, 0x01, 4, 5, 6, 7, 8, 9, 0x80, 10, 11, 12}};
    EXPECT_EQ(ToArray(tga).pixels, (Colours{{1, 2, 3, 255},
                                            {1, 2, 3, 255},
                                            {1, 2, 3, 255},
                                            {4, 5, 6, 255},
                                            {7, 8, 9, 255},
                                            {10, 11, 12, 255}}));
}

TEST(TgaDecode, RunsComeInAllTrueColourDepths) {
    EXPECT_EQ(
        ToArray({.imageType = 10, .width = 2, .depth = 16, .pixels = {0x81, 0x1F, 0x80}}).pixels,
        (Colours{{248, 0, 0, 255}, {248, 0, 0, 255}}));
    EXPECT_EQ(
        ToArray({.imageType = 10, .width = 2, .depth = 32, .pixels = {0x81, 1, 2, 3, 4}}).pixels,
        (Colours{{1, 2, 3, 4}, {1, 2, 3, 4}}));
}

TEST(TgaDecode, ARunPastThePicturesEndIsCut) {
    for (const int header : {0xFF, 0x7F}) {
        TgaBytes tga{.imageType = 10, .width = 2, .depth = 16};
        tga.pixels.assign(1 + 2 * 128, 0xFF);
        tga.pixels[0] = static_cast<uint8_t>(header);
        EXPECT_EQ(ToSurface(tga).pixels, Colours(2, {248, 248, 248, 255})) << header;
    }
}

TEST(TgaDecode, RunsThatEndEarlyLeaveTheRestClear) {
    const Result result =
        ToArray({.imageType = 10, .width = 3, .depth = 16, .pixels = {0x02, 0xFF, 0xFF, 0xFF}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.pixels, (Colours{{248, 248, 248, 255}, {}, {}}));
    EXPECT_EQ(ToArray({.imageType = 10, .width = 2, .depth = 32}).pixels, Colours(2, ARGB{}));
    EXPECT_EQ(ToArray({.imageType = 10, .width = 2, .depth = 32, .pixels = {0x81, 1, 2}}).pixels,
              Colours(2, ARGB{}));
}

TEST(TgaDecode, PackedMapsAndGreysDoNotYieldTheirPicture) {
    TgaBytes tga = Mapped(24, {1, 2, 3, 4, 5, 6}, 2, {0x81, 1});
    tga.imageType = 9;
    tga.width = 2;
    Result result = ToArray(tga);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.pixels, Colours(2, {1, 2, 3, 255})) << "the first colour all over";
    result = ToArray({.imageType = 11, .width = 2, .depth = 8, .pixels = {0x81, 77}});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.pixels, Greys({0, 0}));
}

TEST(TgaDecode, APictureOverTheLimitsIsUnreadable) {
    codecs::DecodeLimits& limits = codecs::ApartmentDecodeLimits();
    const codecs::DecodeLimits kept = limits;
    limits.area = 5;
    EXPECT_EQ(ToArray({.imageType = 10, .width = 5}).status, 0);
    EXPECT_EQ(ToArray({.imageType = 10, .width = 6}).status, 1);
    limits = kept;
    EXPECT_EQ(ToArray({.imageType = 10, .width = 65535, .height = 65535}).status, 1);
}

TEST(TgaSurface, ASquarePictureComesOutRight) {
    const TgaBytes tga{.imageType = 3, .width = 2, .height = 2, .depth = 8, .pixels = {1, 2, 3, 4}};
    EXPECT_EQ(ToSurface(tga).pixels, Greys({1, 2, 3, 4}));
}

TEST(TgaSurface, AForwardPictureOf32BitsIsCopiedWhole) {
    TgaBytes tga{.width = 3, .height = 2, .depth = 32};
    for (uint8_t i = 1; i <= 24; ++i) tga.pixels.push_back(i);
    EXPECT_EQ(ToSurface(tga).pixels, ToArray(tga).pixels);
}

TEST(TgaSurface, AWidePictureIsSheared) {
    const TgaBytes tga{
        .imageType = 3, .width = 3, .height = 2, .depth = 8, .pixels = {1, 2, 3, 4, 5, 6}};
    // The second row begins at pixel 2, the height, and covers the end of the first.
    EXPECT_EQ(ToSurface(tga).pixels, (Colours{Grey(1), Grey(2), Grey(4), Grey(5), Grey(6), kMark}));
}

TEST(TgaSurface, ATallPictureLeavesWhatFallsOutside) {
    const TgaBytes tga{
        .imageType = 3, .width = 2, .height = 3, .depth = 8, .pixels = {1, 2, 3, 4, 5, 6}};
    // Rows begin at pixels 0, 3 and 6; there are six.
    EXPECT_EQ(ToSurface(tga).pixels, (Colours{Grey(1), Grey(2), kMark, Grey(3), Grey(4), kMark}));
}

TEST(TgaSurface, APictureOf32BitsThatRunsDownIsShearedToo) {
    TgaBytes tga{.width = 1,
                 .height = 2,
                 .depth = 32,
                 .descriptor = 0x20,
                 .pixels = {1, 1, 1, 1, 2, 2, 2, 2}};
    // Row 1 (the file's first) lies at pixel 2, outside; row 0 at pixel 0.
    EXPECT_EQ(ToSurface(tga).pixels, (Colours{{2, 2, 2, 2}, kMark}));
}

TEST(TgaDecode, ReadsWhatOtherProgramsWrote) {
    for (const char* file : {"tga-24.tga", "tga-32.tga", "tga-32-rle.tga", "tga-palette.tga",
                             "tga-32-topdown-rle.tga"}) {
        SCOPED_TRACE(file);
        const std::vector<uint8_t> bytes = test::ReadTestFile(std::string("images/") + file);
        TgaRecord record;
        ASSERT_EQ(TgaParse(record, bytes.data(), static_cast<int32_t>(bytes.size())), 0);
        ASSERT_EQ(TgaDecodeToArray(record), 0);
        const test::TestPicture expected = test::ExpectedImage(file);
        ASSERT_EQ(record.pixels.size(), expected.pixels.size());
        for (int y = 0; y < 11; ++y) {
            for (int x = 0; x < 13; ++x) {
                EXPECT_EQ(static_cast<uint32_t>(ValueFromARGB(record.pixels[(10 - y) * 13 + x])),
                          expected.At(x, y));
            }
        }
    }
}

TEST(TgaDecode, SurvivesEveryTruncationAndChangedByte) {
    for (const char* file : {"tga-24.tga", "tga-32.tga", "tga-32-rle.tga", "tga-palette.tga",
                             "tga-32-topdown-rle.tga"}) {
        std::vector<uint8_t> bytes = test::ReadTestFile(std::string("images/") + file);
        const auto decode = [](const uint8_t* data, size_t size) {
            const std::vector<uint8_t> exact(data, data + size);  // a fence behind the last byte
            TgaRecord record;
            if (TgaParse(record, exact.data(), static_cast<int32_t>(size)) == 0)
                TgaDecodeToArray(record);
        };
        for (size_t size = 0; size <= bytes.size(); ++size) decode(bytes.data(), size);
        for (size_t at = 0; at < bytes.size(); ++at) {
            if (at >= 12 && at < 16 && at % 2) continue;  // the sides' high bytes: large, and slow
            for (const int change : {0x01, 0x80, 0xFF}) {
                bytes[at] = static_cast<uint8_t>(bytes[at] ^ change);
                decode(bytes.data(), bytes.size());
                bytes[at] = static_cast<uint8_t>(bytes[at] ^ change);
            }
        }
    }
}

}  // namespace
}  // namespace vxgui
