#pragma once

#include <algorithm>
#include <cstdint>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// The pixels of a line one pixel wide, one for each step along its longer axis; a point midway
/// between two pixels takes the upper or left one, whichever way the line runs.
class ThinLine {
public:
    ThinLine(POINT from, POINT to);

    /// The longer axis is x; so it is when both are equal.
    bool Flat() const { return flat_; }
    /// The number of its pixels.
    int64_t Length() const { return countU_; }

    /// Calls `visit(x, y, step)` for the pixels from step 0 to the one before the last point,
    /// leaving out those that the longer axis alone puts outside `area`. So the work is bounded
    /// by the area, whatever the coordinates.
    template <class Visit>
    void ForEachPixel(const RECT& area, Visit&& visit) const;

private:
    // Runs along the longer axis u; v is the other one.
    int64_t startU_, startV_;
    int64_t countU_, countV_;  // how far, as numbers above 0
    int signU_, signV_;
    bool flat_;
};

template <class Visit>
void ThinLine::ForEachPixel(const RECT& area, Visit&& visit) const {
    const int64_t low = flat_ ? area.left : area.top;
    const int64_t high = flat_ ? area.right : area.bottom;
    const int64_t before = signU_ > 0 ? low - startU_ : startU_ - (high - 1);
    const int64_t first = std::max<int64_t>(before, 0);
    const int64_t end = std::min(before + (high - low), countU_);
    if (first >= end) return;
    // The sum stays below 2^64: both factors are below 2^32.
    const auto count = static_cast<uint64_t>(countU_);
    const auto rise = static_cast<uint64_t>(countV_);
    const uint64_t half = (signV_ > 0 ? count - 1 : count) / 2;
    const uint64_t offset = static_cast<uint64_t>(first) * rise + half;
    int64_t v = startV_ + signV_ * static_cast<int64_t>(offset / count);
    uint64_t fraction = offset % count;
    for (int64_t step = first; step < end; ++step) {
        const auto across = static_cast<int32_t>(v);
        const auto along = static_cast<int32_t>(startU_ + signU_ * step);
        visit(flat_ ? along : across, flat_ ? across : along, step);
        fraction += rise;
        if (fraction < count) continue;
        fraction -= count;
        v += signV_;
    }
}

}  // namespace vxgui::gdi
