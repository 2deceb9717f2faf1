#include "vxgui/platform/gdi/DeviceColors.h"

namespace vxgui::gdi {
namespace {

ColorTable BlackAndWhite() {
    ColorTable table;
    table.count = 2;
    table.colors[1] = 0xFFFFFF;
    return table;
}

ColorTable ColorCube() {
    ColorTable table;
    table.count = 256;
    for (uint32_t i = 0; i < 256; ++i) {
        table.colors[i] =
            (i >> 5) * 255 / 7 << 16 | (i >> 2 & 7) * 255 / 7 << 8 | (i & 3) * 255 / 3;
    }
    return table;
}

}  // namespace

const ColorTable& DeviceColors(int depth) {
    static const ColorTable two = BlackAndWhite();
    static const ColorTable cube = ColorCube();
    return depth == 1 ? two : cube;
}

}  // namespace vxgui::gdi
