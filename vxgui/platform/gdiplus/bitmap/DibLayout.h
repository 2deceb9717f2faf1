#pragma once

#include <optional>

#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/gdiplus/bitmap/Palette.h"
#include "vxgui/platform/gdiplus/bitmap/PixelMemory.h"

namespace vxgui::gdiplus {

/// Rows over the pixels of a device-independent bitmap, in either row order. None for a size, a
/// depth or a compression that rows can't be laid over. 32 bits a pixel have no alpha. Without
/// `bits` it tells the shape alone.
std::optional<PixelMemory> MemoryOfDib(const gdi::BITMAPINFO& info, void* bits);

/// The colours that follow its header, opaque.
Palette PaletteOfDib(const gdi::BITMAPINFO& info);

}  // namespace vxgui::gdiplus
