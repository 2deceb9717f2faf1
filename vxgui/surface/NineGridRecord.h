#pragma once

#include <cstdint>

namespace vxgui {

/// What `PaintNineGrid` paints: a source rectangle with four fixed margins into a destination.
struct NineGridRecord {
    int32_t reserved;  ///< not used
    int32_t dstLeft, dstTop, dstWidth, dstHeight;
    int32_t srcLeft, srcTop, srcWidth, srcHeight;
    /// Bits 0 to 11 as for `PaintByMode`, 24 to 27 the centre, 28 to 31 which edges are tiled.
    int32_t Mode;
    int32_t marginLeft, marginTop, marginRight, marginBottom;
};

}  // namespace vxgui
