#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// The bytes of pixels, one at a time and each in 16 bits, as the compiler turns loops over four of
/// them into the widest operations that a machine has.
namespace vxgui::gdiplus::channels {

/// A product of two bytes by 255, rounded: exact for all of them. With t = p + 128 it is
/// (t + t / 256) / 256, which is the upper half of 257 t.
inline uint16_t Per255(uint16_t product) {
    return static_cast<uint16_t>((static_cast<uint16_t>(product + 128) * 257u) >> 16);
}

/// `s` over `d`, of which `rest` shows through.
inline uint8_t Over(uint16_t s, uint16_t d, uint16_t rest) {
    const auto sum = static_cast<uint16_t>(s + Per255(static_cast<uint16_t>(d * rest)));
    return static_cast<uint8_t>(sum < 255 ? sum : 255);
}

/// Pixels that are handled at a time where a step wants a buffer of its own.
constexpr size_t kRun = 64;

/// Up to `kRun` straight words with their colours multiplied by their alpha. First all bytes are,
/// the alpha too: loops without a case are those that become wide operations.
inline __attribute__((always_inline)) void Multiply(const uint32_t* from, size_t count,
                                                    uint32_t* to) {
    const auto* const straight = reinterpret_cast<const uint8_t*>(from);
    uint8_t bytes[4 * kRun];
    for (size_t i = 0; i < 4 * count; i += 4) {
        const uint16_t alpha = straight[i + 3];
        for (size_t c = 0; c < 4; ++c) {
            bytes[i + c] =
                static_cast<uint8_t>(Per255(static_cast<uint16_t>(straight[i + c] * alpha)));
        }
    }
    constexpr uint32_t kAlpha = 0xFF000000;
    for (size_t i = 0; i < count; ++i) {
        uint32_t word;
        std::memcpy(&word, bytes + 4 * i, sizeof word);
        to[i] = (from[i] & kAlpha) | (word & ~kAlpha);
    }
}

/// Calls `draw(to, from, count)` for a run in whole steps, and once more with room for one: pixels
/// that don't fill a wide operation would be taken one by one.
template <class Draw>
inline __attribute__((always_inline)) void InWholeSteps(uint8_t* to, const uint8_t* from,
                                                        size_t count, Draw draw) {
    constexpr size_t kStep = 16;
    const size_t whole = count / kStep * kStep, rest = count - whole;
    draw(to, from, whole);
    if (rest == 0) return;
    uint8_t toStep[4 * kStep] = {}, fromStep[4 * kStep] = {};
    std::memcpy(toStep, to + 4 * whole, 4 * rest);
    std::memcpy(fromStep, from + 4 * whole, 4 * rest);
    draw(toStep, fromStep, kStep);
    std::memcpy(to + 4 * whole, toStep, 4 * rest);
}

inline __attribute__((always_inline)) void DrawOver(uint8_t* to, const uint8_t* from,
                                                    size_t count) {
    InWholeSteps(to, from, count,
                 [](uint8_t* __restrict d, const uint8_t* __restrict s, size_t pixels) {
                     for (size_t i = 0; i < 4 * pixels; i += 4) {
                         const auto rest = static_cast<uint16_t>(255 - s[i + 3]);
                         for (size_t c = 0; c < 4; ++c) d[i + c] = Over(s[i + c], d[i + c], rest);
                     }
                 });
}

}  // namespace vxgui::gdiplus::channels
