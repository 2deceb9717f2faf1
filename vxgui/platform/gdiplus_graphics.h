#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Drawing targets: their state, and what is drawn on them.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_GRAPHICS(X)
