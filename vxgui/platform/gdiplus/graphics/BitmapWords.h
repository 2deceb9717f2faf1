#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"
#include "vxgui/platform/gdiplus/words/WordRows.h"

namespace vxgui::gdiplus {

/// The pixels of a bitmap that is drawn, and drawn on, where it stands: aligned words of `format`.
/// None for another. Those of a constant bitmap are for reading alone.
inline WordRows WordsOf(const Bitmap& bitmap, PixelFormat format = PixelFormat32bppPARGB) {
    auto* const top = const_cast<uint8_t*>(bitmap.Row(0));
    if (bitmap.Format() != format || reinterpret_cast<uintptr_t>(top) % sizeof(ARGB) != 0 ||
        bitmap.Stride() % static_cast<INT>(sizeof(ARGB)) != 0) {
        return {};
    }
    return {top, bitmap.Stride(), static_cast<INT>(bitmap.Width()),
            static_cast<INT>(bitmap.Height())};
}

}  // namespace vxgui::gdiplus
