#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Pens: what a stroke is drawn with.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_PEN(X)
