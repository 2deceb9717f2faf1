#include "vxgui/platform/codecs/GifDecoder.h"

#include <gtest/gtest.h>

namespace vxgui::codecs {
namespace {

struct Gif {
    int canvasWidth = 2, canvasHeight = 2;
    int left = 0, top = 0, width = 2, height = 2;
    std::vector<int> indexes = {1, 2, 3, 0};
    int transparent = -1;
    bool colours = true;
};

void Append16(std::vector<uint8_t>& bytes, int value) {
    bytes.push_back(static_cast<uint8_t>(value));
    bytes.push_back(static_cast<uint8_t>(value >> 8));
}

// Codes of 3 bits: 4 clears the table often enough that they never grow, 5 ends.
std::vector<uint8_t> Packed(const std::vector<int>& indexes) {
    std::vector<int> codes;
    for (const int index : indexes) codes.insert(codes.end(), {4, index});
    codes.push_back(5);
    std::vector<uint8_t> bytes((codes.size() * 3 + 7) / 8);
    for (size_t bit = 0; bit < codes.size() * 3; ++bit) {
        bytes[bit / 8] |= static_cast<uint8_t>((codes[bit / 3] >> bit % 3 & 1) << bit % 8);
    }
    return bytes;
}

std::vector<uint8_t> BytesOf(const Gif& gif) {
    std::vector<uint8_t> bytes = {'G', 'I', 'F', '8', '9', 'a'};
    Append16(bytes, gif.canvasWidth);
    Append16(bytes, gif.canvasHeight);
    bytes.insert(bytes.end(), {static_cast<uint8_t>(gif.colours ? 0x81 : 0x01), 0, 0});
    if (gif.colours) bytes.insert(bytes.end(), {1, 2, 3, 255, 0, 0, 0, 255, 0, 0, 0, 255});
    if (gif.transparent >= 0) {
        bytes.insert(bytes.end(),
                     {0x21, 0xF9, 4, 1, 0, 0, static_cast<uint8_t>(gif.transparent), 0});
    }
    bytes.push_back(0x2C);
    for (const int value : {gif.left, gif.top, gif.width, gif.height}) Append16(bytes, value);
    const std::vector<uint8_t> packed = Packed(gif.indexes);
    bytes.insert(bytes.end(), {0, 2, static_cast<uint8_t>(packed.size())});
    bytes.insert(bytes.end(), packed.begin(), packed.end());
    bytes.insert(bytes.end(), {0, 0x3B});
    return bytes;
}

using Pixels = std::vector<uint32_t>;

Pixels Decoded(const Gif& gif) {
    const auto image = DecodeImage(BytesOf(gif));
    return image ? image->pixels : Pixels{};
}

constexpr uint32_t kFirst = 0xFF010203, kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF;

TEST(GifDecoder, PlacesTheFrameOnItsCanvas) {
    EXPECT_EQ(Decoded({.canvasWidth = 3, .canvasHeight = 2, .left = 1, .top = 1, .height = 1}),
              (Pixels{0, 0, 0, 0, kRed, kGreen}));
}

TEST(GifDecoder, CutsAFrameThatLeavesTheCanvas) {
    EXPECT_EQ(Decoded({.canvasWidth = 1, .canvasHeight = 1}), (Pixels{kRed}));
    EXPECT_EQ(Decoded({.left = 1, .top = 1}), (Pixels{0, 0, 0, kRed}));
    EXPECT_EQ(Decoded({.left = 9, .top = 9}), (Pixels{0, 0, 0, 0}));
}

TEST(GifDecoder, ACanvasWithoutASizeTakesTheFrames) {
    EXPECT_EQ(Decoded({.canvasWidth = 0, .canvasHeight = 0}),
              (Pixels{kRed, kGreen, kBlue, kFirst}));
}

TEST(GifDecoder, ATransparentPixelKeepsItsColour) {
    EXPECT_EQ(Decoded({.transparent = 2}), (Pixels{kRed, 0x0000FF00, kBlue, kFirst}));
}

TEST(GifDecoder, AnIndexWithoutAColourIsBlack) {
    EXPECT_EQ(Decoded({.colours = false}), Pixels(4, 0xFF000000));
}

TEST(GifDecoder, MissingPixelsAreNoPicture) {
    EXPECT_EQ(Decoded({.indexes = {1, 2, 3}}), Pixels{});
}

}  // namespace
}  // namespace vxgui::codecs
