#include "vxgui/platform/gdiplus/text/GlyphOutline.h"

#include FT_OUTLINE_H

#include "vxgui/base/Rounding.h"

namespace vxgui::gdiplus {
namespace {

// One outline on its way to a sink: FreeType's quadratic curves become cubic ones.
class Decomposer {
public:
    Decomposer(const Affine& place, FigureSink& sink) : place_(place), sink_(sink) {}

    void Run(FT_Outline& outline) {
        static constexpr FT_Outline_Funcs kCalls = {MoveTo, LineTo, ConicTo, CubicTo, 0, 0};
        FT_Outline_Decompose(&outline, &kCalls, this);
        End();
    }

private:
    static Decomposer& Self(void* user) { return *static_cast<Decomposer*>(user); }
    static int MoveTo(const FT_Vector* to, void* user) {
        Self(user).End();
        Self(user).Begin(*to);
        return 0;
    }
    static int LineTo(const FT_Vector* to, void* user) {
        Self(user).sink_.Line(Self(user).last_ = Self(user).Place(*to));
        return 0;
    }
    static int ConicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
        Decomposer& self = Self(user);
        const GpPointF from = self.last_, middle = self.Place(*control);
        self.last_ = self.Place(*to);
        self.sink_.Curve(Towards(from, middle), Towards(self.last_, middle), self.last_);
        return 0;
    }
    static int CubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to,
                       void* user) {
        Decomposer& self = Self(user);
        self.last_ = self.Place(*to);
        self.sink_.Curve(self.Place(*control1), self.Place(*control2), self.last_);
        return 0;
    }

    // Two thirds of the way.
    static GpPointF Towards(GpPointF from, GpPointF to) {
        return {from.X + (to.X - from.X) * 2 / 3, from.Y + (to.Y - from.Y) * 2 / 3};
    }
    GpPointF Place(const FT_Vector& point) const {
        return place_.Apply({static_cast<REAL>(point.x), static_cast<REAL>(point.y)});
    }
    void Begin(const FT_Vector& at) {
        sink_.Move(last_ = Place(at));
        open_ = true;
    }
    void End() {
        if (open_) sink_.Close();
        open_ = false;
    }

    const Affine place_;
    FigureSink& sink_;
    GpPointF last_{};
    bool open_ = false;
};

// From design units, which point up, to where a glyph stands.
Affine PlaceOf(const PlacedGlyph& glyph, double unit, bool oblique) {
    const auto u = static_cast<REAL>(unit), x = static_cast<REAL>(glyph.x),
               y = static_cast<REAL>(glyph.y);
    const Affine slant{1, 0, oblique ? static_cast<REAL>(kObliqueSlope) : 0, 1, 0, 0};
    const Affine upright{u, 0, 0, -u, x, y};
    const Affine turned{0, u, u, 0, x, y};
    return slant * (glyph.turned ? turned : upright);
}

void DrawGlyph(const StringLayout& layout, const PlacedGlyph& glyph, const Affine& place,
               FigureSink& sink) {
    const DrawnFace& drawn = layout.typeface->Face(glyph.face);
    if (!drawn.face || !FT_IS_SCALABLE(drawn.face->Handle())) return;
    FT_GlyphSlot slot = drawn.face->Handle()->glyph;
    if (FT_Load_Glyph(drawn.face->Handle(), glyph.index, FT_LOAD_NO_SCALE) != 0) return;
    const int32_t unitsPerEm = drawn.face->Design().unitsPerEm;
    if (drawn.bold)
        FT_Outline_Embolden(&slot->outline, RoundHalfEven(unitsPerEm / kEmboldenDivisor));
    Decomposer(PlaceOf(glyph, layout.em / unitsPerEm, drawn.oblique) * place, sink)
        .Run(slot->outline);
}

void DrawBar(const GpRectF& bar, const Affine& place, FigureSink& sink) {
    sink.Move(place.Apply({bar.X, bar.Y}));
    sink.Line(place.Apply({bar.X + bar.Width, bar.Y}));
    sink.Line(place.Apply({bar.X + bar.Width, bar.Y + bar.Height}));
    sink.Line(place.Apply({bar.X, bar.Y + bar.Height}));
    sink.Close();
}

}  // namespace

void DrawFigures(const StringLayout& layout, const Affine& place, FigureSink& sink) {
    for (const PlacedGlyph& glyph : layout.glyphs) DrawGlyph(layout, glyph, place, sink);
    for (const GpRectF& bar : layout.bars) DrawBar(bar, place, sink);
}

}  // namespace vxgui::gdiplus
