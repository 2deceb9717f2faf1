#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// String formats, and the drawing and measuring of strings.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_STRINGS(X)
