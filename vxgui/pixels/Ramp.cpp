#include "vxgui/pixels/Ramp.h"

#include <algorithm>
#include <cmath>

namespace vxgui {
namespace {

double Repeated(double place) { return place - std::floor(place); }

double Mirrored(double place) {
    const double in2 = Repeated(place / 2) * 2;
    return in2 < 1 ? in2 : 2 - in2;
}

}  // namespace

void FillRamp(std::span<uint32_t> row, std::span<const uint32_t> ramp, double start, double step,
              bool mirrored) {
    const auto steps = static_cast<double>(ramp.size());
    const size_t last = ramp.size() - 1;
    for (size_t i = 0; i < row.size(); ++i) {
        const double place = start + static_cast<double>(i) * step;
        const double within = mirrored ? Mirrored(place) : Repeated(place);
        row[i] = ramp[std::min(static_cast<size_t>(within * steps), last)];
    }
}

}  // namespace vxgui
