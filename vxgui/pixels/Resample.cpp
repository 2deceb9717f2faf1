#include "vxgui/pixels/Resample.h"

#include <algorithm>
#include <cmath>

#include "vxgui/pixels/BilinearLoops.h"
#include "vxgui/pixels/PixelPairs.h"

namespace vxgui {

namespace {

float Step(size_t size, size_t targetSize) {
    return static_cast<float>(size - 1) / static_cast<float>(targetSize);
}

/// A place between two samples, and what they weigh.
struct Between {
    Between(size_t position, float step) {
        const float place = static_cast<float>(position) * step;
        const float whole = std::floor(place);
        index = static_cast<uint32_t>(whole);
        weights = {1 - (place - whole), place - whole};
    }
    uint32_t index;
    bilinear::Weights weights;
};

/// Where the columns of the target lie in a row of the source.
struct Columns {
    Columns(size_t width, size_t count) {
        indices.reserve(count);
        first.reserve(count);
        second.reserve(count);
        const float step = Step(width, count);
        for (size_t i = 0; i < count; ++i) {
            const Between place(i, step);
            indices.push_back(place.index);
            first.push_back(place.weights.first);
            second.push_back(place.weights.second);
        }
    }

    bilinear::Columns Weights() const { return {first.data(), second.data()}; }

    ScratchVector<uint32_t> indices;
    ScratchVector<float> first, second;
};

/// Mixes two whole rows, and then what the columns take of the result.
class WholeRows {
public:
    // Behind the last pixel there is another, which is only read with a weight of 0.
    WholeRows(const Columns& columns, size_t width)
        : width_(width),
          weights_(columns.Weights()),
          pairs_(columns.indices, width + 1),
          mixed_(width + 1),
          taken_(pairs_.Count()) {}

    void Store(const ARGB* upper, const ARGB* lower, const bilinear::Weights& rows, ARGB* target) {
        bilinear::MixRows(upper, lower, rows, mixed_.data(), width_);
        pairs_.Take(mixed_.data(), taken_.data());
        bilinear::MixPairs(taken_.data(), weights_, target, taken_.size());
    }

private:
    const size_t width_;
    const bilinear::Columns weights_;
    const PixelPairs pairs_;
    ScratchVector<ARGB> mixed_;
    ScratchVector<uint64_t> taken_;
};

/// Mixes two rows where the columns lie alone, which is less work where those are fewer than the
/// pixels.
class FewColumns {
public:
    FewColumns(const Columns& columns, size_t width)
        : weights_(columns.Weights()),
          pairs_(columns.indices, width),
          upper_(pairs_.Count()),
          lower_(pairs_.Count()) {}

    static bool Suit(const Columns& columns, size_t width) {
        return 2 * columns.indices.size() < width && columns.indices.back() + 1 < width;
    }

    void Store(const ARGB* upper, const ARGB* lower, const bilinear::Weights& rows, ARGB* target) {
        pairs_.Take(upper, upper_.data());
        pairs_.Take(lower, lower_.data());
        bilinear::MixPairsOfRows(upper_.data(), lower_.data(), rows, weights_, target,
                                 upper_.size());
    }

private:
    const bilinear::Columns weights_;
    const PixelPairs pairs_;
    ScratchVector<uint64_t> upper_, lower_;
};

/// Pixels in whole rows.
template <class Pixel>
struct Rows {
    Rows(std::span<Pixel> pixels, size_t width)
        : pixels(pixels.data()), width(width), count(pixels.size() / width) {}
    Pixel* operator[](size_t row) const { return pixels + row * width; }

    Pixel* const pixels;
    const size_t width, count;
};

// Below the last row nothing is read but with a weight of 0.
template <class Store>
void ForEachRow(const Rows<const ARGB>& source, const Rows<ARGB>& target, Store store) {
    const float step = Step(source.count, target.count);
    for (size_t y = 0; y < target.count; ++y) {
        const Between place(y, step);
        const size_t below = std::min<size_t>(place.index + 1, source.count - 1);
        store.Store(source[place.index], source[below], place.weights, target[y]);
    }
}

}  // namespace

void ResampleBilinear(std::span<const ARGB> source, int32_t sourceWidth, std::span<ARGB> target,
                      int32_t targetWidth) {
    if (sourceWidth < 1 || targetWidth < 1) return;
    const Rows<const ARGB> from(source, static_cast<size_t>(sourceWidth));
    const Rows<ARGB> to(target, static_cast<size_t>(targetWidth));
    if (from.count < 1 || to.count < 1) return;
    const Columns columns(from.width, to.width);
    if (FewColumns::Suit(columns, from.width)) {
        ForEachRow(from, to, FewColumns(columns, from.width));
    } else {
        ForEachRow(from, to, WholeRows(columns, from.width));
    }
}

}  // namespace vxgui
