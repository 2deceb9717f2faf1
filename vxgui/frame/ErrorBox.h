#pragma once

#include "vxgui/base/String.h"

namespace vxgui {

/// The library's application title, which captions its message boxes.
inline constexpr const char* kApplicationTitle = "VxGUI";

/// Shows a text with the error icon, in the foreground, with an OK button.
void ShowErrorBox(const String& text);

}  // namespace vxgui
