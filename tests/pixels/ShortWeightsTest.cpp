#include "vxgui/pixels/ShortWeights.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace vxgui::short_weights {
namespace {

std::vector<ShortKernel> Kernels() {
    std::vector<ShortKernel> kernels;
    for (int32_t size = 0; size <= 20; ++size) {
        for (const BoxKernel& boxes : {GaussianKernel(size), MeanKernel(size)}) {
            if (const auto kernel = ShortKernel::Of(boxes)) kernels.push_back(*kernel);
        }
    }
    return kernels;
}

/// Numbers up to `most`: at random, the last block the least and the largest alone.
std::vector<uint16_t> Numbers(size_t count, uint32_t most) {
    std::mt19937 random(static_cast<uint32_t>(count));
    std::vector<uint16_t> numbers(count);
    for (size_t i = 0; i < count; ++i) {
        const auto number = static_cast<uint32_t>(random());
        numbers[i] = static_cast<uint16_t>(i + 3 * kBlock < count ? number % (most + 1)
                                           : i + kBlock < count   ? most
                                                                  : number % 2 * most);
    }
    return numbers;
}

TEST(ShortWeights, AcrossAreRoundedMeansInTwoDigits) {
    constexpr size_t kCount = 40 * kBlock, kDistance = 4;
    for (const ShortKernel& kernel : Kernels()) {
        const size_t margin = kernel.reach * kDistance;
        const std::vector<uint16_t> samples = Numbers(kCount + 2 * margin, 255);
        std::vector<uint16_t> means(kCount);
        Across(samples.data() + margin, kernel, kDistance, means.data(), kCount);
        for (size_t i = 0; i < kCount; ++i) {
            uint32_t sum = samples[i + margin] * kernel.weights[0];
            for (size_t tap = 1; tap <= kernel.reach; ++tap) {
                const size_t aside = tap * kDistance;
                sum += (samples[i + margin - aside] + samples[i + margin + aside]) *
                       kernel.weights[tap];
            }
            ASSERT_EQ(means[i], (256 * sum + kernel.half) / kernel.norm)
                << i << ", reach " << kernel.reach << ", norm " << kernel.norm;
        }
    }
}

TEST(ShortWeights, DownAreMeansRoundedTwice) {
    constexpr size_t kCount = 40 * kBlock;
    for (const ShortKernel& kernel : Kernels()) {
        std::vector<std::vector<uint16_t>> rows;
        Taps taps{};
        for (size_t i = 0; i <= 2 * kernel.reach; ++i) {
            rows.push_back(Numbers(kCount + 64 * i, 255 * 256));
            taps[i] = rows.back().data() + 64 * i;
        }
        std::vector<uint8_t> means(kCount);
        Down(taps, kernel, means.data(), kCount);
        for (size_t i = 0; i < kCount; ++i) {
            uint32_t sum = 0;
            for (size_t row = 0; row < rows.size(); ++row) {
                const size_t tap = row < kernel.reach ? kernel.reach - row : row - kernel.reach;
                sum += taps[row][i] * kernel.weights[tap];
            }
            ASSERT_EQ(means[i], ((sum + kernel.half) / kernel.norm + 128) / 256)
                << i << ", reach " << kernel.reach << ", norm " << kernel.norm;
        }
    }
}

}  // namespace
}  // namespace vxgui::short_weights
