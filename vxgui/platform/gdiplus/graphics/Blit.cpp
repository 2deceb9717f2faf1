#include "vxgui/platform/gdiplus/graphics/Blit.h"

namespace vxgui::gdiplus {

GpStatus Blit(Graphics& graphics, cairo_surface_t* surface, const GpRect& area, GpPoint at) {
    const GpRect drawn = graphics.Drawable(area);
    return graphics.PaintExactly(drawn, {}, [&](cairo_t* cairo) {
        cairo_set_source_surface(cairo, surface, at.X, at.Y);
        cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
        cairo_rectangle(cairo, drawn.X, drawn.Y, drawn.Width, drawn.Height);
        cairo_fill(cairo);
    });
}

}  // namespace vxgui::gdiplus
