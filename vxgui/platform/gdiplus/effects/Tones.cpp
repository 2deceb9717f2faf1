#include "vxgui/platform/gdiplus/effects/Tones.h"

namespace vxgui::gdiplus {

ByteTable SameTone() {
    return MakeByteTable([](int i) { return i; });
}

double Midtone(double place, int midtone) { return std::pow(place, std::pow(4, -midtone / 100.0)); }

double Contrast(double value, int percent) {
    constexpr double kMiddle = 127.5;
    if (percent >= 100) return value > kMiddle ? 255 : 0;
    const double factor = percent < 0 ? (100 + percent) / 100.0 : 100.0 / (100 - percent);
    return (value - kMiddle) * factor + kMiddle;
}

ChannelTables ForColors(const ByteTable& table) { return {table, table, table, SameTone()}; }

}  // namespace vxgui::gdiplus
