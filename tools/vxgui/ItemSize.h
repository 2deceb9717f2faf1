#pragma once

#include "vxgui/theme/ThemeItem.h"

namespace vxgui::tool {

/// The size at which nothing of an item is stretched: that of a frame of its image, else of a
/// frame of its glyph with the glyph's margins.
gdi::SIZE OwnSize(ThemeItem& item);

}  // namespace vxgui::tool
