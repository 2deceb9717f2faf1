#include "vxgui/pixels/Shadow.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Scratch.h"

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

ScratchVector<int32_t> CoverageOf(std::span<const ARGB> pixels) {
    ScratchVector<int32_t> coverage(pixels.size());
    std::transform(pixels.begin(), pixels.end(), coverage.begin(),
                   [](ARGB pixel) { return IsCovered(pixel) ? 255 : 0; });
    return coverage;
}

/// Divides sums of up to 255 times a box by it, truncating.
class BoxQuotient {
public:
    /// Above it a float can't tell a quotient from the next integer.
    static constexpr int32_t kLargest = 8192;

    // The next number above the reciprocal: a quotient never falls short of an integer.
    explicit BoxQuotient(int32_t box)
        : factor_(std::nextafter(1 / static_cast<float>(box), 2.0F)) {}
    [[gnu::always_inline]] int32_t Of(int32_t sum) const {
        return static_cast<int32_t>(static_cast<float>(sum) * factor_);
    }

private:
    float factor_;
};

VXGUI_MULTIVERSION(void, DivideShort, (int32_t * sums, size_t count, int32_t box)) {
    const BoxQuotient quotient(box);
    for (size_t i = 0; i < count; ++i) sums[i] = quotient.Of(sums[i]);
}

void Divide(int32_t* sums, size_t count, int32_t box) {
    if (box <= BoxQuotient::kLargest) return DivideShort(sums, count, box);
    for (size_t i = 0; i < count; ++i) sums[i] /= box;
}

VXGUI_MULTIVERSION(void, MoveDown,
                   (const int32_t* __restrict above, const int32_t* __restrict below,
                    int32_t* __restrict sums, int32_t* __restrict copies, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        sums[i] += below[i] - above[i];
        copies[i] = sums[i];
    }
}

void BlurRow(std::span<int32_t> row, int32_t box) {
    const auto width = static_cast<int32_t>(row.size());
    if (width <= box) return;
    int32_t sum = 0;
    for (int32_t i = 0; i < box; ++i) sum += row[i];
    for (int32_t i = box; i < width; ++i) {
        sum += row[i] - row[i - box];
        row[i - box] = sum;
    }
    Divide(row.data(), static_cast<size_t>(width - box), box);
}

/// The pixel for each share.
std::array<ARGB, 256> ShadowPixels(ARGB color) {
    std::array<ARGB, 256> pixels;
    for (int32_t share = 0; share < 256; ++share) {
        pixels[static_cast<size_t>(share)] = ShadowPixel(color, share);
    }
    return pixels;
}

// Runs down all columns at once, which keeps to the order of memory.
void ColourColumns(std::span<ARGB> pixels, std::span<const int32_t> rows, int32_t width,
                   int32_t height, int32_t box, ARGB color) {
    const std::array<ARGB, 256> colors = ShadowPixels(color);
    ScratchVector<int32_t> sums(width), shares(width);
    for (int32_t y = 0; y < std::min(box, height); ++y) {
        for (int32_t x = 0; x < width; ++x) sums[x] += rows[size_t(y) * width + x];
    }
    for (int32_t y = 0; y < height - box; ++y) {
        MoveDown(&rows[size_t(y) * width], &rows[size_t(y + box) * width], sums.data(),
                 shares.data(), shares.size());
        Divide(shares.data(), shares.size(), box);
        ARGB* const row = &pixels[size_t(y) * width];
        for (int32_t x = 0; x < width; ++x) row[x] = colors[static_cast<size_t>(shares[x] & 255)];
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
    ScratchVector<int32_t> rows = CoverageOf(pixels.first(size_t(width) * height));
    for (int32_t y = 0; y < height; ++y)
        BlurRow(std::span(rows).subspan(size_t(y) * width, width), boxX);
    for (size_t i = 0; i < rows.size(); ++i) pixels[i] = ARGBFromValue(rows[i]);
    ColourColumns(pixels, rows, width, height, boxY, color);
}

namespace {

// sums[y * (width + 1) + x] counts the covered pixels above and left of (x, y).
ScratchVector<int32_t> CountsOf(std::span<const ARGB> pixels, int32_t width, int32_t height) {
    const size_t stride = size_t(width) + 1;
    ScratchVector<int32_t> counts(stride * (size_t(height) + 1));
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
    const ScratchVector<int32_t> counts = CountsOf(pixels, width, height);
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
