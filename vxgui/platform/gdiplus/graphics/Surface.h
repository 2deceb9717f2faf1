#pragma once

#include <cairo.h>

#include <cstddef>
#include <memory>

namespace vxgui::gdiplus {

struct SurfaceRelease {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceRelease>;

/// A premultiplied surface over 32-bit rows of pixels; `stride` counts bytes and may be negative.
/// Null when there can't be one.
inline Surface SurfaceOver(void* top, int width, int height, ptrdiff_t stride) {
    Surface surface(cairo_image_surface_create_for_data(static_cast<unsigned char*>(top),
                                                        CAIRO_FORMAT_ARGB32, width, height,
                                                        static_cast<int>(stride)));
    const bool good = cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
    return good ? std::move(surface) : nullptr;
}

}  // namespace vxgui::gdiplus
