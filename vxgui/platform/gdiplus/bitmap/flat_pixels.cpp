#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipBitmapLockBits(GpBitmap* bitmap, const GpRect* rect, UINT flags, PixelFormat format,
                            BitmapData* data) {
    if (!data) return InvalidParameter;
    return FlatOn<Bitmap>(bitmap, [&](Bitmap& found) {
        return found.Lock(rect ? *rect : found.Bounds(), flags, format, data);
    });
}

GpStatus GdipBitmapUnlockBits(GpBitmap* bitmap, BitmapData* data) {
    if (!data) return InvalidParameter;
    return FlatOn<Bitmap>(bitmap, [&](Bitmap& found) { return found.Unlock(*data); });
}

GpStatus GdipBitmapGetPixel(GpBitmap* bitmap, INT x, INT y, ARGB* color) {
    return FlatOnPixels(bitmap, [&](Bitmap& found) {
        if (!color || !found.Contains({x, y, 1, 1})) return InvalidParameter;
        found.ReadStraight(x, y, {color, 1});
        return Ok;
    });
}

// Indexed bitmaps have no pixel of any colour.
GpStatus GdipBitmapSetPixel(GpBitmap* bitmap, INT x, INT y, ARGB color) {
    return FlatOnPixels(bitmap, [&](Bitmap& found) {
        if (!found.Contains({x, y, 1, 1}) || IsIndexed(found.Format())) return InvalidParameter;
        found.WriteStraight(x, y, {&color, 1});
        return Ok;
    });
}

GpStatus GdipBitmapSetResolution(GpBitmap* bitmap, REAL xdpi, REAL ydpi) {
    if (!(xdpi > 0 && ydpi > 0)) return InvalidParameter;
    return FlatOnPixels(bitmap, [&](Bitmap& found) {
        found.dpiX = xdpi;
        found.dpiY = ydpi;
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
