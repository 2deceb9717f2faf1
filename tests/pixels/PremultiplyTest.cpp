#include "vxgui/pixels/Premultiply.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/pixels/Reference.h"

namespace vxgui {
namespace {

TEST(Premultiply, AgreesWithTheFormulaForEveryColourAndAlpha) {
    std::vector<ARGB> pixels, expected;
    for (int alpha = 0; alpha < 256; ++alpha) {
        for (int c = 0; c < 256; ++c) {
            const auto a = static_cast<uint8_t>(alpha), blue = static_cast<uint8_t>(c),
                       green = static_cast<uint8_t>(255 - c), red = static_cast<uint8_t>(c * 7);
            pixels.push_back({blue, green, red, a});
            expected.push_back({reference::PremultiplyByte(blue, a),
                                reference::PremultiplyByte(green, a),
                                reference::PremultiplyByte(red, a), a});
        }
    }
    Premultiply(pixels);
    EXPECT_EQ(pixels, expected);
}

TEST(Premultiply, FactorIsAlphaPlusOne) {
    ARGB pixel{0, 0, 255, 127};
    Premultiply({&pixel, 1});
    EXPECT_EQ(pixel, (ARGB{0, 0, 127, 127}));
}

TEST(Premultiply, ClearPixelsLoseTheirColour) {
    ARGB pixel{1, 2, 3, 0};
    Premultiply({&pixel, 1});
    EXPECT_EQ(pixel, ARGB{});
}

TEST(Premultiply, AllLengthsAndNothingBesides) {
    for (size_t length = 0; length < 70; ++length) {
        std::vector<ARGB> pixels(length + 2);
        for (size_t i = 0; i < pixels.size(); ++i) {
            pixels[i] = ARGBFromValue(static_cast<int32_t>(i * 2654435761u + length));
        }
        std::vector<ARGB> expected = pixels;
        for (size_t i = 1; i <= length; ++i) {
            ARGB& p = expected[i];
            p = {reference::PremultiplyByte(p.Blue, p.Alpha),
                 reference::PremultiplyByte(p.Green, p.Alpha),
                 reference::PremultiplyByte(p.Red, p.Alpha), p.Alpha};
        }
        Premultiply(std::span(pixels).subspan(1, length));
        ASSERT_EQ(pixels, expected) << "length " << length;
    }
}

TEST(Premultiply, NothingToDoForNothing) { Premultiply({}); }

}  // namespace
}  // namespace vxgui
