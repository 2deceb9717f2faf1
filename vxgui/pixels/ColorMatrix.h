#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"

namespace vxgui {

/// Rows multiply: (red, green, blue, alpha, 1) from the left, 1 being full. The last column
/// doesn't count.
using ColorMatrix5 = float[5][5];

/// Turns straight 32-bit pixels, blue lowest, into what the matrix makes of them. A sum is taken
/// in single precision from the first row down, bounded to a byte and rounded, halves up.
VXPLATFORM_API void ApplyColorMatrix(std::span<uint32_t> pixels, const ColorMatrix5& matrix);

/// The same with a matrix of their own for grays, pixels of equal red, green and blue; null
/// leaves those as they are.
VXPLATFORM_API void ApplyColorMatrix(std::span<uint32_t> pixels, const ColorMatrix5& matrix,
                                     const ColorMatrix5* grays);

}  // namespace vxgui
