#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"
#include "vxgui/platform/gdiplus/Path.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB kBlack = 0xFF000000, kWhite = 0xFFFFFFFF, kRed = 0xFFFF0000;

class GdiplusPathBrush : public test::BrushFixture {
protected:
    ~GdiplusPathBrush() override {
        for (GpPath* path : paths_) RetireObject(path);
    }
    GpBrush* Polygon(std::vector<GpPointF> points, WrapMode wrap = WrapModeClamp) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(
            GdipCreatePathGradient(points.data(), static_cast<INT>(points.size()), wrap, &brush),
            Ok);
        return Keep(brush);
    }
    GpBrush* Square(REAL side) { return Polygon({{0, 0}, {side, 0}, {side, side}, {0, side}}); }
    GpPath* MakePath(PathPoints points) {
        const Ref<Path> path = New<Path>(FillModeAlternate);
        path->data = std::move(points);
        paths_.push_back(static_cast<GpPath*>(EnterObject(path)));
        return paths_.back();
    }
    // A circle of four curves.
    GpPath* Circle(REAL x, REAL y, REAL r) {
        const REAL k = r * 0.5522848f;
        PathPoints points;
        points.points = {{x + r, y},     {x + r, y + k}, {x + k, y + r}, {x, y + r},
                         {x - k, y + r}, {x - r, y + k}, {x - r, y},     {x - r, y - k},
                         {x - k, y - r}, {x, y - r},     {x + k, y - r}, {x + r, y - k},
                         {x + r, y}};
        points.types = {0, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 0x83};
        return MakePath(std::move(points));
    }
    GpBrush* FromPath(GpPath* path) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(GdipCreatePathGradientFromPath(path, &brush), Ok);
        return Keep(brush);
    }
    static void Surround(GpBrush* brush, std::vector<ARGB> colors) {
        auto count = static_cast<INT>(colors.size());
        EXPECT_EQ(GdipSetPathGradientSurroundColorsWithCount(brush, colors.data(), &count), Ok);
    }

private:
    std::vector<GpPath*> paths_;
};

TEST_F(GdiplusPathBrush, ShadesFromTheEdgeToTheCentre) {
    const auto picture = Paint(Square(100), 100, 100);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const double depth =
                std::min({x + 0.5, y + 0.5, 99.5 - x, 99.5 - y}) / 50;  // 0 at the sides
            EXPECT_NEAR(picture.At(x, y) & 255, (1 - depth) * 255, 1) << x << ", " << y;
            EXPECT_EQ(picture.At(x, y) >> 24, 255u);
        }
    }
}

TEST_F(GdiplusPathBrush, MixesTheColoursOfTheCorners) {
    GpBrush* brush = Polygon({{0, 0}, {90, 0}, {0, 90}});
    Surround(brush, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF});
    const GpPointF center{30, 30};
    GdipSetPathGradientCenterPoint(brush, &center);
    GdipSetPathGradientCenterColor(brush, 0xFF555555);
    const auto picture = Paint(brush, 90, 90);
    // The centre is the mean of the corners, and its colour that of theirs: one plane of colour.
    for (int y = 0; y < 88; ++y) {
        for (int x = 0; x < 88 - y; ++x) {
            const double green = (x + 0.5) / 90, blue = (y + 0.5) / 90;
            EXPECT_NEAR(picture.At(x, y) >> 16 & 255, (1 - green - blue) * 255, 2);
            EXPECT_NEAR(picture.At(x, y) >> 8 & 255, green * 255, 2);
            EXPECT_NEAR(picture.At(x, y) & 255, blue * 255, 2);
        }
    }
}

TEST_F(GdiplusPathBrush, PaintsNothingOutsideThePath) {
    const auto picture = Paint(Polygon({{10, 10}, {30, 10}, {30, 30}, {10, 30}}), 40, 40);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            const bool inside = x >= 10 && x < 30 && y >= 10 && y < 30;
            EXPECT_EQ(picture.At(x, y) >> 24, inside ? 255u : 0u) << x << ", " << y;
        }
    }
}

TEST_F(GdiplusPathBrush, CoversPixelsOfItsEdgeInPart) {
    const auto picture = Paint(Polygon({{0.5f, 0}, {10.5f, 0}, {10.5f, 10}, {0.5f, 10}}), 12, 10);
    EXPECT_NEAR(picture.At(0, 5) >> 24, 128, 1);
    EXPECT_NEAR(picture.At(10, 5) >> 24, 128, 1);
    EXPECT_EQ(picture.At(5, 5) >> 24, 255u);
}

TEST_F(GdiplusPathBrush, AConcavePathIsPaintedWhole) {
    // An L whose centre of area lies inside, but doesn't see all of the edge.
    GpBrush* brush = Polygon({{0, 0}, {60, 0}, {60, 12}, {12, 12}, {12, 60}, {0, 60}});
    const GpPointF center{6, 6};
    GdipSetPathGradientCenterPoint(brush, &center);
    const auto picture = Paint(brush, 60, 60);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 60; ++x) {
            EXPECT_EQ(picture.At(x, y) >> 24, x < 12 || y < 12 ? 255u : 0u) << x << ", " << y;
        }
    }
}

TEST_F(GdiplusPathBrush, FocusScalesWidenTheCentre) {
    GpBrush* brush = Square(100);
    ASSERT_EQ(GdipSetPathGradientFocusScales(brush, 0.5f, 0.5f), Ok);
    REAL x = 0, y = 0;
    EXPECT_EQ(GdipGetPathGradientFocusScales(brush, &x, &y), Ok);
    EXPECT_EQ(x, 0.5f);
    EXPECT_EQ(y, 0.5f);
    const auto picture = Paint(brush, 100, 100);
    for (int i = 0; i < 100; ++i) {
        const double depth = std::min({(i + 0.5) / 25, (99.5 - i) / 25, 1.0});
        EXPECT_NEAR(picture.At(i, 50) & 255, (1 - depth) * 255, 1) << i;
    }
    EXPECT_EQ(picture.At(30, 70), kBlack);
    EXPECT_EQ(GdipSetPathGradientFocusScales(nullptr, 0, 0), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientFocusScales(brush, &x, nullptr), InvalidParameter);
}

TEST_F(GdiplusPathBrush, CurvesShadeRoundTheirCentre) {
    GpBrush* brush = FromPath(Circle(50, 50, 40));
    GpPointF center{};
    EXPECT_EQ(GdipGetPathGradientCenterPoint(brush, &center), Ok);
    EXPECT_NEAR(center.X, 50, 0.01);
    EXPECT_NEAR(center.Y, 50, 0.01);
    const auto picture = Paint(brush, 100, 100);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const double distance = std::hypot(x + 0.5 - 50, y + 0.5 - 50) / 40;
            if (distance > 0.97) continue;
            EXPECT_NEAR(picture.At(x, y) & 255, distance * 255, 2) << x << ", " << y;
        }
    }
}

TEST_F(GdiplusPathBrush, RepeatsItsRectangle) {
    GpBrush* brush = Polygon({{2, 3}, {22, 3}, {2, 23}}, WrapModeTile);
    const auto picture = Paint(brush, 80, 80);
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 60; ++x) {
            EXPECT_NEAR(picture.At(x + 20, y) & 255, picture.At(x, y) & 255, 1);
            EXPECT_NEAR(picture.At(x, y + 20) & 255, picture.At(x, y) & 255, 1);
        }
    }
}

TEST_F(GdiplusPathBrush, MirrorsEveryOtherCopy) {
    GpBrush* brush = Polygon({{0, 0}, {20, 0}, {0, 20}}, WrapModeTileFlipXY);
    const auto picture = Paint(brush, 40, 40);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            // Coverage along the slope isn't the same to the last bit from either side.
            const int tolerance = x + y == 19 ? 10 : 2;
            EXPECT_NEAR(picture.At(39 - x, y) & 255, picture.At(x, y) & 255, tolerance);
            EXPECT_NEAR(picture.At(x, 39 - y) & 255, picture.At(x, y) & 255, tolerance);
        }
    }
}

TEST_F(GdiplusPathBrush, CopiesTooSmallToSeeEndQuickly) {
    GpBrush* brush = Polygon({{0, 0}, {1e-6f, 0}, {0, 1e-6f}}, WrapModeTile);
    Surround(brush, {kRed});
    EXPECT_EQ(Paint(brush, 4, 4).pixels, std::vector<uint32_t>(16, kRed));
}

TEST_F(GdiplusPathBrush, NumbersThatAreNoneDoNoHarm) {
    const REAL kInfinity = HUGE_VALF;
    GpBrush* brush = Square(20);
    const GpPointF far{kInfinity, kInfinity};
    GdipSetPathGradientCenterPoint(brush, &far);
    EXPECT_EQ(Paint(brush, 30, 30).At(25, 25), 0u);
    const GpPointF center{10, 10};
    GdipSetPathGradientCenterPoint(brush, &center);
    GdipSetPathGradientFocusScales(brush, kInfinity, -kInfinity);
    EXPECT_EQ(Paint(brush, 30, 30).At(25, 25), 0u);
    GdipSetPathGradientFocusScales(brush, 0, 0);
    GdipSetPathGradientGammaCorrection(brush, 1);
    const REAL factors[] = {NAN, kInfinity}, places[] = {0, 1};
    ASSERT_EQ(GdipSetPathGradientBlend(brush, factors, places, 2), Ok);
    EXPECT_EQ(Paint(brush, 30, 30).At(25, 25), 0u);
}

TEST_F(GdiplusPathBrush, KeepsColoursAndCentre) {
    GpBrush* brush = Square(10);
    ARGB color = 0;
    EXPECT_EQ(GdipGetPathGradientCenterColor(brush, &color), Ok);
    EXPECT_EQ(color, kBlack);
    EXPECT_EQ(GdipSetPathGradientCenterColor(brush, 0x12345678), Ok);
    EXPECT_EQ(GdipGetPathGradientCenterColor(brush, &color), Ok);
    EXPECT_EQ(color, 0x12345678u);
    EXPECT_EQ(GdipSetPathGradientCenterColor(nullptr, 0), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientCenterColor(brush, nullptr), InvalidParameter);

    GpPointF center{};
    GpPoint centerI{7, 2};
    EXPECT_EQ(GdipGetPathGradientCenterPoint(brush, &center), Ok);
    EXPECT_EQ(center.X, 5);
    EXPECT_EQ(center.Y, 5);
    EXPECT_EQ(GdipSetPathGradientCenterPointI(brush, &centerI), Ok);
    EXPECT_EQ(GdipGetPathGradientCenterPoint(brush, &center), Ok);
    EXPECT_EQ(center.X, 7);
    center = {2.6f, 3.4f};
    EXPECT_EQ(GdipSetPathGradientCenterPoint(brush, &center), Ok);
    EXPECT_EQ(GdipGetPathGradientCenterPointI(brush, &centerI), Ok);
    EXPECT_EQ(centerI.X, 3);
    EXPECT_EQ(centerI.Y, 3);
    EXPECT_EQ(GdipSetPathGradientCenterPoint(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSetPathGradientCenterPointI(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientCenterPoint(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientCenterPointI(nullptr, &centerI), InvalidParameter);
}

TEST_F(GdiplusPathBrush, SurroundColoursBelongToPoints) {
    GpBrush* brush = Square(10);
    INT count = 0;
    EXPECT_EQ(GdipGetPathGradientPointCount(brush, &count), Ok);
    EXPECT_EQ(count, 4);
    EXPECT_EQ(GdipGetPathGradientSurroundColorCount(brush, &count), Ok);
    EXPECT_EQ(count, 1);
    Surround(brush, {1, 2, 3});
    EXPECT_EQ(GdipGetPathGradientSurroundColorCount(brush, &count), Ok);
    EXPECT_EQ(count, 3);
    ARGB colors[4] = {};
    count = 4;
    EXPECT_EQ(GdipGetPathGradientSurroundColorsWithCount(brush, colors, &count), Ok);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(colors[2], 3u);
    count = 2;
    EXPECT_EQ(GdipGetPathGradientSurroundColorsWithCount(brush, colors, &count),
              InsufficientBuffer);
    for (INT wrong : {0, 5}) {
        EXPECT_EQ(GdipSetPathGradientSurroundColorsWithCount(brush, colors, &wrong),
                  InvalidParameter);
    }
    EXPECT_EQ(GdipGetPathGradientPointCount(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientSurroundColorCount(nullptr, &count), InvalidParameter);
}

TEST_F(GdiplusPathBrush, RectangleIsTheBoxOfThePath) {
    GpBrush* brush = Polygon({{1.4f, 2}, {21.4f, 3}, {5, 33.6f}});
    GpRectF rect{};
    GpRect rounded{};
    EXPECT_EQ(GdipGetPathGradientRect(brush, &rect), Ok);
    EXPECT_EQ(rect.X, 1.4f);
    EXPECT_EQ(rect.Y, 2);
    EXPECT_EQ(rect.Width, 20);
    EXPECT_FLOAT_EQ(rect.Height, 31.6f);
    EXPECT_EQ(GdipGetPathGradientRectI(brush, &rounded), Ok);
    EXPECT_EQ(rounded.X, 1);
    EXPECT_EQ(rounded.Height, 32);
    EXPECT_EQ(GdipGetPathGradientRect(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientRectI(nullptr, &rounded), InvalidParameter);
}

TEST_F(GdiplusPathBrush, PathCanBeReadAndReplaced) {
    GpBrush* brush = Square(10);
    GpPath* path = Circle(20, 20, 10);
    ASSERT_EQ(GdipSetPathGradientPath(brush, path), Ok);
    GpRectF rect{};
    GdipGetPathGradientRect(brush, &rect);
    EXPECT_EQ(rect.X, 10);
    EXPECT_EQ(rect.Width, 20);
    GpPath* copy = MakePath({});
    ASSERT_EQ(GdipGetPathGradientPath(brush, copy), Ok);
    EXPECT_EQ(Find<Path>(copy)->data.types, Find<Path>(path)->data.types);
    EXPECT_EQ(GdipSetPathGradientPath(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSetPathGradientPath(brush, MakePath({})), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientPath(brush, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetPathGradientPath(nullptr, copy), InvalidParameter);
}

TEST_F(GdiplusPathBrush, IntegerPointsMakeTheSame) {
    const GpPoint points[] = {{3, 3}, {30, 8}, {12, 28}};
    GpBrush* brush = nullptr;
    ASSERT_EQ(GdipCreatePathGradientI(points, 3, WrapModeClamp, &brush), Ok);
    EXPECT_EQ(Paint(Keep(brush), 32, 32).pixels,
              Paint(Polygon({{3, 3}, {30, 8}, {12, 28}}), 32, 32).pixels);
}

TEST_F(GdiplusPathBrush, RefusesWhatMakesNoPath) {
    GpBrush* brush = nullptr;
    const GpPointF points[] = {{0, 0}, {1, 1}};
    const GpPoint pointsI[] = {{0, 0}, {1, 1}};
    EXPECT_EQ(GdipCreatePathGradient(points, 1, WrapModeClamp, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreatePathGradientI(pointsI, 0, WrapModeClamp, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreatePathGradient(nullptr, 2, WrapModeClamp, &brush), InvalidParameter);
    EXPECT_EQ(GdipCreatePathGradientI(pointsI, 2, static_cast<WrapMode>(9), &brush),
              InvalidParameter);
    EXPECT_EQ(GdipCreatePathGradientFromPath(nullptr, &brush), InvalidParameter);
    EXPECT_EQ(GdipCreatePathGradientFromPath(MakePath({}), &brush), OutOfMemory);
}

TEST_F(GdiplusPathBrush, AWorldTransformMovesItAlong) {
    GpBrush* brush = Square(20);
    const auto picture = Paint(brush, 60, 60, {2, 0, 0, 2, 10, 10});
    EXPECT_EQ(picture.At(9, 30), 0u);
    EXPECT_NEAR(picture.At(10, 30) & 255, 255 * (1 - 0.5 / 20), 1);
    EXPECT_NEAR(picture.At(29, 29) & 255, 255 * 0.5 / 20, 1);
    EXPECT_EQ(picture.At(50, 30), 0u);
}

TEST_F(GdiplusPathBrush, CopyIsWholeAndIndependent) {
    GpBrush* brush = Square(30);
    Surround(brush, {kRed, kWhite, kBlack, kRed});
    GdipSetPathGradientFocusScales(brush, 0.2f, 0.4f);
    const auto before = Paint(brush, 30, 30);
    GpBrush* copy = nullptr;
    ASSERT_EQ(GdipCloneBrush(brush, &copy), Ok);
    GdipSetPathGradientCenterColor(brush, kWhite);
    EXPECT_EQ(Paint(Keep(copy), 30, 30).pixels, before.pixels);
}

}  // namespace
}  // namespace vxgui::gdiplus
