#include "vxgui/pixels/ShortKernel.h"

namespace vxgui {

namespace {

/// What brings the norm into its range; 0 for one that is over it.
uint32_t ScaleOf(uint64_t norm) {
    uint32_t scale = norm <= 256;
    while (scale > 0 && norm * scale <= 128) scale *= 2;
    return scale;
}

uint32_t Multiplier(uint32_t norm) { return ((1 << ShortKernel::kQuotientBits) + norm - 1) / norm; }

/// Whether the quotients of all sums come out right. The multiplier, times the norm, is over the
/// power of two by less than the norm; that, times a sum, must not make up for the least distance
/// of a quotient from the next integer.
bool DividesExactly(uint32_t norm, uint32_t step) {
    const uint64_t excess = uint64_t{Multiplier(norm)} * norm - (1 << ShortKernel::kQuotientBits);
    return excess * 256 * norm < uint64_t{step} << ShortKernel::kQuotientBits;
}

/// How many ways there are to reach a place from the middle by a step within each box; those of
/// even widths step by halves, two of which add up.
uint32_t Ways(const BoxKernel& kernel, int64_t place) {
    const auto& [a, b, c] = kernel.widths;
    uint32_t ways = 0;
    for (int32_t i = 0; i < a; ++i) {
        for (int32_t k = 0; k < b; ++k) {
            const int64_t rest = place + kernel.Reach() - i - k;
            ways += rest >= 0 && rest < c;
        }
    }
    return ways;
}

}  // namespace

std::optional<ShortKernel> ShortKernel::Of(const BoxKernel& kernel) {
    const uint32_t scale = ScaleOf(kernel.Norm());
    if (kernel.Reach() > kMostReach || scale == 0) return std::nullopt;
    const auto norm = static_cast<uint32_t>(kernel.Norm()) * scale;
    if (!DividesExactly(norm, scale)) return std::nullopt;
    const auto word = [](uint64_t number) { return static_cast<uint16_t>(number); };
    ShortKernel result{static_cast<size_t>(kernel.Reach()),
                       word(scale),
                       word(norm),
                       word(kernel.Norm() / 2 * scale),
                       word(Multiplier(norm)),
                       {}};
    for (size_t i = 0; i <= result.reach; ++i) {
        result.weights[i] = word(Ways(kernel, static_cast<int64_t>(i)) * scale);
    }
    return result;
}

}  // namespace vxgui
