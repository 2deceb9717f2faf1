#pragma once

#include "tools/view/recolour/SkinOriginal.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::view {

/// Loads a skin in other colours: it is written whole into a folder of its own and read from
/// there, so that it is what a saved one would be. Errors are those of writing and reading.
VXGUI_LOCAL Skin LoadRecoloured(const SkinOriginal& original, const Recolour& how);

/// Saves a skin in other colours as a new one, in a folder that is made for it or is empty, and
/// answers the path to load it by. A `ToolError` for a folder that has something in it, and when
/// writing fails.
std::string SaveRecoloured(const SkinOriginal& original, const Recolour& how,
                           const std::string& folder);

}  // namespace vxgui::view
