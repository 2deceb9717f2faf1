#include "vxgui/platform/gdi/shapes/Dashes.h"

#include <array>
#include <numeric>

namespace vxgui::gdi {

std::span<const int> DashesOf(UINT style) {
    static constexpr std::array kDash = {18, 6};
    static constexpr std::array kDot = {3, 3};
    static constexpr std::array kDashDot = {9, 6, 3, 6};
    static constexpr std::array kDashDotDot = {9, 3, 3, 3, 3, 3};
    switch (style) {
        case PS_DASH:
            return kDash;
        case PS_DOT:
            return kDot;
        case PS_DASHDOT:
            return kDashDot;
        case PS_DASHDOTDOT:
            return kDashDotDot;
        default:
            return {};
    }
}

bool InDash(std::span<const int> dashes, int64_t step) {
    if (dashes.empty()) return true;
    int64_t left = step % std::accumulate(dashes.begin(), dashes.end(), 0);
    size_t i = 0;
    while (left >= dashes[i]) left -= dashes[i++];
    return i % 2 == 0;
}

}  // namespace vxgui::gdi
