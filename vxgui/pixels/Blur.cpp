#include "vxgui/pixels/Blur.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include "vxgui/pixels/BlurPart.h"
#include "vxgui/pixels/BoxFilter.h"
#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Scratch.h"
#include "vxgui/pixels/ShortBlur.h"
#include "vxgui/pixels/Steps.h"

namespace vxgui {

namespace {

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

/// The blur by boxes that slide, of all channels of each pixel or of the alpha alone.
template <size_t Channels>
class PartBlur {
public:
    PartBlur(const BlurReach& reach, const BoxKernel& horizontal, const BoxKernel& vertical)
        : reach_(reach),
          source_(reach.source),
          horizontal_(horizontal),
          vertical_(vertical),
          pitch_(source_.height | 1),
          results_(source_.height) {}

    void Run();

private:
    static constexpr size_t kPixels = kStripLanes / Channels;  ///< in a row of a strip
    static constexpr size_t kFirst = Channels == 1 ? offsetof(ARGB, Alpha) : 0;

    /// Columns as wide as a strip, with 16 bits a channel. A column's rows lie one below the other;
    /// their number is odd, so that those beside each other don't share a place in the cache.
    using Columns = ScratchVector<WordRow>;

    static uint8_t* Bytes(ARGB* pixel) { return reinterpret_cast<uint8_t*>(pixel) + kFirst; }
    size_t ColumnCount() const { return (source_.width + kPixels - 1) / kPixels; }

    void Pack(size_t top, size_t lines, ByteRow* strip) const;
    void Unpack(const WordRow* strip, size_t top, size_t lines, Columns& columns) const;
    void Vertically(const WordRow* column, size_t number);
    void Store(const uint8_t* from, ARGB* to, size_t count) const;

    const BlurReach reach_;
    const BlurPart source_;
    const BoxKernel horizontal_, vertical_;
    const size_t pitch_;
    ScratchVector<ByteRow> results_;
};

template <size_t Channels>
void PartBlur<Channels>::Run() {
    Columns columns(ColumnCount() * pitch_);
    ScratchVector<ByteRow> samples(source_.width);
    ScratchVector<WordRow> means(ColumnCount() * kPixels);
    for (size_t top = 0; top < source_.height; top += kPixels) {
        const size_t lines = std::min(kPixels, source_.height - top);
        Pack(top, lines, samples.data());
        FilterBytes(samples, std::span(means).first(source_.width), horizontal_);
        Unpack(means.data(), top, lines, columns);
    }
    for (size_t i = 0; i < ColumnCount(); ++i) Vertically(&columns[i * pitch_], i);
}

// Both copy squares, so that neither side leaves the cache between two lines.
template <size_t Channels>
void PartBlur<Channels>::Pack(size_t top, size_t lines, ByteRow* strip) const {
    for (size_t left = 0; left < source_.width; left += kPixels) {
        const size_t count = std::min(kPixels, source_.width - left);
        for (size_t line = 0; line < lines; ++line) {
            ARGB* const pixels = source_.Row(top + line) + left;
            for (size_t x = 0; x < count; ++x) {
                std::memcpy(&strip[left + x][line * Channels], Bytes(pixels + x), Channels);
            }
        }
    }
}

template <size_t Channels>
void PartBlur<Channels>::Unpack(const WordRow* strip, size_t top, size_t lines,
                                Columns& columns) const {
    for (size_t column = 0; column < ColumnCount(); ++column, strip += kPixels) {
        WordRow* const rows = &columns[column * pitch_ + top];
        for (size_t line = 0; line < lines; ++line) {
            for (size_t x = 0; x < kPixels; ++x) {
                std::memcpy(&rows[line][x * Channels], &strip[x][line * Channels],
                            Channels * sizeof(uint16_t));
            }
        }
    }
}

template <size_t Channels>
void PartBlur<Channels>::Vertically(const WordRow* column, size_t number) {
    const BlurPart& target = reach_.target;
    const size_t from = number * kPixels, right = reach_.left + target.width;
    if (from + kPixels <= reach_.left || from >= right) return;
    FilterWords({column, source_.height}, results_, vertical_);
    const size_t begin = std::max(from, reach_.left), end = std::min(from + kPixels, right);
    for (size_t y = 0; y < target.height; ++y) {
        Store(&results_[reach_.top + y][(begin - from) * Channels],
              target.Row(y) + (begin - reach_.left), end - begin);
    }
}

template <size_t Channels>
void PartBlur<Channels>::Store(const uint8_t* from, ARGB* to, size_t count) const {
    if constexpr (Channels > 1) {
        std::memcpy(static_cast<void*>(to), from, count * Channels);
    } else {
        steps::Words* const words = reinterpret_cast<steps::Words*>(to);
        for (size_t x = 0; x < count; ++x) words[x] = uint32_t{from[x]} << 24;  // all were black
    }
}

VXGUI_MULTIVERSION(bool, IsBlackRow, (const ARGB* pixels, size_t count)) {
    uint32_t any = 0;
    for (size_t i = 0; i < count; ++i) any |= lanes::Load(pixels[i]);
    return (any & lanes::kColor) == 0;
}

/// Whether the colours are 0 throughout, as those of a black shadow: they stay so.
bool IsBlack(const BlurPart& part) {
    for (size_t y = 0; y < part.height; ++y) {
        if (!IsBlackRow(part.Row(y), part.width)) return false;
    }
    return true;
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
    const auto part = [&](const Range& across, const Range& down) {
        return BlurPart{pixels.data() + down.begin * width + across.begin, across.Size(),
                        down.Size(), static_cast<size_t>(width)};
    };
    const BlurReach reach{
        part(columns, rows), part({left, int64_t{right} + 1}, {top, int64_t{bottom} + 1}),
        static_cast<size_t>(left - columns.begin), static_cast<size_t>(top - rows.begin)};
    const bool black = IsBlack(reach.source);
    const auto across = ShortKernel::Of(horizontal), down = ShortKernel::Of(vertical);
    if (across && down) {
        ShortBlur(reach, *across, *down, black).Run();
    } else if (black) {
        PartBlur<1>(reach, horizontal, vertical).Run();
    } else {
        PartBlur<sizeof(ARGB)>(reach, horizontal, vertical).Run();
    }
}

}  // namespace vxgui
