#include "vxgui/pixels/Level.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

using namespace lanes;

namespace {

VXGUI_MULTIVERSION(void, LevelLoop, (ARGB * pixels, size_t count, uint32_t level)) {
    for (size_t i = 0; i < count; ++i) {
        const uint32_t value = Load(pixels[i]);
        const auto scaled = [&](int shift) {
            return std::min((value >> shift & 0xFF) * level / 256, 255u) << shift;
        };
        Store(pixels[i], scaled(0) | scaled(8) | scaled(16) | scaled(24));
    }
}

constexpr int32_t kHighestLevel = 65536;

}  // namespace

int32_t LevelOfFactor(float factor) {
    return RoundHalfEven(std::clamp(factor * 256.0, 0.0, double{kHighestLevel}));
}

void ScaleLevel(std::span<ARGB> pixels, int32_t level) {
    LevelLoop(pixels.data(), pixels.size(),
              static_cast<uint32_t>(std::clamp(level, 0, kHighestLevel)));
}

}  // namespace vxgui
