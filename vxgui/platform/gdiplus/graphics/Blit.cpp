#include "vxgui/platform/gdiplus/graphics/Blit.h"

#include <cstring>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/DrawnWords.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"
#include "vxgui/platform/gdiplus/words/WordBlends.h"

namespace vxgui::gdiplus {
namespace {

// By the library, for targets of other pixels.
GpStatus Paint(Graphics& graphics, const WordRows& pixels, const GpRect& drawn, GpPoint at) {
    const Surface surface = SurfaceOver(pixels);
    if (!surface) return OutOfMemory;
    return graphics.PaintExactly(drawn, {}, [&](cairo_t* cairo) {
        cairo_set_source_surface(cairo, surface.get(), at.X, at.Y);
        cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
        cairo_rectangle(cairo, drawn.X, drawn.Y, drawn.Width, drawn.Height);
        cairo_fill(cairo);
    });
}

}  // namespace

GpStatus Blit(Graphics& graphics, const WordRows& pixels, const GpRect& area, GpPoint at) {
    const GpRect drawn = graphics.Drawable(Common(area, {at.X, at.Y, pixels.width, pixels.height}));
    if (IsEmpty(drawn)) return Ok;
    const bool copies = graphics.Replaces();
    const auto drawRun = [&](ARGB* to, INT x, INT y, size_t count) {
        const ARGB* const from = pixels.At(x - at.X, y - at.Y);
        copies ? std::memmove(to, from, count * sizeof *to), void() : DrawWords(to, from, count);
    };
    return DrawOnWords(graphics, drawn, drawRun) ? Ok : Paint(graphics, pixels, drawn, at);
}

}  // namespace vxgui::gdiplus
