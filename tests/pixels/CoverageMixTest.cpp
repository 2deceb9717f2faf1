#include "vxgui/pixels/CoverageMix.h"

#include <gtest/gtest.h>

#include <vector>

namespace vxgui {
namespace {

ARGB Expected(ARGB pixel, int k, ARGB color) {
    const auto mixed = [k](int d, int c) {
        return static_cast<uint8_t>((d * (255 - k) + c * k + 127) / 255);
    };
    return {mixed(pixel.Blue, color.Blue), mixed(pixel.Green, color.Green),
            mixed(pixel.Red, color.Red), k == 0 ? pixel.Alpha : uint8_t{0}};
}

void Check(const std::vector<uint8_t>& coverage, const std::vector<ARGB>& pixels, ARGB color) {
    std::vector<ARGB> mixed = pixels;
    MixByCoverage(coverage, mixed.data(), color);
    for (size_t i = 0; i < pixels.size(); ++i) {
        const int k = i < coverage.size() ? coverage[i] : 0;
        ASSERT_EQ(mixed[i], Expected(pixels[i], k, color)) << i << " of " << coverage.size();
    }
}

TEST(CoverageMix, RoundsEachChannelForEachCoverage) {
    std::vector<uint8_t> coverage(256);
    for (size_t k = 0; k < 256; ++k) coverage[k] = static_cast<uint8_t>(k);
    for (int d = 0; d < 256; ++d) {
        const auto value = static_cast<uint8_t>(d);
        const std::vector<ARGB> pixels(
            256, ARGB{value, static_cast<uint8_t>(255 - d), static_cast<uint8_t>(d ^ 85), value});
        for (int c = 0; c < 256; c += 5) {
            Check(coverage, pixels,
                  {static_cast<uint8_t>(c), value, static_cast<uint8_t>(255 - c), 255});
        }
    }
}

TEST(CoverageMix, ChangesAsManyPixelsAsThereIsCoverage) {
    std::vector<ARGB> pixels(70);
    for (size_t i = 0; i < pixels.size(); ++i) {
        const auto byte = static_cast<uint8_t>(i * 37);
        pixels[i] = {byte, static_cast<uint8_t>(byte + 91), static_cast<uint8_t>(~byte), byte};
    }
    for (size_t count = 0; count < pixels.size(); ++count) {
        std::vector<uint8_t> coverage(count);
        for (size_t i = 0; i < count; ++i) coverage[i] = static_cast<uint8_t>(i % 3 * 127);
        Check(coverage, pixels, {16, 32, 200, 9});
    }
}

}  // namespace
}  // namespace vxgui
