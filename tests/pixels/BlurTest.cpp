#include "vxgui/pixels/Blur.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "tests/pixels/KernelWeights.h"

namespace vxgui {
namespace {

struct Picture {
    Picture(int32_t w, int32_t h, ARGB fill = {})
        : width(w), height(h), pixels(static_cast<size_t>(w) * h, fill) {}

    ARGB& At(int32_t x, int32_t y) { return pixels[static_cast<size_t>(y) * width + x]; }
    PixelBox Whole() const { return {0, 0, width - 1, height - 1}; }
    void Blur(const BoxKernel& horizontal, const BoxKernel& vertical) {
        vxgui::Blur(pixels, width, Whole(), horizontal, vertical);
    }

    int32_t width, height;
    std::vector<ARGB> pixels;
};

Picture Noise(int32_t width, int32_t height, uint32_t seed) {
    Picture picture(width, height);
    std::mt19937 random(seed);
    for (ARGB& pixel : picture.pixels) pixel = ARGBFromValue(static_cast<int32_t>(random()));
    return picture;
}

/// One direction by its weights: every sample, then the division, rounded with halves up.
std::vector<int64_t> ReferenceLine(const std::vector<int64_t>& line, const BoxKernel& kernel) {
    const auto weights = test::WeightsOf(kernel);
    const auto reach = static_cast<int64_t>(weights.size() / 2);
    const auto norm = std::accumulate(weights.begin(), weights.end(), int64_t{0});
    const auto size = static_cast<int64_t>(line.size());
    std::vector<int64_t> result;
    for (int64_t i = 0; i < size; ++i) {
        int64_t sum = 0;
        for (int64_t k = std::max<int64_t>(-reach, -i); k <= reach && i + k < size; ++k) {
            sum += weights[k + reach] * line[i + k];
        }
        result.push_back((sum + norm / 2) / norm);
    }
    return result;
}

std::vector<uint8_t> ReferenceChannel(Picture picture, uint8_t ARGB::*channel,
                                      const BoxKernel& horizontal, const BoxKernel& vertical) {
    std::vector<std::vector<int64_t>> rows;
    for (int32_t y = 0; y < picture.height; ++y) {
        std::vector<int64_t> row;
        for (int32_t x = 0; x < picture.width; ++x) row.push_back(picture.At(x, y).*channel * 256);
        rows.push_back(ReferenceLine(row, horizontal));
    }
    std::vector<uint8_t> result(picture.pixels.size());
    for (int32_t x = 0; x < picture.width; ++x) {
        std::vector<int64_t> column;
        for (const auto& row : rows) column.push_back(row[x]);
        column = ReferenceLine(column, vertical);
        for (int32_t y = 0; y < picture.height; ++y) {
            result[static_cast<size_t>(y) * picture.width + x] =
                static_cast<uint8_t>((column[y] + 128) / 256);
        }
    }
    return result;
}

Picture Reference(const Picture& picture, const BoxKernel& horizontal, const BoxKernel& vertical) {
    Picture result = picture;
    for (uint8_t ARGB::*channel : {&ARGB::Blue, &ARGB::Green, &ARGB::Red, &ARGB::Alpha}) {
        const auto bytes = ReferenceChannel(picture, channel, horizontal, vertical);
        for (size_t i = 0; i < bytes.size(); ++i) result.pixels[i].*channel = bytes[i];
    }
    return result;
}

// The widest kernel with 32-bit sums and the first with 64-bit sums are among these.
const int32_t kRadii[] = {0, 1, 2, 3, 4, 5, 7, 10, 16, 46, 47, 48, 49, 60, 100, 333, 1000};

TEST(Blur, AgreesWithTheWeightedSumsAtEveryRadius) {
    for (int32_t radius : kRadii) {
        const Picture before = Noise(37, 23, static_cast<uint32_t>(radius));
        Picture picture = before;
        picture.Blur(GaussianKernel(radius), GaussianKernel(radius / 2));
        ASSERT_EQ(picture.pixels,
                  Reference(before, GaussianKernel(radius), GaussianKernel(radius / 2)).pixels)
            << "radius " << radius;
    }
}

TEST(Blur, AgreesWithTheWeightedSumsAtEverySize) {
    for (int32_t width : {1, 2, 3, 15, 16, 17, 33}) {
        for (int32_t height : {1, 2, 15, 16, 17, 50}) {
            for (int32_t radius : {1, 4, 20}) {
                const Picture before = Noise(width, height, static_cast<uint32_t>(radius));
                Picture picture = before;
                picture.Blur(GaussianKernel(radius), GaussianKernel(3));
                ASSERT_EQ(picture.pixels,
                          Reference(before, GaussianKernel(radius), GaussianKernel(3)).pixels)
                    << width << " x " << height << ", radius " << radius;
            }
        }
    }
}

TEST(Blur, RowsLongerThanABlockAgreeWithTheWeightedSums) {
    for (int32_t radius = 1; radius <= 9; ++radius) {
        const Picture before = Noise(300, 7, static_cast<uint32_t>(radius));
        Picture picture = before;
        picture.Blur(GaussianKernel(radius), GaussianKernel(1));
        ASSERT_EQ(picture.pixels,
                  Reference(before, GaussianKernel(radius), GaussianKernel(1)).pixels)
            << "radius " << radius;
    }
}

TEST(Blur, AWideKernelReadsNoColumnThatIsBlurredAlready) {
    for (int32_t extent : {33, 41, 128, 255}) {
        for (bool black : {false, true}) {
            Picture before = Noise(150, 1100, static_cast<uint32_t>(extent));
            if (black)
                std::ranges::for_each(before.pixels, [](ARGB& p) { p = {0, 0, 0, p.Alpha}; });
            Picture picture = before;
            picture.Blur(MeanKernel(extent), MeanKernel(3));
            ASSERT_TRUE(picture.pixels ==
                        Reference(before, MeanKernel(extent), MeanKernel(3)).pixels)
                << extent << (black ? ", black" : "");
        }
    }
}

TEST(Blur, EveryKernelRoundsAsItsWeightsSay) {
    for (int32_t a = 1; a <= 8; ++a) {
        for (int32_t b = 1; b <= 8; ++b) {
            const BoxKernel kernel{{a, b, (a + b) % 2 ? 2 : 1}};
            const Picture before = Noise(61, 37, static_cast<uint32_t>(a * 8 + b));
            Picture picture = before;
            picture.Blur(kernel, kernel);
            ASSERT_EQ(picture.pixels, Reference(before, kernel, kernel).pixels) << a << ", " << b;
        }
    }
}

TEST(Blur, APictureWithoutColoursHasItsAlphaBlurredAsAnyOther) {
    for (int32_t radius : {1, 4, 8, 9, 30, 70, 300}) {
        Picture before = Noise(150, 90, static_cast<uint32_t>(radius));
        for (ARGB& pixel : before.pixels) pixel = {0, 0, 0, pixel.Alpha};
        Picture picture = before;
        picture.Blur(GaussianKernel(radius), GaussianKernel(radius));
        ASSERT_EQ(picture.pixels,
                  Reference(before, GaussianKernel(radius), GaussianKernel(radius)).pixels)
            << "radius " << radius;
    }
}

// A host may hand over pixels of a file in memory.
TEST(Blur, PixelsMayBeginAtAnyAddress) {
    for (bool black : {false, true}) {
        Picture before = Noise(30, 20, 5);
        if (black) std::ranges::for_each(before.pixels, [](ARGB& p) { p = {0, 0, 0, p.Alpha}; });
        const BoxKernel kernel = GaussianKernel(3);
        const Picture expected = Reference(before, kernel, kernel);
        for (size_t offset = 0; offset < 4; ++offset) {
            std::vector<ARGB> memory(before.pixels.size() + 1);
            const std::span pixels(
                reinterpret_cast<ARGB*>(reinterpret_cast<uint8_t*>(memory.data()) + offset),
                before.pixels.size());
            std::ranges::copy(before.pixels, pixels.begin());
            Blur(pixels, before.width, before.Whole(), kernel, kernel);
            ASSERT_TRUE(std::ranges::equal(pixels, expected.pixels)) << offset << black;
        }
    }
}

TEST(Blur, MeanOfEvenAndOddWidthsAgreesWithTheWeightedSums) {
    for (int32_t extent : {1, 2, 3, 4, 5, 8, 31, 64, 999}) {
        const Picture before = Noise(40, 20, static_cast<uint32_t>(extent));
        Picture picture = before;
        picture.Blur(MeanKernel(extent), MeanKernel(extent + 1));
        ASSERT_EQ(picture.pixels,
                  Reference(before, MeanKernel(extent), MeanKernel(extent + 1)).pixels)
            << "width " << extent;
    }
}

TEST(Blur, WithoutRadiusChangesNothing) {
    const Picture before = Noise(9, 7, 1);
    Picture picture = before;
    picture.Blur(GaussianKernel(0), GaussianKernel(-5));
    EXPECT_EQ(picture.pixels, before.pixels);
}

TEST(Blur, SolidAreaStaysExactlyWhereTheKernelSeesNothingElse) {
    for (int32_t radius : {1, 5, 20, 48, 60}) {
        const ARGB solid{1, 128, 254, 255};
        Picture picture(2 * radius + 3, 2 * radius + 3, solid);
        picture.Blur(GaussianKernel(radius), GaussianKernel(radius));
        for (int32_t y = radius; y < radius + 3; ++y) {
            for (int32_t x = radius; x < radius + 3; ++x) EXPECT_EQ(picture.At(x, y), solid);
        }
    }
}

TEST(Blur, EdgesOfThePictureFadeToTransparent) {
    Picture picture(100, 100, {255, 255, 255, 255});
    picture.Blur(GaussianKernel(12), GaussianKernel(12));
    for (int32_t x = 1; x < 50; ++x)
        EXPECT_GE(picture.At(x, 50).Alpha, picture.At(x - 1, 50).Alpha);
    EXPECT_NEAR(picture.At(0, 50).Alpha, 139,
                2);  // a little over half of the kernel is still inside
    EXPECT_LT(picture.At(0, 0).Alpha, picture.At(0, 50).Alpha);
    EXPECT_EQ(picture.At(50, 50).Alpha, 255);
}

TEST(Blur, MirroredPictureGivesTheMirroredResult) {
    for (int32_t radius : {1, 2, 3, 4, 5, 17, 50}) {
        Picture picture = Noise(41, 30, 7), mirrored = picture;
        std::reverse(mirrored.pixels.begin(), mirrored.pixels.end());
        picture.Blur(GaussianKernel(radius), GaussianKernel(radius));
        mirrored.Blur(GaussianKernel(radius), GaussianKernel(radius));
        std::reverse(mirrored.pixels.begin(), mirrored.pixels.end());
        EXPECT_EQ(picture.pixels, mirrored.pixels) << "radius " << radius;
    }
}

TEST(Blur, SpreadsExactlyAsFarAsTheRadius) {
    for (int32_t radius : {1, 2, 3, 4, 5, 6}) {
        Picture picture(41, 41, {});
        for (int32_t y = 0; y < 41; ++y) picture.At(20, y) = {255, 255, 255, 255};
        picture.Blur(GaussianKernel(radius), GaussianKernel(0));
        EXPECT_GT(picture.At(20 - radius, 20).Alpha, 0) << "radius " << radius;
        EXPECT_EQ(picture.At(20 - radius, 20), picture.At(20 + radius, 20));
        EXPECT_EQ(picture.At(20 - radius - 1, 20).Alpha, 0) << "radius " << radius;
        EXPECT_EQ(picture.At(20 + radius + 1, 20).Alpha, 0) << "radius " << radius;
    }
}

TEST(Blur, KeepsTheEnergy) {
    for (int32_t radius : {1, 4, 9, 20, 50}) {
        const int32_t size = 60 + 2 * radius;
        Picture picture(size, size);
        for (int32_t y = radius; y < size - radius; ++y) {
            for (int32_t x = radius; x < size - radius; ++x) picture.At(x, y) = {9, 99, 199, 255};
        }
        const auto sum = [&] {
            return std::accumulate(picture.pixels.begin(), picture.pixels.end(), 0.0,
                                   [](double total, ARGB pixel) { return total + pixel.Alpha; });
        };
        const double before = sum();
        picture.Blur(GaussianKernel(radius), GaussianKernel(radius));
        EXPECT_NEAR(sum() / before, 1.0, 0.002) << "radius " << radius;
    }
}

TEST(Blur, PremultipliedPixelsStayPremultiplied) {
    Picture picture = Noise(50, 50, 3);
    for (ARGB& pixel : picture.pixels) {
        pixel.Blue = std::min(pixel.Blue, pixel.Alpha);
        pixel.Green = std::min(pixel.Green, pixel.Alpha);
        pixel.Red = std::min(pixel.Red, pixel.Alpha);
    }
    picture.Blur(GaussianKernel(6), GaussianKernel(3));
    for (ARGB pixel : picture.pixels) {
        ASSERT_LE(std::max({pixel.Blue, pixel.Green, pixel.Red}), pixel.Alpha);
    }
}

TEST(Blur, RectangleIsTheSamePartOfTheWholeBlurAndLeavesTheRest) {
    const Picture before = Noise(60, 50, 11);
    Picture whole = before;
    whole.Blur(GaussianKernel(7), GaussianKernel(4));
    for (const PixelBox& part :
         {PixelBox{0, 0, 59, 49}, PixelBox{20, 10, 40, 30}, PixelBox{0, 0, 0, 0},
          PixelBox{59, 49, 59, 49}, PixelBox{3, 45, 58, 49}}) {
        Picture expected = before, picture = before;
        for (int32_t y = part.top; y <= part.bottom; ++y) {
            for (int32_t x = part.left; x <= part.right; ++x) expected.At(x, y) = whole.At(x, y);
        }
        Blur(picture.pixels, picture.width, part, GaussianKernel(7), GaussianKernel(4));
        EXPECT_EQ(picture.pixels, expected.pixels) << part.left << ", " << part.top;
    }
}

TEST(Blur, RectangleThatLeavesThePictureDoesNothing) {
    const Picture before = Noise(10, 8, 5);
    for (const PixelBox& part :
         {PixelBox{-1, 0, 5, 5}, PixelBox{0, -1, 5, 5}, PixelBox{0, 0, 10, 5}, PixelBox{0, 0, 5, 8},
          PixelBox{5, 0, 4, 5}, PixelBox{0, 5, 4, 4}}) {
        Picture picture = before;
        Blur(picture.pixels, picture.width, part, GaussianKernel(2), GaussianKernel(2));
        EXPECT_EQ(picture.pixels, before.pixels);
    }
    Picture picture = before;
    Blur(picture.pixels, 0, {0, 0, 0, 0}, GaussianKernel(2), GaussianKernel(2));
    Blur({}, 10, {0, 0, 0, 0}, GaussianKernel(2), GaussianKernel(2));
    EXPECT_EQ(picture.pixels, before.pixels);
}

TEST(Blur, RadiusBeyondTheLargestCountsAsIt) {
    Picture picture(5, 5, {255, 255, 255, 255}), largest = picture;
    picture.Blur(GaussianKernel(INT32_MAX), GaussianKernel(0));
    largest.Blur(GaussianKernel(kLargestBlurRadius), GaussianKernel(0));
    EXPECT_EQ(picture.pixels, largest.pixels);
    EXPECT_EQ(picture.At(2, 2).Alpha, 0);
}

}  // namespace
}  // namespace vxgui
