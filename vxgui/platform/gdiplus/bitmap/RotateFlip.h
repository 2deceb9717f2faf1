#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

/// Turns the bitmap clockwise, then mirrors it left to right where the type says so. A quarter
/// turn exchanges the resolutions too.
void RotateFlip(Bitmap& bitmap, RotateFlipType type);

}  // namespace vxgui::gdiplus
