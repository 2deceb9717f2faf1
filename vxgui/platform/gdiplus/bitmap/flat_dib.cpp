#include <limits>

#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/bitmap/DibLayout.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {

extern "C" GpStatus GdipCreateBitmapFromGdiDib(const gdi::BITMAPINFO* info, void* bits,
                                               GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&] {
        if (!info || !bits) return InvalidParameter;
        std::optional<PixelMemory> memory = MemoryOfDib(*info, bits);
        if (!memory) return InvalidParameter;
        Ref<Bitmap> made = New<Bitmap>(std::move(*memory));
        if (Palette palette = PaletteOfDib(*info); !palette.entries.empty()) {
            made->Colors(std::move(palette));
        }
        return HandOut(bitmap, std::move(made));
    });
}

}  // namespace vxgui::gdiplus
