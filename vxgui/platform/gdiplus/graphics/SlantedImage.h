#pragma once

#include "vxgui/platform/gdiplus/graphics/ImagePart.h"

namespace vxgui::gdiplus {

/// Draws a part in any parallelogram; the corners are in device coordinates. Its edges are smooth
/// when the graphics antialiases.
GpStatus DrawSlanted(Graphics& graphics, const ImagePart& part, const GpPointF device[3]);

}  // namespace vxgui::gdiplus
