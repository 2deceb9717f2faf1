#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"

/// The published conversions between COLORREFs and hue, luminance and saturation, each 0 to 240;
/// the hue of a grey is 160. All arithmetic is integer, and every division truncates.
namespace vxgui {

VXGUI_API void ColorRGBToHLS(int32_t rgb, uint16_t* hue, uint16_t* luminance, uint16_t* saturation);

/// Values outside 0 to 240 are not refused: they wrap, as 16-bit numbers do.
VXGUI_API int32_t ColorHLSToRGB(uint16_t hue, uint16_t luminance, uint16_t saturation);

/// Changes the luminance by `n` tenths of a percent: of the way to the end of the scale with
/// `fScale`, of the whole scale without it. An `n` of 0 answers the colour as it is.
VXGUI_API int32_t ColorAdjustLuma(int32_t rgb, int32_t n, bool fScale);

/// The three values of one colour.
struct Hls {
    uint16_t hue, luminance, saturation;
};
inline Hls HlsFromColorRef(int32_t rgb) {
    Hls hls;
    ColorRGBToHLS(rgb, &hls.hue, &hls.luminance, &hls.saturation);
    return hls;
}

}  // namespace vxgui
