#pragma once

#include <cairo.h>

#include <memory>

#include "vxgui/platform/gdiplus/text/MaskPlace.h"
#include "vxgui/platform/gdiplus/text/StringLayout.h"

namespace vxgui::gdiplus {

/// The coverage of a text in device pixels.
struct TextMask {
    struct SurfaceEnd {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    };

    std::unique_ptr<cairo_surface_t, SurfaceEnd> surface;  ///< 8 bits a pixel; null for nothing
    GpRect box{};
};

TextMask MakeTextMask(const StringLayout& layout, const MaskPlace& place);

}  // namespace vxgui::gdiplus
