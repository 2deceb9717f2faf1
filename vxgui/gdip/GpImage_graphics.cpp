#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpImage.h"

namespace vxgui {

Ref<GpGraphics> GpImage::graphics() {
    const KeepAlive keep(this);
    gdiplus::GpGraphics* made = nullptr;
    if (!Check(flat::GdipGetImageGraphicsContext(handle_, &made)) || !made) return nullptr;
    Ref<GpGraphics> result = New<GpGraphics>();
    result->SetHandle(made);
    return result;
}

}  // namespace vxgui
