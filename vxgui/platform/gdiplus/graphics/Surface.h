#pragma once

#include <cairo.h>

#include <memory>

#include "vxgui/platform/gdiplus/words/WordRows.h"

namespace vxgui::gdiplus {

struct SurfaceRelease {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
using Surface = std::unique_ptr<cairo_surface_t, SurfaceRelease>;

/// Null when there can't be one.
inline Surface SurfaceOver(const WordRows& words) {
    Surface surface(cairo_image_surface_create_for_data(
        words.top, CAIRO_FORMAT_ARGB32, words.width, words.height, static_cast<int>(words.stride)));
    const bool good = cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
    return good ? std::move(surface) : nullptr;
}

}  // namespace vxgui::gdiplus
