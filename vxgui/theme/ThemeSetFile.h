#pragma once

#include "vxgui/theme/ThemeSet.h"

namespace vxgui {

/// Loads a theme set from a compiled skin, or from its define file; the pictures that this one
/// names lie beside it. Raises an error that begins with file, line and column for a file that
/// can't be read, for a line that makes no sense, and for a list that is too short. A missing
/// picture leaves its item without one.
VXGUI_API Ref<ThemeSet> LoadThemeSetFile(const String& path);

}  // namespace vxgui
