#pragma once

#include <algorithm>

#include "vxgui/theme/NineSlice.h"

namespace vxgui {

/// Where tile n starts in its band. Both tiles at an edge take it from here, so that they share it.
inline int64_t TileEdge(const Band& band, int64_t n) {
    return band.pitch > 0 ? static_cast<int64_t>(static_cast<double>(n) * band.pitch + 0.5)
                          : n * band.source.size;
}

/// Walks a band in steps of its source, the last one cut; or takes it whole, to be stretched.
/// Calls `paint(target, source)`.
template <class Paint>
void ForEachStep(const Band& band, bool tiled, Paint paint) {
    if (!tiled) return paint(band.target, band.source);
    const int64_t end = band.target.size;
    for (int64_t n = 0, at = 0; at < end; ++n) {
        const int64_t next = std::min(TileEdge(band, n + 1), end);
        const auto size = static_cast<int32_t>(next - at);
        paint(Span{static_cast<int32_t>(band.target.start + at), size},
              Span{band.source.start, size});
        at = next;
    }
}

}  // namespace vxgui
