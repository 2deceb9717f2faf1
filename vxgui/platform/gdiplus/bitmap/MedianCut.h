#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

/// Up to `count` opaque colours that stand for those of a bitmap: the colours are parted again
/// and again at the median of the widest channel, the fullest and widest part first, and each part
/// is its mean (P. Heckbert, 1982). Clear pixels don't count.
std::vector<ARGB> MedianCut(const Bitmap& bitmap, size_t count);

}  // namespace vxgui::gdiplus
