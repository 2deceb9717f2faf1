#include "vxgui/pixels/AlphaScan.h"

#include <algorithm>

#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

using namespace lanes;

namespace {

/// Pixels looked at between two tests: a loop that may leave at any pixel can't be vectorised.
constexpr size_t kBlock = 256;

VXGUI_MULTIVERSION(bool, BlockHasOtherAlpha, (std::span<const ARGB> pixels, uint32_t alpha)) {
    uint32_t difference = 0;
    for (const ARGB& pixel : pixels) difference |= Load(pixel) ^ alpha << 24;
    return (difference & kAlpha) != 0;
}

}  // namespace

bool HasOtherAlpha(std::span<const ARGB> pixels, uint8_t alpha) {
    while (!pixels.empty()) {
        const size_t count = std::min(kBlock, pixels.size());
        if (BlockHasOtherAlpha(pixels.first(count), alpha)) return true;
        pixels = pixels.subspan(count);
    }
    return false;
}

}  // namespace vxgui
