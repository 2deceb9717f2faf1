#include "vxgui/pixels/Premultiply.h"

#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

using namespace lanes;

namespace {

VXGUI_MULTIVERSION(void, PremultiplyLoop, (ARGB * pixels, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const uint32_t value = Load(pixels[i]), alpha = Alpha(value);
        const uint32_t weight = alpha ? alpha + 1 : 0;
        const uint32_t color =
            Join(Per256(BlueRed(value) * weight), Per256(GreenAlpha(value & kColor) * weight));
        Store(pixels[i], color | (value & kAlpha));
    }
}

}  // namespace

void Premultiply(std::span<ARGB> pixels) { PremultiplyLoop(pixels.data(), pixels.size()); }

}  // namespace vxgui
