#pragma once

#include <cstddef>
#include <cstdint>

#include "vxgui/pixels/ARGB.h"

/// The loops of the bilinear resampler, in single precision: a mean of two channels is
/// first * a + second * b, rounded to an integer, halves to even.
namespace vxgui::bilinear {

/// What two neighbours weigh.
struct Weights {
    float first, second;
};

/// Mixes all four channels of two rows.
void MixRows(const ARGB* upper, const ARGB* lower, const Weights& rows, ARGB* mixed, size_t count);

/// The columns of a target: what the pixel of each and the one behind it weigh.
struct Columns {
    const float* first;
    const float* second;
};

/// Mixes each pair into the colours of a pixel. The neighbour of a channel is the byte three
/// further on, not four, which is meant.
void MixPairs(const uint64_t* pairs, const Columns& columns, ARGB* target, size_t count);

/// The same with the pairs of two rows, whose channels are mixed and rounded first.
void MixPairsOfRows(const uint64_t* upper, const uint64_t* lower, const Weights& rows,
                    const Columns& columns, ARGB* target, size_t count);

}  // namespace vxgui::bilinear
