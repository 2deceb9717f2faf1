#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Brushes along a line and from the edge of a path to its centre.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_GRADIENT(X)
