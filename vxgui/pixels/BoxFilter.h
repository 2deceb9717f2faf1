#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "vxgui/pixels/BoxKernel.h"

namespace vxgui {

/// Lines of samples lie side by side in a strip: one row of them for each position.
constexpr size_t kStripLanes = 64;
template <class Sample>
struct alignas(64) StripRow : std::array<Sample, kStripLanes> {};
using ByteRow = StripRow<uint8_t>;
using WordRow = StripRow<uint16_t>;

/// Run a kernel along the lines of a strip; what lies before and behind them is 0. A result is the
/// weighted mean of the samples around it, rounded, halves up: of bytes in 256ths, of such 256ths
/// in 256ths and then in whole bytes. The time of a step does not depend on the kernel's width.
///
/// `results` has the size of `samples` and is other memory.
void FilterBytes(std::span<const ByteRow> samples, std::span<WordRow> results,
                 const BoxKernel& kernel);
void FilterWords(std::span<const WordRow> samples, std::span<ByteRow> results,
                 const BoxKernel& kernel);

}  // namespace vxgui
