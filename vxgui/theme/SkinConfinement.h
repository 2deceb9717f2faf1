#pragma once

#include "vxgui/base/String.h"

namespace vxgui {

/// Keeps the skins that the calling apartment reads from then on to their own folders, or no
/// longer; at first they are not kept. What an absolute path, ".." or a link leads out of a skin's
/// folder to then counts as missing: a picture, a wallpaper or a taskbar's file. For hosts that
/// load skins of people whom they don't know.
VXGUI_API void ConfineSkins(bool confined);
VXGUI_API bool AreSkinsConfined();

/// Whether a skin in `folder` may read the file that it leads to.
VXGUI_LOCAL bool MaySkinRead(const String& folder, const String& path);

}  // namespace vxgui
