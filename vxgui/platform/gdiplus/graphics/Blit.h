#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"

namespace vxgui::gdiplus {

/// Draws the pixels of a surface that fall in `area`, with its upper left corner at `at`, both in
/// pixels of the device.
GpStatus Blit(Graphics& graphics, cairo_surface_t* surface, const GpRect& area, GpPoint at);

}  // namespace vxgui::gdiplus
