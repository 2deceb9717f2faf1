#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// Scales the colours of a picture to the size of another, two by two in single precision; the
/// alpha of `target` stays. Both hold whole rows of their width.
///
/// The samples step by (size - 1) / (target size) and so never reach the last column and row. The
/// right-hand neighbour of a channel is the byte three further on, not four: between two pixels
/// blue runs into alpha, green into the next blue and red into the next green. That is meant.
VXPLATFORM_API void ResampleBilinear(std::span<const ARGB> source, int32_t sourceWidth,
                                     std::span<ARGB> target, int32_t targetWidth);

}  // namespace vxgui
