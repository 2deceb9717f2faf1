#pragma once

#include <span>

#include "vxgui/platform/gdi_merge.h"

namespace vxgui::gdi {

/// Columns of a mosaic that stand side by side and show the same source rows.
struct MosaicBand {
    std::span<const int32_t> columns;  ///< the source column that each column shows
    std::span<const int32_t> rows;     ///< the source row that each row of the mosaic shows
};

/// Bands that a part has at most, and parts that a mosaic has.
constexpr size_t kMostBands = 3;

/// Bands side by side, all of one height.
using MosaicPart = std::span<const MosaicBand>;

/// A picture laid out by tables, so that many blits that don't overlap become one: parts one below
/// the other.
struct Mosaic {
    HDC source;
    std::span<const MosaicPart> parts;
};

/// Fills a table with what a blit shows that stretches `sourceSize` source pixels from
/// `sourceStart` on to the table's size. Both sizes are above 0.
VXPLATFORM_API void TabulateStretch(int32_t sourceStart, int32_t sourceSize,
                                    std::span<int32_t> sources);

/// Has `merger` change the pixels of `dc` from (x, y) on by those of the mosaic; the clip counts.
/// False, with nothing done, unless both contexts have 32-bit pixels, apart in memory, the mosaic
/// has no more parts and bands than `kMostBands` of each, the bands of a part are of one height, and
/// every entry of a table lies inside the source. Then the caller does it blit by blit; a platform
/// that can't look behind its contexts always says so.
VXPLATFORM_API bool MergeMosaic(HDC dc, int x, int y, const Mosaic& mosaic, WordMerger& merger);

}  // namespace vxgui::gdi
