#include <algorithm>
#include <cstring>

#include "vxgui/base/Error.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/surface/Stretch.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

namespace {

/// The size of an image; 0 by 0 for what is none.
gdi::SIZE SizeOf(gdiplus::GpBitmap* bitmap) {
    auto* image = reinterpret_cast<gdiplus::GpImage*>(bitmap);  // every bitmap is an image
    UINT width = 0, height = 0;
    flat::GdipGetImageWidth(image, &width);
    flat::GdipGetImageHeight(image, &height);
    return {static_cast<LONG>(width), static_cast<LONG>(height)};
}

}  // namespace

bool cAlphaDIBSection::FromHGpBitmap(gdiplus::GpBitmap* hGpBitmap, int32_t X, int32_t Y, int32_t w,
                                     int32_t h) {
    const gdi::SIZE size = SizeOf(hGpBitmap);
    if (X < 0 || X >= size.cx || Y < 0 || Y >= size.cy) return false;
    w = CutLength(X, w, size.cx);
    h = CutLength(Y, h, size.cy);
    const gdiplus::GpRect area{X, Y, w, h};
    gdiplus::BitmapData locked{};
    if (flat::GdipBitmapLockBits(hGpBitmap, &area, gdiplus::ImageLockModeRead,
                                 gdiplus::PixelFormat32bppARGB, &locked) != gdiplus::Ok) {
        return false;
    }
    if (!Create(w, h)) return false;  // the lock stays held, as callers know it
    // In one piece, whatever the stride is; rows that run backwards would lead out of the lock.
    const std::span<ARGB> pixels = Pixels();
    if (locked.Scan0 && locked.Stride >= BytesPerScanLine()) {
        std::memcpy(pixels.data(), locked.Scan0, pixels.size_bytes());
    }
    flat::GdipBitmapUnlockBits(hGpBitmap, &locked);
    return true;
}

bool cAlphaDIBSection::FromGpBitmap(const Ref<GpBitmap>& GpBmp, int32_t X, int32_t Y, int32_t w,
                                    int32_t h) {
    if (!GpBmp) {
        throw Error(ErrorNumber::ObjectNotSet, "cAlphaDIBSection.FromGpBitmap", "Object not set");
    }
    return FromHGpBitmap(GpBmp->Handle(), X, Y, w, h);
}

}  // namespace vxgui
