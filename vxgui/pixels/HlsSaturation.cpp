#include "vxgui/pixels/HlsPixels.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui::hls {

namespace {

/// Rounds modest singles, halves to even.
[[gnu::always_inline]] inline int32_t RoundSingle(float value) {
    return std::bit_cast<int32_t>(value + 12582912.0F) - std::bit_cast<int32_t>(12582912.0F);
}

// The highest and the lowest channel come out as those of the new pair, and one between them in
// its place.
VXGUI_MULTIVERSION(void, Place,
                   (const Pairs& from, const Pairs& to, Numbers& channels, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const int32_t d = from.max[i] - from.min[i];
        const int32_t part = (to.max[i] - to.min[i]) * (channels[i] - from.min[i]);
        channels[i] = RoundSingle(static_cast<float>(part) / static_cast<float>(d > 0 ? d : 1) +
                                  static_cast<float>(to.min[i]));
    }
}

}  // namespace

void Saturate(std::span<ARGB> pixels, const Stretch& stretch, const Light& light) {
    ForEachPart(pixels, [&](std::span<ARGB> part) {
        Colors colors;
        Pairs from, to;
        Load(part, colors);
        FindPairs(colors, from, part.size());
        to = from;
        Change(to, stretch, part.size());
        for (Numbers* channels : {&colors.red, &colors.green, &colors.blue}) {
            Place(from, to, *channels, part.size());
        }
        Finish(colors, light, part);
    });
}

}  // namespace vxgui::hls
