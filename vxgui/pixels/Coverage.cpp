#include "vxgui/pixels/Coverage.h"

#include <algorithm>

namespace vxgui {

Coverage CoverageOfBlue(std::span<const ARGB> pixels, int32_t width, int32_t height) {
    if (width < 1 || height < 1 || pixels.size() < size_t(width) * height) return {};
    Coverage coverage{width, height, std::vector<uint8_t>(size_t(width) * height)};
    std::transform(pixels.begin(),
                   pixels.begin() + static_cast<std::ptrdiff_t>(coverage.bytes.size()),
                   coverage.bytes.begin(), [](ARGB pixel) { return pixel.Blue; });
    return coverage;
}

void PaintCoverage(const Coverage& coverage, std::span<ARGB> pixels, ARGB color) {
    const size_t count = std::min(pixels.size(), coverage.bytes.size());
    for (size_t i = 0; i < count; ++i) {
        const uint8_t m = coverage.bytes[i];
        if (m == 0) continue;
        const auto channel = [m](int c) { return static_cast<uint8_t>(c * (m + 1) / 256); };
        pixels[i] = {channel(color.Blue), channel(color.Green), channel(color.Red), m};
    }
}

}  // namespace vxgui
