#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace vxgui {

/// A kernel of one dimension: three boxes one after the other, each the mean of as many pixels as
/// its width says. The widths less one add up to an even number, so that the kernel has a middle:
/// it is symmetric about it and weighs `2 * Reach() + 1` pixels.
struct BoxKernel {
    std::array<int32_t, 3> widths{1, 1, 1};

    /// How far a pixel spreads to either side.
    constexpr int64_t Reach() const { return (int64_t{widths[0]} + widths[1] + widths[2] - 3) / 2; }
    /// The sum of the integer weights.
    constexpr uint64_t Norm() const { return uint64_t(widths[0]) * widths[1] * widths[2]; }
    constexpr bool IsIdentity() const { return Reach() == 0; }
};

/// The largest radius; all above it count as it. Sums of three boxes of it fit 64 bits.
constexpr int32_t kLargestBlurRadius = 65536;

/// Close to a Gaussian, and reaching `radius` pixels, no further: who leaves a margin of the
/// radius around a shape sees none of its shadow cut off. The standard deviation is about
/// (radius + 1.5) / 3. A radius of 0 or less leaves everything as it is.
constexpr BoxKernel GaussianKernel(int32_t radius) {
    const int32_t reach = 2 * std::clamp(radius, 0, kLargestBlurRadius);
    return {{reach / 3 + 1, (reach + 1) / 3 + 1, (reach + 2) / 3 + 1}};
}

/// The plain mean over `width` pixels. An even width takes half of the pixel at either end, and
/// so stays centred.
constexpr BoxKernel MeanKernel(int32_t width) {
    const int32_t box = std::clamp(width, 1, kLargestBlurRadius);
    return {{box, box % 2 ? 1 : 2, 1}};
}

}  // namespace vxgui
