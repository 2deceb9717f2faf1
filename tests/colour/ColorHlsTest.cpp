#include "vxgui/colour/ColorHls.h"

#include <gtest/gtest.h>

#include "tests/colour/Reference.h"

namespace vxgui {
namespace {

TEST(ColorRGBToHLS, AgreesWithThePublishedStepsForAllColours) {
    for (int32_t rgb = 0; rgb <= 0xFFFFFF; ++rgb) {
        const Hls hls = HlsFromColorRef(rgb);
        const reference::HLS expected = reference::FromColorRef(rgb);
        if (hls.hue != expected.hue || hls.luminance != expected.lum ||
            hls.saturation != expected.sat) {
            FAIL() << std::hex << rgb;
        }
    }
}

TEST(ColorHLSToRGB, AgreesWithThePublishedStepsOnTheWholeScale) {
    for (int hue = 0; hue <= 240; ++hue) {
        for (int lum = 0; lum <= 240; ++lum) {
            for (int sat = 0; sat <= 240; ++sat) {
                if (ColorHLSToRGB(static_cast<uint16_t>(hue), static_cast<uint16_t>(lum),
                                  static_cast<uint16_t>(sat)) !=
                    reference::ToColorRef(hue, lum, sat)) {
                    FAIL() << hue << ", " << lum << ", " << sat;
                }
            }
        }
    }
}

TEST(ColorHLSToRGB, HuesBesideTheScaleWrapAsSixteenBits) {
    for (int hue = -32768; hue <= 32767; ++hue) {
        for (int lum : {1, 60, 120, 200}) {
            ASSERT_EQ(ColorHLSToRGB(static_cast<uint16_t>(hue), static_cast<uint16_t>(lum), 240),
                      reference::ToColorRef(hue, lum, 240))
                << hue;
        }
    }
}

TEST(ColorHLSToRGB, OtherValuesBesideTheScaleStayColours) {
    for (int lum : {241, 255, 300, 32767, 32768, 65535}) {
        for (int sat : {0, 1, 241, 1000, 65535}) {
            const int32_t color =
                ColorHLSToRGB(30, static_cast<uint16_t>(lum), static_cast<uint16_t>(sat));
            EXPECT_EQ(color & ~0xFFFFFF, 0) << lum << ", " << sat;
        }
    }
    EXPECT_EQ(ColorHLSToRGB(0, 241, 0), 0x000000);  // 241 * 255 / 240 is 256
}

struct Known {
    int32_t rgb;
    Hls hls;
};
const Known kKnown[] = {
    {0x000000, {160, 0, 0}},     {0xFFFFFF, {160, 240, 0}},   {0x808080, {160, 120, 0}},
    {0x0000FF, {0, 120, 240}},   {0x00FFFF, {40, 120, 240}},  {0x00FF00, {80, 120, 240}},
    {0xFFFF00, {120, 120, 240}}, {0xFF0000, {160, 120, 240}}, {0xFF00FF, {200, 120, 240}},
};

TEST(ColorRGBToHLS, PrimaryColoursLieWhereTheyShould) {
    for (const Known& known : kKnown) {
        const Hls hls = HlsFromColorRef(known.rgb);
        EXPECT_EQ(hls.hue, known.hls.hue) << std::hex << known.rgb;
        EXPECT_EQ(hls.luminance, known.hls.luminance) << std::hex << known.rgb;
        EXPECT_EQ(hls.saturation, known.hls.saturation) << std::hex << known.rgb;
    }
}

TEST(ColorRGBToHLS, TopByteDoesNotCount) {
    const Hls hls = HlsFromColorRef(static_cast<int32_t>(0x80123456));
    EXPECT_EQ(hls.hue, HlsFromColorRef(0x123456).hue);
    EXPECT_EQ(hls.luminance, HlsFromColorRef(0x123456).luminance);
}

TEST(ColorAdjustLuma, AgreesWithThePublishedSteps) {
    for (int32_t rgb = 0; rgb <= 0xFFFFFF; rgb += 4999) {
        const reference::HLS hls = reference::FromColorRef(rgb);
        for (int n : {-2000, -1000, -999, -500, -333, -1, 1, 3, 250, 500, 999, 1000, 5000}) {
            for (bool scale : {false, true}) {
                const int64_t lum = reference::Scaled(hls.lum, n, scale, true);
                ASSERT_EQ(ColorAdjustLuma(rgb, n, scale),
                          reference::ToColorRef(hls.hue, lum, hls.sat))
                    << std::hex << rgb << ", " << std::dec << n;
            }
        }
    }
}

TEST(ColorAdjustLuma, ByNothingAnswersTheColourAsItIs) {
    for (int32_t rgb : {0, 0x123456, 0x7F7F80, -1}) {
        EXPECT_EQ(ColorAdjustLuma(rgb, 0, true), rgb);
        EXPECT_EQ(ColorAdjustLuma(rgb, 0, false), rgb);
    }
}

TEST(ColorAdjustLuma, TruncatesWhereTheScaleRounds) {
    // (995 * 120 + 5 * 241) / 1000 is 120.605.
    EXPECT_EQ(ColorAdjustLuma(0x808080, 5, true), 0x7F7F7F);
}

}  // namespace
}  // namespace vxgui
