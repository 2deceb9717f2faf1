#include <cstdlib>

#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatCall.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {
namespace {

bool CanHold(INT stride, PixelFormat format, INT width) {
    return stride % 4 == 0 && static_cast<size_t>(std::abs(int64_t{stride})) >=
                                  RowBytes(format, static_cast<size_t>(width));
}

}  // namespace

extern "C" GpStatus GdipCreateBitmapFromScan0(INT width, INT height, INT stride, PixelFormat format,
                                              BYTE* scan0, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&] {
        if (width <= 0 || height <= 0 || !IsPixelFormat(format)) return InvalidParameter;
        if (scan0 && !CanHold(stride, format, width)) return InvalidParameter;
        PixelMemory memory = scan0 ? PixelMemory{width, height, format, stride, scan0, nullptr}
                                   : PixelMemory::Zeroed(width, height, format);
        *bitmap = static_cast<GpBitmap*>(EnterObject(New<Bitmap>(std::move(memory))));
        return Ok;
    });
}

}  // namespace vxgui::gdiplus
