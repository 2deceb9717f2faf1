#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "vxgui/pixels/BoxKernel.h"

namespace vxgui {

/// Lines of 16-bit samples lie side by side in a strip: one row of them for each position.
constexpr size_t kStripLanes = 64;
using StripRow = std::array<uint16_t, kStripLanes>;

/// Runs a kernel along the lines of a strip; what lies before and behind them is 0. `results`
/// has the size of `samples` and is other memory. A result is the weighted mean of the samples
/// around it, rounded, halves up. Three running sums make it: a step adds and takes away eight
/// samples, whatever the kernel's width.
void FilterStrip(std::span<const StripRow> samples, std::span<StripRow> results,
                 const BoxKernel& kernel);

}  // namespace vxgui
