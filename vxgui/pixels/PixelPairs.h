#pragma once

#include <cstdint>

#include "vxgui/pixels/ARGB.h"
#include "vxgui/pixels/Scratch.h"

namespace vxgui {

/// Takes the same pixels out of one row after the other, each with the one behind it. A pair is a
/// word of 64 bits, its first pixel in the lower half.
class PixelPairs {
public:
    /// Rows have `length` pixels. `indices` rise, and stay as long as this; each has another pixel of
    /// the row behind it.
    PixelPairs(const ScratchVector<uint32_t>& indices, size_t length);

    size_t Count() const { return indices_.size(); }

    /// Stores `Count()` pairs.
    void Take(const ARGB* row, uint64_t* pairs) const;

private:
    bool FindWindows(size_t length);

    const ScratchVector<uint32_t>& indices_;
    /// Where vectors look for eight pairs each; none if they can't.
    ScratchVector<uint32_t> windows_;
    ScratchVector<uint32_t> lanes_;  ///< of both pixels of each pair, in its window
};

}  // namespace vxgui
