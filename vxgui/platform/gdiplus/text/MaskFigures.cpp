#include "vxgui/platform/gdiplus/text/MaskFigures.h"

#include <cmath>

#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/text/GlyphOutline.h"
#include "vxgui/platform/gdiplus/text/MaskGlyphs.h"

namespace vxgui::gdiplus {
namespace {

struct ContextEnd {
    void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};
using Context = std::unique_ptr<cairo_t, ContextEnd>;

Context Open(const TextMask& mask, bool mono) {
    Context cairo(cairo_create(mask.surface.get()));
    cairo_set_antialias(cairo.get(), mono ? CAIRO_ANTIALIAS_NONE : CAIRO_ANTIALIAS_DEFAULT);
    cairo_translate(cairo.get(), -mask.box.X, -mask.box.Y);
    return cairo;
}

void Fill(const Context& cairo, const TextMask& mask) {
    cairo_fill(cairo.get());
    cairo_surface_flush(mask.surface.get());
}

// At least a pixel thick.
GpRectF OnPixels(const GpRectF& box) {
    const REAL left = std::round(box.X), top = std::round(box.Y);
    return {left, top, std::round(box.X + box.Width) - left,
            std::max(1.0f, std::round(box.Height))};
}

class CairoSink final : public FigureSink {
public:
    explicit CairoSink(cairo_t* cairo) : cairo_(cairo) {}
    void Move(GpPointF to) override { cairo_move_to(cairo_, to.X, to.Y); }
    void Line(GpPointF to) override { cairo_line_to(cairo_, to.X, to.Y); }
    void Curve(GpPointF a, GpPointF b, GpPointF to) override {
        cairo_curve_to(cairo_, a.X, a.Y, b.X, b.Y, to.X, to.Y);
    }
    void Close() override { cairo_close_path(cairo_); }

private:
    cairo_t* const cairo_;
};

}  // namespace

void FillBars(const TextMask& mask, const StringLayout& layout, const MaskPlace& place) {
    if (layout.bars.empty()) return;
    const Context cairo = Open(mask, place.IsMono());
    const bool upright = LookOf(layout, place, false).Upright();
    const cairo_matrix_t world = CairoMatrix(place.world);
    if (!upright) cairo_transform(cairo.get(), &world);
    for (const GpRectF& bar : layout.bars) {
        const GpRectF box = upright ? OnPixels(BoxOf(bar, place.world)) : bar;
        cairo_rectangle(cairo.get(), box.X, box.Y, box.Width, box.Height);
    }
    Fill(cairo, mask);
}

void FillOutlines(const TextMask& mask, const StringLayout& layout, const MaskPlace& place) {
    const Context cairo = Open(mask, place.IsMono());
    CairoSink sink(cairo.get());
    DrawFigures(layout, place.world, sink);
    Fill(cairo, mask);
}

}  // namespace vxgui::gdiplus
