#include "vxgui/pixels/HlsLoops.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Steps.h"

// Expressions between named values have double precision: where a result lies on a half, that
// decides. Products of a single and a channel, and sums with another channel, are exact in it.
// Where single precision is used, it gives the same: the tests compare all colours.
namespace vxgui::hls {

namespace {

/// Some pixels, each step's results side by side.
constexpr size_t kPixels = 256;
using Numbers = std::array<int32_t, kPixels>;
struct Colors {
    Numbers red, green, blue;
};
struct Pairs {
    Numbers max, min;
};
using Places = std::array<float, kPixels>;  ///< on the circle, in sixths of it

/// Rounds to nearest, halves to even: added to 1.5 * 2^52 it leaves the integer in the lowest
/// bits.
[[gnu::always_inline]] inline int32_t Round(double value) {
    return static_cast<int32_t>(std::bit_cast<int64_t>(value + 6755399441055744.0));
}
/// The same of modest singles.
[[gnu::always_inline]] inline int32_t RoundSingle(float value) {
    return std::bit_cast<int32_t>(value + 12582912.0F) - std::bit_cast<int32_t>(12582912.0F);
}

VXGUI_MULTIVERSION(void, Load, (const ARGB* pixels, Colors& colors, size_t count)) {
    const steps::Words* const words = steps::WordsOf(pixels);
    for (size_t i = 0; i < count; ++i) {
        colors.red[i] = static_cast<int32_t>(words[i] >> 16 & 255);
        colors.green[i] = static_cast<int32_t>(words[i] >> 8 & 255);
        colors.blue[i] = static_cast<int32_t>(words[i] & 255);
    }
}

[[gnu::always_inline]] inline uint32_t Bounded(int32_t channel) {
    return static_cast<uint32_t>(channel < 0 ? 0 : channel > 255 ? 255 : channel);
}

VXGUI_MULTIVERSION(void, Store, (const Colors& colors, ARGB* pixels, size_t count)) {
    steps::Words* const words = reinterpret_cast<steps::Words*>(pixels);
    for (size_t i = 0; i < count; ++i) {
        words[i] = (words[i] & 0xFF000000) | Bounded(colors.red[i]) << 16 |
                   Bounded(colors.green[i]) << 8 | Bounded(colors.blue[i]);
    }
}

VXGUI_MULTIVERSION(void, FindPairs, (const Colors& colors, Pairs& pairs, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const int32_t r = colors.red[i], g = colors.green[i], b = colors.blue[i];
        const int32_t most = r > g ? r : g, least = r > g ? g : r;
        pairs.max[i] = most > b ? most : b;
        pairs.min[i] = least < b ? least : b;
    }
}

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

/// All bits of a choice, or none: selecting by them leaves one road through a loop.
[[gnu::always_inline]] inline int32_t Bits(bool choice) { return -static_cast<int32_t>(choice); }

VXGUI_MULTIVERSION(void, MoveApart, (Pairs & pairs, const Stretch& stretch, size_t count)) {
    const double factor = stretch.factor, rest = stretch.rest;
    for (size_t i = 0; i < count; ++i) {
        const int32_t max = pairs.max[i], min = pairs.min[i], room = 255 - max;
        const int32_t coloured = Bits(max > min), low = Bits(room > min);
        const int32_t most = Round(max + (((min & low) | (room & ~low)) & coloured) * factor);
        const int32_t scaled = Round((min & coloured) * rest) | (min & ~coloured);
        const int32_t moved = Round(min - ((255 - most) & coloured) * factor);
        pairs.max[i] = most;
        pairs.min[i] = (scaled & low) | (moved & ~low);
    }
}

VXGUI_MULTIVERSION(void, MoveTogether, (Pairs & pairs, const Stretch& stretch, size_t count)) {
    const double half = stretch.half;
    for (size_t i = 0; i < count; ++i) {
        const int32_t max = pairs.max[i], min = pairs.min[i];
        const double step = (max - min) * half;
        pairs.max[i] = Round(max + step);
        pairs.min[i] = Round(min - step);
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

// The highest and the lowest channel come out as those of the new pair, and one between them in
// its place.
VXGUI_MULTIVERSION(void, Place,
                   (const Pairs& from, const Pairs& to, Numbers& channels, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const int32_t d = from.max[i] - from.min[i];
        const int32_t part = (to.max[i] - to.min[i]) * (channels[i] - from.min[i]);
        channels[i] = RoundSingle(static_cast<float>(part) / static_cast<float>(d > 0 ? d : 1) +
                                  static_cast<float>(to.min[i]));
    }
}

VXGUI_MULTIVERSION(void, LightenUp, (Numbers & channels, const Light& light, size_t count)) {
    const int32_t factor = light.factor, base = light.base;
    for (size_t i = 0; i < count; ++i) channels[i] = factor * channels[i] / 65536 + base;
}
VXGUI_MULTIVERSION(void, LightenDown, (Numbers & channels, const Light& light, size_t count)) {
    const int32_t factor = light.factor, base = light.base;
    for (size_t i = 0; i < count; ++i) channels[i] = base - (channels[i] ^ 255) * factor / 65536;
}

void Change(Pairs& pairs, const Stretch& stretch, size_t count) {
    if (stretch.sign > 0) MoveApart(pairs, stretch, count);
    if (stretch.sign < 0) MoveTogether(pairs, stretch, count);
}

void Finish(Colors& colors, const Light& light, std::span<ARGB> pixels) {
    for (Numbers* channels : {&colors.red, &colors.green, &colors.blue}) {
        if (light.sign > 0) LightenUp(*channels, light, pixels.size());
        if (light.sign < 0) LightenDown(*channels, light, pixels.size());
    }
    Store(colors, pixels.data(), pixels.size());
}

template <class Work>
void ForEachPart(std::span<ARGB> pixels, Work work) {
    for (; !pixels.empty(); pixels = pixels.subspan(std::min(kPixels, pixels.size()))) {
        work(pixels.first(std::min(kPixels, pixels.size())));
    }
}

}  // namespace

int32_t Lightened(int32_t channel, const Light& light) {
    if (light.sign > 0) return light.factor * channel / 65536 + light.base;
    if (light.sign < 0) return light.base - (channel ^ 255) * light.factor / 65536;
    return channel;
}

void TurnHues(std::span<ARGB> pixels, float turn, const Stretch& stretch, const Light& light) {
    ForEachPart(pixels, [&](std::span<ARGB> part) {
        Colors colors;
        Pairs pairs;
        Places places;
        Orders orders;
        Load(part.data(), colors, part.size());
        FindPairs(colors, pairs, part.size());
        FindPlaces(colors, pairs, places, part.size());
        Change(pairs, stretch, part.size());
        Turn(pairs, places, turn, orders, part.size());
        Arrange(pairs, orders, colors, part.size());
        Finish(colors, light, part);
    });
}

void Saturate(std::span<ARGB> pixels, const Stretch& stretch, const Light& light) {
    ForEachPart(pixels, [&](std::span<ARGB> part) {
        Colors colors;
        Pairs from, to;
        Load(part.data(), colors, part.size());
        FindPairs(colors, from, part.size());
        to = from;
        Change(to, stretch, part.size());
        for (Numbers* channels : {&colors.red, &colors.green, &colors.blue}) {
            Place(from, to, *channels, part.size());
        }
        Finish(colors, light, part);
    });
}

void Lighten(std::span<ARGB> pixels, const Light& light) {
    ForEachPart(pixels, [&](std::span<ARGB> part) {
        Colors colors;
        Load(part.data(), colors, part.size());
        Finish(colors, light, part);
    });
}

void Colourize(std::span<ARGB> pixels, const std::array<ARGB, 256>& colors) {
    for (ARGB& pixel : pixels) {
        const uint8_t alpha = pixel.Alpha;
        pixel = colors[static_cast<size_t>((pixel.Red + pixel.Green + pixel.Blue) / 3)];
        pixel.Alpha = alpha;
    }
}

}  // namespace vxgui::hls
