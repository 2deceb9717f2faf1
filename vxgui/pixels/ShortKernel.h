#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "vxgui/pixels/BoxKernel.h"

namespace vxgui {

/// The weights of a kernel that is short enough to be applied by them, in 16 bits: up to some
/// radius that is quicker than boxes that slide. The norm is brought into 129 to 256, and the
/// weights with it: then one multiplication and a shift that is known beforehand divide by it.
struct ShortKernel {
    static constexpr int kMostReach = 8;

    /// None for a kernel that is longer, or with which 16 bits don't do.
    static std::optional<ShortKernel> Of(const BoxKernel& kernel);

    /// The quotient by the norm of a multiple of `scale` up to 256 times the norm.
    [[gnu::always_inline]] uint16_t Quotient(uint16_t dividend) const {
        const auto high = static_cast<uint16_t>(uint32_t{dividend} * multiplier >> 16);
        return high >> (kQuotientBits - 16);
    }

    static constexpr int kQuotientBits = 23;

    size_t reach;
    uint16_t scale;  ///< a power of two; all below are multiples of it
    uint16_t norm;
    uint16_t half;        ///< of the kernel's own norm, truncated, and scaled
    uint16_t multiplier;  ///< not a multiple
    std::array<uint16_t, kMostReach + 1> weights;  ///< from the middle outwards
};

}  // namespace vxgui
