#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Matrices of 3 by 2: x' = x m11 + y m21 + dx, y' = x m12 + y m22 + dy.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_MATRIX(X)
