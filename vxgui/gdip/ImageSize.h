#pragma once

#include "vxgui/frame/modGdiplus.h"

namespace vxgui {

/// Sizes of -1 become the image's own for the source, and then the source's for the target. An
/// image that can't be asked has none: 0.
inline void ResolveImageSizes(gdiplus::GpImage* image, int32_t& dstW, int32_t& dstH, int32_t& srcW,
                              int32_t& srcH) {
    uint32_t width = 0, height = 0;
    if (srcW == -1) flat::GdipGetImageWidth(image, &width);
    if (srcH == -1) flat::GdipGetImageHeight(image, &height);
    if (srcW == -1) srcW = static_cast<int32_t>(width);
    if (srcH == -1) srcH = static_cast<int32_t>(height);
    if (dstW == -1) dstW = srcW;
    if (dstH == -1) dstH = srcH;
}

}  // namespace vxgui
