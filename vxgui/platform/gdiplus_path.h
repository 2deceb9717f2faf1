#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Paths: figures of lines and Bezier curves.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_PATH(X)
