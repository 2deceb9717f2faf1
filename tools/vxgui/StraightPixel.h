#pragma once

#include <cstdint>

namespace vxgui::tool {

/// The straight colour and alpha of a pixel, 0xAARRGGBB, that was painted on black and on white:
/// white shines through by 255 - alpha, whatever kind of blit painted it. 0 for a clear one.
uint32_t StraightPixelOf(uint32_t onBlack, uint32_t onWhite);

}  // namespace vxgui::tool
