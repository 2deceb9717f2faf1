#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/ColorHls.h"
#include "vxgui/colour/modColours.h"

namespace vxgui {

namespace {

/// ((1000 - n) * value + n * 241) / 1000.
int32_t ScaledUp(int32_t value, int32_t n, ScaleRounding rounding) {
    const int32_t sum = WrapAdd(WrapMul(WrapSub(1000, n), value), WrapMul(n, 241));
    return rounding == ScaleRounding::Truncate ? sum / 1000 : RoundHalfEven<int16_t>(sum / 1000.0);
}

int32_t Rounded(double value) { return RoundHalfEven<int16_t>(value); }

int32_t WithLuminance(const Hls& hls, int32_t luminance) {
    return ColorHLSToRGB(hls.hue, static_cast<uint16_t>(luminance), hls.saturation);
}

}  // namespace

int16_t ScaleHLSValue(int16_t value, int32_t n, bool bScale, ScaleRounding rounding) {
    if (n == 0) return value;
    int32_t scaled = 0;
    if (!bScale) {
        scaled = WrapAdd<int32_t>(value, WrapMul(n, 240) / 1000);
    } else if (n > 0) {
        scaled = ScaledUp(value, n, rounding);
    } else {
        scaled = WrapMul(WrapAdd(n, 1000), value) / 1000;
    }
    return static_cast<int16_t>(std::clamp(scaled, 0, 240));
}

int32_t DarkenColorRef(int32_t color, float p) {
    const Hls hls = HlsFromColorRef(color);
    const int32_t x = ScaleHLSValue(static_cast<int16_t>(hls.luminance), -333, true);
    return WithLuminance(hls, x - Rounded(x * double{p}));
}

int32_t LightenColorRef(int32_t color, float p) {
    const Hls hls = HlsFromColorRef(color);
    const int32_t x = ScaleHLSValue(static_cast<int16_t>(hls.luminance), 500, true);
    return WithLuminance(hls, hls.luminance + Rounded((x - hls.luminance) * double{p}));
}

}  // namespace vxgui
