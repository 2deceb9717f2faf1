#pragma once

#include "vxgui/platform/gdi/Bitmap.h"
#include "vxgui/platform/gdi/Brush.h"
#include "vxgui/platform/gdi/Font.h"
#include "vxgui/platform/gdi/Pen.h"

namespace vxgui::gdi {

// Objects that exist from first use to the end of the process. Selecting one is free.
GdiRef<Brush> StockBrush(int index);
GdiRef<Pen> StockPen(int index);
GdiRef<Font> StockFont(int index);
/// The 1 x 1 monochrome bitmap of a fresh context; each context draws on a pixel of its own.
GdiRef<Bitmap> StockBitmap();

}  // namespace vxgui::gdi
