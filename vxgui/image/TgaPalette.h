#pragma once

#include "vxgui/image/modTGA.h"

namespace vxgui {

/// A pixel of 5 bits a channel; the low three bits of each stay 0. Bit 15 is the alpha.
constexpr ARGB Rgb555(uint16_t value) {
    return {static_cast<uint8_t>((value & 31) * 8), static_cast<uint8_t>((value / 32 & 31) * 8),
            static_cast<uint8_t>((value / 1024 & 31) * 8),
            static_cast<uint8_t>(value & 0x8000 ? 255 : 0)};
}

/// Reads the colour map, if there is one, and points the record at the pixels behind it.
/// Answers a status code.
int32_t ReadTgaPalette(TgaRecord& record);

}  // namespace vxgui
