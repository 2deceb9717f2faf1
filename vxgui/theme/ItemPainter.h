#pragma once

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {

/// Draws an item in a state over premultiplied pixels of the host, with a caption on one line
/// unless that is empty; nothing outside of the box is touched. Where all of it was opaque, what is
/// drawn is what `DrawBackground` and `DrawText` draw, and it stays opaque. Else the item is put
/// over the pixels by its own alpha. The item's `State` is left as it was. False for pixels of a
/// size or stride that can't be.
VXGUI_API bool PaintItem(ThemeItem& item, int32_t state, const String& caption,
                         const gdi::HostPixels& pixels, const gdi::RECT& box);

}  // namespace vxgui
