#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "vxgui/pixels/ARGB.h"

/// Pixel loops in steps of as many pixels as the widest operations hold. In a step each inner loop
/// runs over all of it at once: over the words, or over their halves, two channels in 16 bits each,
/// which hold a product with a weight up to 256. The compiler turns such a loop into one operation,
/// and what stands in an array between two of them into a register. A result goes into an array of
/// its own before it is stored, or the compiler would have to look for an overlap at each step.
namespace vxgui::steps {

constexpr size_t kPixels = 16;
constexpr size_t kHalves = 2 * kPixels;
constexpr size_t kBytes = 4 * kPixels;
/// Pixels that are looked at together for a shorter way.
constexpr size_t kBlock = 4 * kPixels;

/// Views of pixel memory, which may begin at any address: of words, of pairs of a lower channel
/// (blue, red) and an upper one (green, alpha), and of bytes.
using Words __attribute__((may_alias, aligned(1))) = uint32_t;
using Halves __attribute__((may_alias, aligned(1))) = uint16_t;
using Bytes = uint8_t;
static_assert(alignof(Words) == 1 && alignof(Halves) == 1);  // clang minds the attribute's place

constexpr uint16_t kUpper = 0xFF00;
constexpr uint16_t Low(uint16_t half) { return half & 0xFF; }
constexpr uint16_t High(uint16_t half) { return half >> 8; }

/// A channel times a weight of at most 256, in 16 bits.
constexpr uint16_t Product(uint16_t channel, uint16_t weight) {
    return static_cast<uint16_t>(channel * weight);
}
/// The upper bytes of what was made of lower and of upper channels: both divided by 256.
constexpr uint16_t JoinPer256(uint16_t low, uint16_t high) {
    return static_cast<uint16_t>(low >> 8 | (high & kUpper));
}

inline const Words* WordsOf(const void* pixels) { return static_cast<const Words*>(pixels); }
inline const Halves* HalvesOf(const void* pixels) { return static_cast<const Halves*>(pixels); }
inline const Bytes* BytesOf(const void* pixels) { return static_cast<const Bytes*>(pixels); }

/// Stores what a step has worked out.
[[gnu::always_inline]] inline void Store(const uint16_t (&result)[kHalves], ARGB* to) {
    Halves* const place = reinterpret_cast<Halves*>(to);  // `auto` would take it to be aligned
    for (size_t i = 0; i < kHalves; ++i) place[i] = result[i];
}
[[gnu::always_inline]] inline void Store(const uint8_t (&result)[kBytes], ARGB* to) {
    Bytes* const place = reinterpret_cast<Bytes*>(to);
    for (size_t i = 0; i < kBytes; ++i) place[i] = result[i];
}

/// Calls `step(source, target)` for all whole steps.
template <class Step>
[[gnu::always_inline]] inline void ForWhole(const ARGB* source, ARGB* target, size_t count,
                                            Step step) {
    for (size_t i = 0; i + kPixels <= count; i += kPixels) step(source + i, target + i);
}

/// Has `whole(source, target, count)` do all whole steps and `step(source, target)` what is left
/// at the end, in a step that reaches back; it is worked out first, from target pixels that no step
/// has changed. `source` is the target itself or apart from it.
template <class Whole, class Step>
[[gnu::always_inline]] inline void WithRest(const ARGB* source, ARGB* target, size_t count,
                                            Whole whole, Step step) {
    if (count == 0) return;
    ARGB last[kPixels] = {};
    if (count < kPixels) {
        ARGB first[kPixels] = {};
        std::memcpy(first, source, count * sizeof(ARGB));
        std::memcpy(last, target, count * sizeof(ARGB));
        step(first, last);
        std::memcpy(target, last, count * sizeof(ARGB));
        return;
    }
    const size_t back = count - kPixels;
    const bool rest = count % kPixels != 0;
    if (rest) {
        std::memcpy(last, target + back, sizeof last);
        step(source + back, last);
    }
    whole(source, target, count);
    if (rest) std::memcpy(target + back, last, sizeof last);
}

/// Calls `step(source, target)`, which changes `kPixels` target pixels, until all are done.
template <class Step>
[[gnu::always_inline]] inline void ForEach(const ARGB* source, ARGB* target, size_t count,
                                           Step step) {
    WithRest(
        source, target, count,
        [&](const ARGB* from, ARGB* to, size_t pixels)
            __attribute__((always_inline)) { ForWhole(from, to, pixels, step); },
        step);
}

/// The same, with a look every few steps at what comes: `skip(source, target, count)` may do as
/// many whole steps as it can do in a shorter way, and answers how many pixels those are.
template <class Step, class Skip>
[[gnu::always_inline]] inline void ForEachUnlessSkipped(const ARGB* source, ARGB* target,
                                                        size_t count, Step step, Skip skip) {
    WithRest(
        source, target, count,
        [&](const ARGB* from, ARGB* to, size_t pixels) __attribute__((always_inline)) {
            for (size_t i = 0; i + kPixels <= pixels;) {
                if (const size_t done = skip(from + i, to + i, pixels - i)) {
                    i += done;
                    continue;
                }
                const size_t left = pixels - i, block = left < kBlock ? left : kBlock;
                ForWhole(from + i, to + i, block, step);
                i += block;
            }
        },
        step);
}

}  // namespace vxgui::steps
