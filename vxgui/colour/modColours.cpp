#include "vxgui/colour/modColours.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"

namespace vxgui {

bool IsOleSystemColor(int32_t value) {
    constexpr auto kFirst = static_cast<int32_t>(0x80000018),
                   kLast = static_cast<int32_t>(0x80000000);
    return value >= kFirst && value <= kLast;
}

int32_t TranslateOleColor(int32_t value, HANDLE*) { return value & kLow24Bits; }

int32_t ColorRefFromARGB(ARGB color, bool unpremultiply) {
    if (!unpremultiply) return ColorRefOf(color.Red, color.Green, color.Blue);
    if (color.Alpha == 0) return 0;
    const double factor = 255.0 / color.Alpha;
    const auto channel = [&](uint8_t premultiplied) {
        return RoundHalfEven<int32_t>(std::min(premultiplied * factor, 255.0));
    };
    return ColorRefOf(channel(color.Red), channel(color.Green), channel(color.Blue));
}

int32_t MakeARGBFromColorRef(int32_t color, uint8_t alpha) {
    return ValueFromARGB({static_cast<uint8_t>(color / 65536), static_cast<uint8_t>(color / 256),
                          static_cast<uint8_t>(color), alpha});
}

int32_t MakeARGBFromOleColor(int32_t color, uint8_t alpha) {
    return MakeARGBFromColorRef(TranslateOleColor(color), alpha);
}

}  // namespace vxgui
