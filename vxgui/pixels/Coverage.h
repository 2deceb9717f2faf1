#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// A byte for each pixel of a picture, rows in the picture's order.
struct Coverage {
    int32_t width = 0;
    int32_t height = 0;
    std::vector<uint8_t> bytes;
};

/// The first byte of each pixel. Nothing when a side is below 1 or the pixels are too few.
VXPLATFORM_API Coverage CoverageOfBlue(std::span<const ARGB> pixels, int32_t width, int32_t height);

/// Where the coverage m isn't 0 the pixel becomes premultiplied colour of that alpha:
/// (c * (m + 1)) / 256, truncated. Other pixels stay.
VXPLATFORM_API void PaintCoverage(const Coverage& coverage, std::span<ARGB> pixels, ARGB color);

}  // namespace vxgui
