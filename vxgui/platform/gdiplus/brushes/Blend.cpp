#include "vxgui/platform/gdiplus/brushes/Blend.h"

#include <algorithm>
#include <cmath>

namespace vxgui::gdiplus {
namespace {

// Points of a bell's one side.
constexpr int kBellSteps = 256;

struct Segment {
    size_t from, to;  ///< stops
    REAL share;       ///< of the second
};

// Of several stops at one place the last begins what follows.
Segment SegmentAt(std::span<const REAL> places, REAL place) {
    const REAL within = std::clamp(place, REAL{0}, REAL{1});
    const auto after = std::upper_bound(places.begin(), places.end(), within);
    if (after == places.end()) return {places.size() - 1, places.size() - 1, 0};
    const auto to = static_cast<size_t>(after - places.begin());
    const size_t from = to == 0 ? 0 : to - 1;
    const REAL length = places[to] - places[from];
    return {from, to, length > 0 ? (within - places[from]) / length : 0};
}

// The normal distribution summed from two deviations below its middle to `x`, from 0 to 1.
double Distribution(double x) {
    const double end = std::erf(std::sqrt(2.0));
    return (std::erf((x * 4 - 2) / std::sqrt(2.0)) + end) / (2 * end);
}

}  // namespace

REAL Blend::FactorAt(REAL place) const {
    if (factors.values.size() == 1) return std::clamp(place, REAL{0}, REAL{1});
    const Segment at = SegmentAt(factors.places, place);
    return factors.values[at.from] + (factors.values[at.to] - factors.values[at.from]) * at.share;
}

Shade Blend::PresetAt(REAL place) const {
    const Segment at = SegmentAt(presets.places, place);
    return Mix(ShadeOf(presets.values[at.from], Scale()), ShadeOf(presets.values[at.to], Scale()),
               at.share);
}

void Blend::Bell(REAL focus, REAL scale) {
    factors = {};
    presets = {};
    const auto add = [&](REAL place, double height) {
        factors.places.push_back(place);
        factors.values.push_back(static_cast<REAL>(height * scale));
    };
    constexpr REAL kLast = kBellSteps - 1;
    if (focus > 0) {
        for (int i = 0; i < kBellSteps; ++i) add(focus * i / kLast, Distribution(i / kLast));
    }
    if (focus < 1) {
        for (int i = focus > 0 ? 1 : 0; i < kBellSteps; ++i) {
            add(focus + (1 - focus) * i / kLast, Distribution(1 - i / kLast));
        }
    }
    factors.places.back() = 1;
}

void Blend::Triangle(REAL focus, REAL scale) {
    presets = {};
    if (focus <= 0) {
        factors = {{scale, 0}, {0, 1}};
    } else if (focus >= 1) {
        factors = {{0, scale}, {0, 1}};
    } else {
        factors = {{0, scale, 0}, {0, focus, 1}};
    }
}

bool ArePlaces(std::span<const REAL> places) {
    return places.size() >= 2 && places.front() == 0 && places.back() == 1 &&
           std::ranges::is_sorted(places) &&
           std::ranges::none_of(places, [](REAL place) { return std::isnan(place); });
}

}  // namespace vxgui::gdiplus
