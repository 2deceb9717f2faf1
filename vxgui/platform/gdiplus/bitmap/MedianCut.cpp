#include "vxgui/platform/gdiplus/bitmap/MedianCut.h"

#include <algorithm>
#include <unordered_map>

namespace vxgui::gdiplus {
namespace {

struct Counted {
    ARGB color;
    uint64_t pixels;
};
using Colors = std::vector<Counted>;

ARGB Channel(ARGB color, int shift) { return color >> shift & 255; }

/// Colours that one entry of the palette will stand for.
struct Part {
    std::span<Counted> colors;
    uint64_t pixels = 0;
    int shift = 0;  ///< of the widest channel
    ARGB width = 0;

    explicit Part(std::span<Counted> of) : colors(of) {
        for (const Counted& each : colors) pixels += each.pixels;
        for (const int channel : {8, 16, 0}) Widen(channel);
    }

    void Widen(int channel) {
        const auto [low, high] = std::ranges::minmax(
            colors, {}, [&](const Counted& each) { return Channel(each.color, channel); });
        const ARGB apart = Channel(high.color, channel) - Channel(low.color, channel);
        if (apart > width) {
            width = apart;
            shift = channel;
        }
    }
    uint64_t Weight() const { return pixels * width; }
    ARGB Mean() const;
    size_t MedianIndex();
};

ARGB Part::Mean() const {
    ARGB mean = 0xFF000000;
    for (int channel = 0; channel < 24; channel += 8) {
        uint64_t sum = 0;
        for (const Counted& each : colors) sum += Channel(each.color, channel) * each.pixels;
        mean |= static_cast<ARGB>((sum + pixels / 2) / pixels) << channel;
    }
    return mean;
}

// Sorts by the widest channel and answers where the second half of the pixels begins; both sides
// have a colour.
size_t Part::MedianIndex() {
    std::ranges::sort(colors, {}, [&](const Counted& each) {
        return std::pair(Channel(each.color, shift), each.color);
    });
    uint64_t before = 0;
    for (size_t i = 0; i + 1 < colors.size(); ++i) {
        before += colors[i].pixels;
        if (before * 2 >= pixels) return i + 1;
    }
    return colors.size() - 1;
}

// In the order of the values, so that the same picture always gives the same palette.
Colors ColorsOf(const Bitmap& bitmap) {
    std::unordered_map<ARGB, uint64_t> counts;
    std::vector<ARGB> row(bitmap.Width());
    for (UINT y = 0; y < bitmap.Height(); ++y) {
        bitmap.ReadStraight(0, static_cast<INT>(y), row);
        for (const ARGB pixel : row) {
            if (pixel >> 24) ++counts[pixel | 0xFF000000];
        }
    }
    Colors colors;
    for (const auto& [color, pixels] : counts) colors.push_back({color, pixels});
    std::ranges::sort(colors, {}, &Counted::color);
    return colors;
}

}  // namespace

std::vector<ARGB> MedianCut(const Bitmap& bitmap, size_t count) {
    Colors colors = ColorsOf(bitmap);
    std::vector<Part> parts;
    if (!colors.empty()) parts.emplace_back(colors);
    while (!parts.empty() && parts.size() < count) {
        const auto widest = std::ranges::max_element(parts, {}, &Part::Weight);
        if (widest->Weight() == 0) break;
        const size_t median = widest->MedianIndex();
        const std::span<Counted> whole = widest->colors;
        *widest = Part(whole.first(median));
        parts.emplace_back(whole.subspan(median));
    }
    std::vector<ARGB> palette;
    for (const Part& part : parts) palette.push_back(part.Mean());
    return palette;
}

}  // namespace vxgui::gdiplus
