#pragma once

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui {

/// The file kinds of the open-picture dialog, "name:patterns|name:patterns".
VXGUI_LOCAL String PictureFileFilter();

/// Asks for a picture file. An empty caption is "打开图像文件"; the dialog opens on the kind that
/// was chosen last in this apartment, all pictures at first. True when one was chosen.
VXGUI_LOCAL bool ShowOpenPictureFile(String& picFileName, int32_t Owner, const String& dlgCaption);

}  // namespace vxgui
