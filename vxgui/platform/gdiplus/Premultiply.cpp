#include "vxgui/platform/gdiplus/Premultiply.h"

#include "vxgui/pixels/Multiversion.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB kPair = 0x00FF00FF;

// Two channels, each in a half of a word, times an alpha. With t = c a + 128, (t + t / 256) / 256
// is c a / 255 rounded: exact for all bytes.
inline ARGB Scaled(ARGB pair, ARGB alpha) {
    const ARGB t = pair * alpha + 0x00800080;
    return (t + (t >> 8 & kPair)) >> 8 & kPair;
}

VXGUI_MULTIVERSION void Multiply(ARGB* pixels, size_t count) {
    for (size_t i = 0; i < count; ++i) {
        const ARGB pixel = pixels[i], alpha = pixel >> 24;
        const ARGB green = Scaled(pixel >> 8 & 255, alpha) & 255;
        pixels[i] = alpha << 24 | Scaled(pixel & kPair, alpha) | green << 8;
    }
}

}  // namespace

void PremultiplyRow(std::span<ARGB> pixels) { Multiply(pixels.data(), pixels.size()); }

}  // namespace vxgui::gdiplus
