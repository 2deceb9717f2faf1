#pragma once

#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"
#include "vxgui/pixels/BoxKernel.h"
#include "vxgui/pixels/PixelBox.h"

namespace vxgui {

/// Blurs a rectangle of a picture in place, all four channels alike; what lies around the
/// rectangle is read and stays. What lies around the picture is clear, so that edges fade. Sums
/// are exact; a channel is rounded to 1/256 between the two directions and to a byte at the end,
/// halves up. The time is in line with the pixels read and does not depend on the kernels.
///
/// `pixels` holds whole rows of `width` pixels. A rectangle that leaves it does nothing.
VXPLATFORM_API void Blur(std::span<ARGB> pixels, int32_t width, const PixelBox& rectangle,
                         const BoxKernel& horizontal, const BoxKernel& vertical);

}  // namespace vxgui
