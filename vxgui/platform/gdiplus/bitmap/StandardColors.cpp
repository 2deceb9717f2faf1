#include "vxgui/platform/gdiplus/bitmap/StandardColors.h"

namespace vxgui::gdiplus {

std::vector<ARGB> ColorCube(ARGB reds, ARGB greens, ARGB blues) {
    std::vector<ARGB> colors;
    for (ARGB red = 0; red < reds; ++red) {
        for (ARGB green = 0; green < greens; ++green) {
            for (ARGB blue = 0; blue < blues; ++blue) {
                colors.push_back(0xFF000000 | red * 255 / (reds - 1) << 16 |
                                 green * 255 / (greens - 1) << 8 | blue * 255 / (blues - 1));
            }
        }
    }
    return colors;
}

}  // namespace vxgui::gdiplus
