#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace vxgui {

/// A length at a factor: scaled, then rounded once, halves away from 0, so that the same length is
/// the same number of pixels wherever it stands.
inline int32_t ScaledLength(int32_t length, double factor) {
    constexpr double kMost = std::numeric_limits<int32_t>::max();
    const double scaled = std::floor(std::fabs(length * factor) + 0.5);
    return static_cast<int32_t>(std::copysign(std::fmin(scaled, kMost), length));
}

}  // namespace vxgui
