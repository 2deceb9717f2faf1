#include "vxgui/pixels/Tint.h"

#include "vxgui/pixels/ColorKey.h"
#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Premultiply.h"

namespace vxgui {

using namespace lanes;

namespace {

VXGUI_MULTIVERSION(void, ColorLoop, (ARGB * pixels, size_t count, uint32_t color)) {
    for (size_t i = 0; i < count; ++i) Store(pixels[i], (Load(pixels[i]) & kAlpha) | color);
}

}  // namespace

void Tint(std::span<ARGB> pixels, uint32_t color) {
    ColorLoop(pixels.data(), pixels.size(), SwapRedBlue(color));
    Premultiply(pixels);
}

}  // namespace vxgui
