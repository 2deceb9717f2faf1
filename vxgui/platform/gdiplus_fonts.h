#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Font families, fonts and collections of families.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_FONTS(X)
