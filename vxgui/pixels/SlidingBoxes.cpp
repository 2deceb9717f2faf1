#include "vxgui/pixels/SlidingBoxes.h"

#include <bit>
#include <cmath>
#include <limits>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/Scratch.h"

namespace vxgui::sliding {

namespace {

/// The next number up: a quotient by multiplication then never falls short of an integer, and
/// stays so close to the exact one that it doesn't reach one either.
template <class Number>
Number Above(Number number) {
    return std::nextafter(number, std::numeric_limits<Number>::infinity());
}

/// Sums of bytes to means in 256ths: (256 * sum + norm / 2) / norm.
struct WordMeans {
    using Sample = uint8_t;
    using Sum = uint32_t;
    using Result = uint16_t;

    explicit WordMeans(uint64_t norm)
        : bias(static_cast<double>(norm / 2) / 256),
          factor(Above(256 / static_cast<double>(norm))) {}
    [[gnu::always_inline]] static Sum Changed(Sum sum, uint32_t change) { return sum + change; }
    [[gnu::always_inline]] Result Of(Sum sum) const {
        return static_cast<Result>(
            static_cast<int32_t>((static_cast<int32_t>(sum) + bias) * factor));
    }
    static constexpr Sum start = 0;
    double bias, factor;
};

/// Sums of 256ths to bytes: ((sum + norm / 2) / norm + 128) / 256, the divisions truncating, which
/// is (sum + norm / 2 + 128 * norm) / 256 / norm.
struct ByteMeans {
    using Sample = uint16_t;
    using Sum = uint32_t;
    using Result = uint8_t;

    /// Up to here a float can tell a quotient below 256 from the next integer.
    static constexpr uint64_t kLargestNorm = 8192;

    explicit ByteMeans(uint64_t norm)
        : start(static_cast<Sum>(norm / 2 + 128 * norm)),
          factor(Above(1 / static_cast<float>(norm))) {}
    [[gnu::always_inline]] static Sum Changed(Sum sum, uint32_t change) { return sum + change; }
    [[gnu::always_inline]] Result Of(Sum sum) const {
        return static_cast<Result>(
            static_cast<int32_t>(static_cast<float>(static_cast<int32_t>(sum >> 8)) * factor));
    }
    Sum start;
    float factor;
};

/// The same for sums that need more than 32 bits.
struct WideByteMeans {
    using Sample = uint16_t;
    using Sum = double;
    using Result = uint8_t;

    explicit WideByteMeans(uint64_t norm)
        : start(static_cast<Sum>(norm / 2 + 128 * norm)),
          factor(Above(1 / (256 * static_cast<double>(norm)))) {}
    [[gnu::always_inline]] static Sum Changed(Sum sum, uint32_t change) {
        return sum + static_cast<int32_t>(change);
    }
    [[gnu::always_inline]] Result Of(Sum sum) const {
        return static_cast<Result>(static_cast<int32_t>(sum * factor));
    }
    Sum start;
    double factor;
};

using Sums = StripRow<uint32_t>;

/// The last sums of a box, for the one behind it to drop, in a ring of a power of two.
struct History {
    Sums* sums;
    size_t mask;

    [[gnu::always_inline]] uint32_t* operator[](size_t step) const {
        return sums[step & mask].data();
    }
};

template <class Means>
struct Strip {
    std::span<const StripRow<typename Means::Sample>> samples;
    StripRow<typename Means::Result>* results;
    History first, second;
};

/// A step of all lanes. What is "before" may be what is "dropped"; what is written is neither.
template <class Means>
[[gnu::always_inline]] inline void Take(
    const typename Means::Sample* __restrict taken,
    const typename Means::Sample* __restrict dropped, const uint32_t* __restrict firstBefore,
    const uint32_t* __restrict firstDropped, uint32_t* __restrict first,
    const uint32_t* __restrict secondBefore, const uint32_t* __restrict secondDropped,
    uint32_t* __restrict second, typename Means::Sum* __restrict sums) {
    for (size_t i = 0; i < kStripLanes; ++i) {
        first[i] = firstBefore[i] + taken[i] - dropped[i];
        second[i] = secondBefore[i] + first[i] - firstDropped[i];
        sums[i] = Means::Changed(sums[i], second[i] - secondDropped[i]);
    }
}

template <class Means>
[[gnu::always_inline]] inline void Divide(const Means means,
                                          const typename Means::Sum* __restrict sums,
                                          typename Means::Result* __restrict results) {
    for (size_t i = 0; i < kStripLanes; ++i) results[i] = means.Of(sums[i]);
}

template <class Means>
[[gnu::always_inline]] inline void Slide(const Strip<Means>& strip, const BoxKernel& kernel) {
    using Sample = typename Means::Sample;
    static constexpr StripRow<Sample> kOutside{};
    const size_t size = strip.samples.size(), reach = static_cast<size_t>(kernel.Reach());
    const auto a = static_cast<size_t>(kernel.widths[0]), b = static_cast<size_t>(kernel.widths[1]),
               c = static_cast<size_t>(kernel.widths[2]);
    const StripRow<Sample>* const samples = strip.samples.data();
    const History first = strip.first, second = strip.second;
    const Means means(kernel.Norm());
    StripRow<typename Means::Sum> sums;
    sums.fill(means.start);
    auto* result = strip.results;
    // Positions before the first wrap and lie outside as well.
    const auto at = [&](size_t position) {
        return (position < size ? samples + position : &kOutside)->data();
    };
    for (size_t step = 0; step < size + reach; ++step) {
        Take<Means>(at(step), at(step - a), first[step - 1], first[step - b], first[step],
                    second[step - 1], second[step - c], second[step], sums.data());
        if (step < reach) continue;
        Divide(means, sums.data(), result->data());
        ++result;
    }
}

VXGUI_MULTIVERSION(void, SlideToWords, (const Strip<WordMeans>& strip, const BoxKernel& kernel)) {
    Slide(strip, kernel);
}
VXGUI_MULTIVERSION(void, SlideToBytes, (const Strip<ByteMeans>& strip, const BoxKernel& kernel)) {
    Slide(strip, kernel);
}
VXGUI_MULTIVERSION(void, SlideWideToBytes,
                   (const Strip<WideByteMeans>& strip, const BoxKernel& kernel)) {
    Slide(strip, kernel);
}

/// Both histories of a kernel, 0 before the first step.
class Histories {
public:
    explicit Histories(const BoxKernel& kernel)
        : firstSize_(std::bit_ceil(static_cast<size_t>(kernel.widths[1]) + 1)),
          secondSize_(std::bit_ceil(static_cast<size_t>(kernel.widths[2]) + 1)),
          sums_(firstSize_ + secondSize_) {}

    History First() { return {sums_.data(), firstSize_ - 1}; }
    History Second() { return {sums_.data() + firstSize_, secondSize_ - 1}; }

private:
    size_t firstSize_, secondSize_;
    ScratchVector<Sums> sums_;
};

}  // namespace

bool Fits(const BoxKernel& kernel, size_t size) {
    const auto& [a, b, c] = kernel.widths;
    constexpr int64_t kLargestProduct = INT32_MAX / UINT16_MAX;
    return int64_t{a} * b <= kLargestProduct && c <= kLargestProduct &&
           kernel.Norm() <= INT32_MAX / UINT8_MAX && kernel.Reach() <= static_cast<int64_t>(size);
}

void FilterBytes(std::span<const ByteRow> samples, std::span<WordRow> results,
                 const BoxKernel& kernel) {
    Histories histories(kernel);
    SlideToWords({samples, results.data(), histories.First(), histories.Second()}, kernel);
}

void FilterWords(std::span<const WordRow> samples, std::span<ByteRow> results,
                 const BoxKernel& kernel) {
    Histories histories(kernel);
    if (kernel.Norm() <= ByteMeans::kLargestNorm) {
        SlideToBytes({samples, results.data(), histories.First(), histories.Second()}, kernel);
    } else {
        SlideWideToBytes({samples, results.data(), histories.First(), histories.Second()}, kernel);
    }
}

}  // namespace vxgui::sliding
