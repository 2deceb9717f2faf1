#include <algorithm>
#include <vector>

#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/bitmap/DeviceBitmap.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {
namespace {

// A channel multiplied by the alpha, rounded, with what shines through of the background, cut.
// The two sum to 255 at most.
uint32_t Over(uint32_t channel, uint32_t alpha, uint32_t background) {
    return (channel * alpha + 127) / 255 + background * (255 - alpha) / 255;
}

uint32_t PremultipliedOver(uint32_t pixel, ARGB background) {
    const uint32_t alpha = pixel >> 24;
    if (alpha == 255) return pixel;
    uint32_t result = alpha << 24;
    for (int shift = 0; shift < 24; shift += 8) {
        result |= Over(pixel >> shift & 255, alpha, background >> shift & 255) << shift;
    }
    return result;
}

}  // namespace

extern "C" {

GpStatus GdipCreateBitmapFromHBITMAP(gdi::HBITMAP source, gdi::HPALETTE, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&] {
        Ref<Bitmap> copy = CopyOfDeviceBitmap(source);
        return copy ? HandOut(bitmap, std::move(copy)) : InvalidParameter;
    });
}

GpStatus GdipCreateHBITMAPFromBitmap(GpBitmap* bitmap, gdi::HBITMAP* result, ARGB background) {
    return FlatCreate(result, [&] {
        const Ref<Bitmap> found = Find<Bitmap>(bitmap);
        if (!found) return InvalidParameter;
        if (found->IsLocked()) return ObjectBusy;
        uint8_t* to = nullptr;
        *result = gdi::CreateDib(static_cast<int32_t>(found->Width()),
                                 static_cast<int32_t>(found->Height()), 32, &to);
        if (!*result) return OutOfMemory;
        std::vector<ARGB> row(found->Width());
        for (auto y = static_cast<int32_t>(found->Height()); y-- > 0;) {
            found->ReadStraight(0, y, row);
            for (ARGB& pixel : row) pixel = PremultipliedOver(pixel, background);
            to = std::copy_n(reinterpret_cast<const uint8_t*>(row.data()), row.size() * 4, to);
        }
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
