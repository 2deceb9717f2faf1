#include <gtest/gtest.h>

#include <algorithm>

#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

constexpr GRADIENT_RECT kFirstTwo[] = {{0, 1}};
constexpr GRADIENT_TRIANGLE kFirstThree[] = {{0, 1, 2}};

TRIVERTEX Vertex(LONG x, LONG y, uint32_t color16Red, uint32_t green = 0, uint32_t blue = 0) {
    return {x, y, static_cast<WORD>(color16Red), static_cast<WORD>(green), static_cast<WORD>(blue),
            0};
}

uint32_t PlainRamp(uint64_t from, uint64_t to, uint64_t p, uint64_t n) {
    return static_cast<uint32_t>((from * (n - p) + to * p) / n >> 8);
}

BOOL FillRect2(HDC dc, const TRIVERTEX& a, const TRIVERTEX& b, DWORD mode) {
    const TRIVERTEX vertices[] = {a, b};
    return GradientFill(dc, vertices, 2, kFirstTwo, 1, mode);
}

TEST(GradientFill, AcrossEveryPixelFollowsTheFormula) {
    Canvas canvas(300, 2);
    canvas.Fill(0xFFFFFFFF);
    EXPECT_TRUE(FillRect2(canvas.dc, Vertex(0, 0, 0xFF00, 0x0000, 0x1234),
                          Vertex(300, 2, 0x0000, 0xFFFF, 0x8000), GRADIENT_FILL_RECT_H));
    for (int32_t x = 0; x < 300; ++x) {
        const auto p = static_cast<uint64_t>(x);
        const uint32_t expected = PlainRamp(0xFF00, 0, p, 300) << 16 |
                                  PlainRamp(0, 0xFFFF, p, 300) << 8 |
                                  PlainRamp(0x1234, 0x8000, p, 300);
        ASSERT_EQ(canvas.At(x, 0), expected) << x;
        ASSERT_EQ(canvas.At(x, 1), expected) << x;
    }
}

TEST(GradientFill, DownEveryRowFollowsTheFormulaAndTheEndIsntReached) {
    Canvas canvas(2, 4);
    EXPECT_TRUE(FillRect2(canvas.dc, Vertex(0, 0, 0), Vertex(2, 4, 0xFF00), GRADIENT_FILL_RECT_V));
    for (int32_t y = 0; y < 4; ++y) {
        EXPECT_EQ(canvas.At(1, y), PlainRamp(0, 0xFF00, static_cast<uint64_t>(y), 4) << 16);
    }
    EXPECT_LT(canvas.At(0, 3), 0xFF0000u);
}

TEST(GradientFill, CountsInTheUnclippedRectangle) {
    Canvas canvas(4, 1);
    EXPECT_TRUE(
        FillRect2(canvas.dc, Vertex(-100, -5, 0), Vertex(100, 5, 0xFF00), GRADIENT_FILL_RECT_H));
    for (int32_t x = 0; x < 4; ++x) {
        EXPECT_EQ(canvas.At(x, 0), PlainRamp(0, 0xFF00, static_cast<uint64_t>(x + 100), 200) << 16);
    }
    EXPECT_TRUE(FillRect2(canvas.dc, Vertex(INT32_MIN, INT32_MIN, 0),
                          Vertex(INT32_MAX, INT32_MAX, 0xFFFF), GRADIENT_FILL_RECT_H));
    EXPECT_EQ(canvas.At(0, 0), 0x7F0000u);
}

TEST(GradientFill, CornersMayComeInAnyOrder) {
    Canvas canvas(4, 1);
    EXPECT_TRUE(FillRect2(canvas.dc, Vertex(4, 1, 0xFF00), Vertex(0, 0, 0), GRADIENT_FILL_RECT_H));
    EXPECT_EQ(canvas.At(0, 0), 0u);
    EXPECT_EQ(canvas.At(3, 0), PlainRamp(0, 0xFF00, 3, 4) << 16);
    Canvas column(1, 4);
    EXPECT_TRUE(FillRect2(column.dc, Vertex(1, 4, 0xFF00), Vertex(0, 0, 0), GRADIENT_FILL_RECT_V));
    EXPECT_EQ(column.At(0, 0), 0u);
    EXPECT_EQ(column.At(0, 3), PlainRamp(0, 0xFF00, 3, 4) << 16);
}

TEST(GradientFill, ClearsTheAlphaByte) {
    Canvas canvas(1, 1);
    canvas.Fill(0xFFFFFFFF);
    TRIVERTEX opaque = Vertex(0, 0, 0xFF00);
    opaque.Alpha = 0xFF00;
    EXPECT_TRUE(FillRect2(canvas.dc, opaque, Vertex(1, 1, 0xFF00), GRADIENT_FILL_RECT_V));
    EXPECT_EQ(canvas.At(0, 0), 0x00FF0000u);
}

TEST(GradientFill, EmptyRectanglesSucceed) {
    Canvas canvas(2, 2);
    EXPECT_TRUE(FillRect2(canvas.dc, Vertex(1, 1, 0xFF00), Vertex(1, 2, 0), GRADIENT_FILL_RECT_H));
    EXPECT_TRUE(FillRect2(canvas.dc, Vertex(0, 1, 0xFF00), Vertex(2, 1, 0), GRADIENT_FILL_RECT_V));
    EXPECT_EQ(canvas.Words(), std::vector<uint32_t>(4, 0));
}

TEST(GradientFill, OneWrongNumberInTheMeshDrawsNothing) {
    Canvas canvas(2, 2);
    const TRIVERTEX vertices[] = {Vertex(0, 0, 0xFF00), Vertex(2, 2, 0xFF00), Vertex(0, 2, 0xFF00)};
    const GRADIENT_RECT rects[] = {{0, 1}, {0, 3}};
    EXPECT_FALSE(GradientFill(canvas.dc, vertices, 3, rects, 2, GRADIENT_FILL_RECT_H));
    const GRADIENT_TRIANGLE triangles[] = {{0, 1, 2}, {0, 1, UINT32_MAX}};
    EXPECT_FALSE(GradientFill(canvas.dc, vertices, 3, triangles, 2, GRADIENT_FILL_TRIANGLE));
    EXPECT_EQ(canvas.Words(), std::vector<uint32_t>(4, 0));
    EXPECT_TRUE(GradientFill(canvas.dc, vertices, 3, rects, 1, GRADIENT_FILL_RECT_H));
}

TEST(GradientFill, RefusesWhatItCantDraw) {
    Canvas canvas(2, 2);
    const TRIVERTEX vertices[] = {Vertex(0, 0, 0), Vertex(2, 2, 0)};
    EXPECT_FALSE(GradientFill(nullptr, vertices, 2, kFirstTwo, 1, GRADIENT_FILL_RECT_H));
    EXPECT_FALSE(GradientFill(canvas.dc, nullptr, 2, kFirstTwo, 1, GRADIENT_FILL_RECT_H));
    EXPECT_FALSE(GradientFill(canvas.dc, vertices, 2, nullptr, 1, GRADIENT_FILL_RECT_H));
    EXPECT_FALSE(GradientFill(canvas.dc, vertices, 2, kFirstTwo, 1, 3));
    const TRIVERTEX far[] = {Vertex(0, 0, 0), Vertex(1 << 23, 0, 0), Vertex(0, 5, 0)};
    EXPECT_FALSE(GradientFill(canvas.dc, far, 3, kFirstThree, 1, GRADIENT_FILL_TRIANGLE));
}

// A lattice point belongs to the triangle if it is inside or on a left or top edge: the same as
// a point a hair to the right of it and a hair of that below it being inside.
bool PlainInside(const TRIVERTEX (&v)[3], int32_t x, int32_t y) {
    bool inside = false;
    for (int i = 0; i < 3; ++i) {
        const TRIVERTEX& a = v[i];
        const TRIVERTEX& b = v[(i + 1) % 3];
        if ((a.y <= y) == (b.y <= y)) continue;
        const int64_t side = (int64_t{b.x} - a.x) * (y - a.y) - (int64_t{x} - a.x) * (b.y - a.y);
        if (b.y > a.y ? side <= 0 : side >= 0) inside = !inside;
    }
    return inside;
}

uint32_t PlainColor(const TRIVERTEX (&v)[3], int32_t x, int32_t y) {
    const auto area = [](const TRIVERTEX& a, const TRIVERTEX& b, int64_t px, int64_t py) {
        return (int64_t{b.x} - a.x) * (py - a.y) - (int64_t{b.y} - a.y) * (px - a.x);
    };
    const int64_t whole = area(v[0], v[1], v[2].x, v[2].y);
    const int64_t parts[] = {area(v[1], v[2], x, y), area(v[2], v[0], x, y),
                             area(v[0], v[1], x, y)};
    int64_t red = 0;
    for (int i = 0; i < 3; ++i) red += parts[i] * v[i].Red;
    return static_cast<uint32_t>(red / whole >> 8) << 16;
}

TEST(GradientFill, TrianglesFillTheirLatticePointsWithTheWeightedColours) {
    const TRIVERTEX triangles[][3] = {
        {Vertex(0, 0, 0xFF00), Vertex(8, 0, 0), Vertex(0, 8, 0x8000)},
        {Vertex(8, 8, 0xFF00), Vertex(8, 0, 0), Vertex(0, 8, 0x8000)},
        {Vertex(-5, 3, 0xFF00), Vertex(20, -4, 0x1000), Vertex(6, 17, 0x8000)},
        {Vertex(2, 1, 0xFFFF), Vertex(9, 4, 0xFFFF), Vertex(3, 11, 0xFFFF)},
        {Vertex(2, 1, 0xFF00), Vertex(3, 11, 0x0100), Vertex(9, 4, 0x4000)}};
    for (const auto& triangle : triangles) {
        Canvas canvas(12, 12);
        canvas.Fill(0xFF00FF00);
        EXPECT_TRUE(GradientFill(canvas.dc, triangle, 3, kFirstThree, 1, GRADIENT_FILL_TRIANGLE));
        for (int32_t y = 0; y < 12; ++y) {
            for (int32_t x = 0; x < 12; ++x) {
                ASSERT_EQ(canvas.At(x, y),
                          PlainInside(triangle, x, y) ? PlainColor(triangle, x, y) : 0xFF00FF00u)
                    << x << " " << y;
            }
        }
    }
}

TEST(GradientFill, TwoTrianglesOfARectangleShareNoPixelAndLeaveNone) {
    Canvas canvas(9, 7);
    const TRIVERTEX vertices[] = {Vertex(1, 1, 0x0100), Vertex(8, 1, 0x0100), Vertex(8, 6, 0x0100),
                                  Vertex(1, 6, 0x0100)};
    const auto covered = [&](GRADIENT_TRIANGLE triangle) {
        canvas.Fill(0);
        EXPECT_TRUE(GradientFill(canvas.dc, vertices, 4, &triangle, 1, GRADIENT_FILL_TRIANGLE));
        return canvas.Words();
    };
    const auto first = covered({0, 1, 2});
    const auto second = covered({2, 3, 0});
    for (int32_t y = 0; y < 7; ++y) {
        for (int32_t x = 0; x < 9; ++x) {
            const auto at = static_cast<size_t>(y * 9 + x);
            const bool inside = x >= 1 && x < 8 && y >= 1 && y < 6;
            EXPECT_EQ((first[at] != 0) + (second[at] != 0), inside ? 1 : 0) << x << " " << y;
        }
    }
}

TEST(GradientFill, ATriangleWithoutAnInsideDrawsNothing) {
    Canvas canvas(4, 4);
    const TRIVERTEX line[] = {Vertex(0, 0, 0xFF00), Vertex(2, 2, 0xFF00), Vertex(4, 4, 0xFF00)};
    EXPECT_TRUE(GradientFill(canvas.dc, line, 3, kFirstThree, 1, GRADIENT_FILL_TRIANGLE));
    EXPECT_EQ(canvas.Words(), std::vector<uint32_t>(16, 0));
}

TEST(GradientFill, KeepsToTheTargetAndTheClip) {
    GuardedHost host(5, 5, false, true);
    const TRIVERTEX vertices[] = {Vertex(-50, -50, 0xFF00), Vertex(100, -50, 0), Vertex(0, 100, 0)};
    EXPECT_TRUE(GradientFill(host.dc, vertices, 3, kFirstThree, 1, GRADIENT_FILL_TRIANGLE));
    EXPECT_TRUE(FillRect2(host.dc, vertices[0], Vertex(90, 90, 0xFF00), GRADIENT_FILL_RECT_H));
    EXPECT_TRUE(host.Intact());
    Canvas canvas(2, 1);
    HRGN region = CreateRectRgn(1, 0, 2, 1);
    SelectObject(canvas.dc, region);
    DeleteObject(region);
    EXPECT_TRUE(
        FillRect2(canvas.dc, Vertex(0, 0, 0xFF00), Vertex(2, 1, 0xFF00), GRADIENT_FILL_RECT_H));
    EXPECT_EQ(canvas.Words(), (std::vector<uint32_t>{0, 0xFF0000}));
}

TEST(GradientFill, FillsOtherDepths) {
    Canvas deep(1, 1, 24);
    EXPECT_TRUE(FillRect2(deep.dc, Vertex(0, 0, 0x1200, 0x3400, 0x5600),
                          Vertex(1, 1, 0x1200, 0x3400, 0x5600), GRADIENT_FILL_RECT_H));
    EXPECT_EQ(deep.At(0, 0), 0x123456u);
    Canvas mono(CreateBitmap(2, 1, 1, 1, nullptr));
    EXPECT_TRUE(FillRect2(mono.dc, Vertex(0, 0, 0xFF00, 0xFF00, 0xFF00), Vertex(2, 1, 0, 0, 0),
                          GRADIENT_FILL_RECT_H));
    EXPECT_EQ(mono.Words(), (std::vector<uint32_t>{1, 0}));
}

}  // namespace
}  // namespace vxgui::gdi
