#pragma once

#include "vxgui/platform/gdi/Bitmap.h"
#include "vxgui/platform/gdi/Brush.h"
#include "vxgui/platform/gdi/Font.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/Pen.h"

namespace vxgui::gdi {

// Objects that exist from first use to the end of the process. Selecting one is free.
Brush* StockBrush(int index);
Pen* StockPen(int index);
Font* StockFont(int index);
/// The 1 x 1 monochrome bitmap of a fresh context; each context draws on a pixel of its own.
Bitmap* StockBitmap();

/// Enters an object that exists to the end of the process, as those above do.
template <class T>
T* Permanently(std::unique_ptr<T> object) {
    object->MakePermanent();
    // It is never given back: its count keeps this one reference.
    GdiRef<T> ref = Enter(std::move(object));
    ref->AddReference();
    return ref.get();
}

}  // namespace vxgui::gdi
