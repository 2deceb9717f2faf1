#include "vxgui/base/Error.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpCachedBitmap.h"
#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {

bool GpGraphics::DrawImage(const Ref<GpImage>& Image, int32_t dstX, int32_t dstY, int32_t dstW,
                           int32_t dstH, int32_t SrcX, int32_t SrcY, int32_t SrcW, int32_t SrcH,
                           gdiplus::Unit SrcU, gdiplus::GpImageAttributes* ImageAttributes,
                           gdiplus::DrawImageAbort CallbackProc, void* CallbackData) {
    if (!Image) throw Error(ErrorNumber::ObjectNotSet, "GpGraphics.DrawImage", "Object not set");
    return DrawBitmap(reinterpret_cast<gdiplus::GpBitmap*>(Image->Handle()), dstX, dstY, dstW, dstH,
                      SrcX, SrcY, SrcW, SrcH, SrcU, ImageAttributes, CallbackProc, CallbackData);
}

Ref<GpCachedBitmap> GpGraphics::CachedBitmap(const Ref<GpBitmap>& BITMAP) {
    const KeepAlive keep(this);
    if (!BITMAP)
        throw Error(ErrorNumber::ObjectNotSet, "GpGraphics.CachedBitmap", "Object not set");
    gdiplus::GpCachedBitmap* cached = nullptr;
    if (!Check(flat::GdipCreateCachedBitmap(BITMAP->Handle(), handle_, &cached)) || !cached) {
        return nullptr;
    }
    Ref<GpCachedBitmap> result = New<GpCachedBitmap>();
    result->SetHandle(cached);
    return result;
}

bool GpGraphics::DrawCachedBitmap(const Ref<GpCachedBitmap>& cb, int32_t X, int32_t Y) {
    if (!cb) {
        throw Error(ErrorNumber::ObjectNotSet, "GpGraphics.DrawCachedBitmap", "Object not set");
    }
    return Check(flat::GdipDrawCachedBitmap(handle_, cb->Handle(), X, Y));
}

}  // namespace vxgui
