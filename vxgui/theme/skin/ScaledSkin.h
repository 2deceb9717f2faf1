#pragma once

#include "vxgui/theme/skin/Skin.h"

namespace vxgui {

/// A skin with each item, and the theme set if it is one, as `Scaled` makes them. The desktop's
/// own items, and all files, stay those of scale 1.
VXGUI_API Skin ScaledSkin(const Skin& skin, double factor);

}  // namespace vxgui
