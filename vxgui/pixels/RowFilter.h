#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "vxgui/pixels/ARGB.h"
#include "vxgui/pixels/BoxFilter.h"

namespace vxgui {

/// Runs a short kernel along rows of pixels as they lie in memory, by its weights: up to some
/// radius that is quicker than to turn rows into columns and back for boxes that slide.
class RowFilter {
public:
    /// For rows of `width` pixels, of which all four channels or the alpha alone are filtered. None
    /// for a kernel with which 16 bits don't do, or that reaches over more than a strip's samples:
    /// the strip before the last one may be written when one is filtered.
    static std::optional<RowFilter> Of(const BoxKernel& kernel, size_t width, bool alphaAlone);

    /// Filters `count` strips' rows of samples from that with the number `first` on. What lies
    /// before and behind the row is 0. The means are in 256ths, rounded, halves up; a row of them
    /// lies `pitch` rows behind the one before.
    void Filter(const ARGB* row, size_t first, size_t count, WordRow* means, size_t pitch);

private:
    RowFilter(const BoxKernel& kernel, size_t width, bool alphaAlone);

    /// The samples that the kernel reaches over to either side.
    size_t Margin() const { return (weights_.size() - 1) * channels_; }

    uint16_t norm_, half_;
    size_t width_;
    size_t channels_;
    std::vector<uint16_t> weights_;  ///< from the middle outwards; they add up to the norm
    std::vector<uint16_t> samples_;  ///< and as many on both sides as the kernel reaches
};

}  // namespace vxgui
