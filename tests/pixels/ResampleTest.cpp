#include "vxgui/pixels/Resample.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace vxgui {
namespace {

std::vector<ARGB> Noise(int width, int height) {
    std::mt19937 random(static_cast<uint32_t>(width * 1000 + height));
    std::vector<ARGB> pixels(static_cast<size_t>(width * height));
    for (ARGB& pixel : pixels) pixel = ARGBFromValue(static_cast<int32_t>(random()));
    return pixels;
}

/// Pixel by pixel in single precision, over the bytes of the picture.
std::vector<ARGB> Reference(const std::vector<ARGB>& source, int sw, int sh, int dw, int dh) {
    const auto byte = [&](int offset) -> int {
        const auto i = static_cast<size_t>(offset);
        if (i / 4 >= source.size()) return 0;
        const ARGB& p = source[i / 4];
        const uint8_t bytes[] = {p.Blue, p.Green, p.Red, p.Alpha};
        return bytes[i % 4];
    };
    const float rx = static_cast<float>(sw - 1) / static_cast<float>(dw);
    const float ry = static_cast<float>(sh - 1) / static_cast<float>(dh);
    std::vector<ARGB> result(static_cast<size_t>(dw * dh));
    for (int y = 0; y < dh; ++y) {
        const float fy = static_cast<float>(y) * ry;
        const int iy = static_cast<int>(std::floor(fy));
        const float dy = fy - static_cast<float>(iy);
        for (int x = 0; x < dw; ++x) {
            const float fx = static_cast<float>(x) * rx;
            const int ix = static_cast<int>(std::floor(fx));
            const float dx = fx - static_cast<float>(ix);
            float v[6];
            for (int k = 0; k < 6; ++k) {
                const auto p = static_cast<float>(byte((iy * sw + ix) * 4 + k));
                const auto q = static_cast<float>(byte(((iy + 1) * sw + ix) * 4 + k));
                v[k] = std::nearbyint((1 - dy) * p + dy * q);
            }
            const auto channel = [&](int k) {
                const float mixed = std::nearbyint((1 - dx) * v[k] + dx * v[k + 3]);
                return static_cast<uint8_t>(std::clamp(mixed, 0.0F, 255.0F));
            };
            result[static_cast<size_t>(y * dw + x)] = {channel(0), channel(1), channel(2), 0};
        }
    }
    return result;
}

TEST(ResampleBilinear, AgreesWithItsContractPixelByPixel) {
    const std::pair<int, int> sizes[] = {{1, 1},  {1, 9},   {9, 1},   {2, 2},  {7, 5},   {16, 16},
                                         {31, 3}, {50, 40}, {120, 9}, {33, 2}, {200, 4}, {401, 3}};
    for (const auto& [sw, sh] : sizes) {
        const std::vector<ARGB> source = Noise(sw, sh);
        for (const auto& [dw, dh] : sizes) {
            std::vector<ARGB> target(static_cast<size_t>(dw * dh));
            ResampleBilinear(source, sw, target, dw);
            ASSERT_EQ(target, Reference(source, sw, sh, dw, dh))
                << sw << " x " << sh << " to " << dw << " x " << dh;
        }
    }
}

TEST(ResampleBilinear, LeavesTheAlphaOfTheTarget) {
    const std::vector<ARGB> source(4, ARGB{1, 2, 3, 200});
    std::vector<ARGB> target(9, ARGB{0, 0, 0, 77});
    ResampleBilinear(source, 2, target, 3);
    for (ARGB pixel : target) EXPECT_EQ(pixel.Alpha, 77);
}

TEST(ResampleBilinear, TwiceTheSizeNeverReachesTheLastColumn) {
    const std::vector<ARGB> source{{10, 0, 0, 0}, {10, 0, 0, 0}, {0, 0, 250, 0}};
    std::vector<ARGB> target(6);
    ResampleBilinear(source, 3, target, 6);
    // A step of a third: the last sample lies at 5/3, where red still is that of pixel 1, 0, mixed
    // with the green of pixel 2.
    EXPECT_EQ(target[5].Red, 0);
    EXPECT_EQ(target[0], (ARGB{10, 0, 0, 0}));
}

TEST(ResampleBilinear, NeighbourOfAChannelIsTheByteThreeFurtherOn) {
    const std::vector<ARGB> source{{0, 0, 0, 100}, {200, 40, 0, 0}, {0, 0, 0, 0}};
    std::vector<ARGB> target(4);
    ResampleBilinear(source, 3, target, 4);  // a step of a half
    EXPECT_EQ(target[1], (ARGB{50, 100, 20, 0}));
}

TEST(ResampleBilinear, WholeStepsGiveTheExactColours) {
    const std::vector<ARGB> source{{1, 2, 3, 9}, {4, 5, 6, 9}, {7, 8, 9, 9}, {10, 11, 12, 9}};
    std::vector<ARGB> target(3);
    ResampleBilinear(source, 4, target, 3);
    EXPECT_EQ(target, (std::vector<ARGB>{{1, 2, 3, 0}, {4, 5, 6, 0}, {7, 8, 9, 0}}));
}

TEST(ResampleBilinear, SourceOfOnePixelFillsTheTarget) {
    const std::vector<ARGB> source{{1, 2, 3, 4}};
    std::vector<ARGB> target(12);
    ResampleBilinear(source, 1, target, 4);
    EXPECT_EQ(target, std::vector<ARGB>(12, ARGB{1, 2, 3, 0}));
}

TEST(ResampleBilinear, NothingOnEitherSideDoesNothing) {
    std::vector<ARGB> target(4, ARGB{1, 2, 3, 4});
    const std::vector<ARGB> before = target, source = Noise(2, 2);
    ResampleBilinear({}, 2, target, 2);
    ResampleBilinear(source, 0, target, 2);
    ResampleBilinear(source, 2, target, 0);
    ResampleBilinear(source, 3, std::span(target).first(2), 3);
    EXPECT_EQ(target, before);
}

}  // namespace
}  // namespace vxgui
