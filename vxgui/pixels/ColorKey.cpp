#include "vxgui/pixels/ColorKey.h"

#include <algorithm>

#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

using namespace lanes;

namespace {

/// Pixels that are looked at together.
constexpr size_t kBlock = 64;

/// How many pixels at the beginning, in whole blocks, all have the colour.
VXGUI_MULTIVERSION(size_t, MatchingRun, (const ARGB* pixels, size_t count, uint32_t match)) {
    size_t run = 0;
    for (; run + kBlock <= count; run += kBlock) {
        uint32_t difference = 0;
        for (size_t i = 0; i < kBlock; ++i) difference |= Load(pixels[run + i]) ^ match;
        if ((difference & kColor) != 0) break;
    }
    return run;
}

/// Whether it is worth a look: some pixels from all over the block match.
bool MayMatch(const ARGB* block, uint32_t match) {
    const auto difference = [&](size_t i) { return Load(block[i]) ^ match; };
    constexpr size_t kThird = kBlock / 3;
    return ((difference(0) | difference(kThird) | difference(2 * kThird) | difference(kBlock - 1)) &
            kColor) == 0;
}

VXGUI_MULTIVERSION(void, MergeBlock,
                   (const ARGB* source, ARGB* target, size_t count, uint32_t match)) {
    for (size_t i = 0; i < count; ++i) {
        const uint32_t s = Load(source[i]), t = Load(target[i]);
        Store(target[i], (s & kColor) == match ? t : s);
    }
}

/// Long runs of the key, as the pictures have that need one, leave the target unread.
void MergeLoop(const ARGB* source, ARGB* target, size_t count, uint32_t match) {
    size_t begin = 0, end = 0;  // of what is still to be merged
    while (end < count) {
        const size_t run = count - end >= kBlock && MayMatch(source + end, match)
                               ? MatchingRun(source + end, count - end, match)
                               : 0;
        if (run == 0) {
            end += std::min(kBlock, count - end);
            continue;
        }
        MergeBlock(source + begin, target + begin, end - begin, match);
        begin = end += run;
    }
    MergeBlock(source + begin, target + begin, end - begin, match);
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
