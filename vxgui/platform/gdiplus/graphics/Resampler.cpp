#include "vxgui/platform/gdiplus/graphics/Resampler.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui::gdiplus {
namespace {

constexpr int kKeptBits = 6;  // of fraction in a row that is filtered along x
constexpr int kKeptShift = AxisTaps::kBits - kKeptBits;
constexpr int kMixedShift = AxisTaps::kBits + kKeptBits;

VXGUI_MULTIVERSION(void, AddScaled, (const int16_t* from, INT weight, size_t count, INT* sums)) {
    for (size_t i = 0; i < count; ++i) sums[i] += from[i] * weight;
}

VXGUI_MULTIVERSION(void, PackChannels, (const INT* sums, size_t count, uint8_t* to)) {
    for (size_t i = 0; i < count; ++i) {
        const INT value = (sums[i] + (1 << (kMixedShift - 1))) >> kMixedShift;
        to[i] = static_cast<uint8_t>(std::clamp(value, 0, 255));
    }
}

// Colours beyond the alpha, which filters that overshoot make, would not be premultiplied ones.
VXGUI_MULTIVERSION(void, BoundByAlpha, (uint8_t * pixels, size_t count)) {
    for (size_t i = 0; i < count; ++i, pixels += 4) {
        for (int c = 0; c < 3; ++c) pixels[c] = std::min(pixels[c], pixels[3]);
    }
}

// The channels of a pixel side by side, so that one operation does for all four.
using Lanes = INT __attribute__((vector_size(16)));
using Bytes = uint8_t __attribute__((vector_size(4)));
using Shorts = int16_t __attribute__((vector_size(8)));

Lanes LanesOf(ARGB pixel) { return __builtin_convertvector(std::bit_cast<Bytes>(pixel), Lanes); }

// The range of the image's columns that taps need, as [first, end).
std::pair<INT, INT> Needed(const std::vector<INT>& columns) {
    INT low = INT32_MAX, high = -1;
    for (const INT column : columns) {
        if (column < 0) continue;
        low = std::min(low, column);
        high = std::max(high, column);
    }
    return high < 0 ? std::pair(0, 0) : std::pair(low, high + 1);
}

std::vector<INT> ResolvedColumns(const AxisTaps& x, const EdgeRule& edge) {
    std::vector<INT> columns;
    columns.reserve(x.weights.size());
    for (INT i = 0; i < x.count; ++i) {
        for (INT k = 0; k < x.taps; ++k) columns.push_back(edge.Resolve(x.First(i) + k));
    }
    return columns;
}

}  // namespace

Resampler::Resampler(const ImageSource& source, AxisTaps x, const EdgeRule& xEdge, AxisTaps y,
                     const EdgeRule& yEdge)
    : source_(source),
      x_(std::move(x)),
      y_(std::move(y)),
      yEdge_(yEdge),
      columns_(ResolvedColumns(x_, xEdge)) {
    const auto [first, end] = Needed(columns_);
    left_ = first;
    const INT width = end - first;
    for (INT& column : columns_) column = column < 0 ? width : column - first;
    copies_ = width == x_.count && x_.taps == 1 && std::is_sorted(columns_.begin(), columns_.end());
    loaded_.assign(static_cast<size_t>(width) + 1, source_.Outside());
    kept_.resize(static_cast<size_t>(y_.taps));
}

void Resampler::Load(INT index) {
    const INT row = yEdge_.Resolve(index);
    const std::span<ARGB> pixels = std::span(loaded_).first(loaded_.size() - 1);
    if (row < 0) {
        std::fill(pixels.begin(), pixels.end(), source_.Outside());
    } else {
        source_.Read(left_, row, pixels);
    }
}

void Resampler::Filter(FilteredRow& to) const {
    to.resize(static_cast<size_t>(x_.count) * 4);
    const auto taps = static_cast<size_t>(x_.taps);
    const INT *column = columns_.data(), *weight = x_.weights.data();
    for (size_t i = 0; i < to.size(); i += 4) {
        Lanes sums = {};
        for (size_t k = 0; k < taps; ++k) {
            sums += LanesOf(loaded_[static_cast<size_t>(*column++)]) * *weight++;
        }
        const Lanes kept = (sums + (1 << (kKeptShift - 1))) >> kKeptShift;
        const Shorts packed = __builtin_convertvector(kept, Shorts);
        std::memcpy(&to[i], &packed, sizeof packed);
    }
}

const Resampler::FilteredRow& Resampler::Filtered(INT index) {
    const auto places = static_cast<INT>(kept_.size());
    KeptRow& row = kept_[static_cast<size_t>((index % places + places) % places)];
    if (!row.filled || row.index != index) {
        Load(index);
        Filter(row.pixels);
        row.index = index;
        row.filled = true;
    }
    return row.pixels;
}

void Resampler::Pick(INT index, std::span<ARGB> to) {
    const INT row = yEdge_.Resolve(index);
    if (copies_ && row >= 0) return source_.Read(left_, row, to);
    Load(index);
    for (size_t i = 0; i < to.size(); ++i) to[i] = loaded_[static_cast<size_t>(columns_[i])];
}

void Resampler::Mix(INT i, std::span<ARGB> to) {
    sums_.assign(to.size() * 4, 0);
    const INT* weights = y_.Weights(i);
    for (INT k = 0; k < y_.taps; ++k) {
        if (weights[k] == 0) continue;
        AddScaled(Filtered(y_.First(i) + k).data(), weights[k], sums_.size(), sums_.data());
    }
    auto* const bytes = reinterpret_cast<uint8_t*>(to.data());
    PackChannels(sums_.data(), sums_.size(), bytes);
    BoundByAlpha(bytes, to.size());
}

void Resampler::Row(INT i, std::span<ARGB> to) {
    if (x_.taps == 1 && y_.taps == 1) {
        Pick(y_.First(i), to);
    } else {
        Mix(i, to);
    }
}

}  // namespace vxgui::gdiplus
