#pragma once

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// What a blit does to `count` 32-bit target pixels with as many source pixels, in memory order.
/// The two don't overlap.
class WordMerger {
public:
    virtual void Merge(const uint32_t* source, uint32_t* target, int32_t count) = 0;

protected:
    ~WordMerger() = default;
};

/// Has `merger` change the pixels of `dc`, in place, by those of `source`: pixels are dropped or
/// repeated where the sizes differ, and the clip counts. False, with nothing done, unless both
/// contexts have 32-bit pixels, apart in memory, and each pixel to be changed has a source pixel.
/// Then the caller reads both into bitmaps of its own; a platform that can't look behind its
/// contexts always says so. An extent under 1 has nothing to be changed.
VXPLATFORM_API bool MergeBlt(HDC dc, int x, int y, int width, int height, HDC source, int sourceX,
                             int sourceY, int sourceWidth, int sourceHeight, WordMerger& merger);

}  // namespace vxgui::gdi
