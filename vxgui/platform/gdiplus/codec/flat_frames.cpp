#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/codec/ImageLoader.h"
#include "vxgui/platform/gdiplus_codecs.h"

namespace vxgui::gdiplus {
namespace {

// An image has one dimension of frames, whatever their number.
GUID DimensionOf(const Image& image) {
    return image.rawFormat == ImageFormatGIF ? FrameDimensionTime : FrameDimensionPage;
}

}  // namespace

extern "C" {

GpStatus GdipImageGetFrameDimensionsCount(GpImage* image, UINT* count) {
    return FlatGet<Image>(image, count, [](Image&) { return 1u; });
}

GpStatus GdipImageGetFrameDimensionsList(GpImage* image, GUID* dimensions, UINT count) {
    if (count != 1) return InvalidParameter;
    return FlatGet<Image>(image, dimensions, DimensionOf);
}

GpStatus GdipImageGetFrameCount(GpImage* image, const GUID* dimension, UINT* count) {
    if (!dimension || !count) return InvalidParameter;
    return FlatOn<Image>(image, [&](Image& found) {
        if (*dimension != DimensionOf(found)) return InvalidParameter;
        *count = found.frameCount;
        return Ok;
    });
}

GpStatus GdipImageSelectActiveFrame(GpImage* image, const GUID* dimension, UINT frame) {
    if (!dimension) return InvalidParameter;
    return FlatOnPixels(image, [&](Bitmap& found) {
        if (*dimension != DimensionOf(found) || frame >= found.frameCount) return InvalidParameter;
        return SelectFrame(found, frame) ? Ok : GenericError;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
