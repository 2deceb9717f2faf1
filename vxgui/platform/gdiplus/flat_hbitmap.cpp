#include <array>

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatCall.h"
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

gdi::HBITMAP CreateDib(const Bitmap& bitmap, uint32_t** pixels) {
    gdi::BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = static_cast<LONG>(bitmap.Width());
    info.bmiHeader.biHeight = static_cast<LONG>(bitmap.Height());
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const gdi::HBITMAP dib =
        gdi::CreateDIBSection(nullptr, &info, gdi::DIB_RGB_COLORS, &bits, nullptr, 0);
    *pixels = static_cast<uint32_t*>(bits);
    return dib;
}

}  // namespace

extern "C" GpStatus GdipCreateHBITMAPFromBitmap(GpBitmap* bitmap, gdi::HBITMAP* result,
                                                ARGB background) {
    return FlatCreate(result, [&] {
        const Ref<Bitmap> found = Find<Bitmap>(bitmap);
        if (!found) return InvalidParameter;
        uint32_t* to = nullptr;
        *result = CreateDib(*found, &to);
        if (!*result) return OutOfMemory;
        for (auto y = static_cast<int32_t>(found->Height()); y-- > 0;) {
            const uint32_t* from = found->Row(y);
            for (UINT x = 0; x < found->Width(); ++x) {
                *to++ = PremultipliedOver(from[x], background);
            }
        }
        return Ok;
    });
}

}  // namespace vxgui::gdiplus
