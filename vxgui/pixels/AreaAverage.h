#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// A stretch of one axis: `size` target pixels that share the source between two places, which
/// needn't be whole. Pixel n covers the places n to n + 1.
struct AreaBand {
    double from;
    double to;
    int32_t size;
};

/// Scales a picture. The bands of each axis stand side by side in the target and fill it; each
/// target pixel is the mean of the source area that it covers, channel by channel, rounded. So a
/// whole factor repeats every pixel exactly, a plain colour stays that colour, premultiplied
/// pixels stay premultiplied, and nothing of one band shows in its neighbour. What lies outside
/// the source counts as its nearest pixel. Rows are those of the memory.
VXPLATFORM_API void AverageAreas(std::span<const ARGB> source, int32_t sourceWidth,
                                 std::span<const AreaBand> columns, std::span<const AreaBand> rows,
                                 std::span<ARGB> target);

}  // namespace vxgui
