#pragma once

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// Copies pixels among the formats with 16 bits a channel; one without alpha drops it.
void CopyDeep(PixelFormat fromFormat, const uint8_t* from, size_t fromX, PixelFormat toFormat,
              uint8_t* to, size_t toX, size_t count);

}  // namespace vxgui::gdiplus
