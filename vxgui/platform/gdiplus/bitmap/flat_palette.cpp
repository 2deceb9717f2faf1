#include <algorithm>

#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/bitmap/PaletteRecord.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipGetImagePaletteSize(GpImage* image, INT* size) {
    return FlatGet<Bitmap>(image, size, [](Bitmap& found) {
        return static_cast<INT>(PaletteRecordSize(found.Colors()));
    });
}

GpStatus GdipGetImagePalette(GpImage* image, ColorPalette* palette, INT size) {
    if (!palette) return InvalidParameter;
    return FlatOn<Bitmap>(image, [&](Bitmap& found) {
        if (size < static_cast<INT>(PaletteRecordSize(found.Colors()))) return InvalidParameter;
        StorePalette(found.Colors(), palette);
        return Ok;
    });
}

GpStatus GdipSetImagePalette(GpImage* image, const ColorPalette* palette) {
    if (!palette || palette->Count == 0 || palette->Count > 256) return InvalidParameter;
    return FlatOnPixels(image, [&](Bitmap& found) {
        found.Colors(LoadPalette(*palette));
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
