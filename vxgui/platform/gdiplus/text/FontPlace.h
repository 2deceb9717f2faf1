#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/text/Font.h"

namespace vxgui::gdiplus {

/// The em of a font in the world coordinates of a graphics.
double EmInWorld(const Font& font, const Graphics& graphics);
/// The font as it appears on the graphics' device.
gdi::LOGFONTA LogFontOf(const Font& font, const Graphics& graphics);

}  // namespace vxgui::gdiplus
