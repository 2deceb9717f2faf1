#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpImage.h"

namespace vxgui {

Ref<GpGraphics> GpImage::graphics() {
    const KeepAlive keep(this);
    gdiplus::GpGraphics* made = nullptr;
    if (!Check(flat::GdipGetImageGraphicsContext(handle_, &made))) return nullptr;
    return Holding<GpGraphics>(made);
}

}  // namespace vxgui
