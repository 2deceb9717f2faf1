#include <cmath>

#include "vxgui/pixels/HlsPixels.h"
#include "vxgui/pixels/Multiversion.h"

namespace vxgui::hls {

namespace {

using Places = std::array<float, kPixels>;  ///< on the circle, in sixths of it

VXGUI_MULTIVERSION(void, FindPlaces,
                   (const Colors& colors, const Pairs& pairs, Places& places, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const int32_t r = colors.red[i], g = colors.green[i], b = colors.blue[i];
        const int32_t d = pairs.max[i] - pairs.min[i];
        const bool isRed = (r > g) & (r > b), isBlue = b > g;
        const int32_t offset = isRed ? g - b : isBlue ? r - g + 4 * d : b - r + 2 * d;
        places[i] = static_cast<float>(offset) / static_cast<float>(d > 0 ? d : 1);
    }
}

/// How the channels of a pixel follow each other at its place: which is the highest, and whether
/// the place lies before it on the circle.
struct Orders {
    Numbers highest;  ///< 0 red, 2 green, 4 blue
    Numbers before;
    Numbers middle;  ///< the value of the channel between the others
};

VXGUI_MULTIVERSION(void, Turn,
                   (const Pairs& pairs, const Places& places, float turn, Orders& orders,
                    size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const float turned = places[i] + turn;
        const float place = turned + static_cast<float>(6 & Bits(turned < -1)) -
                            static_cast<float>(6 & Bits(turned > 5));
        orders.highest[i] = (2 & Bits(place >= 1)) + (2 & Bits(place >= 3));
        const float aside = place - static_cast<float>(orders.highest[i]);
        orders.before[i] = aside < 0;
        orders.middle[i] =
            Round(double{std::abs(aside)} * (pairs.max[i] - pairs.min[i]) + pairs.min[i]);
    }
}

VXGUI_MULTIVERSION(void, Arrange,
                   (const Pairs& pairs, const Orders& orders, Colors& colors, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const int32_t max = pairs.max[i], min = pairs.min[i], mid = orders.middle[i];
        const int32_t red = Bits(orders.highest[i] == 0), green = Bits(orders.highest[i] == 2);
        const int32_t blue = ~(red | green), before = Bits(orders.before[i] != 0);
        const auto other = [&](int32_t different) {
            return (min & different) | (mid & ~different);
        };
        colors.red[i] = (max & red) | (other(green ^ before) & ~red);
        colors.green[i] = (max & green) | (other(blue ^ before) & ~green);
        colors.blue[i] = (max & blue) | (other(red ^ before) & ~blue);
    }
}

}  // namespace

void TurnHues(std::span<ARGB> pixels, float turn, const Stretch& stretch, const Light& light) {
    ForEachPart(pixels, [&](std::span<ARGB> part) {
        Colors colors;
        Pairs pairs;
        Places places;
        Orders orders;
        Load(part, colors);
        FindPairs(colors, pairs, part.size());
        FindPlaces(colors, pairs, places, part.size());
        Change(pairs, stretch, part.size());
        Turn(pairs, places, turn, orders, part.size());
        Arrange(pairs, orders, colors, part.size());
        Finish(colors, light, part);
    });
}

}  // namespace vxgui::hls
