#pragma once

#include "vxgui/theme/ThemeItem.h"

namespace vxgui {

/// The size at which nothing of an item is stretched: that of a frame of its image, else of a
/// frame of its glyph with the glyph's margins.
VXGUI_API gdi::SIZE OwnSize(ThemeItem& item);

/// Whether an item has a frame of its image or of its glyph to show in a state.
VXGUI_API bool ShowsInState(ThemeItem& item, int32_t state);

}  // namespace vxgui
