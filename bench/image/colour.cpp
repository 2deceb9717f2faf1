#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "bench/Beside.h"
#include "bench/Pixels.h"
#include "vxgui/colour/ColorHls.h"

namespace vxgui::bench {
namespace {

constexpr int kColors = 1000;

std::shared_ptr<std::vector<uint32_t>> Colors() {
    auto colors = std::make_shared<std::vector<uint32_t>>(StraightPicture(kColors, 1, false));
    for (uint32_t& color : *colors) color &= 0xFFFFFF;
    return colors;
}

// 1,000 colours, one after the other, to their hue, luminance and saturation and back.
auto Ours() {
    return [colors = Colors()] {
        for (const uint32_t color : *colors) {
            uint16_t hue, luminance, saturation;
            ColorRGBToHLS(static_cast<int32_t>(color), &hue, &luminance, &saturation);
            benchmark::DoNotOptimize(ColorHLSToRGB(hue, luminance, saturation));
        }
    };
}

struct Hsl {
    double hue, lightness, saturation;
};

// The formulas of the textbook, of 0 to 1.
Hsl ToHsl(double red, double green, double blue) {
    const double max = std::max({red, green, blue}), min = std::min({red, green, blue});
    const double sum = max + min, spread = max - min;
    if (spread == 0) return {0, sum / 2, 0};
    double hue = 0;
    if (max == red) {
        hue = (green - blue) / spread + (green < blue ? 6 : 0);
    } else if (max == green) {
        hue = (blue - red) / spread + 2;
    } else {
        hue = (red - green) / spread + 4;
    }
    return {hue / 6, sum / 2, spread / (sum > 1 ? 2 - sum : sum)};
}

double Channel(const Hsl& hsl, double turn) {
    const double chroma = (1 - std::abs(2 * hsl.lightness - 1)) * hsl.saturation;
    double place = hsl.hue + turn;
    place = (place - std::floor(place)) * 6;
    return hsl.lightness + chroma * (std::clamp(std::abs(place - 3) - 1, 0.0, 1.0) - 0.5);
}

auto Doubles() {
    return [colors = Colors()] {
        for (const uint32_t color : *colors) {
            const auto part = [color](int shift) { return (color >> shift & 255) / 255.0; };
            Hsl hsl = ToHsl(part(0), part(8), part(16));
            benchmark::DoNotOptimize(hsl);
            const auto byte = [&](double turn) {
                return static_cast<uint32_t>(Channel(hsl, turn) * 255 + 0.5);
            };
            benchmark::DoNotOptimize(byte(0) | byte(2 / 3.0) << 8 | byte(1 / 3.0) << 16);
        }
    };
}

const bool kAdded = [] {
    Beside("colour-hls", "1000", "ours", Ours);
    Beside("colour-hls", "1000", "plain-doubles", Doubles);
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
