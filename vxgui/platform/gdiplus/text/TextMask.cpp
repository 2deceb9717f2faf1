#include "vxgui/platform/gdiplus/text/TextMask.h"

#include <cmath>
#include <new>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/text/MaskFigures.h"
#include "vxgui/platform/gdiplus/text/MaskGlyphs.h"
#include "vxgui/platform/gdiplus/text/TextContrast.h"

namespace vxgui::gdiplus {
namespace {

// A larger em, in pixels, is painted from its outlines: too large to keep, and hints don't show.
constexpr double kLargestEm = 160;

bool Nothing(const GpRect& box) { return IsEmpty(box); }
bool Nothing(const GpRectF& box) { return !(box.Width > 0 && box.Height > 0); }
template <class Rect>
Rect Around(const Rect& a, const Rect& b) {
    if (Nothing(a)) return b;
    if (Nothing(b)) return a;
    const auto left = std::min(a.X, b.X), top = std::min(a.Y, b.Y);
    return {left, top, std::max(a.X + a.Width, b.X + b.Width) - left,
            std::max(a.Y + a.Height, b.Y + b.Height) - top};
}

GpRect BoxOfGlyphs(const std::vector<MaskGlyph>& glyphs, const StringLayout& layout,
                   const Affine& world) {
    GpRect box{};
    for (const MaskGlyph& glyph : glyphs) box = Around(box, glyph.Box());
    for (const GpRectF& bar : layout.bars) {
        const GpRect pixels = PixelsAround(BoxOf(bar, world));
        box = Around(box, {pixels.X - 1, pixels.Y - 1, pixels.Width + 2, pixels.Height + 2});
    }
    return box;
}

// Glyphs reach beyond their cells, but not by more than an em.
GpRect BoxOfOutlines(const StringLayout& layout, const Affine& world) {
    const auto em = static_cast<REAL>(layout.em);
    GpRectF around{};
    for (const PlacedGlyph& glyph : layout.glyphs) {
        const auto x = static_cast<REAL>(glyph.x), y = static_cast<REAL>(glyph.y);
        around = Around(around, GpRectF{x - 2 * em, y - 2 * em, 5 * em, 4 * em});
    }
    for (const GpRectF& bar : layout.bars) around = Around(around, bar);
    return PixelsAround(BoxOf(around, world));
}

// Clear pixels of a box; no surface for an empty one.
TextMask MaskOf(const GpRect& box) {
    TextMask mask{nullptr, box};
    if (IsEmpty(box)) return {};
    mask.surface.reset(cairo_image_surface_create(CAIRO_FORMAT_A8, box.Width, box.Height));
    if (cairo_surface_status(mask.surface.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
    return mask;
}

void Blend(const TextMask& mask, const MaskGlyph& glyph, const ContrastTable& table) {
    const GpRect part = Common(glyph.Box(), mask.box);
    if (IsEmpty(part)) return;
    uint8_t* const bytes = cairo_image_surface_get_data(mask.surface.get());
    const int stride = cairo_image_surface_get_stride(mask.surface.get());
    for (INT y = part.Y; y < part.Y + part.Height; ++y) {
        const uint8_t* from = glyph.image->coverage.data() + (y - glyph.top) * glyph.image->width +
                              part.X - glyph.left;
        uint8_t* to = bytes + ptrdiff_t{y - mask.box.Y} * stride + part.X - mask.box.X;
        for (INT x = 0; x < part.Width; ++x) {
            const int coverage = table[from[x]];
            to[x] = static_cast<uint8_t>(to[x] + coverage - to[x] * coverage / 255);
        }
    }
}

TextMask MaskOfOutlines(const StringLayout& layout, const MaskPlace& place) {
    TextMask mask = MaskOf(Common(BoxOfOutlines(layout, place.world), place.within));
    if (mask.surface) FillOutlines(mask, layout, place);
    return mask;
}

TextMask MaskOfGlyphs(const StringLayout& layout, const MaskPlace& place) {
    const std::vector<MaskGlyph> glyphs = FindMaskGlyphs(layout, place);
    TextMask mask = MaskOf(Common(BoxOfGlyphs(glyphs, layout, place.world), place.within));
    if (!mask.surface) return mask;
    const ContrastTable& table =
        TableOfContrast(place.IsMono() ? kNeutralContrast : place.contrast);
    for (const MaskGlyph& glyph : glyphs) Blend(mask, glyph, table);
    cairo_surface_mark_dirty(mask.surface.get());  // or it counts as clear
    FillBars(mask, layout, place);
    return mask;
}

}  // namespace

TextMask MakeTextMask(const StringLayout& layout, const MaskPlace& place) {
    const double em = layout.em * std::hypot(place.world.m21, place.world.m22);
    return em > kLargestEm ? MaskOfOutlines(layout, place) : MaskOfGlyphs(layout, place);
}

}  // namespace vxgui::gdiplus
