#include "vxgui/pixels/AreaAverage.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vxgui {
namespace {

constexpr size_t kChannels = 4;
// What rounding makes of a place that is meant to be whole.
constexpr double kSliver = 1e-6;

/// The source pixels that one target pixel covers, from `first` on.
struct Cover {
    size_t first;
    std::vector<float> shares;  ///< sum up to 1
};

Cover CoverOf(double from, double to, int32_t sourceSize) {
    const auto pixelAt = [&](double place) {
        return std::clamp(static_cast<int32_t>(std::floor(place)), 0, sourceSize - 1);
    };
    const int32_t first = pixelAt(from + kSliver);
    const int32_t last = std::max(first, pixelAt(to - kSliver));
    Cover cover{static_cast<size_t>(first), {}};
    if (first == last) return {cover.first, {1}};
    for (int32_t at = first; at <= last; ++at) {
        const double share = std::min(to, at + 1.0) - std::max(from, double(at));
        cover.shares.push_back(static_cast<float>(share / (to - from)));
    }
    return cover;
}

std::vector<Cover> CoversOf(std::span<const AreaBand> bands, int32_t sourceSize) {
    std::vector<Cover> covers;
    for (const AreaBand& band : bands) {
        const auto place = [&](int32_t i) {
            return band.from + (band.to - band.from) * i / band.size;
        };
        for (int32_t i = 0; i < band.size; ++i)
            covers.push_back(CoverOf(place(i), place(i + 1), sourceSize));
    }
    return covers;
}

void AddRow(const uint8_t* row, float share, std::span<float> sums) {
    for (size_t i = 0; i < sums.size(); ++i) sums[i] += share * static_cast<float>(row[i]);
}

ARGB MeanOf(const float* sums, const Cover& cover) {
    float mean[kChannels] = {};
    const float* at = sums + cover.first * kChannels;
    for (const float share : cover.shares)
        for (float& channel : mean) channel += share * *at++;
    const auto byte = [](float channel) {
        return static_cast<uint8_t>(std::min(channel + 0.5f, 255.f));
    };
    return {byte(mean[0]), byte(mean[1]), byte(mean[2]), byte(mean[3])};
}

}  // namespace

void AverageAreas(std::span<const ARGB> source, int32_t sourceWidth,
                  std::span<const AreaBand> columns, std::span<const AreaBand> rows,
                  std::span<ARGB> target) {
    if (sourceWidth < 1 || source.size() < static_cast<size_t>(sourceWidth)) return;
    const auto width = static_cast<size_t>(sourceWidth);
    const std::vector<Cover> across = CoversOf(columns, sourceWidth);
    const std::vector<Cover> down = CoversOf(rows, static_cast<int32_t>(source.size() / width));
    if (target.size() < across.size() * down.size()) return;
    std::vector<float> sums(width * kChannels);
    ARGB* pixel = target.data();
    for (const Cover& rowCover : down) {
        std::ranges::fill(sums, 0.f);
        const auto* row = reinterpret_cast<const uint8_t*>(&source[rowCover.first * width]);
        for (const float share : rowCover.shares) {
            AddRow(row, share, sums);
            row += width * sizeof(ARGB);
        }
        for (const Cover& cover : across) *pixel++ = MeanOf(sums.data(), cover);
    }
}

}  // namespace vxgui
