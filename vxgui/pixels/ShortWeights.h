#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "vxgui/pixels/ShortKernel.h"

/// The loops that apply a short kernel. Counts are whole blocks of samples.
namespace vxgui::short_weights {

/// Samples that are weighed together.
constexpr size_t kBlock = 64;

/// Stores the means of bytes that lie `distance` apart around each place from `middle` on, in
/// 256ths and rounded, halves up.
void Across(const uint16_t* middle, const ShortKernel& kernel, size_t distance, uint16_t* means,
            size_t count);

/// The rows that a row's means are made of, from the uppermost.
using Taps = std::array<const uint16_t*, 2 * ShortKernel::kMostReach + 1>;

/// Stores the means of 256ths in a column, rounded to them and then to bytes, halves up.
void Down(const Taps& taps, const ShortKernel& kernel, uint8_t* means, size_t count);

}  // namespace vxgui::short_weights
