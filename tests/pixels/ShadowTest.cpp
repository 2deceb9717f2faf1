#include "vxgui/pixels/Shadow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "vxgui/pixels/Coverage.h"

namespace vxgui {
namespace {

using Pixels = std::vector<ARGB>;

uint32_t Value(ARGB pixel) { return static_cast<uint32_t>(ValueFromARGB(pixel)); }

Pixels Noise(int32_t w, int32_t h, uint32_t seed, int coveredPercent) {
    std::mt19937 random(seed);
    Pixels pixels(static_cast<size_t>(w) * h);
    for (ARGB& pixel : pixels) {
        if (static_cast<int>(random() % 100) < coveredPercent)
            pixel = ARGBFromValue(static_cast<int32_t>(random() | 1));
    }
    return pixels;
}

// The blur as the interface words it, step by step, on a working copy of 32-bit integers.
Pixels PlainBoxShadow(const Pixels& in, int32_t W, int32_t H, int32_t X, int32_t Y,
                      const uint8_t (&c)[4]) {
    std::vector<int32_t> a(in.size());
    for (size_t i = 0; i < in.size(); ++i) a[i] = Value(in[i]) ? 255 : 0;
    X = std::max(X, 1);
    Y = std::max(Y, 1);
    for (int32_t r = 0; r < H; ++r) {
        int32_t* row = &a[static_cast<size_t>(r) * W];
        int32_t s = 0;
        for (int32_t i = 0; i < X && i < W; ++i) s += row[i];
        for (int32_t i = X; i < W; ++i) {
            s = s + row[i] - row[i - X];
            row[i - X] = (s / X) & 255;
        }
    }
    std::vector<uint32_t> out(a.begin(), a.end());
    for (int32_t x = 0; x < W; ++x) {
        int32_t s = 0;
        for (int32_t y = 0; y < Y && y < H; ++y) s += a[static_cast<size_t>(y) * W + x];
        for (int32_t y = 0; y <= H - Y - 1; ++y) {
            s = s + a[static_cast<size_t>(y + Y) * W + x] - a[static_cast<size_t>(y) * W + x];
            const int32_t v = (s / Y) & 255;
            const int32_t pa = c[3] * v / 255;
            uint32_t pixel = static_cast<uint32_t>(pa) << 24;
            for (int k = 0; k < 3; ++k)
                pixel |= static_cast<uint32_t>(((c[k] * pa + 128) / 256 + 1) & 255) << (8 * k);
            out[static_cast<size_t>(y) * W + x] = pixel;
        }
    }
    Pixels result;
    for (uint32_t value : out) result.push_back(ARGBFromValue(static_cast<int32_t>(value)));
    return result;
}

TEST(BoxShadow, AgreesWithThePlainFormByteByByte) {
    const struct {
        int32_t w, h, x, y;
    } sizes[] = {{1, 1, 1, 1},  {20, 15, 4, 5}, {20, 15, 0, 0}, {20, 15, -3, 2}, {7, 9, 7, 9},
                 {7, 9, 8, 10}, {64, 3, 30, 1}, {3, 64, 1, 30}, {33, 33, 16, 16}};
    const uint8_t color[4] = {10, 200, 255, 180};
    for (const auto& s : sizes) {
        for (int percent : {0, 5, 50, 100}) {
            const Pixels in = Noise(s.w, s.h, 11, percent);
            Pixels out = in;
            BoxShadow(out, s.w, s.h, s.x, s.y, {color[0], color[1], color[2], color[3]});
            ASSERT_EQ(out, PlainBoxShadow(in, s.w, s.h, s.x, s.y, color))
                << s.w << "x" << s.h << " " << percent;
        }
    }
}

TEST(BoxShadow, AClearPixelComesOutWithColourBytesOfOne) {
    Pixels pixels(16);
    BoxShadow(pixels, 4, 4, 1, 1, {0, 0, 0, 255});
    EXPECT_EQ(Value(pixels[0]), 0x00010101u);
    EXPECT_EQ(Value(pixels[15]), 0u);  // the last row stays as the first pass left it
}

TEST(BoxShadow, ElementPHoldsTheMeanOfTheNextXElements) {
    Pixels pixels(10);
    pixels[4] = ARGBFromValue(1);
    BoxShadow(pixels, 10, 1, 2, 1, {0, 0, 0, 255});
    // One row only, and it is the last one: the raw means stay in byte 0.
    const std::vector<uint32_t> expected = {0, 0, 127, 127, 0, 0, 0, 0, 0, 0};
    for (size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(Value(pixels[i]), expected[i]) << i;
}

// Counts the box of each pixel anew, and rewrites the pixels in the order of the interface.
Pixels PlainForwardShadow(Pixels p, int32_t W, int32_t H, int32_t X, int32_t Y, ARGB color) {
    X = std::max(X, 1);
    Y = std::max(Y, 1);
    for (int32_t y = 0; y < H; ++y) {
        for (int32_t x = 0; x < W; ++x) {
            int32_t n = 0;
            for (int32_t j = y; j < std::min(y + Y, H); ++j) {
                for (int32_t i = x; i < std::min(x + X, W); ++i)
                    n += Value(p[static_cast<size_t>(j) * W + i]) != 0;
            }
            const int32_t v = n * 255 / (X * Y);
            const int32_t pa = std::min(color.Alpha * v / 255, 255);
            const auto mul = [pa](int c) { return static_cast<uint8_t>((c * pa + 128) / 256); };
            p[static_cast<size_t>(y) * W + x] = {mul(color.Blue), mul(color.Green), mul(color.Red),
                                                 static_cast<uint8_t>(pa)};
        }
    }
    return p;
}

TEST(ForwardShadow, AgreesWithThePlainFormByteByByte) {
    const struct {
        int32_t w, h, x, y;
    } sizes[] = {{1, 1, 1, 1}, {20, 15, 4, 5}, {20, 15, 0, -1}, {7, 9, 8, 10}, {40, 2, 9, 9}};
    const ARGB color{9, 99, 250, 201};
    for (const auto& s : sizes) {
        for (int percent : {0, 5, 50, 100}) {
            const Pixels in = Noise(s.w, s.h, 3, percent);
            Pixels out = in;
            ForwardShadow(out, s.w, s.h, s.x, s.y, color);
            ASSERT_EQ(out, PlainForwardShadow(in, s.w, s.h, s.x, s.y, color))
                << s.w << "x" << s.h << " " << percent;
        }
    }
}

TEST(Shadows, LeaveAloneWhatIsTooSmall) {
    Pixels pixels(5, ARGBFromValue(77));
    const Pixels before = pixels;
    BoxShadow(pixels, 3, 2, 1, 1, {1, 2, 3, 4});
    ForwardShadow(pixels, 3, 2, 1, 1, {1, 2, 3, 4});
    BoxShadow(pixels, 0, 5, 1, 1, {1, 2, 3, 4});
    ForwardShadow(pixels, -1, 5, 1, 1, {1, 2, 3, 4});
    EXPECT_EQ(pixels, before);
}

TEST(CoveragePair, PaintsEveryCoverageAndChannelByTheFormula) {
    for (int m = 0; m < 256; ++m) {
        Pixels pixels(256);
        for (int c = 0; c < 256; ++c) pixels[static_cast<size_t>(c)].Blue = static_cast<uint8_t>(m);
        const Coverage coverage = CoverageOfBlue(pixels, 256, 1);
        for (int c = 0; c < 256; ++c) {
            Pixels one(1, ARGB{7, 7, 7, 7});
            Coverage single{1, 1, {coverage.bytes[static_cast<size_t>(c)]}};
            const auto channel = static_cast<uint8_t>(c);
            PaintCoverage(single, one, {channel, channel, channel, 255});
            const auto scaled = static_cast<uint8_t>(c * (m + 1) / 256);
            const ARGB expected =
                m == 0 ? ARGB{7, 7, 7, 7} : ARGB{scaled, scaled, scaled, static_cast<uint8_t>(m)};
            ASSERT_EQ(one[0], expected) << m << " " << c;
        }
    }
}

TEST(CoveragePair, ReadsTheFirstByteRowByRow) {
    Pixels pixels = {{1, 9, 9, 9}, {2, 9, 9, 9}, {3, 9, 9, 9}, {4, 9, 9, 9}};
    const Coverage coverage = CoverageOfBlue(pixels, 2, 2);
    EXPECT_EQ(coverage.bytes, (std::vector<uint8_t>{1, 2, 3, 4}));
    EXPECT_TRUE(CoverageOfBlue(pixels, 0, 4).bytes.empty());
    EXPECT_TRUE(CoverageOfBlue(pixels, 5, 1).bytes.empty());
}

}  // namespace
}  // namespace vxgui
