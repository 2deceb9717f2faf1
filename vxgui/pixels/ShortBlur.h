#pragma once

#include "vxgui/pixels/BlurPart.h"
#include "vxgui/pixels/Scratch.h"
#include "vxgui/pixels/ShortKernel.h"

namespace vxgui {

/// A blur by the weights of two short kernels, in one go from the top: the rows that were filtered
/// across, and that a row below still needs, stand in a ring that stays in the cache.
class ShortBlur {
public:
    /// Of all four channels, or of the alpha alone where all colours are 0.
    ShortBlur(const BlurReach& reach, const ShortKernel& horizontal, const ShortKernel& vertical,
              bool alphaAlone);

    void Run();

private:
    void FilterAcross(size_t row);
    void FilterDown(size_t row);
    uint16_t* RingRow(size_t row) { return &ring_[row % ringRows_ * pitch_]; }

    const BlurReach reach_;
    const ShortKernel horizontal_, vertical_;
    const size_t channels_;
    const size_t lanes_;  ///< of a row that is filtered, in whole blocks
    const size_t ringRows_;
    const size_t pitch_;  ///< not a power of two: such rows share few places in the cache
    ScratchVector<uint16_t> samples_;  ///< a row's, with what the kernel reaches on both sides
    ScratchVector<uint16_t> ring_;     ///< of rows in 256ths, and behind them a row of 0
    ScratchVector<uint8_t> results_;
};

}  // namespace vxgui
