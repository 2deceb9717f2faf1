#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Image attributes: what happens to the colours of an image that is drawn.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_ATTRIBUTES(X)
