#include "vxgui/platform/gdiplus/text/MaskGlyphs.h"

#include <cmath>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"

namespace vxgui::gdiplus {
namespace {

struct Step {
    INT whole;
    int phase;
};

Step StepOf(double at, bool whole) {
    constexpr int kPhases = GlyphMasks::kPhases;
    if (whole) return {DeviceInt(std::floor(at + 0.5)), 0};
    const double steps = std::floor(at * kPhases + 0.5);
    const double pixel = std::floor(steps / kPhases);
    return {DeviceInt(pixel), static_cast<int>(steps - pixel * kPhases)};
}

}  // namespace

GlyphLook LookOf(const StringLayout& layout, const MaskPlace& place, bool turned) {
    const auto em = static_cast<REAL>(layout.em);
    Affine world = place.world;
    world.dx = world.dy = 0;
    const Affine own = turned ? Affine{0, em, -em, 0, 0, 0} : Affine{em, 0, 0, em, 0, 0};
    return {own * world, place.IsMono(), place.IsFitted()};
}

std::vector<MaskGlyph> FindMaskGlyphs(const StringLayout& layout, const MaskPlace& place) {
    const GlyphLook looks[] = {LookOf(layout, place, false), LookOf(layout, place, true)};
    const bool whole = place.IsFitted() || place.IsMono();
    GlyphMasks& masks = FontEngine::Here().Glyphs();
    std::vector<MaskGlyph> found;
    found.reserve(layout.glyphs.size());
    for (const PlacedGlyph& glyph : layout.glyphs) {
        const GlyphLook& look = looks[glyph.turned];
        const GpPointF pen =
            place.world.Apply({static_cast<REAL>(glyph.x), static_cast<REAL>(glyph.y)});
        const Step x = StepOf(pen.X, whole);
        const Step y = StepOf(pen.Y, whole || look.Upright());  // upright lines on whole pixels
        auto image =
            masks.Find(layout.typeface->Face(glyph.face), glyph.index, look, x.phase, y.phase);
        if (image->coverage.empty()) continue;
        const INT left = x.whole + image->left, top = y.whole - image->top;
        found.push_back({std::move(image), left, top});
    }
    return found;
}

}  // namespace vxgui::gdiplus
