#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/bitmap/RotateFlip.h"
#include "vxgui/platform/gdiplus/bitmap/Thumbnail.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipCloneImage(GpImage* image, GpImage** clone) {
    return FlatCreateOf(image, clone, OutOfMemory, [](Bitmap& found) { return found.Copy(); });
}

// An area that leaves the bitmap is, as published, out of memory.
GpStatus GdipCloneBitmapAreaI(INT x, INT y, INT width, INT height, PixelFormat format,
                              GpBitmap* bitmap, GpBitmap** clone) {
    return FlatCreateOf(bitmap, clone, OutOfMemory, [&](Bitmap& found) -> Ref<Bitmap> {
        const PixelFormat wanted = format == PixelFormatUndefined ? found.Format() : format;
        const GpRect area{x, y, width, height};
        if (!IsPixelFormat(wanted) || !found.Contains(area)) return nullptr;
        return found.CopyArea(area, wanted);
    });
}

GpStatus GdipCloneBitmapArea(REAL x, REAL y, REAL width, REAL height, PixelFormat format,
                             GpBitmap* bitmap, GpBitmap** clone) {
    return GdipCloneBitmapAreaI(RoundHalfEven(x), RoundHalfEven(y), RoundHalfEven(width),
                                RoundHalfEven(height), format, bitmap, clone);
}

GpStatus GdipImageRotateFlip(GpImage* image, RotateFlipType type) {
    if (type < RotateNoneFlipNone || type > Rotate270FlipX) return InvalidParameter;
    return FlatOnPixels(image, [&](Bitmap& found) {
        RotateFlip(found, type);
        return Ok;
    });
}

GpStatus GdipGetImageThumbnail(GpImage* image, UINT width, UINT height, GpImage** thumbnail,
                               GetThumbnailImageAbort abort, void* data) {
    constexpr UINT kMostSide = 32767;
    if (width > kMostSide || height > kMostSide) return InvalidParameter;
    return FlatCreateOf(image, thumbnail, Aborted, [&](Bitmap& found) -> Ref<Bitmap> {
        if (abort && abort(data)) return nullptr;
        return Thumbnail(found, width, height);
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
