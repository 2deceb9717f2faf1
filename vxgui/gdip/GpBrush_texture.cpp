#include "vxgui/gdip/GpBrush.h"

namespace vxgui {

bool GpBrush::CreateTextureBrush(gdiplus::GpImage* hImage, gdiplus::WrapMode WrapMode) {
    return Make(flat::GdipCreateTexture, hImage, WrapMode);
}

// Stores the handle and nothing more, so that the type stays unknown: that is meant.
template <class Create, class... Args>
bool GpBrush::MakeTexture(const Create& create, Args... args) {
    const KeepAlive keep(this);
    gdiplus::GpBrush* made = nullptr;
    if (!Check(create(args..., &made))) return false;
    Dispose();
    handle_ = made;
    return true;
}

bool GpBrush::CreateTextureBrushI(gdiplus::GpImage* hImage, int32_t dstX, int32_t dstY,
                                  int32_t dstW, int32_t dstH, gdiplus::WrapMode WrapMode,
                                  gdiplus::GpImageAttributes* ImageAttributes) {
    if (ImageAttributes) {
        return MakeTexture(flat::GdipCreateTextureIAI, hImage, ImageAttributes, dstX, dstY, dstW,
                           dstH);
    }
    if (dstX != 0 || dstY != 0 || dstW != 0 || dstH != 0) {
        return MakeTexture(flat::GdipCreateTexture2I, hImage, WrapMode, dstX, dstY, dstW, dstH);
    }
    return MakeTexture(flat::GdipCreateTexture, hImage, WrapMode);
}

bool GpBrush::CreateTextureBrushF(gdiplus::GpImage* hImage, float dstX, float dstY, float dstW,
                                  float dstH, gdiplus::WrapMode WrapMode,
                                  gdiplus::GpImageAttributes* ImageAttributes) {
    if (ImageAttributes) {
        return MakeTexture(flat::GdipCreateTextureIA, hImage, ImageAttributes, dstX, dstY, dstW,
                           dstH);
    }
    return MakeTexture(flat::GdipCreateTexture2, hImage, WrapMode, dstX, dstY, dstW, dstH);
}

gdiplus::GpImage* GpBrush::GetImage() {
    return Asked<gdiplus::GpImage*>(flat::GdipGetTextureImage);
}

}  // namespace vxgui
