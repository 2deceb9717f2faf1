#include "vxgui/pixels/RowFilter.h"

#include <algorithm>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

namespace {

VXGUI_MULTIVERSION(void, Widen,
                   (const uint8_t* __restrict bytes, uint16_t* __restrict words, size_t count)) {
    for (size_t i = 0; i < count; ++i) words[i] = bytes[i];
}

VXGUI_MULTIVERSION(void, WidenAlpha,
                   (const ARGB* __restrict pixels, uint16_t* __restrict words, size_t count)) {
    for (size_t i = 0; i < count; ++i) words[i] = pixels[i].Alpha;
}

/// A norm is brought into 129 to 256, and the weights with it: then one multiplication and a shift
/// that is known beforehand divide by it.
constexpr int kQuotientBits = 23;

uint16_t Multiplier(uint32_t norm) {
    return static_cast<uint16_t>(((1 << kQuotientBits) + norm - 1) / norm);
}

[[gnu::always_inline]] inline uint16_t Quotient(uint16_t dividend, uint16_t multiplier) {
    const auto high = static_cast<uint16_t>(uint32_t{dividend} * multiplier >> 16);
    return high >> (kQuotientBits - 16);
}

/// Whether the quotients of all sums come out right. The multiplier, times the norm, is over the
/// power of two by less than the norm; that, times a sum, must not make up for the least distance
/// of a quotient from the next integer.
bool DividesExactly(uint32_t norm, uint32_t step) {
    const uint64_t excess = uint64_t{Multiplier(norm)} * norm - (1 << kQuotientBits);
    return excess * 256 * norm < uint64_t{step} << kQuotientBits;
}

struct Weights {
    const uint16_t* weights;  ///< from the middle outwards
    size_t count, distance;
    uint16_t norm, half;
};

// The mean is made of two digits, each of 8 bits: (256 * sum + norm / 2) / norm.
VXGUI_MULTIVERSION(void, Weigh,
                   (const uint16_t* middle, const Weights& kernel, WordRow* means, size_t rows,
                    size_t pitch)) {
    const uint16_t norm = kernel.norm, half = kernel.half, multiplier = Multiplier(norm);
    WordRow sums;
    for (size_t row = 0; row < rows; ++row, middle += kStripLanes) {
        for (size_t i = 0; i < kStripLanes; ++i) {
            sums[i] = static_cast<uint16_t>(middle[i] * kernel.weights[0]);
        }
        for (size_t tap = 1; tap < kernel.count; ++tap) {
            const uint16_t* const left = middle - tap * kernel.distance;
            const uint16_t* const right = middle + tap * kernel.distance;
            const uint16_t weight = kernel.weights[tap];
            for (size_t i = 0; i < kStripLanes; ++i) {
                sums[i] = static_cast<uint16_t>(sums[i] + (left[i] + right[i]) * weight);
            }
        }
        uint16_t* __restrict const to = means[row * pitch].data();
        for (size_t i = 0; i < kStripLanes; ++i) {
            const uint16_t whole = Quotient(sums[i], multiplier);
            const auto rest = static_cast<uint16_t>(sums[i] - whole * norm);
            to[i] = static_cast<uint16_t>(
                whole * 256 + Quotient(static_cast<uint16_t>(rest * 256 + half), multiplier));
        }
    }
}

/// The weights of three boxes one after the other.
std::vector<uint16_t> WeightsOf(const BoxKernel& kernel) {
    std::vector<uint16_t> weights{1};
    for (const int32_t width : kernel.widths) {
        std::vector<uint16_t> wider(weights.size() + static_cast<size_t>(width) - 1);
        for (size_t i = 0; i < weights.size(); ++i) {
            for (size_t k = 0; k < static_cast<size_t>(width); ++k) {
                wider[i + k] = static_cast<uint16_t>(wider[i + k] + weights[i]);
            }
        }
        weights = std::move(wider);
    }
    return weights;
}

}  // namespace

namespace {

/// What brings the norm into its range; 0 for one that is over it.
uint32_t ScaleOf(uint64_t norm) {
    uint32_t scale = norm <= 256;
    while (scale > 0 && norm * scale <= 128) scale *= 2;
    return scale;
}

}  // namespace

std::optional<RowFilter> RowFilter::Of(const BoxKernel& kernel, size_t width, bool alphaAlone) {
    const uint32_t scale = ScaleOf(kernel.Norm());
    if (scale == 0 || !DividesExactly(static_cast<uint32_t>(kernel.Norm()) * scale, scale)) {
        return std::nullopt;
    }
    const RowFilter filter(kernel, width, alphaAlone);
    if (filter.Margin() > kStripLanes) return std::nullopt;
    return filter;
}

RowFilter::RowFilter(const BoxKernel& kernel, size_t width, bool alphaAlone)
    : width_(width), channels_(alphaAlone ? 1 : sizeof(ARGB)), weights_(WeightsOf(kernel)) {
    const uint32_t scale = ScaleOf(kernel.Norm());
    norm_ = static_cast<uint16_t>(kernel.Norm() * scale);
    half_ = static_cast<uint16_t>(kernel.Norm() / 2 * scale);
    weights_.erase(weights_.begin(), weights_.begin() + kernel.Reach());
    for (uint16_t& weight : weights_) weight = static_cast<uint16_t>(weight * scale);
}

void RowFilter::Filter(const ARGB* row, size_t first, size_t count, WordRow* means, size_t pitch) {
    const size_t margin = Margin(), lanes = count * kStripLanes;
    const size_t begin = first - std::min(first, margin);
    const size_t end = std::min(first + lanes + margin, width_ * channels_);
    samples_.resize(lanes + 2 * margin);
    const auto place = samples_.begin() + static_cast<ptrdiff_t>(begin + margin - first);
    const auto behind = place + static_cast<ptrdiff_t>(end - begin);
    std::fill(samples_.begin(), place, uint16_t{0});
    std::fill(behind, samples_.end(), uint16_t{0});
    if (channels_ == 1) {
        WidenAlpha(row + begin, &*place, end - begin);
    } else {
        Widen(reinterpret_cast<const uint8_t*>(row) + begin, &*place, end - begin);
    }
    Weigh(samples_.data() + margin, {weights_.data(), weights_.size(), channels_, norm_, half_},
          means, count, pitch);
}

}  // namespace vxgui
