#pragma once

#include <vector>

#include "vxgui/theme/lint/Finding.h"

namespace vxgui::lint {

class PictureShelf;

/// Checks the define file of a theme set, or the UIS file of a skin with its taskbar file, or a
/// taskbar file alone, and the pictures that these name. Findings come file by file, in the order
/// of the lines; an empty list says that all is well. Nothing raises for what is in the files.
VXGUI_API std::vector<Finding> CheckSkin(const String& path);

/// The same with pictures that were looked at before; for who checks again and again.
VXGUI_LOCAL std::vector<Finding> CheckSkin(const String& path, PictureShelf& shelf);

}  // namespace vxgui::lint
