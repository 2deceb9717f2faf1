#include "vxgui/pixels/ColorKey.h"

#include <algorithm>

#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Steps.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace vxgui {

using namespace lanes;

namespace {

[[gnu::always_inline]] inline void MergeStep(const ARGB* from, ARGB* to, uint32_t match) {
    uint32_t merged[steps::kPixels];
    for (size_t i = 0; i < steps::kPixels; ++i) {
        const uint32_t s = Load(from[i]), t = Load(to[i]);
        merged[i] = (s & kColor) == match ? t : s;
    }
    std::memcpy(static_cast<void*>(to), merged, sizeof merged);
}

/// Whether all `steps::kBlock` pixels have the colour; looked at only where some from all over the
/// block do.
[[gnu::always_inline]] inline bool AllMatch(const ARGB* block, uint32_t match) {
    const auto differs = [=](size_t i) { return (Load(block[i]) ^ match) & kColor; };
    constexpr size_t kThird = steps::kBlock / 3;
    if ((differs(0) | differs(kThird) | differs(2 * kThird) | differs(steps::kBlock - 1)) != 0) {
        return false;
    }
    uint32_t difference = 0;
    for (size_t i = 0; i < steps::kBlock; ++i) difference |= differs(i);
    return difference == 0;
}

#if defined(__x86_64__)

/// Stores what differs from the key, of 16 pixels at a time, and leaves the target unread.
VXGUI_TARGET_AVX512 void MergeMasked(const ARGB* source, ARGB* target, size_t count,
                                     uint32_t match) {
    const __m512i color = _mm512_set1_epi32(kColor);
    const __m512i key = _mm512_set1_epi32(static_cast<int>(match));
    const auto differing = [&](__m512i words) VXGUI_TARGET_AVX512 {
        return _mm512_test_epi32_mask(_mm512_xor_si512(words, key), color);
    };
    size_t i = 0;
    for (; i + steps::kBlock <= count; i += steps::kBlock) {
        __m512i words[4];
        __mmask16 shown[4];
        for (size_t k = 0; k < 4; ++k) {
            words[k] = _mm512_loadu_si512(source + i + k * steps::kPixels);
            shown[k] = differing(words[k]);
        }
        // Not a store of nothing, which would fetch the target all the same.
        if ((shown[0] | shown[1] | shown[2] | shown[3]) == 0) continue;
        for (size_t k = 0; k < 4; ++k) {
            _mm512_mask_storeu_epi32(target + i + k * steps::kPixels, shown[k], words[k]);
        }
    }
    for (; i < count; i += steps::kPixels) {
        const size_t left = std::min(count - i, steps::kPixels);
        const auto lanes = static_cast<__mmask16>((1u << left) - 1);
        const __m512i words = _mm512_maskz_loadu_epi32(lanes, source + i);
        _mm512_mask_storeu_epi32(target + i, lanes & differing(words), words);
    }
}

#endif

/// Long runs of the key, as the pictures have that need one, leave the target unread.
VXGUI_MULTIVERSION_BESIDE(MergeMasked, void, MergeLoop,
                          (const ARGB* source, ARGB* target, size_t count, uint32_t match)) {
    steps::ForEachUnlessSkipped(
        source, target, count,
        [=](const ARGB* from, ARGB* to)
            __attribute__((always_inline)) { MergeStep(from, to, match); },
        [=](const ARGB* from, ARGB*, size_t left) __attribute__((always_inline)) {
            return left >= steps::kBlock && AllMatch(from, match) ? steps::kBlock : 0;
        });
}

/// Sets the alpha byte to that of `matching` where the colour matches; elsewhere the bits of
/// `keep` stay and those of `other` are added.
VXGUI_MULTIVERSION(void, SetAlphaLoop,
                   (ARGB * pixels, size_t count, uint32_t match, uint32_t matching, uint32_t keep,
                    uint32_t other)) {
    for (size_t i = 0; i < count; ++i) {
        const uint32_t value = Load(pixels[i]), color = value & kColor;
        Store(pixels[i], color == match ? color | matching : (value & keep) | other);
    }
}

VXGUI_MULTIVERSION(void, MaskLoop, (ARGB * pixels, size_t count, uint32_t color)) {
    for (size_t i = 0; i < count; ++i) {
        Store(pixels[i], (Load(pixels[i]) ^ color) & kColor ? kAlpha : 0);
    }
}

}  // namespace

void MergeByKey(std::span<const ARGB> source, std::span<ARGB> target, uint32_t key) {
    MergeLoop(source.data(), target.data(), std::min(source.size(), target.size()),
              SwapRedBlue(key));
}

void SetAlphaByKey(std::span<ARGB> pixels, uint32_t key, uint8_t matchAlpha,
                   std::optional<uint8_t> otherAlpha) {
    const uint32_t keep = otherAlpha ? kColor : kColor | kAlpha;
    SetAlphaLoop(pixels.data(), pixels.size(), SwapRedBlue(key), uint32_t{matchAlpha} << 24, keep,
                 uint32_t{otherAlpha.value_or(0)} << 24);
}

void MaskByColor(std::span<ARGB> pixels, uint32_t color) {
    MaskLoop(pixels.data(), pixels.size(), color);
}

}  // namespace vxgui
