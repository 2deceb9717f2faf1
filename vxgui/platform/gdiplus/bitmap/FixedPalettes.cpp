#include "vxgui/platform/gdiplus/bitmap/FixedPalettes.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/bitmap/StandardColors.h"

namespace vxgui::gdiplus {
namespace {

// The middle of three intensities is that of the system's dark colours, so that these count once.
ARGB WithSystemMiddle(ARGB color) {
    for (int shift = 0; shift < 24; shift += 8) {
        if ((color >> shift & 255) == 127) color += 1u << shift;
    }
    return color;
}

std::vector<ARGB> SystemAndCube(ARGB intensities) {
    std::vector<ARGB> colors(kSystemColors.begin(), kSystemColors.end());
    for (ARGB color : ColorCube(intensities, intensities, intensities)) {
        if (intensities == 3) color = WithSystemMiddle(color);
        if (!std::ranges::count(kSystemColors, color)) colors.push_back(color);
    }
    return colors;
}

}  // namespace

std::vector<ARGB> FixedColors(PaletteType type) {
    switch (type) {
        case PaletteTypeFixedBW:
            return {0xFF000000, 0xFFFFFFFF};
        case PaletteTypeFixedHalftone8:
        case PaletteTypeFixedHalftone27:
        case PaletteTypeFixedHalftone64:
        case PaletteTypeFixedHalftone125:
        case PaletteTypeFixedHalftone216:
            return SystemAndCube(static_cast<ARGB>(type - PaletteTypeFixedHalftone8 + 2));
        case PaletteTypeFixedHalftone252:
            return ColorCube(6, 7, 6);
        case PaletteTypeFixedHalftone256:
            return ColorCube(8, 8, 4);
        default:
            return {};
    }
}

int IntensityStep(PaletteType type) {
    constexpr int kSteps[] = {51, 51, 255, 255, 127, 85, 64, 51, 51, 51};
    return kSteps[type];
}

}  // namespace vxgui::gdiplus
