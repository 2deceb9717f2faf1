#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

/// What the conversions between colours and hue, luminance and saturation look up instead of
/// dividing or choosing by jumps. A jump that depends on the colour is foretold wrongly every other
/// time, which costs as much as the rest of a conversion.
namespace vxgui::hls_tables {

constexpr int32_t kScale = 240, kAchromaticHue = 160;
/// A hue runs through six sectors of 40.
constexpr int32_t kSector = 40;

/// (multiple * n + d / 2) / d, both divisions truncating, for `n` up to `d`. Factor and bias are
/// rounded up; what that adds is less than 2^-16, and no quotient is nearer to the next integer
/// than 1 / 510.
struct Division {
    static constexpr int kShift = 24;

    constexpr uint32_t Quotient(uint32_t n) const { return (factor * n + bias) >> kShift; }

    uint32_t factor, bias;
};

constexpr Division DivisionBy(uint32_t d, uint32_t multiple) {
    const auto part = [d](uint32_t n) {
        return static_cast<uint32_t>(((uint64_t{n} << Division::kShift) + d - 1) / d);
    };
    return {part(multiple), part(d / 2)};
}

/// A sector of hues: start + part, or with all bits of `flip` start - part, where `start` is one
/// more for the flipped bits.
struct Sector {
    int32_t flip, start;
};
constexpr Sector Rising(int32_t start) { return {0, start}; }
constexpr Sector Falling(int32_t start) { return {-1, start + 1}; }

/// For the way to the scale.
struct ToScale {
    constexpr ToScale() {
        for (uint32_t sum = 0; sum < luminances.size(); ++sum) {
            luminances[sum] = static_cast<uint8_t>((sum * 240 + 255) / 510);
            const uint32_t room = luminances[sum] <= 120 ? sum : 510 - sum;
            if (room > 0) saturations[sum] = DivisionBy(room, kScale);
        }
        for (uint32_t d = 1; d < parts.size(); ++d) parts[d] = DivisionBy(d, kSector);
        // A grey lies in the last sector: 40 - 120 is its hue, a turn less.
        parts[0] = {0, uint32_t{kSector + kScale - kAchromaticHue} << Division::kShift};
    }

    /// By the sum of the highest and the lowest channel; the saturation is the quotient of their
    /// difference.
    std::array<Division, 511> saturations{};
    /// By that difference; how far the channel between them is from the highest, of 40, is the
    /// quotient of that distance.
    std::array<Division, 256> parts{};
    /// By whether red is no less than green (4), green than blue (2) and red than blue (1).
    std::array<Sector, 8> sectors{Rising(120),  {},          Falling(120), Rising(40),
                                  Falling(200), Rising(-40), {},           Falling(40)};
    std::array<uint8_t, 511> luminances{};
};
inline constexpr ToScale kToScale;

/// How far a channel is on its way up, of 40, at a distance around the circle: it rises, stays and
/// falls.
constexpr int32_t Way(int32_t hue) {
    const int32_t h = hue > kScale ? hue - kScale : hue;
    return std::clamp(std::min(h, 4 * kSector - h), 0, kSector);
}

/// A hue: where in a COLORREF its highest, middle and lowest channel stand, as the powers of 2 of
/// these places, and how far the middle one is on its way up.
struct Hue {
    uint32_t way, highest, middle, lowest;
};

constexpr Hue HueAt(int32_t hue) {
    struct Channel {
        int32_t way;
        uint32_t place;
    };
    std::array<Channel, 3> channels{
        {{Way(hue + 80), 1}, {Way(hue), 0x100}, {Way(hue - 80), 0x10000}}};
    std::ranges::sort(channels, {}, &Channel::way);
    return {static_cast<uint32_t>(channels[1].way), channels[2].place, channels[1].place,
            channels[0].place};
}

/// For the way back.
struct FromScale {
    constexpr FromScale() {
        for (size_t i = 0; i < hues.size(); ++i) {
            hues[i] = HueAt(static_cast<int32_t>(i));
            channels[i] = static_cast<uint8_t>((i * 255 + 120) / 240);
        }
    }

    std::array<Hue, kScale + 1> hues{};
    std::array<uint8_t, kScale + 1> channels{};  ///< of 0 to 240
};
inline constexpr FromScale kFromScale;

}  // namespace vxgui::hls_tables
