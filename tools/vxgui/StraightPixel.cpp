#include "tools/vxgui/StraightPixel.h"

#include <bit>

#include "vxgui/pixels/Recover.h"

namespace vxgui::tool {

uint32_t StraightPixelOf(uint32_t onBlack, uint32_t onWhite) {
    const ARGB pixel = Recover(std::bit_cast<ARGB>(onBlack), std::bit_cast<ARGB>(onWhite));
    const int alpha = pixel.Alpha;
    if (alpha == 0) return 0;
    const auto straight = [alpha](uint8_t colour) {
        return static_cast<uint8_t>((colour * 255 + alpha / 2) / alpha);
    };
    return std::bit_cast<uint32_t>(
        ARGB{straight(pixel.Blue), straight(pixel.Green), straight(pixel.Red), pixel.Alpha});
}

}  // namespace vxgui::tool
