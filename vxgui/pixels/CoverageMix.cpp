#include "vxgui/pixels/CoverageMix.h"

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Steps.h"

namespace vxgui {

using namespace steps;

namespace {

// n / 255 for all n up to 255 * 255 + 127, and no step of it leaves 16 bits.
constexpr uint16_t Per255(uint16_t n) {
    const auto sum = static_cast<uint16_t>(n + 1 + (n >> 8));
    return static_cast<uint16_t>(sum >> 8);
}

// All bits for a coverage above 0, without a condition that each pixel would be taken out for.
constexpr uint16_t AnyOf(uint16_t coverage) {
    return static_cast<uint16_t>(0 - ((coverage + 255) >> 8));
}

constexpr uint16_t Mixed(uint16_t channel, uint16_t color, uint16_t coverage) {
    const auto rest = static_cast<uint16_t>(255 - coverage);
    return Per255(static_cast<uint16_t>(Product(channel, rest) + Product(color, coverage) + 127));
}

[[gnu::always_inline]] inline void MixStep(const uint8_t* coverage, ARGB* to, uint32_t color) {
    uint32_t parts[kPixels], colors[kPixels], alphas[kPixels];
    for (size_t i = 0; i < kPixels; ++i) {
        parts[i] = coverage[i] | uint32_t{coverage[i]} << 16;  // in both halves of each pixel
        colors[i] = color;
        alphas[i] = 0xFF000000;
    }
    const Halves *t = HalvesOf(to), *k = HalvesOf(parts), *c = HalvesOf(colors);
    const Halves* const alpha = HalvesOf(alphas);
    uint16_t result[kHalves];
    for (size_t i = 0; i < kHalves; ++i) {
        const uint16_t low = Mixed(Low(t[i]), Low(c[i]), k[i]);
        const uint16_t high = Mixed(High(t[i]), High(c[i]), k[i]);
        result[i] = static_cast<uint16_t>((low | high << 8) & ~(AnyOf(k[i]) & alpha[i]));
    }
    Store(result, to);
}

VXGUI_MULTIVERSION(void, MixLoop,
                   (const uint8_t* coverage, ARGB* pixels, size_t count, uint32_t color)) {
    for (; count >= kPixels; count -= kPixels, coverage += kPixels, pixels += kPixels)
        MixStep(coverage, pixels, color);
    if (count == 0) return;
    uint8_t rest[kPixels] = {};
    ARGB last[kPixels] = {};
    std::memcpy(rest, coverage, count);
    std::memcpy(static_cast<void*>(last), pixels, count * sizeof(ARGB));
    MixStep(rest, last, color);
    std::memcpy(static_cast<void*>(pixels), last, count * sizeof(ARGB));
}

}  // namespace

void MixByCoverage(std::span<const uint8_t> coverage, ARGB* pixels, ARGB color) {
    MixLoop(coverage.data(), pixels, coverage.size(), static_cast<uint32_t>(ValueFromARGB(color)));
}

}  // namespace vxgui
