#include "vxgui/colour/ColorHls.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {

namespace {

/// Hands the low 24 bits of an ARGB value to a function of COLORREFs and puts the top byte back.
/// Red and blue trade places inside the function: that is meant.
template <class Shade>
int32_t Shaded(int32_t value, Shade shade) {
    return (shade(value & kLow24Bits) & kLow24Bits) | (value & ~kLow24Bits);
}

}  // namespace

int32_t GpColor::Dark() const { return Darker(0.5F); }
int32_t GpColor::DarkDark() const { return Darker(1.0F); }
int32_t GpColor::Light() const { return Lighter(0.5F); }
int32_t GpColor::LightLight() const { return Lighter(1.0F); }

int32_t GpColor::Darker(float percDarker) const {
    return Shaded(Value(), [&](int32_t color) { return DarkenColorRef(color, percDarker); });
}

int32_t GpColor::Lighter(float percLighter) const {
    return Shaded(Value(), [&](int32_t color) { return LightenColorRef(color, percLighter); });
}

int32_t GpColor::AdjustLuma(int16_t n, bool bScale) const {
    return Shaded(Value(), [&](int32_t color) { return ColorAdjustLuma(color, n, bScale); });
}

int32_t GpColor::AdjustSatu(int16_t n, bool bScale) const {
    return Shaded(Value(), [&](int32_t color) {
        const Hls hls = HlsFromColorRef(color);
        const int16_t scaled = ScaleHLSValue(static_cast<int16_t>(hls.saturation), n, bScale);
        return ColorHLSToRGB(hls.hue, hls.luminance, static_cast<uint16_t>(scaled));
    });
}

int32_t GpColor::AdjustHue(int16_t n) const {
    return Shaded(Value(), [&](int32_t color) {
        const Hls hls = HlsFromColorRef(color);
        // The remainder keeps the sign of the sum; a negative hue wraps on its way in.
        const auto turned = static_cast<int16_t>(static_cast<int16_t>(hls.hue + n) % 240);
        return ColorHLSToRGB(static_cast<uint16_t>(turned), hls.luminance, hls.saturation);
    });
}

}  // namespace vxgui
