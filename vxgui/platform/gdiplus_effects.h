#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Effects over the pixels of a bitmap.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_EFFECTS(X)
