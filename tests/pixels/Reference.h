#pragma once

#include <algorithm>
#include <cstdint>

#include "vxgui/pixels/ARGB.h"

/// The formulas once more, one byte at a time, with nothing of the library but the pixel record.
namespace vxgui::reference {

inline uint8_t ConstantByte(int s, int t, int alpha) {
    return static_cast<uint8_t>((s * alpha + t * (256 - alpha)) / 256);
}
inline uint8_t StraightByte(int s, int t, int sourceAlpha, int alpha) {
    const int a = sourceAlpha * alpha / 256;
    return static_cast<uint8_t>(s * a / 256 + t * (256 - a) / 256);
}
inline uint8_t PremultipliedByte(int s, int t, int sourceAlpha) {
    return static_cast<uint8_t>(std::min(255, s + t * (256 - sourceAlpha) / 256));
}
inline uint8_t PremultiplyByte(int c, int alpha) {
    if (alpha == 0) return 0;
    if (alpha == 255) return static_cast<uint8_t>(c);
    return static_cast<uint8_t>(c * (alpha + 1) / 256);
}

inline ARGB Constant(ARGB s, ARGB t, int alpha) {
    return {ConstantByte(s.Blue, t.Blue, alpha), ConstantByte(s.Green, t.Green, alpha),
            ConstantByte(s.Red, t.Red, alpha), t.Alpha};
}
inline ARGB Straight(ARGB s, ARGB t, int alpha) {
    return {StraightByte(s.Blue, t.Blue, s.Alpha, alpha),
            StraightByte(s.Green, t.Green, s.Alpha, alpha),
            StraightByte(s.Red, t.Red, s.Alpha, alpha),
            StraightByte(s.Alpha, t.Alpha, s.Alpha, alpha)};
}
inline ARGB Premultiplied(ARGB s, ARGB t) {
    return {PremultipliedByte(s.Blue, t.Blue, s.Alpha),
            PremultipliedByte(s.Green, t.Green, s.Alpha), PremultipliedByte(s.Red, t.Red, s.Alpha),
            PremultipliedByte(s.Alpha, t.Alpha, s.Alpha)};
}

/// Whether the colour of a pixel is a key that has red in its lowest byte.
inline bool Matches(ARGB pixel, uint32_t key) {
    return pixel.Red == (key & 0xFF) && pixel.Green == (key >> 8 & 0xFF) &&
           pixel.Blue == (key >> 16 & 0xFF);
}

}  // namespace vxgui::reference
