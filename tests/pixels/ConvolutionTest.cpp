#include "vxgui/pixels/Convolution.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace vxgui {
namespace {

std::vector<ARGB> Noise(int32_t width, int32_t height) {
    std::mt19937 random(static_cast<uint32_t>(width * 1000 + height));
    std::vector<ARGB> pixels(static_cast<size_t>(width) * static_cast<size_t>(height));
    for (ARGB& pixel : pixels) pixel = ARGBFromValue(static_cast<int32_t>(random()));
    return pixels;
}

/// One convolution pixel by pixel, as its contract reads.
struct Reference {
    const ConvolutionKernel& kernel;
    const std::vector<ARGB>& source;
    std::vector<ARGB>& target;
    int w, h;

    ARGB& Target(int x, int y) { return target[static_cast<size_t>(y * w + x)]; }
    ARGB Source(int x, int y) const { return source[static_cast<size_t>(y * w + x)]; }

    static uint8_t StoreClamped(int sum) {
        const int size = std::abs(sum);
        return static_cast<uint8_t>(size >= 256 ? 255 : size);
    }
    void FilterPixel(int x, int y) {
        const int hx = (kernel.Width - 1) / 2, hy = (kernel.Height - 1) / 2;
        int a = 0, r = 0, g = 0, b = 0;
        for (int j = -hy; j <= kernel.Height - hy - 1; ++j) {
            for (int i = -hx; i <= kernel.Width - hx - 1; ++i) {
                int sx = x + i, sy = y + j;
                if (kernel.Mode == 0 && (sx < 0 || sx >= w || sy < 0 || sy >= h)) continue;
                if (kernel.Mode != 0 && kernel.Mode != 1) {
                    sy = std::clamp(y + j, 0, h - 1);
                    sx = std::clamp(x + j, 0, w - 1);
                }
                const double k =
                    kernel.Weights[static_cast<size_t>((j + hy) * kernel.Width + i + hx)];
                const ARGB s = Source(sx, sy);
                a = static_cast<int>(std::lrint(a + s.Alpha * k));
                r = static_cast<int>(std::lrint(r + s.Red * k));
                g = static_cast<int>(std::lrint(g + s.Green * k));
                b = static_cast<int>(std::lrint(b + s.Blue * k));
            }
        }
        Target(x, y) = {StoreClamped(b), StoreClamped(g), StoreClamped(r), StoreClamped(a)};
    }
    int Run(int x0, int y0, int x1, int y1) {
        if (x0 < 0 || x0 >= w || y0 < 0 || y0 >= h) return -1;
        if (x1 < 1 || x1 >= w) x1 = w - 1;
        if (y1 < 1 || y1 >= h) y1 = h - 1;
        const int hx = (kernel.Width - 1) / 2, hy = (kernel.Height - 1) / 2;
        for (int y = y0; y <= y1; ++y) {
            for (int x = x0; x <= x1; ++x) {
                const bool fits = x >= hx && x < w - kernel.Width + hx + 1 && y >= hy &&
                                  y < h - kernel.Height + hy + 1;
                if (kernel.Mode == 1 && !fits) {
                    Target(x, y) = Source(x, y);
                } else {
                    FilterPixel(x, y);
                }
            }
        }
        return 0;
    }
};

ConvolutionKernel KernelOf(int32_t mode, int32_t width, int32_t height, float scale) {
    std::mt19937 random(static_cast<uint32_t>(width * 10 + height));
    ConvolutionKernel kernel{mode, width, height, {}};
    for (int32_t i = 0; i < width * height; ++i) {
        kernel.Weights.push_back((static_cast<float>(random() % 2001) - 1000) / 1000 * scale);
    }
    return kernel;
}

struct Box {
    int32_t x0, y0, x1, y1;
};
const Box kBoxes[] = {{0, 0, 0, 0}, {0, 0, -1, 100}, {3, 2, 8, 6},  {1, 1, 1, 1},
                      {5, 0, 3, 4}, {0, 5, 9, 3},    {12, 8, 0, 0}, {2, 0, 11, 1}};

void ExpectAgreement(const ConvolutionKernel& kernel, int32_t width, int32_t height,
                     const Box& box) {
    const std::vector<ARGB> source = Noise(width, height);
    std::vector<ARGB> target(source.size(), ARGB{1, 2, 3, 4}), expected = target;
    const int status =
        Reference{kernel, source, expected, width, height}.Run(box.x0, box.y0, box.x1, box.y1);
    ASSERT_EQ(Convolve(kernel, source, target, width, box.x0, box.y0, box.x1, box.y1), status);
    ASSERT_EQ(target, expected) << "mode " << kernel.Mode << ", kernel " << kernel.Width << " x "
                                << kernel.Height << ", picture " << width << " x " << height
                                << ", from " << box.x0 << ", " << box.y0;
}

TEST(Convolve, AgreesWithItsContractPixelByPixel) {
    for (int32_t mode : {0, 1, 2, -1}) {
        for (const auto& [kw, kh] :
             {std::pair{1, 1}, {2, 2}, {3, 3}, {4, 3}, {1, 5}, {5, 1}, {6, 7}}) {
            for (float scale : {0.3F, 1.0F}) {
                const ConvolutionKernel kernel = KernelOf(mode, kw, kh, scale);
                for (const Box& box : kBoxes) ExpectAgreement(kernel, 13, 9, box);
            }
        }
    }
}

TEST(Convolve, AgreesOnPicturesSmallerThanTheKernel) {
    for (int32_t mode : {0, 1, 2}) {
        for (const auto& [w, h] : {std::pair{1, 1}, {2, 2}, {1, 7}, {7, 1}, {3, 2}, {40, 3}}) {
            ExpectAgreement(KernelOf(mode, 5, 4, 0.4F), w, h, {0, 0, 0, 0});
        }
    }
}

TEST(Convolve, RoundsAfterEveryAddition) {
    const ConvolutionKernel kernel{0, 3, 1, {0.5F, 0.5F, 0.5F}};
    const std::vector<ARGB> source(3, ARGB{1, 3, 0, 0});
    std::vector<ARGB> target(3);
    ASSERT_EQ(Convolve(kernel, source, target, 3, 0, 0, 0, 0), 0);
    EXPECT_EQ(target[1].Blue, 0);   // 0.5 is 0, three times; the whole sum is 1.5
    EXPECT_EQ(target[1].Green, 6);  // 1.5 is 2, 3.5 is 4, 5.5 is 6; the whole sum is 4.5
}

TEST(Convolve, NegativeSumsComeOutPositive) {
    const ConvolutionKernel kernel{0, 1, 1, {-1.0F}};
    const std::vector<ARGB> source{{1, 2, 254, 255}};
    std::vector<ARGB> target(1);
    Convolve(kernel, source, target, 1, 0, 0, 0, 0);
    EXPECT_EQ(target, source);
}

TEST(Convolve, SumsOf256AndMoreAre255) {
    for (float weight : {1.01F, 300.0F, 1e20F, -1e38F}) {
        const ConvolutionKernel kernel{0, 1, 1, {weight}};
        const std::vector<ARGB> source{{255, 255, 255, 255}};
        std::vector<ARGB> target(1);
        Convolve(kernel, source, target, 1, 0, 0, 0, 0);
        EXPECT_EQ(target, source) << weight;
    }
}

TEST(Convolve, EvenKernelReachesOneMoreToTheRightAndDown) {
    const ConvolutionKernel kernel{0, 2, 2, {0, 0, 0, 1.0F}};
    const std::vector<ARGB> source{{1}, {2}, {3}, {4}};
    std::vector<ARGB> target(4);
    Convolve(kernel, source, target, 2, 0, 0, 0, 0);
    EXPECT_EQ(target, (std::vector<ARGB>{{4}, {}, {}, {}}));
}

TEST(Convolve, FirstCornerOutsideWritesNothing) {
    const std::vector<ARGB> source = Noise(4, 3);
    std::vector<ARGB> target(12);
    for (const auto& [x, y] : {std::pair{4, 0}, {0, 3}, {-1, 0}, {0, -1}}) {
        EXPECT_EQ(Convolve(EdgeKernel(), source, target, 4, x, y, 0, 0), -1);
    }
    EXPECT_EQ(Convolve(EdgeKernel(), source, target, 0, 0, 0, 0, 0), -1);
    EXPECT_EQ(Convolve(EdgeKernel(), {}, target, 4, 0, 0, 0, 0), -1);
    EXPECT_EQ(target, std::vector<ARGB>(12));
}

TEST(Convolve, MissingWeightsCountAsNone) {
    const std::vector<ARGB> source = Noise(5, 5);
    std::vector<ARGB> target(25), expected(25);
    Convolve({0, 3, 3, {0.5F, 0.25F}}, source, target, 5, 0, 0, 0, 0);
    Convolve({0, 3, 3, {0.5F, 0.25F, 0, 0, 0, 0, 0, 0, 0}}, source, expected, 5, 0, 0, 0, 0);
    EXPECT_EQ(target, expected);
}

TEST(Convolve, KernelWithoutSizeGivesNothing) {
    const std::vector<ARGB> source = Noise(3, 3);
    for (const auto& [w, h] : {std::pair{0, 3}, {3, 0}, {-5, 3}, {INT32_MIN, INT32_MIN}}) {
        std::vector<ARGB> target(9, ARGB{1, 1, 1, 1});
        EXPECT_EQ(Convolve({0, w, h, {1, 1, 1}}, source, target, 3, 0, 0, 0, 0), 0);
        EXPECT_EQ(target, std::vector<ARGB>(9));
    }
}

TEST(Convolve, KernelFarLargerThanItsWeightsIsSafe) {
    const std::vector<ARGB> source = Noise(3, 3);
    for (int32_t mode : {0, 1, 2}) {
        std::vector<ARGB> target(9);
        EXPECT_EQ(Convolve({mode, INT32_MAX, INT32_MAX, {1, 1}}, source, target, 3, 0, 0, 0, 0), 0);
        EXPECT_EQ(target == source, mode == 1);
    }
}

TEST(ConvolveInPlace, ClearsWhatLiesAroundTheBox) {
    const std::vector<ARGB> before = Noise(6, 5);
    std::vector<ARGB> pixels = before, expected(before.size());
    ASSERT_EQ(ConvolveInPlace(EdgeKernel(), pixels, 6, 1, 1, 3, 3), 0);
    Convolve(EdgeKernel(), before, expected, 6, 1, 1, 3, 3);
    EXPECT_EQ(pixels, expected);
    EXPECT_EQ(pixels[0], ARGB{});
}

TEST(ConvolveInPlace, FirstCornerOutsideLeavesThePicture) {
    const std::vector<ARGB> before = Noise(6, 5);
    std::vector<ARGB> pixels = before;
    EXPECT_EQ(ConvolveInPlace(EdgeKernel(), pixels, 6, 6, 0, 0, 0), -1);
    EXPECT_EQ(pixels, before);
}

TEST(EdgeKernel, UniformPictureBecomesClearInsideAndKeepsItsBorder) {
    const ARGB uniform{10, 20, 30, 255};
    std::vector<ARGB> pixels(5 * 4, uniform);
    EdgeKernel3x3(pixels, 5);
    for (size_t y = 0; y < 4; ++y) {
        for (size_t x = 0; x < 5; ++x) {
            const bool border = x == 0 || x == 4 || y == 0 || y == 3;
            EXPECT_EQ(pixels[y * 5 + x], border ? uniform : ARGB{}) << x << ", " << y;
        }
    }
}

TEST(EdgeKernel, ShowsStepsAcrossAndNoneDown) {
    std::vector<ARGB> across(9), down(9);
    for (size_t i = 0; i < 9; ++i) {
        across[i].Green = i % 3 == 2 ? 50 : 10;
        down[i].Green = i / 3 == 2 ? 50 : 10;
    }
    EdgeKernel3x3(across, 3);
    EdgeKernel3x3(down, 3);
    EXPECT_EQ(across[4].Green, 120);
    EXPECT_EQ(down[4].Green, 0);
}

TEST(EdgeKernel, PictureOfTwoByTwoIsCopied) {
    const std::vector<ARGB> before = Noise(2, 2);
    std::vector<ARGB> pixels = before;
    EdgeKernel3x3(pixels, 2);
    EXPECT_EQ(pixels, before);
}

}  // namespace
}  // namespace vxgui
