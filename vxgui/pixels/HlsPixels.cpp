#include "vxgui/pixels/HlsPixels.h"

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Steps.h"

namespace vxgui::hls {

namespace {

VXGUI_MULTIVERSION(void, LoadLoop, (const ARGB* pixels, Colors& colors, size_t count)) {
    const steps::Words* const words = steps::WordsOf(pixels);
    for (size_t i = 0; i < count; ++i) {
        colors.red[i] = static_cast<int32_t>(words[i] >> 16 & 255);
        colors.green[i] = static_cast<int32_t>(words[i] >> 8 & 255);
        colors.blue[i] = static_cast<int32_t>(words[i] & 255);
    }
}

[[gnu::always_inline]] inline uint32_t Bounded(int32_t channel) {
    return static_cast<uint32_t>(channel < 0 ? 0 : channel > 255 ? 255 : channel);
}

VXGUI_MULTIVERSION(void, Store, (const Colors& colors, ARGB* pixels, size_t count)) {
    steps::Words* const words = reinterpret_cast<steps::Words*>(pixels);
    for (size_t i = 0; i < count; ++i) {
        words[i] = (words[i] & 0xFF000000) | Bounded(colors.red[i]) << 16 |
                   Bounded(colors.green[i]) << 8 | Bounded(colors.blue[i]);
    }
}

VXGUI_MULTIVERSION(void, FindPairsLoop, (const Colors& colors, Pairs& pairs, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const int32_t r = colors.red[i], g = colors.green[i], b = colors.blue[i];
        const int32_t most = r > g ? r : g, least = r > g ? g : r;
        pairs.max[i] = most > b ? most : b;
        pairs.min[i] = least < b ? least : b;
    }
}

VXGUI_MULTIVERSION(void, LightenUp, (Numbers & channels, const Light& light, size_t count)) {
    const int32_t factor = light.factor, base = light.base;
    for (size_t i = 0; i < count; ++i) channels[i] = factor * channels[i] / 65536 + base;
}
VXGUI_MULTIVERSION(void, LightenDown, (Numbers & channels, const Light& light, size_t count)) {
    const int32_t factor = light.factor, base = light.base;
    for (size_t i = 0; i < count; ++i) channels[i] = base - (channels[i] ^ 255) * factor / 65536;
}

}  // namespace

void Load(std::span<const ARGB> pixels, Colors& colors) {
    LoadLoop(pixels.data(), colors, pixels.size());
}

void FindPairs(const Colors& colors, Pairs& pairs, size_t count) {
    FindPairsLoop(colors, pairs, count);
}

void Finish(Colors& colors, const Light& light, std::span<ARGB> pixels) {
    for (Numbers* channels : {&colors.red, &colors.green, &colors.blue}) {
        if (light.sign > 0) LightenUp(*channels, light, pixels.size());
        if (light.sign < 0) LightenDown(*channels, light, pixels.size());
    }
    Store(colors, pixels.data(), pixels.size());
}

int32_t Lightened(int32_t channel, const Light& light) {
    if (light.sign > 0) return light.factor * channel / 65536 + light.base;
    if (light.sign < 0) return light.base - (channel ^ 255) * light.factor / 65536;
    return channel;
}

void Lighten(std::span<ARGB> pixels, const Light& light) {
    ForEachPart(pixels, [&](std::span<ARGB> part) {
        Colors colors;
        Load(part, colors);
        Finish(colors, light, part);
    });
}

void Colourize(std::span<ARGB> pixels, const std::array<ARGB, 256>& colors) {
    for (ARGB& pixel : pixels) {
        const uint8_t alpha = pixel.Alpha;
        pixel = colors[static_cast<size_t>((pixel.Red + pixel.Green + pixel.Blue) / 3)];
        pixel.Alpha = alpha;
    }
}

}  // namespace vxgui::hls
