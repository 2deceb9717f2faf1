#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

/// The picture scaled to a size, premultiplied. Without a width or height that side keeps the
/// proportions; without both it is 120 x 120. A small picture among the properties serves in its
/// place.
Ref<Bitmap> Thumbnail(const Bitmap& bitmap, UINT width, UINT height);

}  // namespace vxgui::gdiplus
