#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Brushes of one colour and of hatches.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_BRUSH(X)
