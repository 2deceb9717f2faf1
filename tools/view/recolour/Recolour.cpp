#include "tools/view/recolour/Recolour.h"

#include <algorithm>

#include "vxgui/surface/HlsAdjustment.h"

namespace vxgui::view {
namespace {

uint32_t RgbOf(ARGB pixel) {
    return uint32_t{pixel.Red} << 16 | uint32_t{pixel.Green} << 8 | pixel.Blue;
}

bool IsKey(ARGB pixel, const KeyColours& keys) {
    return std::ranges::count(keys, RgbOf(pixel)) > 0;
}

// The next blue that makes no key of the pixel, downwards from a full one.
void StepOffKeys(ARGB& pixel, const KeyColours& keys) {
    const int step = pixel.Blue > 127 ? -1 : 1;
    while (IsKey(pixel, keys)) pixel.Blue = static_cast<uint8_t>(pixel.Blue + step);
}

}  // namespace

void RecolourPixels(std::span<ARGB> pixels, const Recolour& how, const KeyColours& keys) {
    if (how.IsNone()) return;
    const HlsAdjustment adjustment(how.hue, how.lightness, how.saturation, false);
    if (keys.empty()) return adjustment.Apply(pixels);
    const std::vector<ARGB> before(pixels.begin(), pixels.end());
    adjustment.Apply(pixels);
    for (size_t i = 0; i < pixels.size(); ++i) {
        if (IsKey(before[i], keys))
            pixels[i] = before[i];
        else
            StepOffKeys(pixels[i], keys);
    }
}

int32_t RecolouredRef(int32_t colour, const Recolour& how) {
    const auto channel = [&](int shift) { return static_cast<uint8_t>(colour >> shift & 255); };
    ARGB pixel{channel(16), channel(8), channel(0), 255};
    RecolourPixels({&pixel, 1}, how);
    return pixel.Red | pixel.Green << 8 | pixel.Blue << 16;
}

}  // namespace vxgui::view
