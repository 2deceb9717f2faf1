#include "vxgui/pixels/BilinearLoops.h"

#include <algorithm>
#include <bit>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Steps.h"

// A channel is converted where it stands in its pixel, without a shift. It is 1, 256 or 65536 times
// too large then, and so is all that is made of it; the digits of a float are the same.
namespace vxgui::bilinear {

namespace {

constexpr int kNeighbour = 24;  ///< bits to the neighbour of a channel
constexpr uint32_t kBlue = 0xFF, kGreen = 0xFF00, kRed = 0xFF0000;
constexpr float kOnes = 1, kGreens = 256, kReds = 65536;  ///< how large channels are

[[gnu::always_inline]] inline float Channel(uint32_t pixel, uint32_t mask) {
    return static_cast<float>(static_cast<int32_t>(pixel & mask));
}

/// 1.5 * 2^23: what is added to it is rounded to an integer, in the lowest bits.
constexpr float kRounder = 12582912;

/// A channel in the lowest bits, others above it.
[[gnu::always_inline]] inline uint32_t Rounded(float value, float scale) {
    return std::bit_cast<uint32_t>(value + scale * kRounder);
}
[[gnu::always_inline]] inline float RoundedFloat(float value, float scale) {
    return value + scale * kRounder - scale * kRounder;
}

/// The bits of `mask` from one, the others from the other.
[[gnu::always_inline]] inline uint32_t Select(uint32_t mask, uint32_t one, uint32_t other) {
    return (one & mask) | (other & ~mask);
}

VXGUI_MULTIVERSION(void, MixRowsLoop,
                   (const ARGB* upper, const ARGB* lower, float first, float second, ARGB* mixed,
                    size_t count)) {
    const steps::Words* const aboves = steps::WordsOf(upper);
    const steps::Words* const belows = steps::WordsOf(lower);
    steps::Words* __restrict const result = reinterpret_cast<steps::Words*>(mixed);
    for (size_t i = 0; i < count; ++i) {
        const uint32_t above = aboves[i], below = belows[i];
        const auto mix = [&](uint32_t mask, float scale) {
            return Rounded(first * Channel(above, mask) + second * Channel(below, mask), scale);
        };
        const uint32_t alpha = Rounded(
            first * Channel(above >> 24, 0xFF) + second * Channel(below >> 24, 0xFF), kOnes);
        const uint32_t lower16 = Select(kBlue, mix(kBlue, kOnes), mix(kGreen, kGreens) << 8);
        const uint32_t upper16 = Select(0xFF, mix(kRed, kReds), alpha << 8);
        result[i] = Select(0xFFFF, lower16, upper16 << 16);
    }
}

/// A pixel of three rounded channels and an alpha that is there.
[[gnu::always_inline]] inline uint32_t Joined(uint32_t blue, uint32_t green, uint32_t red,
                                              uint32_t target) {
    return Select(kBlue | kGreen, Select(kBlue, blue, green << 8), Select(kRed, red << 16, target));
}

VXGUI_MULTIVERSION(void, MixPairsLoop,
                   (const uint64_t* __restrict pairs, const float* __restrict first,
                    const float* __restrict second, ARGB* target, size_t count)) {
    steps::Words* __restrict const result = reinterpret_cast<steps::Words*>(target);
    for (size_t i = 0; i < count; ++i) {
        const auto left = static_cast<uint32_t>(pairs[i]);
        const auto right = static_cast<uint32_t>(pairs[i] >> kNeighbour);
        const auto mix = [&](uint32_t mask, float scale) {
            return Rounded(first[i] * Channel(left, mask) + second[i] * Channel(right, mask),
                           scale);
        };
        result[i] = Joined(mix(kBlue, kOnes), mix(kGreen, kGreens), mix(kRed, kReds), result[i]);
    }
}

VXGUI_MULTIVERSION(void, MixPairsOfRowsLoop,
                   (const uint64_t* __restrict upper, const uint64_t* __restrict lower,
                    const Weights& rows, const float* __restrict first,
                    const float* __restrict second, ARGB* target, size_t count)) {
    steps::Words* __restrict const result = reinterpret_cast<steps::Words*>(target);
    const float above = rows.first, below = rows.second;
    for (size_t i = 0; i < count; ++i) {
        const auto side = [&](int shift, uint32_t mask, float scale) {
            const float mixed = above * Channel(static_cast<uint32_t>(upper[i] >> shift), mask) +
                                below * Channel(static_cast<uint32_t>(lower[i] >> shift), mask);
            return RoundedFloat(mixed, scale);
        };
        const auto mix = [&](uint32_t mask, float scale) {
            return Rounded(
                first[i] * side(0, mask, scale) + second[i] * side(kNeighbour, mask, scale), scale);
        };
        result[i] = Joined(mix(kBlue, kOnes), mix(kGreen, kGreens), mix(kRed, kReds), result[i]);
    }
}

constexpr size_t kLongest = 16;  ///< pixels in the longest vector

/// Calls `mix(begin, count)` for all pixels; what is left over at the end is mixed together with
/// some before, once more, as one by one it would take as long as all of a short row.
template <class Mix>
void ForWhole(size_t count, Mix mix) {
    const size_t rest = count % kLongest, last = std::min(count, kLongest);
    mix(size_t{0}, count - rest);
    if (rest > 0) mix(count - last, last);
}

}  // namespace

void MixRows(const ARGB* upper, const ARGB* lower, const Weights& rows, ARGB* mixed, size_t count) {
    MixRowsLoop(upper, lower, rows.first, rows.second, mixed, count);
}

void MixPairs(const uint64_t* pairs, const Columns& columns, ARGB* target, size_t count) {
    ForWhole(count, [&](size_t begin, size_t pixels) {
        MixPairsLoop(pairs + begin, columns.first + begin, columns.second + begin, target + begin,
                     pixels);
    });
}

void MixPairsOfRows(const uint64_t* upper, const uint64_t* lower, const Weights& rows,
                    const Columns& columns, ARGB* target, size_t count) {
    ForWhole(count, [&](size_t begin, size_t pixels) {
        MixPairsOfRowsLoop(upper + begin, lower + begin, rows, columns.first + begin,
                           columns.second + begin, target + begin, pixels);
    });
}

}  // namespace vxgui::bilinear
