#include "vxgui/platform/gdiplus/graphics/ScratchArea.h"

namespace vxgui::gdiplus {

void ScratchArea::Reserve(const GpRect& area) {
    area_ = area;
    pixels_.resize(static_cast<size_t>(area.Width) * static_cast<size_t>(area.Height));
}

cairo_surface_t* ScratchArea::Cover() {
    surface_ = SurfaceOver(WordRows::Packed(pixels_.data(), area_.Width, area_.Height));
    if (surface_) cairo_surface_set_device_offset(surface_.get(), -area_.X, -area_.Y);
    return surface_.get();
}

}  // namespace vxgui::gdiplus
