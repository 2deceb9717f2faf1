#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"
#include "vxgui/platform/types.h"

/// Colours between their three 32-bit forms, and the shades that others are made of.
///
/// A COLORREF has red in its lowest byte, then green and blue, and 0 on top. An ARGB value has
/// blue lowest, then green and red, and alpha on top; an opaque one is negative. An OLE colour is
/// taken as a COLORREF.
namespace vxgui {

// Fields of a COLORREF, and a COLORREF of fields, of which the low bytes count.
constexpr uint8_t RedOf(int32_t color) { return static_cast<uint8_t>(color); }
constexpr uint8_t GreenOf(int32_t color) { return static_cast<uint8_t>(color >> 8); }
constexpr uint8_t BlueOf(int32_t color) { return static_cast<uint8_t>(color >> 16); }
constexpr int32_t ColorRefOf(int32_t red, int32_t green, int32_t blue) {
    return (red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16;
}
constexpr int32_t kLow24Bits = 0xFFFFFF;

/// Brightness in thousandths, 0 to 255000.
constexpr int32_t WeightedSum(ARGB color) {
    return color.Green * 587 + color.Red * 299 + color.Blue * 114;
}

/// False for every value: no number meets both of its bounds. That is meant.
VXGUI_API bool IsOleSystemColor(int32_t value);

/// The low 24 bits; system colours have no other meaning here. The palette is not looked at.
VXGUI_API int32_t TranslateOleColor(int32_t value, HANDLE* palette = nullptr);

/// The COLORREF of a pixel. With `unpremultiply` each channel is first multiplied by 255 / Alpha
/// and rounded, halves to even, and held to 255; a clear pixel then gives black.
VXGUI_API int32_t ColorRefFromARGB(ARGB color, bool unpremultiply);

/// The ARGB value of a COLORREF. Green and blue are the low bytes of quotients by 256 and 65536,
/// which truncate towards 0: below a negative number with lower bits set they are one more.
VXGUI_API int32_t MakeARGBFromColorRef(int32_t color, uint8_t alpha);
VXGUI_API int32_t MakeARGBFromOleColor(int32_t color, uint8_t alpha);

/// A colour of the painters' wheel of red, yellow and blue, a full turn being 240.
VXGUI_API void HueToRybColor(int32_t hue, uint8_t& r, uint8_t& g, uint8_t& b);

enum class ScaleRounding { HalfEven, Truncate };

/// Changes a value of the 0 to 240 scale by `n` tenths of a percent: with `bScale` of the way to
/// the end of the scale, 241 upward, which is meant, and 0 downward; else of the whole scale.
/// `rounding` is that of the way upward; the others truncate.
VXGUI_API int16_t ScaleHLSValue(int16_t value, int32_t n, bool bScale,
                                ScaleRounding rounding = ScaleRounding::HalfEven);

/// Luminance falls to two thirds at `p` 0 and to nothing at 1.
VXGUI_API int32_t DarkenColorRef(int32_t color, float p);
/// Luminance stays at `p` 0 and moves half of the way to the top at 1.
VXGUI_API int32_t LightenColorRef(int32_t color, float p);

}  // namespace vxgui
