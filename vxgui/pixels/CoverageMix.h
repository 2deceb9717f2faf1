#pragma once

#include <cstdint>
#include <span>

#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// Mixes a colour into pixels, as many as there are coverage bytes: each of its channels becomes
/// (d * (255 - k) + c * k + 127) / 255 by the coverage k, and the alpha 0 wherever there is any.
/// The colour's own alpha doesn't count.
void MixByCoverage(std::span<const uint8_t> coverage, ARGB* pixels, ARGB color);

}  // namespace vxgui
