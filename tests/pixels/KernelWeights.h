#pragma once

#include <cstdint>
#include <vector>

#include "vxgui/pixels/BoxKernel.h"

namespace vxgui::test {

/// The integer weights of a kernel, from the farthest on one side to the farthest on the other.
inline std::vector<int64_t> WeightsOf(const BoxKernel& kernel) {
    std::vector<int64_t> weights{1};
    for (int32_t width : kernel.widths) {
        std::vector<int64_t> wider(weights.size() + static_cast<size_t>(width) - 1);
        int64_t running = 0;
        for (size_t i = 0; i < wider.size(); ++i) {
            if (i < weights.size()) running += weights[i];
            if (i >= static_cast<size_t>(width)) running -= weights[i - static_cast<size_t>(width)];
            wider[i] = running;
        }
        weights = wider;
    }
    return weights;
}

}  // namespace vxgui::test
