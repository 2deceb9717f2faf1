#include "vxgui/platform/gdiplus/graphics/AxisTaps.h"

#include <algorithm>
#include <cmath>

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"

namespace vxgui::gdiplus {
namespace {

bool IsCubic(InterpolationMode mode) {
    return mode == InterpolationModeBicubic || mode == InterpolationModeHighQualityBicubic;
}

double Tent(double t) { return std::max(0.0, 1 - std::abs(t)); }

// Keys' cubic convolution with a = -1/2, which goes through the pixels and keeps straight ramps
// (Keys, "Cubic convolution interpolation for digital image processing", 1981).
double Cubic(double t) {
    t = std::abs(t);
    if (t < 1) return (1.5 * t - 2.5) * t * t + 1;
    return t < 2 ? ((-0.5 * t + 2.5) * t - 4) * t + 2 : 0;
}

struct Kernel {
    bool cubic;
    double stretch;  // 1, or more when it filters for shrinking

    double Radius() const { return (cubic ? 2 : 1) * stretch; }
    double At(double distance) const {
        const double t = distance / stretch;
        return cubic ? Cubic(t) : Tent(t);
    }
};

// The weights as integers of the exact sum; what rounding leaves goes to the heaviest.
void StoreWeights(const std::vector<double>& weights, INT* to) {
    double sum = 0;
    for (const double weight : weights) sum += weight;
    INT rest = AxisTaps::kOne;
    size_t heaviest = 0;
    for (size_t i = 0; i < weights.size(); ++i) {
        to[i] = RoundHalfEven(weights[i] / sum * AxisTaps::kOne);
        rest -= to[i];
        if (weights[i] > weights[heaviest]) heaviest = i;
    }
    to[heaviest] += rest;
}

struct Sampling {
    double start, step;
    // Where target pixel `i` is sampled, in source pixels whose middles are whole numbers.
    double At(INT i) const { return start + i * step; }
};

Sampling SamplingOf(const ImageAxis& axis, InterpolationMode mode, bool middle) {
    const double step = axis.Step();
    const bool shrinks = Prefilters(mode) && step > 1;
    const double half = middle || step < 0 || shrinks ? 0.5 : 0;
    return {axis.source0 + (half - axis.target0) * step - half, step};
}

void AddNearest(const Sampling& sampling, AxisTaps& taps) {
    for (INT i = 0; i < taps.count; ++i) {
        taps.first.push_back(DeviceInt(std::floor(sampling.At(taps.begin + i) + 0.5)));
    }
    taps.weights.assign(static_cast<size_t>(taps.count), AxisTaps::kOne);
}

void AddFiltered(const Sampling& sampling, const Kernel& kernel, AxisTaps& taps) {
    taps.taps = static_cast<INT>(std::ceil(2 * kernel.Radius()));
    taps.weights.resize(static_cast<size_t>(taps.count) * static_cast<size_t>(taps.taps));
    std::vector<double> weights(static_cast<size_t>(taps.taps));
    for (INT i = 0; i < taps.count; ++i) {
        const double at = sampling.At(taps.begin + i);
        const INT first = DeviceInt(std::floor(at - kernel.Radius())) + 1;
        for (INT k = 0; k < taps.taps; ++k)
            weights[static_cast<size_t>(k)] = kernel.At(first + k - at);
        taps.first.push_back(first);
        StoreWeights(weights, &taps.weights[static_cast<size_t>(i) * weights.size()]);
    }
}

}  // namespace

AxisTaps MakeTaps(const ImageAxis& axis, InterpolationMode mode, bool middle, INT begin, INT end) {
    AxisTaps taps;
    taps.begin = begin;
    taps.count = std::max(0, end - begin);
    taps.first.reserve(static_cast<size_t>(taps.count));
    const Sampling sampling = SamplingOf(axis, mode, middle);
    if (axis.Copies() || mode == InterpolationModeNearestNeighbor) {
        AddNearest(sampling, taps);
    } else {
        const double stretch = Prefilters(mode) ? std::max(1.0, std::abs(sampling.step)) : 1;
        AddFiltered(sampling, {IsCubic(mode), stretch}, taps);
    }
    return taps;
}

}  // namespace vxgui::gdiplus
