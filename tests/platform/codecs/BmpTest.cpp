#include "vxgui/platform/codecs/BmpDecoder.h"

#include <gtest/gtest.h>

#include "tests/support/Golden.h"
#include "vxgui/base/LittleEndian.h"

namespace vxgui::codecs {
namespace {

struct Bmp {
    int32_t width = 2;
    int32_t height = 1;
    uint16_t bits = 32;
    uint32_t compression = 0;
    std::vector<uint32_t> masks = {};
    std::vector<uint32_t> palette = {};
    std::vector<uint8_t> pixels = {};
    uint32_t used = 0;
};

void Append(std::vector<uint8_t>& bytes, uint64_t value, int size) {
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
}

std::vector<uint8_t> BytesOf(const Bmp& bmp) {
    std::vector<uint8_t> bytes = {'B', 'M'};
    const size_t offset = 54 + 4 * (bmp.masks.size() + bmp.palette.size());
    Append(bytes, offset + bmp.pixels.size(), 4);
    Append(bytes, 0, 4);
    Append(bytes, offset, 4);
    Append(bytes, 40, 4);
    Append(bytes, static_cast<uint32_t>(bmp.width), 4);
    Append(bytes, static_cast<uint32_t>(bmp.height), 4);
    Append(bytes, 1, 2);
    Append(bytes, bmp.bits, 2);
    Append(bytes, bmp.compression, 4);
    Append(bytes, 0, 8);
    Append(bytes, 0, 4);
    Append(bytes, bmp.used, 4);
    Append(bytes, 0, 4);
    for (const uint32_t mask : bmp.masks) Append(bytes, mask, 4);
    for (const uint32_t colour : bmp.palette) Append(bytes, colour, 4);
    bytes.insert(bytes.end(), bmp.pixels.begin(), bmp.pixels.end());
    return bytes;
}

std::optional<std::vector<uint32_t>> Decoded(const Bmp& bmp) {
    const std::vector<uint8_t> bytes = BytesOf(bmp);
    const auto image = DecodeImage(bytes);
    if (!image) return std::nullopt;
    return image->pixels;
}

using Pixels = std::vector<uint32_t>;

TEST(BmpDecoder, TheFourthByteIsNoAlphaUnlessTheCallerKeepsIt) {
    const Bmp bmp{.pixels = {1, 2, 3, 4, 5, 6, 7, 0}};
    EXPECT_EQ(Decoded(bmp), (Pixels{0xFF030201, 0xFF070605}));
    const std::vector<uint8_t> bytes = BytesOf(bmp);
    const auto kept = DecodeImage(OpenBmp(bytes, FourthByte::Kept));
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->pixels, (Pixels{0x04030201, 0x00070605}));
}

TEST(BmpDecoder, FiveBitsAreRepeatedFromTheTop) {
    for (uint32_t value = 0; value < 32; ++value) {
        Bmp bmp{.width = 1, .bits = 16};
        Append(bmp.pixels, value << 10 | value, 4);
        const uint32_t wide = value << 3 | value >> 2;
        EXPECT_EQ(Decoded(bmp), (Pixels{0xFF000000 | wide << 16 | wide}));
    }
}

TEST(BmpDecoder, EveryWidthOfAMaskRunsFromBlackToWhite) {
    for (int width = 1; width <= 30; ++width) {
        const uint32_t mask = (1u << width) - 1;
        Bmp bmp{.compression = 3, .masks = {mask, 0x80000000, 0x40000000}};
        Append(bmp.pixels, mask, 4);
        Append(bmp.pixels, 0xC0000000, 4);
        EXPECT_EQ(Decoded(bmp), (Pixels{0xFFFF0000, 0xFF00FFFF})) << width;
    }
}

TEST(BmpDecoder, AFourthMaskIsTheAlpha) {
    Bmp bmp{.compression = 6, .masks = {0xFF, 0xFF00, 0xFF0000, 0xFF000000}};
    bmp.pixels = {1, 2, 3, 4, 5, 6, 7, 0};
    EXPECT_EQ(Decoded(bmp), (Pixels{0x04010203, 0x00050607}));
}

TEST(BmpDecoder, MasksMustBeThereAndWithoutGaps) {
    const std::vector<uint8_t> pixels(8);
    EXPECT_TRUE(Decoded({.compression = 3, .masks = {0xFF, 0xFF00, 0xFF0000}, .pixels = pixels}));
    EXPECT_FALSE(Decoded({.compression = 3, .masks = {0x5, 0xFF00, 0xFF0000}, .pixels = pixels}));
    EXPECT_FALSE(Decoded({.compression = 3, .masks = {0, 0, 0}, .pixels = pixels}));
}

TEST(BmpDecoder, AnIndexWithoutAColourIsBlack) {
    const Bmp bmp{.width = 4,
                  .bits = 8,
                  .palette = {0x112233, 0x445566},
                  .pixels = {0, 1, 2, 255},
                  .used = 2};
    EXPECT_EQ(Decoded(bmp), (Pixels{0xFF112233, 0xFF445566, 0xFF000000, 0xFF000000}));
}

TEST(BmpDecoder, WithoutAPlacePixelsFollowThePalette) {
    const Bmp bmp{.width = 2,
                  .bits = 8,
                  .palette = {0x112233, 0x445566},
                  .pixels = {0, 1, 0, 0},
                  .used = 2};
    std::vector<uint8_t> bytes = BytesOf(bmp);
    StoreLittle<uint32_t>(&bytes[10], 0);
    const auto image = DecodeImage(bytes);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixels, (Pixels{0xFF112233, 0xFF445566}));
}

TEST(BmpDecoder, DepthAndCompressionMustFit) {
    const std::vector<uint8_t> pixels(64);
    for (const uint16_t bits : {0, 2, 3, 5, 12, 31, 48, 64}) {
        EXPECT_FALSE(Decoded({.bits = bits, .pixels = pixels})) << bits;
    }
    EXPECT_FALSE(Decoded({.bits = 4, .compression = 1, .pixels = pixels}));
    EXPECT_FALSE(Decoded({.bits = 8, .compression = 2, .pixels = pixels}));
    EXPECT_FALSE(Decoded({.bits = 24, .compression = 3, .pixels = pixels}));
    EXPECT_FALSE(Decoded({.bits = 24, .compression = 4, .pixels = pixels})) << "a JPEG within";
    EXPECT_FALSE(Decoded({.height = -1, .bits = 8, .compression = 1, .pixels = pixels}))
        << "runs have no top-down form";
}

TEST(BmpDecoder, SizesThatCannotBeAreRefused) {
    const std::vector<uint8_t> pixels(64);
    for (const int32_t width : {0, -1, INT32_MIN, INT32_MAX}) {
        EXPECT_FALSE(Decoded({.width = width, .pixels = pixels})) << width;
    }
    for (const int32_t height : {0, INT32_MIN, INT32_MAX, -INT32_MAX}) {
        EXPECT_FALSE(Decoded({.height = height, .pixels = pixels})) << height;
    }
}

// 4 x 2; colour 1 is red, colour 2 green.
Bmp Runs(std::vector<uint8_t> packed) {
    return {.width = 4,
            .height = 2,
            .bits = 8,
            .compression = 1,
            .palette = {0, 0xFF0000, 0xFF00},
            .pixels = std::move(packed),
            .used = 3};
}
constexpr uint32_t kBlack = 0xFF000000, kRed = 0xFFFF0000, kGreen = 0xFF00FF00;

TEST(BmpDecoder, RunsFillFromTheBottomRow) {
    EXPECT_EQ(Decoded(Runs({4, 1, 0, 0, 4, 2, 0, 1})),
              (Pixels{kGreen, kGreen, kGreen, kGreen, kRed, kRed, kRed, kRed}));
}

TEST(BmpDecoder, WhatRunsPassOverHasTheFirstColour) {
    EXPECT_EQ(Decoded(Runs({0, 2, 3, 1, 1, 1, 0, 1})),
              (Pixels{kBlack, kBlack, kBlack, kRed, kBlack, kBlack, kBlack, kBlack}));
}

TEST(BmpDecoder, ARunPastTheRowsEndIsCut) {
    EXPECT_EQ(Decoded(Runs({255, 1, 0, 0, 2, 2, 0, 1})),
              (Pixels{kGreen, kGreen, kBlack, kBlack, kRed, kRed, kRed, kRed}));
    EXPECT_TRUE(Decoded(Runs({0, 2, 255, 255, 9, 1, 0, 1}))) << "a jump out of the picture";
}

TEST(BmpDecoder, RunsMayLackTheirEndOnceThePictureIsFull) {
    EXPECT_TRUE(Decoded(Runs({4, 1, 0, 0, 4, 2})));
    EXPECT_FALSE(Decoded(Runs({4, 1, 0, 0, 3, 2})));
    EXPECT_FALSE(Decoded(Runs({4, 1, 0, 0, 0, 4, 1, 2}))) << "half a literal packet";
    EXPECT_FALSE(Decoded(Runs({4, 1, 0, 2, 1}))) << "half a jump";
}

}  // namespace
}  // namespace vxgui::codecs
