#include "vxgui/platform/gdiplus/graphics/Fills.h"

#include <optional>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/Clips.h"
#include "vxgui/platform/gdiplus/graphics/DrawnWords.h"
#include "vxgui/platform/gdiplus/graphics/Shapes.h"
#include "vxgui/platform/gdiplus/words/WordBlends.h"

namespace vxgui::gdiplus {
namespace {

bool IsWhole(REAL value) { return value == std::nearbyint(value); }

// The pixels that make up a rectangle exactly, if whole pixels do.
std::optional<GpRect> WholePixels(const Graphics& graphics, const GpRectF& rect) {
    const std::optional<GpRectF> box = LevelBox(graphics, rect);
    if (!box) return std::nullopt;
    if (!graphics.Antialiases()) return SampledBy(*box, graphics.ShapeOffset());
    const bool whole =
        IsWhole(box->X) && IsWhole(box->Y) && IsWhole(box->Width) && IsWhole(box->Height);
    return whole ? std::optional(SampledBy(*box, 0)) : std::nullopt;
}

// One colour on words takes no drawing library.
bool FillOnWords(const Graphics& graphics, const Brush& brush, const GpRect& drawn) {
    ARGB color;
    if (!brush.IsSolid(&color)) return false;
    const ARGB word = WordOf(color);
    const bool replaces = graphics.Replaces();
    return DrawOnWords(graphics, drawn, [=](ARGB* to, INT, INT, size_t count) {
        replaces ? FillWords(to, count, word) : DrawColor(to, count, word);
    });
}

GpStatus FillPixels(Graphics& graphics, const Brush& brush, const GpRect& pixels) {
    const GpRect drawn = graphics.Drawable(pixels);
    if (IsEmpty(drawn) || FillOnWords(graphics, brush, drawn)) return Ok;
    return graphics.PaintExactly(drawn, graphics.WorldToDevice(), [&](cairo_t* cairo) {
        graphics.SetSource(cairo, brush, drawn);
        cairo_identity_matrix(cairo);
        cairo_rectangle(cairo, drawn.X, drawn.Y, drawn.Width, drawn.Height);
        cairo_fill(cairo);
    });
}

}  // namespace

void ClearTo(Graphics& graphics, ARGB color) {
    DrawingTarget& target = graphics.Target();
    const GpRect area = graphics.Drawable({0, 0, target.Width(), target.Height()});
    if (IsEmpty(area)) return;
    ForEachDrawable(graphics, area, [&](const GpRect& box) { target.Store(box, color); });
}

GpStatus FillRectangle(Graphics& graphics, const Brush& brush, const GpRectF& rect) {
    if (!(rect.Width > 0 && rect.Height > 0)) return Ok;
    if (const auto pixels = WholePixels(graphics, rect))
        return FillPixels(graphics, brush, *pixels);
    return FillShape(graphics, brush, Outlines({rect}), FillModeAlternate);
}

}  // namespace vxgui::gdiplus
