#include <gtest/gtest.h>

#include <vector>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/ColorWheel.h"
#include "vxgui/colour/frmAdjustHLS.h"

namespace vxgui {
namespace {

TEST(HueRGB, NegativeHuesAndFullTurnsComeIn) {
    EXPECT_EQ(PureHue(-1), PureHue(359));
    EXPECT_EQ(PureHue(-360), PureHue(0));
    EXPECT_EQ(PureHue(-361), PureHue(359));
    EXPECT_EQ(PureHue(721), PureHue(1));
    EXPECT_EQ(PureHue(360), (WheelColor{255, 0, 0}));
    EXPECT_EQ(PureHue(INT32_MIN), PureHue(-128));
    EXPECT_EQ(PureHue(INT32_MAX), PureHue(127));
}

TEST(HueRGB, GoesThroughTheSixColours) {
    EXPECT_EQ(PureHue(0), (WheelColor{255, 0, 0}));
    EXPECT_EQ(PureHue(60), (WheelColor{255, 255, 0}));
    EXPECT_EQ(PureHue(120), (WheelColor{0, 255, 0}));
    EXPECT_EQ(PureHue(180), (WheelColor{0, 255, 255}));
    EXPECT_EQ(PureHue(240), (WheelColor{0, 0, 255}));
    EXPECT_EQ(PureHue(300), (WheelColor{255, 0, 255}));
    EXPECT_EQ(PureHue(30), (WheelColor{255, 128, 0}));  // 127.5
    EXPECT_EQ(PureHue(2), (WheelColor{255, 8, 0}));     // 8.5
}

TEST(HueRGB, IsAnOperationOfTheForm) {
    int32_t r = 0, g = 0, b = 0;
    New<frmAdjustHLS>()->HueRGB(90, r, g, b);
    EXPECT_EQ((WheelColor{r, g, b}), PureHue(90));
}

TEST(HlsColor, HalfLightFullSaturationIsPure) {
    const auto form = New<frmAdjustHLS>();
    EXPECT_EQ(form->HLSCOLOR(0, 120, 240), 0x0000FF);
    EXPECT_EQ(form->HLSCOLOR(120, 120, 240), 0x00FF00);
    EXPECT_EQ(form->HLSCOLOR(240, 120, 240), 0xFF0000);
    EXPECT_EQ(form->HLSCOLOR(60, 120, 240), 0x00FFFF);
}

TEST(HlsColor, TheEndsOfTheLightAreBlackAndWhite) {
    const auto form = New<frmAdjustHLS>();
    EXPECT_EQ(form->HLSCOLOR(77, 0, 200), 0);
    EXPECT_EQ(form->HLSCOLOR(77, 240, 200), 0xFFFFFF);
}

TEST(HlsColor, WithoutSaturationIsGrey) {
    const auto form = New<frmAdjustHLS>();
    EXPECT_EQ(form->HLSCOLOR(0, 120, 0), 0x808080);
    EXPECT_EQ(form->HLSCOLOR(200, 60, 0), 0x404040);
}

TEST(RingColor, AtNoughtTheInnerRingIsTheOuterAndTheMiddleIsWashed) {
    for (int angle = 0; angle < 360; ++angle) {
        const WheelColor pure = PureHue(angle);
        EXPECT_EQ(RingColor(0, angle, {}), pure);
        EXPECT_EQ(RingColor(2, angle, {}), pure);
        const auto washed = [](int32_t channel) { return RoundHalfEven(channel / 2.0 + 64); };
        EXPECT_EQ(RingColor(1, angle, {}),
                  (WheelColor{washed(pure.red), washed(pure.green), washed(pure.blue)}));
    }
}

TEST(RingColor, TheHueTurnsTheInnerRings) {
    EXPECT_EQ(RingColor(2, 10, {50, 0, 0, false}), PureHue(60));
    EXPECT_EQ(RingColor(0, 10, {50, 0, 0, false}), PureHue(10));
    EXPECT_EQ(RingColor(1, 10, {50, 100, 0, false}), PureHue(60));
}

TEST(RingColor, LightnessMixesWithWhiteOrBlack) {
    EXPECT_EQ(RingColor(2, 0, {0, 0, 100, false}), (WheelColor{255, 255, 255}));
    EXPECT_EQ(RingColor(2, 0, {0, 0, -100, false}), (WheelColor{0, 0, 0}));
    EXPECT_EQ(RingColor(2, 0, {0, 0, 50, false}), (WheelColor{255, 128, 128}));
    EXPECT_EQ(RingColor(2, 0, {0, 0, -50, false}), (WheelColor{128, 0, 0}));
}

TEST(RingColor, UnderColourizeTheInnerRingIsOneColour) {
    const WheelValues values{120, 100, 0, true};
    for (int angle = 0; angle < 360; angle += 17) {
        EXPECT_EQ(RingColor(2, angle, values), PureHue(120));
        EXPECT_EQ(RingColor(1, angle, values), PureHue(120 + angle));
        EXPECT_EQ(RingColor(0, angle, values), PureHue(angle));
    }
    EXPECT_EQ(RingColor(2, 5, {120, 0, 0, true}), (WheelColor{128, 128, 128}));
}

TEST(ColorWheel, AngleNoughtIsAtTheTopAndAnglesGrowAnticlockwise) {
    const ColorWheel wheel;
    const auto at = [&](int radius, int angle) {
        const gdi::POINT point = wheel.PointAt(radius, angle);
        return std::pair(point.x, point.y);
    };
    EXPECT_EQ(at(0, 0), std::pair(75, 0));
    EXPECT_EQ(at(0, 90), std::pair(0, 75));
    EXPECT_EQ(at(0, 180), std::pair(75, 150));
    EXPECT_EQ(at(0, 270), std::pair(150, 75));
    EXPECT_EQ(at(5, 90), std::pair(49, 75));
    EXPECT_EQ(at(0, 360), at(0, 0));
}

TEST(ColorWheel, HasAWedgeForEachAngleAndRing) {
    const ColorWheel wheel;
    for (int angle = 0; angle < ColorWheel::kAngles; ++angle) {
        for (int ring = 0; ring < kWheelRings; ++ring) {
            EXPECT_NE(wheel.Wedge(ring, angle), nullptr) << ring << " " << angle;
        }
    }
}

TEST(ColorWheel, PaintsItsRingsWithoutASeam) {
    const ColorWheel wheel;
    std::vector<uint32_t> pixels(150 * 150, 0x123456);
    const gdi::HDC dc = gdi::CreateHostDC({pixels.data(), 150, 150, 600, false});
    wheel.Paint(dc, {});
    gdi::DeleteDC(dc);
    const auto at = [&](int x, int y) { return pixels[static_cast<size_t>(y * 150 + x)]; };
    for (int y = 0; y < 150; ++y) {
        for (int x = 0; x < 150; ++x) {
            const double dx = x + 0.5 - 75, dy = y + 0.5 - 75, d = dx * dx + dy * dy;
            const bool ring = (d < 73 * 73 && d > 62 * 62) || (d < 56 * 56 && d > 45 * 45) ||
                              (d < 39 * 39 && d > 28 * 28);
            if (ring) {
                EXPECT_NE(at(x, y), 0x123456u) << x << " " << y;
            }
        }
    }
    EXPECT_EQ(at(0, 0), 0x123456u);
    EXPECT_GT(at(75, 3) >> 16, 250u);         // red at the top
    EXPECT_GT(at(12, 110) >> 8 & 255, 200u);  // green at the lower left
    EXPECT_GT(at(138, 110) & 255, 200u);      // blue at the lower right
}

}  // namespace
}  // namespace vxgui
