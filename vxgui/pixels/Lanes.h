#pragma once

#include <cstdint>
#include <cstring>

#include "vxgui/pixels/ARGB.h"

/// Arithmetic on a pixel as one 32-bit lane, which compilers turn into vector code where a loop
/// over four byte fields would defeat them. The four channels are taken as two pairs, each
/// channel in a 16-bit half of its own, wide enough for a product with a weight up to 256.
namespace vxgui::lanes {

constexpr uint32_t kPair = 0x00FF00FF;
constexpr uint32_t kColor = 0x00FFFFFF;
constexpr uint32_t kAlpha = 0xFF000000;

inline uint32_t Load(const ARGB& pixel) {
    uint32_t value;
    std::memcpy(&value, &pixel, sizeof value);
    return value;
}
inline void Store(ARGB& pixel, uint32_t value) {
    std::memcpy(static_cast<void*>(&pixel), &value, sizeof value);
}

constexpr uint32_t Alpha(uint32_t value) { return value >> 24; }
constexpr uint32_t BlueRed(uint32_t value) { return value & kPair; }
constexpr uint32_t GreenAlpha(uint32_t value) { return value >> 8 & kPair; }
constexpr uint32_t Join(uint32_t blueRed, uint32_t greenAlpha) { return blueRed | greenAlpha << 8; }

/// c / 256 of both 16-bit halves, truncated.
constexpr uint32_t Per256(uint32_t pair) { return pair >> 8 & kPair; }
/// min(c, 255) of both halves, each below 512.
constexpr uint32_t Saturate(uint32_t pair) {
    return (pair | (pair >> 8 & 0x00010001) * 255) & kPair;
}

}  // namespace vxgui::lanes
