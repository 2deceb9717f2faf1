#pragma once

#include <cstdint>

namespace vxgui {

/// What `PaintNineGrid` paints: a source rectangle with four fixed margins into a destination.
struct NineGridRecord {
    int32_t reserved;  ///< not used
    int32_t dstLeft, dstTop, dstWidth, dstHeight;
    int32_t srcLeft, srcTop, srcWidth, srcHeight;
    /// Bits 0 to 11 as for `PaintByMode`; then the constants below.
    int32_t Mode;
    int32_t marginLeft, marginTop, marginRight, marginBottom;
};

/// The centre's part of the mode word, and the edges that are tiled rather than stretched.
namespace ninegrid {
constexpr uint32_t kCentreMask = 0xF000000;
constexpr uint32_t kCentreTiled = 0x2000000;
constexpr uint32_t kCentreTiledInX = 0x3000000;
constexpr uint32_t kCentreTiledInY = 0x4000000;
constexpr uint32_t kCentreOnce = 0x5000000;  ///< at its size, amid its first pixel
constexpr uint32_t kTileLeft = 0x10000000;
constexpr uint32_t kTileTop = 0x20000000;
constexpr uint32_t kTileRight = 0x40000000;
constexpr uint32_t kTileBottom = 0x80000000;
}  // namespace ninegrid

}  // namespace vxgui
