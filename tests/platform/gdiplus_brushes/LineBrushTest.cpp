#include <gtest/gtest.h>

#include <cmath>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB kBlack = 0xFF000000, kWhite = 0xFFFFFFFF, kRed = 0xFFFF0000, kBlue = 0xFF0000FF;

class GdiplusLineBrush : public test::BrushFixture {
protected:
    GpBrush* Line(GpPointF from, GpPointF to, ARGB first = kBlack, ARGB second = kWhite,
                  WrapMode wrap = WrapModeTile) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(GdipCreateLineBrush(&from, &to, first, second, wrap, &brush), Ok);
        return Keep(brush);
    }
    GpBrush* InRect(GpRectF rect, REAL angle, BOOL scalable, ARGB first = kBlack,
                    ARGB second = kWhite) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(GdipCreateLineBrushFromRectWithAngle(&rect, first, second, angle, scalable,
                                                       WrapModeTile, &brush),
                  Ok);
        return Keep(brush);
    }
    GpBrush* ByMode(GpRectF rect, int mode) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(
            GdipCreateLineBrushFromRect(
                &rect, kBlack, kWhite, static_cast<LinearGradientMode>(mode), WrapModeTile, &brush),
            Ok);
        return Keep(brush);
    }
};

int GrayAt(const test::TestPicture& picture, int x, int y) {
    return static_cast<int>(picture.At(x, y) & 255);
}

// The gray of a place between black and white.
void ExpectGray(const test::TestPicture& picture, int x, int y, double share, int tolerance = 1) {
    EXPECT_NEAR(GrayAt(picture, x, y), share * 255, tolerance) << x << ", " << y;
}

TEST_F(GdiplusLineBrush, RunsBetweenItsPoints) {
    const auto picture = Paint(Line({0, 0}, {100, 0}), 100, 3);
    for (int x = 0; x < 100; ++x) {
        for (int y = 0; y < 3; ++y) ExpectGray(picture, x, y, (x + 0.5) / 100);
    }
}

TEST_F(GdiplusLineBrush, RunsAtRightAnglesToASlopedLine) {
    const auto picture = Paint(Line({0, 0}, {60, 30}), 60, 60);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 60; ++x) {
            const double place = ((x + 0.5) * 60 + (y + 0.5) * 30) / (60 * 60 + 30 * 30);
            if (std::abs(place - std::round(place)) < 0.01) continue;  // the seam
            ExpectGray(picture, x, y, place - std::floor(place), 2);
        }
    }
}

TEST_F(GdiplusLineBrush, TilesBeyondItsPointsOrMirrors) {
    const auto tiled = Paint(Line({0, 0}, {50, 0}), 150, 1);
    const auto mirrored = Paint(Line({0, 0}, {50, 0}, kBlack, kWhite, WrapModeTileFlipX), 150, 1);
    const auto acrossOnly = Paint(Line({0, 0}, {50, 0}, kBlack, kWhite, WrapModeTileFlipY), 150, 1);
    for (int x = 0; x < 50; ++x) {
        ExpectGray(tiled, x + 50, 0, (x + 0.5) / 50, 2);
        ExpectGray(mirrored, x + 50, 0, 1 - (x + 0.5) / 50, 2);
        ExpectGray(mirrored, x + 100, 0, (x + 0.5) / 50, 2);
    }
    EXPECT_EQ(acrossOnly.pixels, tiled.pixels);
}

TEST_F(GdiplusLineBrush, IntegerFormsAreTheSame) {
    GpBrush* brush = nullptr;
    const GpPoint from{1, 2}, to{30, 40};
    ASSERT_EQ(GdipCreateLineBrushI(&from, &to, kRed, kBlue, WrapModeTile, &brush), Ok);
    EXPECT_EQ(Paint(Keep(brush), 40, 40).pixels,
              Paint(Line({1, 2}, {30, 40}, kRed, kBlue), 40, 40).pixels);
    const GpRect rect{2, 3, 20, 10};
    const GpRectF rectF{2, 3, 20, 10};
    ASSERT_EQ(GdipCreateLineBrushFromRectI(&rect, kBlack, kWhite, LinearGradientModeForwardDiagonal,
                                           WrapModeTile, &brush),
              Ok);
    EXPECT_EQ(Paint(Keep(brush), 30, 20).pixels, Paint(ByMode(rectF, 2), 30, 20).pixels);
    ASSERT_EQ(
        GdipCreateLineBrushFromRectWithAngleI(&rect, kBlack, kWhite, 30, 0, WrapModeTile, &brush),
        Ok);
    EXPECT_EQ(Paint(Keep(brush), 30, 20).pixels, Paint(InRect(rectF, 30, 0), 30, 20).pixels);
}

TEST_F(GdiplusLineBrush, ModesGoAlongTheSidesAndFromCornerToCorner) {
    const GpRectF rect{0, 0, 80, 40};
    const auto paint = [&](int mode) { return Paint(ByMode(rect, mode), 80, 40); };
    const auto horizontal = paint(0), vertical = paint(1), forward = paint(2), backward = paint(3);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 80; ++x) {
            const double u = (x + 0.5) / 80, v = (y + 0.5) / 40;
            ExpectGray(horizontal, x, y, u);
            ExpectGray(vertical, x, y, v);
            ExpectGray(forward, x, y, (u + v) / 2);
            ExpectGray(backward, x, y, (1 - u + v) / 2);
        }
    }
}

TEST_F(GdiplusLineBrush, AnglesReachAsFarAsTheRectangle) {
    const double angle = 30 * 3.14159265358979 / 180;
    const auto picture = Paint(InRect({0, 0, 80, 40}, 30, 0), 80, 40);
    const double length = 80 * std::cos(angle) + 40 * std::sin(angle);
    for (int y = 0; y < 40; y += 3) {
        for (int x = 0; x < 80; x += 3) {
            ExpectGray(picture, x, y,
                       ((x + 0.5) * std::cos(angle) + (y + 0.5) * std::sin(angle)) / length);
        }
    }
}

TEST_F(GdiplusLineBrush, AScalableAngleStretchesWithTheRectangle) {
    const GpRectF rect{0, 0, 80, 40};
    EXPECT_EQ(Paint(InRect(rect, 45, 1), 80, 40).pixels, Paint(ByMode(rect, 2), 80, 40).pixels);
    EXPECT_NE(Paint(InRect(rect, 45, 0), 80, 40).pixels, Paint(ByMode(rect, 2), 80, 40).pixels);
}

TEST_F(GdiplusLineBrush, AnAngleOf180TurnsItRound) {
    const auto picture = Paint(InRect({0, 0, 50, 20}, 180, 0), 50, 20);
    for (int x = 0; x < 50; ++x) ExpectGray(picture, x, 7, 1 - (x + 0.5) / 50);
}

TEST_F(GdiplusLineBrush, MixesAlphaAndColourSeparately) {
    const auto picture = Paint(Line({0, 0}, {100, 0}, 0x00FFFFFF, kWhite), 100, 1);
    for (int x = 0; x < 100; ++x) {
        const uint32_t pixel = picture.At(x, 0);
        EXPECT_EQ(pixel >> 24, pixel & 255) << x;  // premultiplied white
    }
}

TEST_F(GdiplusLineBrush, GammaCorrectionMixesLight) {
    GpBrush* brush = Line({0, 0}, {100, 0});
    BOOL on = 7;
    EXPECT_EQ(GdipGetLineGammaCorrection(brush, &on), Ok);
    EXPECT_EQ(on, 0);
    ASSERT_EQ(GdipSetLineGammaCorrection(brush, 1), Ok);
    EXPECT_EQ(GdipGetLineGammaCorrection(brush, &on), Ok);
    EXPECT_NE(on, 0);
    const auto picture = Paint(brush, 100, 1);
    for (int x = 0; x < 100; ++x) {
        ExpectGray(picture, x, 0, std::pow((x + 0.5) / 100, 1 / 2.2), 2);
    }
    EXPECT_EQ(GdipSetLineGammaCorrection(nullptr, 1), InvalidParameter);
    EXPECT_EQ(GdipGetLineGammaCorrection(brush, nullptr), InvalidParameter);
}

TEST_F(GdiplusLineBrush, ColoursCanBeExchanged) {
    GpBrush* brush = Line({0, 0}, {10, 0}, kRed, kBlue);
    ARGB colors[2];
    ASSERT_EQ(GdipGetLineColors(brush, colors), Ok);
    EXPECT_EQ(colors[0], kRed);
    EXPECT_EQ(colors[1], kBlue);
    ASSERT_EQ(GdipSetLineColors(brush, kWhite, kWhite), Ok);
    EXPECT_EQ(Paint(brush, 10, 1).pixels, std::vector<uint32_t>(10, kWhite));
    EXPECT_EQ(GdipGetLineColors(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSetLineColors(nullptr, 0, 0), InvalidParameter);
}

TEST_F(GdiplusLineBrush, RectangleIsTheGivenOneOrTheBoxOfThePoints) {
    const auto rectOf = [](GpBrush* brush) {
        GpRectF rect{};
        EXPECT_EQ(GdipGetLineRect(brush, &rect), Ok);
        return std::vector<REAL>{rect.X, rect.Y, rect.Width, rect.Height};
    };
    EXPECT_EQ(rectOf(InRect({1, 2, 3, 4}, 30, 0)), (std::vector<REAL>{1, 2, 3, 4}));
    EXPECT_EQ(rectOf(Line({10, 20}, {4, 50})), (std::vector<REAL>{4, 20, 6, 30}));
    EXPECT_EQ(rectOf(Line({5, 0}, {5, 10})), (std::vector<REAL>{0, 0, 10, 10}));
    EXPECT_EQ(rectOf(Line({0, 5}, {10, 5})), (std::vector<REAL>{0, 0, 10, 10}));
    GpRect rounded{};
    EXPECT_EQ(GdipGetLineRectI(InRect({1.5f, 2.4f, 3.5f, 4.6f}, 0, 0), &rounded), Ok);
    EXPECT_EQ(rounded.X, 2);
    EXPECT_EQ(rounded.Y, 2);
    EXPECT_EQ(rounded.Width, 4);
    EXPECT_EQ(rounded.Height, 5);
    EXPECT_EQ(GdipGetLineRect(nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetLineRectI(nullptr, &rounded), InvalidParameter);
}

TEST_F(GdiplusLineBrush, RefusesWhatMakesNoGradient) {
    GpBrush* brush = nullptr;
    const GpPointF a{1, 1}, b{2, 2};
    const GpPoint i{1, 1};
    const GpRectF flat{0, 0, 10, 0}, rect{0, 0, 1, 1};
    const GpRect flatI{0, 0, 0, 5};
    EXPECT_EQ(GdipCreateLineBrush(&a, &a, 0, 0, WrapModeTile, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreateLineBrushI(&i, &i, 0, 0, WrapModeTile, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreateLineBrush(&a, &b, 0, 0, WrapModeClamp, &brush), InvalidParameter);
    EXPECT_EQ(GdipCreateLineBrush(nullptr, &b, 0, 0, WrapModeTile, &brush), InvalidParameter);
    EXPECT_EQ(
        GdipCreateLineBrushFromRect(&flat, 0, 0, LinearGradientModeVertical, WrapModeTile, &brush),
        InvalidParameter);
    EXPECT_EQ(GdipCreateLineBrushFromRect(&rect, 0, 0, static_cast<LinearGradientMode>(4),
                                          WrapModeTile, &brush),
              InvalidParameter);
    EXPECT_EQ(GdipCreateLineBrushFromRectI(&flatI, 0, 0, LinearGradientModeVertical, WrapModeTile,
                                           &brush),
              InvalidParameter);
    EXPECT_EQ(GdipCreateLineBrushFromRectWithAngle(nullptr, 0, 0, 0, 0, WrapModeTile, &brush),
              InvalidParameter);
    EXPECT_EQ(GdipCreateLineBrushFromRectWithAngleI(&flatI, 0, 0, 0, 0, WrapModeTile, &brush),
              InvalidParameter);
    EXPECT_EQ(brush, nullptr);
    EXPECT_EQ(GdipSetLineWrapMode(Line(a, b), WrapModeClamp), InvalidParameter);
}

TEST_F(GdiplusLineBrush, CopyIsWholeAndIndependent) {
    GpBrush* brush = Line({0, 0}, {40, 10}, kRed, kBlue, WrapModeTileFlipX);
    GdipSetLineSigmaBlend(brush, 0.3f, 0.8f);
    GdipRotateLineTransform(brush, 20, MatrixOrderPrepend);
    const auto before = Paint(brush, 60, 30);
    GpBrush* copy = nullptr;
    ASSERT_EQ(GdipCloneBrush(brush, &copy), Ok);
    GdipSetLineColors(brush, 0, 0);
    EXPECT_EQ(Paint(Keep(copy), 60, 30).pixels, before.pixels);
}

}  // namespace
}  // namespace vxgui::gdiplus
