#pragma once

#include <cstdint>

#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"

namespace vxgui::gdiplus {

/// True for pixels that can be drawn, and drawn on, where they stand: premultiplied aligned words.
inline bool HasDrawableWords(const Bitmap& bitmap) {
    constexpr uintptr_t kWord = 4;
    return bitmap.Format() == PixelFormat32bppPARGB &&
           reinterpret_cast<uintptr_t>(bitmap.Row(0)) % kWord == 0;
}

/// A surface over such pixels, for reading alone when the bitmap is a constant one.
inline Surface SurfaceOver(const Bitmap& bitmap) {
    return SurfaceOver(const_cast<uint8_t*>(bitmap.Row(0)), static_cast<int>(bitmap.Width()),
                       static_cast<int>(bitmap.Height()), bitmap.Stride());
}

}  // namespace vxgui::gdiplus
