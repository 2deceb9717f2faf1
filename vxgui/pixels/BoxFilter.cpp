#include "vxgui/pixels/BoxFilter.h"

#include <algorithm>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Scratch.h"
#include "vxgui/pixels/SlidingBoxes.h"

namespace vxgui {

namespace {

using Sum = uint64_t;

/// The kernel is (1 - z^a)(1 - z^b)(1 - z^c) summed three times over: so each result differs from
/// the one before, in the third order, by the eight samples at the sums of the widths.
struct Offsets {
    explicit Offsets(const BoxKernel& kernel) {
        const auto& [a, b, c] = kernel.widths;
        const int64_t reach = kernel.Reach();
        added = {reach, reach - a - b, reach - a - c, reach - b - c};
        removed = {reach - a, reach - b, reach - c, reach - int64_t{a} - b - c};
    }
    std::array<int64_t, 4> added, removed;
};

/// The sums of all lanes. They wrap, which the last of them outlives: the sum of a kernel's full
/// width fits and is exact.
struct Sums {
    StripRow<Sum> first{}, second{}, third{};
};

/// Rounds sum / norm, halves up: the sum is an integer, so half of the least step more keeps the
/// quotient away from where an error of the reciprocal would show.
struct Scale {
    explicit Scale(uint64_t norm)
        : bias(static_cast<double>(norm / 2) + 0.5), factor(1.0 / static_cast<double>(norm)) {}
    double bias, factor;
};

struct Taps {
    std::array<const uint16_t*, 4> added, removed;
};

/// Two loops, since not every instruction set can do the second in vectors of 64 bits.
VXGUI_MULTIVERSION(void, Step,
                   (const Taps& taps, Sums& sums, const Scale& scale,
                    uint16_t* __restrict result)) {
    const auto& [p, q, r, s] = taps.added;
    const auto& [t, u, v, w] = taps.removed;
    for (size_t i = 0; i < kStripLanes; ++i) {
        const int32_t change = p[i] + q[i] + r[i] + s[i] - t[i] - u[i] - v[i] - w[i];
        sums.first[i] += static_cast<Sum>(int64_t{change});
        sums.second[i] += sums.first[i];
        sums.third[i] += sums.second[i];
    }
    for (size_t i = 0; i < kStripLanes; ++i) {
        const auto sum = static_cast<double>(static_cast<int64_t>(sums.third[i]));
        result[i] = static_cast<uint16_t>(static_cast<int32_t>((sum + scale.bias) * scale.factor));
    }
}

/// Adds what the steps before the first position would have left of the sample that a tap takes
/// in at step -`ago`, for each of the taps.
void WarmUp(const WordRow& row, int64_t position, const Offsets& offsets, Sums& sums) {
    uint64_t first = 0, second = 0, third = 0;
    const auto count = [&](int64_t offset, uint64_t sign) {
        const int64_t ago = offset - position;
        if (ago < 1) return;
        first += sign;
        second += sign * static_cast<uint64_t>(ago);
        third += sign * (static_cast<uint64_t>(ago) * static_cast<uint64_t>(ago + 1) / 2);
    };
    for (int64_t offset : offsets.added) count(offset, 1);
    for (int64_t offset : offsets.removed) count(offset, ~uint64_t{0});
    for (size_t i = 0; i < kStripLanes; ++i) {
        sums.first[i] += first * row[i];
        sums.second[i] += second * row[i];
        sums.third[i] += third * row[i];
    }
}

/// Serves any kernel: the eight samples of a step may lie anywhere.
void FilterAny(std::span<const WordRow> samples, std::span<WordRow> results,
               const BoxKernel& kernel) {
    static constexpr WordRow kOutside{};
    const auto size = static_cast<int64_t>(samples.size());
    const Offsets offsets(kernel);
    const Scale scale(kernel.Norm());
    Sums sums;
    for (int64_t i = 0; i < std::min(size, kernel.Reach()); ++i) {
        WarmUp(samples[i], i, offsets, sums);
    }
    const auto tap = [&](int64_t position) {
        return position >= 0 && position < size ? samples[position].data() : kOutside.data();
    };
    for (int64_t i = 0; i < size; ++i) {
        Taps taps;
        for (size_t k = 0; k < 4; ++k) {
            taps.added[k] = tap(i + offsets.added[k]);
            taps.removed[k] = tap(i + offsets.removed[k]);
        }
        Step(taps, sums, scale, results[i].data());
    }
}

}  // namespace

void FilterBytes(std::span<const ByteRow> samples, std::span<WordRow> results,
                 const BoxKernel& kernel) {
    if (sliding::Fits(kernel, samples.size())) {
        return sliding::FilterBytes(samples, results, kernel);
    }
    ScratchVector<WordRow> words(samples.size());
    for (size_t i = 0; i < words.size(); ++i) {
        std::ranges::transform(samples[i], words[i].begin(),
                               [](uint8_t byte) { return static_cast<uint16_t>(byte * 256); });
    }
    FilterAny(words, results, kernel);
}

void FilterWords(std::span<const WordRow> samples, std::span<ByteRow> results,
                 const BoxKernel& kernel) {
    if (sliding::Fits(kernel, samples.size())) {
        return sliding::FilterWords(samples, results, kernel);
    }
    ScratchVector<WordRow> words(samples.size());
    FilterAny(samples, words, kernel);
    for (size_t i = 0; i < words.size(); ++i) {
        std::ranges::transform(words[i], results[i].begin(), [](uint16_t word) {
            return static_cast<uint8_t>((word + 128) / 256);
        });
    }
}

}  // namespace vxgui
