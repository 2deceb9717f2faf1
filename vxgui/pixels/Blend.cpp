#include "vxgui/pixels/Blend.h"

#include <algorithm>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Steps.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace vxgui {

using namespace steps;

namespace {

constexpr uint32_t kAlpha = 0xFF000000;

/// A weight for each half of a step.
struct Weights {
    /// `colors` for the colours, `alpha` for the alpha in its upper half.
    Weights(uint16_t colors, uint16_t alpha) {
        for (size_t i = 0; i < kHalves; ++i) {
            low[i] = colors;
            high[i] = i % 2 ? alpha : colors;
        }
    }
    uint16_t low[kHalves], high[kHalves];
};

/// In 16 bits the sum of the two products is still exact.
VXGUI_MULTIVERSION(void, ConstantLoop,
                   (const ARGB* source, ARGB* target, size_t count, uint32_t alpha)) {
    const Weights mine(static_cast<uint16_t>(alpha), 0);
    const Weights rest(static_cast<uint16_t>(256 - alpha), 256);
    ForEach(
        source, target, count, [&](const ARGB* from, ARGB* to) __attribute__((always_inline)) {
            const Halves *s = HalvesOf(from), *t = HalvesOf(to);
            uint16_t result[kHalves];
            for (size_t i = 0; i < kHalves; ++i) {
                const auto low = static_cast<uint16_t>(Product(Low(s[i]), mine.low[i]) +
                                                       Product(Low(t[i]), rest.low[i]));
                const auto high = static_cast<uint16_t>(Product(High(s[i]), mine.high[i]) +
                                                        Product(High(t[i]), rest.high[i]));
                result[i] = JoinPer256(low, high);
            }
            Store(result, to);
        });
}

VXGUI_MULTIVERSION(void, StraightLoop,
                   (const ARGB* source, ARGB* target, size_t count, uint32_t alpha)) {
    const auto constant = static_cast<uint16_t>(alpha);
    ForEach(
        source, target, count, [&](const ARGB* from, ARGB* to) __attribute__((always_inline)) {
            const Halves *s = HalvesOf(from), *t = HalvesOf(to);
            uint32_t alphas[kPixels];  // of each pixel in both its halves
            for (size_t i = 0; i < kPixels; ++i) {
                const uint32_t word = WordsOf(from)[i];
                alphas[i] = word >> 24 | (word >> 8 & 0x00FF0000);
            }
            const Halves* const a = HalvesOf(alphas);
            uint16_t result[kHalves];
            for (size_t i = 0; i < kHalves; ++i) {
                const uint16_t weight = High(Product(a[i], constant));
                const auto rest = static_cast<uint16_t>(256 - weight);
                result[i] = static_cast<uint16_t>(
                    JoinPer256(Product(Low(s[i]), weight), Product(High(s[i]), weight)) +
                    JoinPer256(Product(Low(t[i]), rest), Product(High(t[i]), rest)));
            }
            Store(result, to);
        });
}

[[gnu::always_inline]] inline void OverStep(const ARGB* from, ARGB* to) {
    const Halves* const t = HalvesOf(to);
    uint32_t rests[kPixels];  // of each pixel in both its halves
    for (size_t i = 0; i < kPixels; ++i) {
        const uint32_t word = WordsOf(from)[i];
        rests[i] = 0x01000100 - (word >> 24 | (word >> 8 & 0x00FF0000));
    }
    const Halves* const rest = HalvesOf(rests);
    uint16_t under[kHalves];
    for (size_t i = 0; i < kHalves; ++i) {
        under[i] = JoinPer256(Product(Low(t[i]), rest[i]), Product(High(t[i]), rest[i]));
    }
    const Bytes *s = BytesOf(from), *u = BytesOf(under);
    uint8_t result[kBytes];
    for (size_t i = 0; i < kBytes; ++i) {
        const auto sum = static_cast<uint8_t>(s[i] + u[i]);
        result[i] = sum < s[i] ? 255 : sum;
    }
    Store(result, to);
}

/// How many pixels at the beginning, in whole blocks, are all zero.
VXGUI_MULTIVERSION(size_t, ClearRun, (const ARGB* pixels, size_t count)) {
    size_t run = 0;
    for (; run + kBlock <= count; run += kBlock) {
        uint32_t any = 0;
        for (size_t i = 0; i < kBlock; ++i) any |= WordsOf(pixels + run)[i];
        if (any != 0) break;
    }
    return run;
}

/// Copies as many pixels at the beginning, in whole blocks, as are all opaque.
VXGUI_MULTIVERSION(size_t, CopyOpaqueRun, (const ARGB* source, ARGB* target, size_t count)) {
    size_t run = 0;
    for (; run + kBlock <= count; run += kBlock) {
        uint32_t all = kAlpha;
        for (size_t i = 0; i < kBlock; ++i) all &= WordsOf(source + run)[i];
        if (all != kAlpha) break;
        std::memcpy(static_cast<void*>(target + run), source + run, kBlock * sizeof(ARGB));
    }
    return run;
}

/// A pixel of zeroes leaves the target and an opaque one replaces it. Pictures have long runs of
/// both: where a block has such a pixel at its ends and in the middle, it is worth a look at all.
[[gnu::always_inline]] inline size_t SkipRun(const ARGB* source, ARGB* target, size_t count) {
    if (count < kBlock) return 0;
    const Words* const words = WordsOf(source);
    const uint32_t first = words[0], middle = words[kBlock / 2], last = words[kBlock - 1];
    if ((first | middle | last) == 0) [[unlikely]]
        return ClearRun(source, count);
    if ((first & middle & last) < kAlpha) [[likely]]
        return 0;
    return CopyOpaqueRun(source, target, count);
}

#if defined(__x86_64__)

/// `OverStep` in ten operations: a permutation of bytes and a sum that stays at 255, which
/// compilers make of six.
VXGUI_TARGET_AVX512 inline __m512i OverBytes(__m512i source, __m512i target) {
    const __m512i alphasInBothHalves =
        _mm512_set4_epi32(static_cast<int>(0x800F800F), static_cast<int>(0x800B800B),
                          static_cast<int>(0x80078007), static_cast<int>(0x80038003));
    const __m512i upper = _mm512_set1_epi16(static_cast<int16_t>(kUpper));
    const __m512i rest =
        _mm512_sub_epi16(_mm512_set1_epi16(256), _mm512_shuffle_epi8(source, alphasInBothHalves));
    const __m512i low = _mm512_mullo_epi16(_mm512_and_si512(target, _mm512_set1_epi16(0xFF)), rest);
    const __m512i high = _mm512_mullo_epi16(_mm512_srli_epi16(target, 8), rest);
    const __m512i under = _mm512_or_si512(_mm512_srli_epi16(low, 8), _mm512_and_si512(high, upper));
    return _mm512_adds_epu8(source, under);
}

VXGUI_TARGET_AVX512 void PremultipliedWide(const ARGB* source, ARGB* target, size_t count) {
    for (size_t i = 0; i < count;) {
        if (const size_t done = SkipRun(source + i, target + i, count - i)) {
            i += done;
            continue;
        }
        const size_t end = std::min(i + kBlock, count);
        for (; i + kPixels <= end; i += kPixels) {
            _mm512_storeu_si512(target + i, OverBytes(_mm512_loadu_si512(source + i),
                                                      _mm512_loadu_si512(target + i)));
        }
        if (i == end) continue;
        const auto rest = static_cast<__mmask16>((1u << (end - i)) - 1);
        _mm512_mask_storeu_epi32(target + i, rest,
                                 OverBytes(_mm512_maskz_loadu_epi32(rest, source + i),
                                           _mm512_maskz_loadu_epi32(rest, target + i)));
        i = end;
    }
}

#endif

VXGUI_MULTIVERSION_BESIDE(PremultipliedWide, void, PremultipliedLoop,
                          (const ARGB* source, ARGB* target, size_t count)) {
    ForEachUnlessSkipped(source, target, count, OverStep, SkipRun);
}

}  // namespace

void Blend(std::span<const ARGB> source, std::span<ARGB> target, int32_t alpha, bool hasAlpha) {
    if (alpha <= 0) return;
    const auto constant = static_cast<uint8_t>(std::min(alpha, 255));
    if (!hasAlpha) {
        BlendConstant(source, target, constant);
    } else if (constant != 255) {
        BlendStraight(source, target, constant);
    } else {
        BlendPremultiplied(source, target);
    }
}

void BlendConstant(std::span<const ARGB> source, std::span<ARGB> target, uint8_t alpha) {
    ConstantLoop(source.data(), target.data(), std::min(source.size(), target.size()), alpha);
}

void BlendStraight(std::span<const ARGB> source, std::span<ARGB> target, uint8_t alpha) {
    StraightLoop(source.data(), target.data(), std::min(source.size(), target.size()), alpha);
}

void BlendPremultiplied(std::span<const ARGB> source, std::span<ARGB> target) {
    PremultipliedLoop(source.data(), target.data(), std::min(source.size(), target.size()));
}

}  // namespace vxgui
