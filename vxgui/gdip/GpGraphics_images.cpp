#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/ImageSize.h"

namespace vxgui {

bool GpGraphics::DrawBitmap(gdiplus::GpBitmap* hGpImageBitmap, int32_t dstX, int32_t dstY,
                            int32_t dstW, int32_t dstH, int32_t SrcX, int32_t SrcY, int32_t SrcW,
                            int32_t SrcH, gdiplus::Unit SrcU,
                            gdiplus::GpImageAttributes* ImageAttributes,
                            gdiplus::DrawImageAbort CallbackProc, void* CallbackData) {
    const KeepAlive keep(this);
    auto* const image = reinterpret_cast<gdiplus::GpImage*>(hGpImageBitmap);
    ResolveImageSizes(image, dstW, dstH, SrcW, SrcH);
    return Check(flat::GdipDrawImageRectRectI(handle_, image, dstX, dstY, dstW, dstH, SrcX, SrcY,
                                              SrcW, SrcH, SrcU, ImageAttributes, CallbackProc,
                                              CallbackData));
}

gdiplus::Status GpGraphics::DrawImageFX(gdiplus::GpImage* hGpImage, gdiplus::GpRectF* lpRectF,
                                        gdiplus::GpMatrix* hGpMatrix, gdiplus::CGpEffect* hGpEffect,
                                        gdiplus::GpImageAttributes* hGpImageAttributes,
                                        gdiplus::Unit srcUnit) {
    return flat::GdipDrawImageFX(handle_, hGpImage, lpRectF, hGpMatrix, hGpEffect,
                                 hGpImageAttributes, srcUnit);
}

}  // namespace vxgui
