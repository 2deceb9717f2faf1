#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipDisposeImage(GpImage* image) {
    return FlatOn<Image>(image,
                         [&](Image&) { return RetireObject(image) ? Ok : InvalidParameter; });
}

GpStatus GdipGetImageWidth(GpImage* image, UINT* width) {
    return FlatGet<Image>(image, width, [](Image& found) { return found.Width(); });
}

GpStatus GdipGetImageHeight(GpImage* image, UINT* height) {
    return FlatGet<Image>(image, height, [](Image& found) { return found.Height(); });
}

GpStatus GdipGetImageBounds(GpImage* image, GpRectF* bounds, Unit* unit) {
    if (!unit) return InvalidParameter;
    return FlatGet<Image>(image, bounds, [&](Image& found) {
        *unit = UnitPixel;
        return GpRectF{0, 0, static_cast<REAL>(found.Width()), static_cast<REAL>(found.Height())};
    });
}

GpStatus GdipGetImageDimension(GpImage* image, REAL* width, REAL* height) {
    if (!height) return InvalidParameter;
    return FlatGet<Image>(image, width, [&](Image& found) {
        *height = static_cast<REAL>(found.Height());
        return static_cast<REAL>(found.Width());
    });
}

GpStatus GdipGetImageType(GpImage* image, ImageType* type) {
    return FlatGet<Bitmap>(image, type, [](Bitmap&) { return ImageTypeBitmap; });
}

GpStatus GdipGetImageHorizontalResolution(GpImage* image, REAL* resolution) {
    return FlatGet<Image>(image, resolution, [](Image& found) { return found.dpiX; });
}

GpStatus GdipGetImageVerticalResolution(GpImage* image, REAL* resolution) {
    return FlatGet<Image>(image, resolution, [](Image& found) { return found.dpiY; });
}

GpStatus GdipGetImageFlags(GpImage* image, UINT* flags) {
    return FlatGet<Bitmap>(image, flags, [](Bitmap& found) {
        const bool alpha = IsIndexed(found.Format()) ? found.Colors().flags & PaletteFlagsHasAlpha
                                                     : HasAlpha(found.Format());
        return found.fileFlags | (alpha ? ImageFlagsHasAlpha : ImageFlagsNone);
    });
}

GpStatus GdipGetImageRawFormat(GpImage* image, GUID* format) {
    return FlatGet<Image>(image, format, [](Image& found) { return found.rawFormat; });
}

GpStatus GdipGetImagePixelFormat(GpImage* image, PixelFormat* format) {
    return FlatGet<Bitmap>(image, format, [](Bitmap& found) { return found.Format(); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
