#include "vxgui/pixels/Shadow.h"

#include <algorithm>
#include <vector>

namespace vxgui {
namespace {

bool IsCovered(ARGB pixel) { return ValueFromARGB(pixel) != 0; }

// The 1 that is added is meant: a clear pixel comes out with colour bytes of 1.
uint8_t ShadowChannel(int32_t channel, int32_t alpha) {
    return static_cast<uint8_t>((channel * alpha + 128) / 256 + 1);
}

ARGB ShadowPixel(ARGB color, int32_t share) {
    const int32_t alpha = color.Alpha * share / 255;
    return {ShadowChannel(color.Blue, alpha), ShadowChannel(color.Green, alpha),
            ShadowChannel(color.Red, alpha), static_cast<uint8_t>(alpha)};
}

std::vector<int32_t> CoverageOf(std::span<const ARGB> pixels) {
    std::vector<int32_t> coverage(pixels.size());
    std::transform(pixels.begin(), pixels.end(), coverage.begin(),
                   [](ARGB pixel) { return IsCovered(pixel) ? 255 : 0; });
    return coverage;
}

void BlurRow(std::span<int32_t> row, int32_t box) {
    const auto width = static_cast<int32_t>(row.size());
    int32_t sum = 0;
    for (int32_t i = 0; i < std::min(box, width); ++i) sum += row[i];
    for (int32_t i = box; i < width; ++i) {
        sum += row[i] - row[i - box];
        row[i - box] = sum / box & 255;
    }
}

// Runs down all columns at once, which keeps to the order of memory.
void ColourColumns(std::span<ARGB> pixels, std::span<const int32_t> rows, int32_t width,
                   int32_t height, int32_t box, ARGB color) {
    std::vector<int32_t> sums(width);
    for (int32_t y = 0; y < std::min(box, height); ++y) {
        for (int32_t x = 0; x < width; ++x) sums[x] += rows[size_t(y) * width + x];
    }
    for (int32_t y = 0; y < height - box; ++y) {
        const int32_t* above = &rows[size_t(y) * width];
        const int32_t* below = &rows[size_t(y + box) * width];
        for (int32_t x = 0; x < width; ++x) {
            sums[x] += below[x] - above[x];
            pixels[size_t(y) * width + x] = ShadowPixel(color, sums[x] / box & 255);
        }
    }
}

bool Holds(std::span<const ARGB> pixels, int32_t width, int32_t height) {
    return width > 0 && height > 0 && pixels.size() >= size_t(width) * height;
}

}  // namespace

void BoxShadow(std::span<ARGB> pixels, int32_t width, int32_t height, int32_t boxX, int32_t boxY,
               ARGB color) {
    if (!Holds(pixels, width, height)) return;
    boxX = std::max(boxX, 1);
    boxY = std::max(boxY, 1);
    std::vector<int32_t> rows = CoverageOf(pixels.first(size_t(width) * height));
    for (int32_t y = 0; y < height; ++y)
        BlurRow(std::span(rows).subspan(size_t(y) * width, width), boxX);
    for (size_t i = 0; i < rows.size(); ++i) pixels[i] = ARGBFromValue(rows[i]);
    ColourColumns(pixels, rows, width, height, boxY, color);
}

namespace {

// sums[y * (width + 1) + x] counts the covered pixels above and left of (x, y).
std::vector<int32_t> CountsOf(std::span<const ARGB> pixels, int32_t width, int32_t height) {
    const size_t stride = size_t(width) + 1;
    std::vector<int32_t> counts(stride * (size_t(height) + 1));
    for (int32_t y = 0; y < height; ++y) {
        int32_t row = 0;
        for (int32_t x = 0; x < width; ++x) {
            row += IsCovered(pixels[size_t(y) * width + x]);
            counts[(y + 1) * stride + x + 1] = counts[y * stride + x + 1] + row;
        }
    }
    return counts;
}

ARGB PlainShadowPixel(ARGB color, int64_t share) {
    const auto alpha = static_cast<int32_t>(std::min<int64_t>(color.Alpha * share / 255, 255));
    const auto channel = [&](int32_t c) { return static_cast<uint8_t>((c * alpha + 128) / 256); };
    return {channel(color.Blue), channel(color.Green), channel(color.Red),
            static_cast<uint8_t>(alpha)};
}

}  // namespace

void ForwardShadow(std::span<ARGB> pixels, int32_t width, int32_t height, int32_t boxX,
                   int32_t boxY, ARGB color) {
    if (!Holds(pixels, width, height)) return;
    boxX = std::max(boxX, 1);
    boxY = std::max(boxY, 1);
    const std::vector<int32_t> counts = CountsOf(pixels, width, height);
    const size_t stride = size_t(width) + 1;
    const int64_t box = int64_t{boxX} * boxY;
    for (int32_t y = 0; y < height; ++y) {
        const int32_t* top = &counts[y * stride];
        const int32_t* bottom = &counts[std::min<int64_t>(int64_t{y} + boxY, height) * stride];
        for (int32_t x = 0; x < width; ++x) {
            const auto end = static_cast<size_t>(std::min<int64_t>(int64_t{x} + boxX, width));
            const int64_t covered = bottom[end] - bottom[x] - top[end] + top[x];
            pixels[size_t(y) * width + x] = PlainShadowPixel(color, covered * 255 / box);
        }
    }
}

}  // namespace vxgui
