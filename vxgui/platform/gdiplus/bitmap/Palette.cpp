#include "vxgui/platform/gdiplus/bitmap/Palette.h"

#include <algorithm>

#include "vxgui/platform/codecs/ImageDecoder.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/bitmap/StandardColors.h"

namespace vxgui::gdiplus {
namespace {

constexpr size_t kGap = 24;

bool IsGray(ARGB color) {
    return (color & 255) == (color >> 8 & 255) && (color & 255) == (color >> 16 & 255);
}

uint32_t Distance(ARGB a, ARGB b) {
    uint32_t sum = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const int apart = static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255);
        sum += static_cast<uint32_t>(apart * apart);
    }
    return sum;
}

std::vector<ARGB> HalftoneColors() {
    std::vector<ARGB> colors(kSystemColors.begin(), kSystemColors.end());
    colors.resize(colors.size() + kGap);
    const std::vector<ARGB> cube = ColorCube(6, 6, 6);
    colors.insert(colors.end(), cube.begin(), cube.end());
    return colors;
}

}  // namespace

Palette DefaultPalette(PixelFormat format) {
    switch (format) {
        case PixelFormat1bppIndexed:
            return GrayPalette(2);
        case PixelFormat4bppIndexed:
            return {0, {kSystemColors.begin(), kSystemColors.end()}};
        case PixelFormat8bppIndexed:
            return {PaletteFlagsHalftone, HalftoneColors()};
        default:
            return {};
    }
}

Palette GrayPalette(size_t count) { return {PaletteFlagsGrayScale, codecs::GrayShades(count)}; }

UINT PaletteFlagsOf(std::span<const ARGB> entries) {
    UINT flags = 0;
    if (std::ranges::any_of(entries, [](ARGB color) { return color >> 24 != 255; })) {
        flags |= PaletteFlagsHasAlpha;
    }
    if (!entries.empty() && std::ranges::all_of(entries, IsGray)) flags |= PaletteFlagsGrayScale;
    return flags;
}

uint8_t PaletteMatcher::Search(ARGB color) const {
    size_t best = 0;
    uint32_t least = UINT32_MAX;
    for (size_t i = 0; i < entries_.size(); ++i) {
        const uint32_t distance = Distance(entries_[i], color);
        if (distance < least) {
            least = distance;
            best = i;
        }
    }
    return static_cast<uint8_t>(best);
}

uint8_t PaletteMatcher::Nearest(ARGB color) {
    Known& known = known_[(color ^ color >> 10 ^ color >> 22) % known_.size()];
    if (!known.valid || known.color != color) known = {color, Search(color), true};
    return known.index;
}

}  // namespace vxgui::gdiplus
