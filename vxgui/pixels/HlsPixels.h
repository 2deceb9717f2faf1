#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

#include "vxgui/pixels/ARGB.h"
#include "vxgui/pixels/HlsLoops.h"

/// Pixels as the adjustment works on them: some at a time, taken apart into channels.
// Expressions between named values have double precision: where a result lies on a half, that
// decides. Products of a single and a channel, and sums with another channel, are exact in it.
// Where single precision is used, it gives the same: the tests compare all colours.
namespace vxgui::hls {

/// Some pixels, each step's results side by side.
constexpr size_t kPixels = 256;
using Numbers = std::array<int32_t, kPixels>;
struct Colors {
    Numbers red, green, blue;
};
struct Pairs {
    Numbers max, min;
};

/// Rounds to nearest, halves to even: added to 1.5 * 2^52 it leaves the integer in the lowest
/// bits.
[[gnu::always_inline]] inline int32_t Round(double value) {
    return static_cast<int32_t>(std::bit_cast<int64_t>(value + 6755399441055744.0));
}

/// All bits of a choice, or none: selecting by them leaves one road through a loop.
[[gnu::always_inline]] inline int32_t Bits(bool choice) { return -static_cast<int32_t>(choice); }

/// Calls `work` with some pixels after the other.
template <class Work>
void ForEachPart(std::span<ARGB> pixels, Work work) {
    for (; !pixels.empty(); pixels = pixels.subspan(std::min(kPixels, pixels.size()))) {
        work(pixels.first(std::min(kPixels, pixels.size())));
    }
}

/// Takes `pixels` apart.
void Load(std::span<const ARGB> pixels, Colors& colors);
/// Finds the highest and the lowest channel of each pixel.
void FindPairs(const Colors& colors, Pairs& pairs, size_t count);
/// Moves both apart or together.
void Change(Pairs& pairs, const Stretch& stretch, size_t count);
/// Does the last step and puts the pixels together, channels held to 0 to 255.
void Finish(Colors& colors, const Light& light, std::span<ARGB> pixels);

}  // namespace vxgui::hls
