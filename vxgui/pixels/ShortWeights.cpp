#include "vxgui/pixels/ShortWeights.h"

#include <type_traits>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui::short_weights {

namespace {

constexpr uint16_t Word(uint32_t number) { return static_cast<uint16_t>(number); }

/// Calls `run` with the reach, of the shortest kernels as a constant: their sums then stay in
/// registers. With a loop for each of the others the compiler makes no vectors of them.
template <class Run>
[[gnu::always_inline]] inline void WithReach(size_t reach, Run run) {
    if (reach == 1) return run(std::integral_constant<size_t, 1>());
    if (reach == 2) return run(std::integral_constant<size_t, 2>());
    run(reach);
}

// The mean is made of two digits, each of 8 bits: (256 * sum + norm / 2) / norm.
template <class Reach>
[[gnu::always_inline]] inline void BlocksAcross(const uint16_t* middle, const ShortKernel& kernel,
                                                Reach reach, size_t distance,
                                                uint16_t* __restrict means, size_t count) {
    for (size_t at = 0; at < count; at += kBlock, middle += kBlock, means += kBlock) {
        uint16_t sums[kBlock];
        for (size_t i = 0; i < kBlock; ++i) sums[i] = Word(middle[i] * kernel.weights[0]);
        for (size_t tap = 1; tap <= reach; ++tap) {
            const uint16_t* const left = middle - tap * distance;
            const uint16_t* const right = middle + tap * distance;
            const uint16_t weight = kernel.weights[tap];
            for (size_t i = 0; i < kBlock; ++i) {
                sums[i] = Word(sums[i] + Word(left[i] + right[i]) * weight);
            }
        }
        uint16_t wholes[kBlock], rests[kBlock];
        for (size_t i = 0; i < kBlock; ++i) wholes[i] = kernel.Quotient(sums[i]);
        for (size_t i = 0; i < kBlock; ++i) {
            const uint16_t rest = Word(sums[i] - Word(wholes[i] * kernel.norm));
            rests[i] = Word(Word(rest << 8) + kernel.half);
        }
        for (size_t i = 0; i < kBlock; ++i) {
            means[i] = Word(Word(wholes[i] << 8) + kernel.Quotient(rests[i]));
        }
    }
}

// The mean is ((sum + norm / 2) / norm + 128) / 256, the divisions truncating, which is
// (sum + bias) / 256 / norm. The sum has 24 bits; 16 hold that of the upper bytes, `wholes`, and
// what the whole sum has beyond 256 times it: with the bias in both no more than 65535.
template <class Reach>
[[gnu::always_inline]] inline void BlocksDown(const Taps& taps, const ShortKernel& kernel,
                                              Reach reach, uint8_t* __restrict means,
                                              size_t count) {
    const uint32_t bias = kernel.half + 128u * kernel.norm;
    const uint16_t biasWhole = Word(bias >> 8), multiples = Word(0u - kernel.scale);
    for (size_t at = 0; at < count; at += kBlock) {
        uint16_t sums[kBlock], wholes[kBlock];
        const uint16_t* const middle = taps[reach] + at;
        for (size_t i = 0; i < kBlock; ++i) {
            sums[i] = Word(Word(middle[i] * kernel.weights[0]) + bias);
            wholes[i] = Word(Word((middle[i] >> 8) * kernel.weights[0]) + biasWhole);
        }
        for (size_t tap = 1; tap <= reach; ++tap) {
            const uint16_t* const above = taps[reach - tap] + at;
            const uint16_t* const below = taps[reach + tap] + at;
            const uint16_t weight = kernel.weights[tap];
            for (size_t i = 0; i < kBlock; ++i) {
                sums[i] = Word(sums[i] + Word(above[i] + below[i]) * weight);
                wholes[i] = Word(wholes[i] + ((above[i] >> 8) + (below[i] >> 8)) * weight);
            }
        }
        for (size_t i = 0; i < kBlock; ++i) {
            const uint16_t fraction = Word(sums[i] - Word(wholes[i] << 8));
            sums[i] = Word(wholes[i] + (fraction >> 8)) & multiples;
        }
        for (size_t i = 0; i < kBlock; ++i) {
            means[at + i] = static_cast<uint8_t>(kernel.Quotient(sums[i]));
        }
    }
}

VXGUI_MULTIVERSION(void, AcrossLoop,
                   (const uint16_t* middle, const ShortKernel& shared, size_t distance,
                    uint16_t* means, size_t count)) {
    const ShortKernel kernel = shared;
    WithReach(
        kernel.reach, [&](auto reach) __attribute__((always_inline)) {
            BlocksAcross(middle, kernel, reach, distance, means, count);
        });
}

VXGUI_MULTIVERSION(void, DownLoop,
                   (const Taps& taps, const ShortKernel& shared, uint8_t* means, size_t count)) {
    const ShortKernel kernel = shared;
    WithReach(
        kernel.reach, [&](auto reach) __attribute__((always_inline)) {
            BlocksDown(taps, kernel, reach, means, count);
        });
}

}  // namespace

void Across(const uint16_t* middle, const ShortKernel& kernel, size_t distance, uint16_t* means,
            size_t count) {
    AcrossLoop(middle, kernel, distance, means, count);
}

void Down(const Taps& taps, const ShortKernel& kernel, uint8_t* means, size_t count) {
    DownLoop(taps, kernel, means, count);
}

}  // namespace vxgui::short_weights
