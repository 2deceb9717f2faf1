#include <algorithm>

#include "vxgui/pixels/ColorMatrix.h"
#include "vxgui/platform/gdiplus/Attributes.h"

namespace vxgui::gdiplus {
namespace {

bool Between(ARGB pixel, const ColorAdjustment::Keys& keys) {
    for (int shift = 0; shift < 24; shift += 8) {
        const ARGB channel = pixel >> shift & 255;
        if (channel < (keys.low >> shift & 255) || channel > (keys.high >> shift & 255)) {
            return false;
        }
    }
    return true;
}

void ClearKeyed(const ColorAdjustment::Keys& keys, std::span<ARGB> pixels) {
    for (ARGB& pixel : pixels) {
        if (Between(pixel, keys)) pixel = 0;
    }
}

void Remap(std::span<const ColorMap> table, std::span<ARGB> pixels) {
    for (ARGB& pixel : pixels) {
        const auto at = std::ranges::lower_bound(table, pixel, {}, &ColorMap::oldColor);
        if (at != table.end() && at->oldColor == pixel) pixel = at->newColor;
    }
}

void ApplyMatrices(const ColorAdjustment::Matrices& matrices, std::span<ARGB> pixels) {
    if (matrices.flags == ColorMatrixFlagsDefault) {
        ApplyColorMatrix(pixels, matrices.color.m);
    } else {
        const bool adjustGrays = matrices.flags == ColorMatrixFlagsAltGray;
        ApplyColorMatrix(pixels, matrices.color.m, adjustGrays ? &matrices.gray.m : nullptr);
    }
}

// The ink of a plate. Black takes what the three inks have in common, and they give it up.
ARGB InkOf(ARGB pixel, ColorChannelFlags channel) {
    const ARGB cyan = 255 - (pixel >> 16 & 255), magenta = 255 - (pixel >> 8 & 255),
               yellow = 255 - (pixel & 255);
    const ARGB black = std::min({cyan, magenta, yellow});
    switch (channel) {
        case ColorChannelFlagsC:
            return cyan - black;
        case ColorChannelFlagsM:
            return magenta - black;
        case ColorChannelFlagsY:
            return yellow - black;
        default:
            return black;
    }
}

// A plate is shown as it prints: paper white, full ink black.
void Separate(ColorChannelFlags channel, std::span<ARGB> pixels) {
    for (ARGB& pixel : pixels) {
        pixel = (pixel & 0xFF000000) | (255 - InkOf(pixel, channel)) * 0x010101;
    }
}

}  // namespace

void Adjust(const ColorAdjustment& adjustment, std::span<ARGB> pixels) {
    if (adjustment.noOp) return;
    if (adjustment.keys) ClearKeyed(*adjustment.keys, pixels);
    if (!adjustment.remap.empty()) Remap(adjustment.remap, pixels);
    if (adjustment.matrices) ApplyMatrices(*adjustment.matrices, pixels);
    if (adjustment.gamma) LookUpColors(pixels, *adjustment.gamma);
    if (adjustment.threshold) LookUpColors(pixels, *adjustment.threshold);
    if (adjustment.outputChannel) Separate(*adjustment.outputChannel, pixels);
}

const ColorAdjustment* ImageAttributes::For(ColorAdjustType type) const {
    for (const ColorAdjustType tried : {type, ColorAdjustTypeDefault}) {
        if (tried < 0 || tried >= ColorAdjustTypeCount) continue;
        const auto& found = adjustments[static_cast<size_t>(tried)];
        if (found) return &*found;
    }
    return nullptr;
}

}  // namespace vxgui::gdiplus
