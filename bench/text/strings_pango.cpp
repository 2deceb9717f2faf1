#include <pango/pangocairo.h>

#include "bench/Beside.h"
#include "bench/objects/Pictures.h"
#include "bench/text/Line.h"
#include "vxgui/pixels/Blur.h"

namespace vxgui::bench {
namespace {

// The layout is kept.
struct PangoText {
    PangoText() : canvas(kLineWidth, kLineHeight, kLineGround), shadow(kLineWidth, kLineHeight) {
        layout = pango_cairo_create_layout(canvas.cairo);
        PangoFontDescription* font = pango_font_description_from_string("DejaVu Sans");
        pango_font_description_set_absolute_size(font, kLineEm * PANGO_SCALE);
        pango_layout_set_font_description(layout, font);
        pango_font_description_free(font);
        pango_layout_set_text(layout, kLine, -1);
    }
    ~PangoText() { g_object_unref(layout); }
    PangoText(const PangoText&) = delete;
    PangoText& operator=(const PangoText&) = delete;

    void Draw(cairo_t* cairo, uint32_t color) {
        SetCairoColor(cairo, color);
        cairo_move_to(cairo, kLineX, kLineY);
        pango_cairo_show_layout(cairo, layout);
    }

    // cairo has no blur: the one it gets is ours, the best that a caller could have.
    void DrawShadow() {
        cairo_set_operator(shadow.cairo, CAIRO_OPERATOR_CLEAR);
        cairo_paint(shadow.cairo);
        cairo_set_operator(shadow.cairo, CAIRO_OPERATOR_OVER);
        Draw(shadow.cairo, 0xFF000000);
        cairo_surface_flush(shadow.surface);
        const std::span pixels(reinterpret_cast<ARGB*>(shadow.pixels.Bytes()),
                               shadow.pixels.words.size());
        Blur(pixels, kLineWidth, {0, 0, kLineWidth - 1, kLineHeight - 1},
             GaussianKernel(kLineRadius), GaussianKernel(kLineRadius));
        cairo_surface_mark_dirty(shadow.surface);
        cairo_set_source_surface(canvas.cairo, shadow.surface, 0, 0);
        cairo_paint(canvas.cairo);
    }

    CairoCanvas canvas, shadow;
    PangoLayout* layout;
};

template <class Draw>
void Add(const char* work, Draw draw) {
    Beside(work, "40", "pango", [=] {
        auto text = std::make_shared<PangoText>();
        return [=] { draw(*text); };
    });
}

const bool kAdded = [] {
    Add("text", [](PangoText& text) { text.Draw(text.canvas.cairo, kLineColor); });
    Add("text-soft-shadow", [](PangoText& text) {
        text.DrawShadow();
        text.Draw(text.canvas.cairo, kLineColor);
    });
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
