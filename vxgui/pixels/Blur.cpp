#include "vxgui/pixels/Blur.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "vxgui/pixels/BoxFilter.h"

namespace vxgui {

namespace {

constexpr size_t kChannels = sizeof(ARGB);
constexpr size_t kStripLines = kStripLanes / kChannels;

/// A copy of a part of a picture with 16 bits a channel: the byte, and 8 bits below it.
class WidePicture {
public:
    using Pixel = std::array<uint16_t, kChannels>;

    WidePicture(size_t width, size_t height) : width_(width), pixels_(width * height) {}

    Pixel* Row(size_t y) { return pixels_.data() + y * width_; }

    /// Filters `lines` lines of `length` pixels; the strides say how far the next pixel of a
    /// line and the next line are.
    void Filter(const BoxKernel& kernel, size_t length, size_t stride, size_t lines,
                size_t lineStride);

private:
    size_t width_;
    std::vector<Pixel> pixels_;
};

void WidePicture::Filter(const BoxKernel& kernel, size_t length, size_t stride, size_t lines,
                         size_t lineStride) {
    if (kernel.IsIdentity()) return;
    std::vector<StripRow> samples(length), results(length);
    for (size_t begin = 0; begin < lines; begin += kStripLines) {
        const size_t count = std::min(kStripLines, lines - begin);
        // Calls with each pixel of these lines and its place in a strip.
        const auto visit = [&](std::vector<StripRow>& strip, auto copy) {
            for (size_t i = 0; i < length; ++i) {
                Pixel* const pixels = pixels_.data() + begin * lineStride + i * stride;
                for (size_t line = 0; line < count; ++line) {
                    copy(pixels + line * lineStride, &strip[i][line * kChannels]);
                }
            }
        };
        visit(samples, [](const Pixel* pixel, uint16_t* lanes) {
            std::memcpy(lanes, pixel, sizeof *pixel);
        });
        FilterStrip(samples, results, kernel);
        visit(results, [](Pixel* pixel, const uint16_t* lanes) {
            std::memcpy(pixel, lanes, sizeof *pixel);
        });
    }
}

uint16_t Widened(uint8_t channel) { return static_cast<uint16_t>(channel * 256); }
uint8_t Narrowed(uint16_t channel) { return static_cast<uint8_t>((channel + 128) / 256); }

/// Positions from `begin` up to, not including, `end`.
struct Range {
    int64_t begin, end;
    size_t Size() const { return static_cast<size_t>(end - begin); }
};

/// The range of both ends and what the kernel reaches from it, as far as there are pixels.
Range Reached(int64_t first, int64_t last, const BoxKernel& kernel, int64_t size) {
    return {std::max<int64_t>(first - kernel.Reach(), 0),
            std::min<int64_t>(last + kernel.Reach() + 1, size)};
}

}  // namespace

void Blur(std::span<ARGB> pixels, int32_t width, const PixelBox& rectangle,
          const BoxKernel& horizontal, const BoxKernel& vertical) {
    const auto& [left, top, right, bottom] = rectangle;
    if (width < 1 || left < 0 || top < 0 || left > right || top > bottom || right >= width) return;
    const auto height = static_cast<int64_t>(pixels.size() / static_cast<size_t>(width));
    if (bottom >= height || (horizontal.IsIdentity() && vertical.IsIdentity())) return;

    const Range columns = Reached(left, right, horizontal, width);
    const Range rows = Reached(top, bottom, vertical, height);
    WidePicture wide(columns.Size(), rows.Size());
    const auto row = [&](int64_t y) { return pixels.data() + y * width; };
    for (int64_t y = rows.begin; y < rows.end; ++y) {
        std::transform(row(y) + columns.begin, row(y) + columns.end,
                       wide.Row(static_cast<size_t>(y - rows.begin)), [](ARGB pixel) {
                           return WidePicture::Pixel{Widened(pixel.Blue), Widened(pixel.Green),
                                                     Widened(pixel.Red), Widened(pixel.Alpha)};
                       });
    }
    wide.Filter(horizontal, columns.Size(), 1, rows.Size(), columns.Size());
    wide.Filter(vertical, rows.Size(), columns.Size(), columns.Size(), 1);
    for (int64_t y = top; y <= bottom; ++y) {
        const auto* source = wide.Row(static_cast<size_t>(y - rows.begin)) + (left - columns.begin);
        std::transform(source, source + (right - left + 1), row(y) + left,
                       [](const WidePicture::Pixel& pixel) {
                           return ARGB{Narrowed(pixel[0]), Narrowed(pixel[1]), Narrowed(pixel[2]),
                                       Narrowed(pixel[3])};
                       });
    }
}

}  // namespace vxgui
