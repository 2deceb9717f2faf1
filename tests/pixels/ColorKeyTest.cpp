#include "vxgui/pixels/ColorKey.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/pixels/Reference.h"

namespace vxgui {
namespace {

/// Pixels around a key: each channel at, beside, and far from the key's, in every combination
/// and with several alphas.
std::vector<ARGB> PixelsAround(uint32_t key) {
    std::vector<ARGB> pixels;
    const auto near = [](uint32_t channel) {
        const auto c = static_cast<uint8_t>(channel);
        return std::vector<uint8_t>{c, static_cast<uint8_t>(c + 1), static_cast<uint8_t>(c - 1),
                                    static_cast<uint8_t>(c ^ 128), static_cast<uint8_t>(~c)};
    };
    for (uint8_t red : near(key)) {
        for (uint8_t green : near(key >> 8)) {
            for (uint8_t blue : near(key >> 16)) {
                for (uint8_t alpha : {0, 1, 127, 254, 255}) {
                    pixels.push_back({blue, green, red, alpha});
                }
            }
        }
    }
    return pixels;
}

const uint32_t kKeys[] = {0xFF00FF,   0x000000,   0xFFFFFF,   0x0000FF,  0xFF0000, 0x00FF00,
                          0x123456,   0x654321,   0x7F8081,   0x010101,  0xFEFEFE, 0x00FFFF,
                          0xFF123456, 0x80000005, 0xFFFFFFFF, 0x01000000};

TEST(MergeByKey, CopiesAllThatIsNotTheKey) {
    for (uint32_t key : kKeys) {
        const std::vector<ARGB> source = PixelsAround(key);
        std::vector<ARGB> target, expected;
        for (size_t i = 0; i < source.size(); ++i) {
            target.push_back(ARGBFromValue(static_cast<int32_t>(i * 2654435761u)));
            expected.push_back(reference::Matches(source[i], key) ? target[i] : source[i]);
        }
        ASSERT_NE(expected, source);
        MergeByKey(source, target, key);
        EXPECT_EQ(target, expected) << std::hex << key;
    }
}

TEST(MergeByKey, RedOfTheKeyIsItsLowestByte) {
    const ARGB source[] = {{0, 0, 255, 9}, {255, 0, 0, 9}};
    ARGB target[2];
    MergeByKey(source, target, 0x0000FF);
    EXPECT_EQ(target[0], ARGB{});
    EXPECT_EQ(target[1], source[1]);
}

TEST(MergeByKey, StopsAtTheShorterOfTheTwo) {
    const std::vector<ARGB> source(2, ARGB{1, 1, 1, 1});
    std::vector<ARGB> target(3);
    MergeByKey(source, target, 0xFF00FF);
    EXPECT_EQ(target[1], source[1]);
    EXPECT_EQ(target[2], ARGB{});
}

TEST(MergeByKey, EndsWhereThePixelsDo) {
    constexpr uint32_t kKey = 0x00CC8811;
    const ARGB key{0xCC, 0x88, 0x11, 7}, beyond{1, 2, 3, 4};
    for (size_t count = 0; count <= 130; ++count) {
        std::vector<ARGB> source, target(count + 1, beyond), expected = target;
        for (size_t i = 0; i < count; ++i) {
            source.push_back(i % 3 == 1 ? key : ARGBFromValue(static_cast<int32_t>(i * 40503u)));
            if (i % 3 != 1) expected[i] = source[i];
        }
        MergeByKey(source, target, kKey);
        ASSERT_EQ(target, expected) << count;
    }
}

TEST(SetAlphaByKey, KeepsTheOtherAlphasWhenNoneIsGiven) {
    for (uint32_t key : kKeys) {
        std::vector<ARGB> pixels = PixelsAround(key), expected = pixels;
        for (ARGB& pixel : expected) {
            if (reference::Matches(pixel, key)) pixel.Alpha = 0;
        }
        ASSERT_NE(expected, pixels);
        SetAlphaByKey(pixels, key, 0, std::nullopt);
        EXPECT_EQ(pixels, expected) << std::hex << key;
    }
}

TEST(SetAlphaByKey, GivesEveryPixelADefinedAlpha) {
    for (uint32_t key : kKeys) {
        for (uint8_t other : {255, 0, 77}) {
            std::vector<ARGB> pixels = PixelsAround(key), expected = pixels;
            for (ARGB& pixel : expected) {
                pixel.Alpha = reference::Matches(pixel, key) ? 3 : other;
            }
            SetAlphaByKey(pixels, key, 3, other);
            EXPECT_EQ(pixels, expected) << std::hex << key;
        }
    }
}

TEST(MaskByColor, MatchingPixelsBecomeClearAndOthersOpaqueBlack) {
    for (uint32_t key : kKeys) {
        std::vector<ARGB> pixels = PixelsAround(key), expected;
        for (ARGB pixel : pixels) {
            expected.push_back(reference::Matches(pixel, key) ? ARGB{} : ARGB{0, 0, 0, 255});
        }
        MaskByColor(pixels, SwapRedBlue(key) | (key & 0xFF000000));
        EXPECT_EQ(pixels, expected) << std::hex << key;
    }
}

TEST(MaskByColor, TakesTheColourInPixelForm) {
    ARGB pixels[] = {{255, 0, 0, 9}, {0, 0, 255, 9}};
    MaskByColor(pixels, 0x0000FF);
    EXPECT_EQ(pixels[0], ARGB{});
    EXPECT_EQ(pixels[1], (ARGB{0, 0, 0, 255}));
}

TEST(MergeByKey, RunsOfTheKeyHideNoStrayPixel) {
    constexpr uint32_t kKey = 0x00CC8811;
    const ARGB key{0xCC, 0x88, 0x11, 7}, other{0xCC, 0x88, 0x10, 7};
    for (size_t stray = 0; stray <= 200; ++stray) {
        std::vector<ARGB> source(201, key), target;
        source[stray] = other;
        for (size_t i = 0; i < source.size(); ++i) {
            target.push_back(ARGBFromValue(static_cast<int32_t>(i * 2654435761u)));
        }
        std::vector<ARGB> expected = target;
        expected[stray] = other;
        MergeByKey(source, target, kKey);
        ASSERT_EQ(target, expected) << stray;
    }
}

}  // namespace
}  // namespace vxgui
