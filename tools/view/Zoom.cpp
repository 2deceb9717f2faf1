#include "tools/view/Zoom.h"

#include <algorithm>
#include <iterator>

namespace vxgui::view {
namespace {

constexpr int32_t kSteps[] = {1, 2, 3, 4, 6, 8, 12, 16, 24, Zoom::kLargest};

}  // namespace

void Zoom::Factor(int32_t factor) {
    const auto* above = std::ranges::upper_bound(kSteps, factor);
    factor_ = above == std::begin(kSteps) ? kSteps[0] : *(above - 1);
}

bool Zoom::In() {
    const auto* above = std::ranges::upper_bound(kSteps, factor_);
    if (above == std::end(kSteps)) return false;
    factor_ = *above;
    return true;
}

bool Zoom::Out() {
    const auto* own = std::ranges::lower_bound(kSteps, factor_);
    if (own == std::begin(kSteps)) return false;
    factor_ = *(own - 1);
    return true;
}

}  // namespace vxgui::view
