#pragma once

#include <bit>
#include <cstdint>

namespace vxgui {

/// One pixel of a surface, and one colour: four bytes in this order in memory. Whether the
/// colour is multiplied by the alpha is the holder's business.
struct ARGB {
    uint8_t Blue = 0;
    uint8_t Green = 0;
    uint8_t Red = 0;
    uint8_t Alpha = 0;

    friend constexpr bool operator==(const ARGB&, const ARGB&) = default;
};
static_assert(sizeof(ARGB) == 4 && alignof(ARGB) == 1);

/// The ARGB value of a pixel: Blue lowest, Alpha highest. It is signed, so that an opaque
/// colour is negative.
constexpr int32_t ValueFromARGB(ARGB color) {
    return static_cast<int32_t>(static_cast<uint32_t>(color.Alpha) << 24 | color.Red << 16 |
                                color.Green << 8 | color.Blue);
}

/// The pixel of an ARGB value.
constexpr ARGB ARGBFromValue(int32_t value) {
    const auto bits = static_cast<uint32_t>(value);
    return {static_cast<uint8_t>(bits), static_cast<uint8_t>(bits >> 8),
            static_cast<uint8_t>(bits >> 16), static_cast<uint8_t>(bits >> 24)};
}

// Pixel memory is also read as 32-bit values, by hosts and by the drawing libraries underneath.
static_assert(std::endian::native == std::endian::little);

}  // namespace vxgui
