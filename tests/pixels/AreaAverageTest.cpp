#include "vxgui/pixels/AreaAverage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace vxgui {
namespace {

using Bands = std::vector<AreaBand>;

int32_t SizeOf(const Bands& bands) {
    int32_t size = 0;
    for (const AreaBand& band : bands) size += band.size;
    return size;
}

std::vector<ARGB> Averaged(const std::vector<ARGB>& source, int32_t width, const Bands& columns,
                           const Bands& rows) {
    std::vector<ARGB> target(static_cast<size_t>(SizeOf(columns) * SizeOf(rows)), {9, 9, 9, 9});
    AverageAreas(source, width, columns, rows, target);
    return target;
}

ARGB Grey(uint8_t value) { return {value, value, value, value}; }

TEST(AreaAverage, TheSameSizeIsACopy) {
    const std::vector<ARGB> source{{1, 2, 3, 4}, {50, 60, 70, 80}, {9, 8, 7, 255},
                                   {0, 1, 0, 2}, {5, 5, 5, 5},     {255, 254, 253, 255}};
    EXPECT_EQ(Averaged(source, 3, {{0, 3, 3}}, {{0, 2, 2}}), source);
}

TEST(AreaAverage, AWholeFactorRepeatsEveryPixel) {
    const std::vector<ARGB> source{{1, 2, 3, 4}, {50, 60, 70, 80}, {9, 8, 7, 255}};
    for (int32_t factor = 2; factor <= 16; ++factor) {
        const auto target = Averaged(source, 3, {{0, 3, 3 * factor}}, {{0, 1, factor}});
        for (size_t i = 0; i < target.size(); ++i) {
            const size_t column = i % static_cast<size_t>(3 * factor);
            ASSERT_EQ(target[i], source[column / static_cast<size_t>(factor)]) << factor;
        }
    }
}

TEST(AreaAverage, APixelIsTheMeanOfWhatItCovers) {
    const std::vector<ARGB> source{Grey(0), Grey(100)};
    // Three pixels for two: the middle one covers a third of each, twice.
    EXPECT_EQ(Averaged(source, 2, {{0, 2, 3}}, {{0, 1, 1}}),
              (std::vector<ARGB>{Grey(0), Grey(50), Grey(100)}));
    EXPECT_EQ(Averaged(source, 2, {{0, 2, 1}}, {{0, 1, 1}}), std::vector<ARGB>{Grey(50)});
    // Down as well as across; 12.5 is rounded up.
    const std::vector<ARGB> square{Grey(0), Grey(10), Grey(20), Grey(20)};
    EXPECT_EQ(Averaged(square, 2, {{0, 2, 1}}, {{0, 2, 1}}), std::vector<ARGB>{Grey(13)});
}

TEST(AreaAverage, NothingOfABandShowsInItsNeighbour) {
    const std::vector<ARGB> source{Grey(200), Grey(10), Grey(10), Grey(90)};
    EXPECT_EQ(Averaged(source, 4, {{0, 1, 2}, {1, 3, 3}, {3, 4, 1}}, {{0, 1, 1}}),
              (std::vector<ARGB>{Grey(200), Grey(200), Grey(10), Grey(10), Grey(10), Grey(90)}));
}

TEST(AreaAverage, OutsideCountsAsTheNearestPixel) {
    const std::vector<ARGB> source{Grey(7), Grey(80)};
    EXPECT_EQ(Averaged(source, 2, {{-3, 0, 2}, {2, 9, 1}}, {{5, 6, 1}}),
              (std::vector<ARGB>{Grey(7), Grey(7), Grey(80)}));
}

TEST(AreaAverage, APlainColourStaysAndPremultipliedPixelsStayThat) {
    std::mt19937 random(3);
    const auto pick = [&](int32_t from, int32_t to) {
        return std::uniform_int_distribution<int32_t>(from, to)(random);
    };
    for (int i = 0; i < 2000; ++i) {
        const int32_t width = pick(1, 20), height = pick(1, 20);
        const Bands columns{{0, double(width), pick(1, 50)}},
            rows{{0, double(height), pick(1, 50)}};
        std::vector<ARGB> source(static_cast<size_t>(width * height), Grey(uint8_t(pick(0, 255))));
        for (const ARGB& pixel : Averaged(source, width, columns, rows))
            ASSERT_EQ(pixel, source[0]);
        for (ARGB& pixel : source) {
            pixel.Alpha = uint8_t(pick(0, 255));
            pixel.Blue = uint8_t(pick(0, pixel.Alpha));
        }
        for (const ARGB& pixel : Averaged(source, width, columns, rows))
            ASSERT_LE(pixel.Blue, pixel.Alpha);
    }
}

TEST(AreaAverage, WritesNothingWithoutPixelsOrRoom) {
    std::vector<ARGB> target(3, Grey(9));
    const Bands two{{0, 1, 2}};
    AverageAreas({}, 1, two, two, target);
    AverageAreas(std::vector<ARGB>(1), 0, two, two, target);
    AverageAreas(std::vector<ARGB>(1), 1, two, two, target);
    EXPECT_EQ(target, std::vector<ARGB>(3, Grey(9)));
}

}  // namespace
}  // namespace vxgui
