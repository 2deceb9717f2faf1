#pragma once

#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

/// The pixels of a device bitmap in its own depth, 32 bits without alpha; none for what is no
/// bitmap.
Ref<Bitmap> CopyOfDeviceBitmap(gdi::HBITMAP bitmap);
/// The same as 32-bit words, the top row first, with the fourth byte as it is.
std::vector<ARGB> WordsOfDeviceBitmap(gdi::HBITMAP bitmap, GpPoint* size);

}  // namespace vxgui::gdiplus
