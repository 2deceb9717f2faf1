#include "vxgui/base/Require.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpCachedBitmap.h"
#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {

bool GpGraphics::DrawImage(const Ref<GpImage>& Image, int32_t dstX, int32_t dstY, int32_t dstW,
                           int32_t dstH, int32_t SrcX, int32_t SrcY, int32_t SrcW, int32_t SrcH,
                           gdiplus::Unit SrcU, gdiplus::GpImageAttributes* ImageAttributes,
                           gdiplus::DrawImageAbort CallbackProc, void* CallbackData) {
    auto* const image = Require(Image, "GpGraphics.DrawImage").Handle();
    return DrawBitmap(reinterpret_cast<gdiplus::GpBitmap*>(image), dstX, dstY, dstW, dstH, SrcX,
                      SrcY, SrcW, SrcH, SrcU, ImageAttributes, CallbackProc, CallbackData);
}

Ref<GpCachedBitmap> GpGraphics::CachedBitmap(const Ref<GpBitmap>& BITMAP) {
    const KeepAlive keep(this);
    auto* const bitmap = Require(BITMAP, "GpGraphics.CachedBitmap").Handle();
    gdiplus::GpCachedBitmap* cached = nullptr;
    const bool made = Check(flat::GdipCreateCachedBitmap(bitmap, handle_, &cached));
    return made ? Holding<GpCachedBitmap>(cached) : nullptr;
}

bool GpGraphics::DrawCachedBitmap(const Ref<GpCachedBitmap>& cb, int32_t X, int32_t Y) {
    auto* const cached = Require(cb, "GpGraphics.DrawCachedBitmap").Handle();
    return Check(flat::GdipDrawCachedBitmap(handle_, cached, X, Y));
}

}  // namespace vxgui
