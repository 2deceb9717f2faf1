#include "vxgui/pixels/BoxFilter.h"

#include <type_traits>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

namespace {

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
/// width fits `Sum` and is exact.
template <class Sum>
struct Sums {
    std::array<Sum, kStripLanes> first{}, second{}, third{};
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
template <class Sum>
[[gnu::always_inline]] inline void StepLoop(const Taps& taps, Sums<Sum>& sums, const Scale& scale,
                                            uint16_t* result) {
    using Signed = std::make_signed_t<Sum>;
    const auto& [p, q, r, s] = taps.added;
    const auto& [t, u, v, w] = taps.removed;
    for (size_t i = 0; i < kStripLanes; ++i) {
        const int32_t change = p[i] + q[i] + r[i] + s[i] - t[i] - u[i] - v[i] - w[i];
        sums.first[i] += static_cast<Sum>(Signed{change});
        sums.second[i] += sums.first[i];
        sums.third[i] += sums.second[i];
    }
    for (size_t i = 0; i < kStripLanes; ++i) {
        const auto sum = static_cast<double>(static_cast<Signed>(sums.third[i]));
        result[i] = static_cast<uint16_t>(static_cast<int32_t>((sum + scale.bias) * scale.factor));
    }
}

VXGUI_MULTIVERSION(void, NarrowStep,
                   (const Taps& taps, Sums<uint32_t>& sums, const Scale& scale,
                    uint16_t* __restrict result)) {
    StepLoop(taps, sums, scale, result);
}
VXGUI_MULTIVERSION(void, WideStep,
                   (const Taps& taps, Sums<uint64_t>& sums, const Scale& scale,
                    uint16_t* __restrict result)) {
    StepLoop(taps, sums, scale, result);
}

void Step(const Taps& taps, Sums<uint32_t>& sums, const Scale& scale, uint16_t* result) {
    NarrowStep(taps, sums, scale, result);
}
void Step(const Taps& taps, Sums<uint64_t>& sums, const Scale& scale, uint16_t* result) {
    WideStep(taps, sums, scale, result);
}

/// Adds what the steps before the first position would have left of the sample that a tap takes
/// in at step -`ago`, for each of the taps.
template <class Sum>
void WarmUp(const StripRow& row, int64_t position, const Offsets& offsets, Sums<Sum>& sums) {
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
        sums.first[i] += static_cast<Sum>(first * row[i]);
        sums.second[i] += static_cast<Sum>(second * row[i]);
        sums.third[i] += static_cast<Sum>(third * row[i]);
    }
}

template <class Sum>
void Filter(std::span<const StripRow> samples, std::span<StripRow> results,
            const BoxKernel& kernel) {
    static constexpr StripRow kOutside{};
    const auto size = static_cast<int64_t>(samples.size());
    const Offsets offsets(kernel);
    const Scale scale(kernel.Norm());
    Sums<Sum> sums;
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

void FilterStrip(std::span<const StripRow> samples, std::span<StripRow> results,
                 const BoxKernel& kernel) {
    // In vector code 32-bit sums go twice as fast; those of the blurs in daily use fit.
    if (kernel.Norm() * UINT16_MAX < INT32_MAX) {
        Filter<uint32_t>(samples, results, kernel);
    } else {
        Filter<uint64_t>(samples, results, kernel);
    }
}

}  // namespace vxgui
