#include "vxgui/pixels/Premultiply.h"

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Steps.h"

namespace vxgui {

using namespace steps;

namespace {

/// The weight of a colour is alpha + 1, also for alpha 0, under which every byte gives 0; that of
/// the alpha itself is 256, which leaves it.
[[gnu::always_inline]] inline void PremultiplyStep(ARGB* pixels) {
    const Halves* const p = HalvesOf(pixels);
    uint16_t highs[kHalves];
    for (size_t i = 0; i < kHalves; ++i) highs[i] = High(p[i]);
    uint32_t lowWeights[kPixels], highWeights[kPixels];
    for (size_t i = 0; i < kPixels; ++i) {
        const uint32_t pair = WordsOf(highs)[i];  // alpha in its upper half
        const uint32_t weights = (pair >> 16 | (pair & 0xFFFF0000)) + 0x00010001;
        lowWeights[i] = weights;
        highWeights[i] = (weights & 0xFFFF) | 256 << 16;
    }
    const Halves *low = HalvesOf(lowWeights), *high = HalvesOf(highWeights);
    uint16_t result[kHalves];
    for (size_t i = 0; i < kHalves; ++i) {
        result[i] = JoinPer256(Product(Low(p[i]), low[i]), Product(highs[i], high[i]));
    }
    Store(result, pixels);
}

VXGUI_MULTIVERSION(void, PremultiplyLoop, (ARGB * pixels, size_t count)) {
    ForEach(
        pixels, pixels, count,
        [](const ARGB*, ARGB* to) __attribute__((always_inline)) { PremultiplyStep(to); });
}

}  // namespace

void Premultiply(std::span<ARGB> pixels) { PremultiplyLoop(pixels.data(), pixels.size()); }

}  // namespace vxgui
