#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"

namespace vxgui::gdiplus {

/// Draws the pixels that fall in `area`, with their upper left corner at `at`, both in pixels of
/// the device.
GpStatus Blit(Graphics& graphics, const WordRows& pixels, const GpRect& area, GpPoint at);

}  // namespace vxgui::gdiplus
