#include "vxgui/pixels/Resample.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Scratch.h"

namespace vxgui {

namespace {

constexpr size_t kChannels = sizeof(ARGB);
/// How many bytes further on a channel's neighbour lies: three, not four, which is meant.
constexpr size_t kNeighbour = 3;

/// A place between two samples, and what they weigh.
struct Between {
    Between(int32_t position, float step) {
        const float place = static_cast<float>(position) * step;
        const float whole = std::floor(place);
        index = static_cast<size_t>(whole);
        second = place - whole;
        first = 1 - second;
    }
    size_t index;
    float first, second;
};

float Step(int32_t size, int32_t targetSize) {
    return static_cast<float>(size - 1) / static_cast<float>(targetSize);
}

/// Rounds a value of 0 to 255, halves to even: added to 1.5 * 2^23 it leaves the integer in the
/// lowest bits, with those of `kRounder` above.
[[gnu::always_inline]] inline uint32_t Rounded(float value) {
    return std::bit_cast<uint32_t>(value + 12582912.0F);
}
constexpr uint32_t kRounder = std::bit_cast<uint32_t>(12582912.0F);
/// What those of channels that were shifted to their places add up to.
constexpr uint32_t kRounders = kRounder + (kRounder << 8) + (kRounder << 16) + (kRounder << 24);
constexpr uint32_t kColorRounders = kRounders - (kRounder << 24);

[[gnu::always_inline]] inline float Channel(uint32_t pixel, int shift) {
    return static_cast<float>(static_cast<int32_t>(pixel >> shift & 255));
}

VXGUI_MULTIVERSION(void, MixRows,
                   (const uint32_t* __restrict upper, const uint32_t* __restrict lower, float first,
                    float second, uint32_t* __restrict mixed, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        uint32_t pixel = 0u - kRounders;
        for (int shift = 0; shift < 32; shift += 8) {
            pixel += Rounded(first * Channel(upper[i], shift) + second * Channel(lower[i], shift))
                     << shift;
        }
        mixed[i] = pixel;
    }
}

// A place has eight bytes of a row: those of its own pixel, and behind them some of the next.
VXGUI_MULTIVERSION(void, MixColumns,
                   (const uint64_t* __restrict places, const float* __restrict first,
                    const float* __restrict second, uint32_t* __restrict target, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        const auto left = static_cast<uint32_t>(places[i]);
        const auto right = static_cast<uint32_t>(places[i] >> 8 * kNeighbour);
        uint32_t mixed = (target[i] & 0xFF000000) - kColorRounders;
        for (int shift = 0; shift < 24; shift += 8) {
            mixed += Rounded(first[i] * Channel(left, shift) + second[i] * Channel(right, shift))
                     << shift;
        }
        target[i] = mixed;
    }
}

const uint32_t* Words(const void* pixels) { return static_cast<const uint32_t*>(pixels); }

/// A row of the source in the columns of the target.
class Columns {
public:
    Columns(int32_t width, int32_t targetWidth) {
        const float step = Step(width, targetWidth);
        const auto count = static_cast<size_t>(targetWidth);
        offsets_.reserve(count);
        first_.reserve(count);
        second_.reserve(count);
        for (int32_t column = 0; column < targetWidth; ++column) {
            const Between place(column, step);
            offsets_.push_back(static_cast<uint32_t>(place.index * kChannels));
            first_.push_back(place.first);
            second_.push_back(place.second);
        }
        places_.resize(offsets_.size());
    }

    /// Whether it is less work to mix the rows at the places alone; they lie in the row.
    bool AreFew(size_t width) const {
        return 2 * offsets_.size() < width &&
               offsets_.back() + sizeof(uint64_t) <= width * kChannels;
    }

    /// Mixes two rows and stores the result.
    void Store(const ARGB* upper, const ARGB* lower, const Between& row, ARGB* target) {
        upper_.resize(places_.size());
        lower_.resize(places_.size());
        Gather(upper, upper_);
        Gather(lower, lower_);
        MixRows(Words(upper_.data()), Words(lower_.data()), row.first, row.second,
                reinterpret_cast<uint32_t*>(places_.data()), 2 * places_.size());
        MixAll(target);
    }

    /// Stores a row that goes on for four bytes behind its last pixel.
    void Store(const ARGB* row, ARGB* target) {
        Gather(row, places_);
        MixAll(target);
    }

private:
    static constexpr size_t kLongest = 16;  ///< pixels in the longest vector

    void Gather(const ARGB* row, ScratchVector<uint64_t>& places) const {
        const auto* const bytes = reinterpret_cast<const uint8_t*>(row);
        for (size_t i = 0; i < offsets_.size(); ++i) {
            std::memcpy(&places[i], bytes + offsets_[i], sizeof places[i]);
        }
    }

    void MixAll(ARGB* target) const {
        const size_t count = places_.size(), rest = count % kLongest;
        Mix(0, count - rest, target);
        // The last ones once more with some before them, which gives the same: one by one they
        // would take as long as all of a short row.
        if (rest > 0) Mix(count - std::min(count, kLongest), std::min(count, kLongest), target);
    }

    void Mix(size_t begin, size_t count, ARGB* target) const {
        MixColumns(places_.data() + begin, first_.data() + begin, second_.data() + begin,
                   reinterpret_cast<uint32_t*>(target + begin), count);
    }

    ScratchVector<uint32_t> offsets_;
    ScratchVector<float> first_, second_;  ///< what both sides weigh
    ScratchVector<uint64_t> places_, upper_, lower_;
};

}  // namespace

void ResampleBilinear(std::span<const ARGB> source, int32_t sourceWidth, std::span<ARGB> target,
                      int32_t targetWidth) {
    if (sourceWidth < 1 || targetWidth < 1) return;
    const auto rows = [](size_t pixels, int32_t width) {
        return static_cast<int32_t>(pixels / static_cast<size_t>(width));
    };
    const int32_t height = rows(source.size(), sourceWidth);
    const int32_t targetHeight = rows(target.size(), targetWidth);
    if (height < 1 || targetHeight < 1) return;
    const float step = Step(height, targetHeight);
    Columns columns(sourceWidth, targetWidth);
    const bool few = columns.AreFew(static_cast<size_t>(sourceWidth));
    const auto row = [&](size_t y) { return source.data() + y * static_cast<size_t>(sourceWidth); };
    // What lies behind the last pixel is only read with a weight of 0, and the row below the last
    // one as well.
    ScratchVector<ARGB> mixed(static_cast<size_t>(sourceWidth) + 1);
    for (int32_t y = 0; y < targetHeight; ++y) {
        const Between place(y, step);
        const size_t below = std::min(place.index + 1, static_cast<size_t>(height) - 1);
        ARGB* const to = target.data() + static_cast<size_t>(y) * targetWidth;
        if (few) {
            columns.Store(row(place.index), row(below), place, to);
            continue;
        }
        MixRows(Words(row(place.index)), Words(row(below)), place.first, place.second,
                reinterpret_cast<uint32_t*>(mixed.data()), static_cast<size_t>(sourceWidth));
        columns.Store(mixed.data(), to);
    }
}

}  // namespace vxgui
