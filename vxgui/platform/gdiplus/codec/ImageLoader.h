#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

/// The first frame of a picture file in its own pixel format, with all that the file says of it;
/// none for what is no picture.
Ref<Bitmap> LoadBitmap(ByteArray bytes);

/// Shows another frame of the file that the bitmap is from. False when it can't be decoded.
bool SelectFrame(Bitmap& bitmap, UINT frame);

}  // namespace vxgui::gdiplus
