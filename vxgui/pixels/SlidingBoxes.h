#pragma once

#include "vxgui/pixels/BoxFilter.h"

/// The filters of a strip by three boxes that slide one behind the other: the sum of each takes in
/// one value and drops one at a step. Several times as fast as what serves any kernel.
namespace vxgui::sliding {

/// Whether the sums fit. A line that is shorter than the kernel's reach would mostly be steps
/// outside of it.
bool Fits(const BoxKernel& kernel, size_t size);

void FilterBytes(std::span<const ByteRow> samples, std::span<WordRow> results,
                 const BoxKernel& kernel);
void FilterWords(std::span<const WordRow> samples, std::span<ByteRow> results,
                 const BoxKernel& kernel);

}  // namespace vxgui::sliding
