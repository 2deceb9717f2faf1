#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Encoders, frames and properties of images.
namespace vxgui::gdiplus {

extern "C" {}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_CODECS(X)
