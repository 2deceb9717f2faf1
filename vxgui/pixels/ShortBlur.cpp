#include "vxgui/pixels/ShortBlur.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

namespace {

/// Samples that are weighed together.
constexpr size_t kBlock = 64;
constexpr size_t kMostTaps = 2 * ShortKernel::kMostReach + 1;

constexpr uint16_t Word(uint32_t number) { return static_cast<uint16_t>(number); }

VXGUI_MULTIVERSION(void, Widen,
                   (const uint8_t* __restrict bytes, uint16_t* __restrict words, size_t count)) {
    for (size_t i = 0; i < count; ++i) words[i] = bytes[i];
}

VXGUI_MULTIVERSION(void, WidenAlpha,
                   (const ARGB* __restrict pixels, uint16_t* __restrict words, size_t count)) {
    for (size_t i = 0; i < count; ++i) words[i] = Word(lanes::Alpha(lanes::Load(pixels[i])));
}

VXGUI_MULTIVERSION(void, StoreAlpha,
                   (const uint8_t* __restrict alphas, ARGB* __restrict pixels, size_t count)) {
    for (size_t i = 0; i < count; ++i) lanes::Store(pixels[i], uint32_t{alphas[i]} << 24);
}

// The mean is made of two digits, each of 8 bits: (256 * sum + norm / 2) / norm.
VXGUI_MULTIVERSION(void, WeighAcross,
                   (const uint16_t* middle, const ShortKernel& shared, size_t distance,
                    uint16_t* __restrict means, size_t count)) {
    const ShortKernel kernel = shared;
    for (size_t at = 0; at < count; at += kBlock, middle += kBlock, means += kBlock) {
        uint16_t sums[kBlock];
        for (size_t i = 0; i < kBlock; ++i) sums[i] = Word(middle[i] * kernel.weights[0]);
        for (size_t tap = 1; tap <= kernel.reach; ++tap) {
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

/// The rows that a row's means are made of, from the uppermost.
using Taps = std::array<const uint16_t*, kMostTaps>;

// A sum of 256ths is 256 * whole + fraction, where the sum of the upper bytes is `whole`, and 16
// bits hold the fraction, though not the sum. The mean is ((sum + norm / 2) / norm + 128) / 256,
// the divisions truncating, which is (whole + (fraction + norm / 2 + 128 * norm) / 256) / norm.
VXGUI_MULTIVERSION(void, WeighDown,
                   (const Taps& taps, const ShortKernel& shared, uint8_t* __restrict means,
                    size_t count)) {
    const ShortKernel kernel = shared;
    const uint32_t bias = kernel.half + 128u * kernel.norm;
    const uint16_t biasWhole = Word(bias >> 8), biasRest = Word(bias & 255);
    const uint16_t multiples = Word(0u - kernel.scale);
    for (size_t at = 0; at < count; at += kBlock) {
        uint16_t sums[kBlock], wholes[kBlock];
        const uint16_t* const middle = taps[kernel.reach] + at;
        for (size_t i = 0; i < kBlock; ++i) {
            sums[i] = Word(middle[i] * kernel.weights[0]);
            wholes[i] = Word((middle[i] >> 8) * kernel.weights[0]);
        }
        for (size_t tap = 1; tap <= kernel.reach; ++tap) {
            const uint16_t* const above = taps[kernel.reach - tap] + at;
            const uint16_t* const below = taps[kernel.reach + tap] + at;
            const uint16_t weight = kernel.weights[tap];
            for (size_t i = 0; i < kBlock; ++i) {
                sums[i] = Word(sums[i] + Word(above[i] + below[i]) * weight);
                wholes[i] = Word(wholes[i] + ((above[i] >> 8) + (below[i] >> 8)) * weight);
            }
        }
        for (size_t i = 0; i < kBlock; ++i) {
            const uint16_t fraction = Word(sums[i] - Word(wholes[i] << 8));
            const uint16_t carry = Word(Word(fraction & 255) + biasRest) >> 8;
            const uint16_t more = Word(Word(fraction >> 8) + carry);
            sums[i] = Word(wholes[i] + Word(more + biasWhole)) & multiples;
        }
        for (size_t i = 0; i < kBlock; ++i) {
            means[at + i] = static_cast<uint8_t>(kernel.Quotient(sums[i]));
        }
    }
}

}  // namespace

ShortBlur::ShortBlur(const BlurReach& reach, const ShortKernel& horizontal,
                     const ShortKernel& vertical, bool alphaAlone)
    : reach_(reach),
      horizontal_(horizontal),
      vertical_(vertical),
      channels_(alphaAlone ? 1 : sizeof(ARGB)),
      lanes_((reach.target.width * channels_ + kBlock - 1) / kBlock * kBlock),
      ringRows_(2 * vertical.reach + 1),
      pitch_(lanes_ + kBlock),
      samples_(lanes_ + 2 * horizontal.reach * channels_),
      ring_((ringRows_ + 1) * pitch_),
      results_(lanes_) {}

void ShortBlur::Run() {
    size_t filtered = 0;
    for (size_t row = 0; row < reach_.target.height; ++row) {
        const size_t needed =
            std::min(reach_.top + row + vertical_.reach + 1, reach_.source.height);
        if (filtered + ringRows_ < needed) filtered = needed - ringRows_;
        while (filtered < needed) FilterAcross(filtered++);
        FilterDown(row);
    }
}

// What lies outside the picture stays 0.
void ShortBlur::FilterAcross(size_t row) {
    const size_t margin = horizontal_.reach * channels_, width = reach_.source.width;
    uint16_t* const place = samples_.data() + (horizontal_.reach - reach_.left) * channels_;
    const ARGB* const pixels = reach_.source.Row(row);
    if (channels_ == 1) {
        WidenAlpha(pixels, place, width);
    } else {
        Widen(reinterpret_cast<const uint8_t*>(pixels), place, width * channels_);
    }
    WeighAcross(samples_.data() + margin, horizontal_, channels_, RingRow(row), lanes_);
}

void ShortBlur::FilterDown(size_t row) {
    Taps taps;
    for (size_t i = 0; i < ringRows_; ++i) {
        const size_t at = reach_.top + row + i - vertical_.reach;  // above the first it wraps
        taps[i] = at < reach_.source.height ? RingRow(at) : &ring_[ringRows_ * pitch_];
    }
    WeighDown(taps, vertical_, results_.data(), lanes_);
    ARGB* const to = reach_.target.Row(row);
    if (channels_ > 1) {
        std::memcpy(static_cast<void*>(to), results_.data(), reach_.target.width * channels_);
        return;
    }
    StoreAlpha(results_.data(), to, reach_.target.width);
}

}  // namespace vxgui
