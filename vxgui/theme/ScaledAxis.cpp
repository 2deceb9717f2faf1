#include "vxgui/theme/ScaledAxis.h"

#include <algorithm>
#include <cmath>

#include "vxgui/theme/ScaledLength.h"

namespace vxgui {
namespace {

// What rounding makes of a pitch that is meant to be whole.
constexpr double kSliver = 1e-6;

}  // namespace

ScaledAxis::ScaledAxis(int32_t frame, double factor) {
    bands_[1] = {0, double(frame), std::max(ScaledLength(frame, factor), 1)};
}

ScaledAxis::ScaledAxis(int32_t frame, int32_t nearMargin, int32_t farMargin, double factor,
                       bool tiled)
    : ScaledAxis(frame, factor) {
    const int64_t middle = int64_t{frame} - nearMargin - farMargin;
    if (nearMargin < 0 || farMargin < 0 || middle < 0) return;
    const int32_t near = ScaledLength(nearMargin, factor), far = ScaledLength(farMargin, factor);
    // As wide as the whole frame, rounded, leaves it: painted at that size nothing is stretched.
    int32_t between = middle > 0 ? std::max(Size() - near - far, 1) : 0;
    if (tiled && middle > 1) {
        // Tiles stand at rounded multiples of the pitch. The strip has room for the widest; the
        // others are cut.
        pitch_ = static_cast<double>(middle) * factor;
        between = static_cast<int32_t>(std::ceil(pitch_ - kSliver));
    }
    if (near + between + far < 1) return;
    const double farStart = frame - farMargin;
    bands_ = {{{0, double(nearMargin), near},
               {double(nearMargin), farStart, between},
               {farStart, double(frame), far}}};
}

int32_t ScaledAxis::Size() const { return bands_[0].size + bands_[1].size + bands_[2].size; }

void ScaledAxis::AddBands(double start, double density, std::vector<AreaBand>& bands) const {
    for (const AreaBand& band : bands_) {
        if (band.size > 0)
            bands.push_back({start + band.from * density, start + band.to * density, band.size});
    }
}

}  // namespace vxgui
