#include "vxgui/platform/gdiplus/brushes/HatchBrush.h"

#include "vxgui/platform/gdiplus/words/Premultiply.h"
#include "vxgui/platform/gdiplus/brushes/HatchCells.h"
#include "vxgui/platform/gdiplus/brushes/Patterns.h"

namespace vxgui::gdiplus {
namespace {

// Two premultiplied colours, each by its share of 255.
uint32_t Mixed(uint32_t front, uint32_t back, uint32_t share) {
    uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const uint32_t sum = (front >> shift & 255) * share + (back >> shift & 255) * (255 - share);
        result |= (sum + 127) / 255 << shift;
    }
    return result;
}

}  // namespace

Pattern HatchBrush::MakePattern(const PatternPlace& place) const {
    const Surface surface = MakeSurface(kHatchSize, kHatchSize);
    if (!surface) return nullptr;
    const auto cell = HatchCell(style);
    const uint32_t front = Premultiplied(foreground), back = Premultiplied(background);
    for (int y = 0; y < kHatchSize; ++y) {
        uint32_t* const row = RowOf(surface, y);
        for (int x = 0; x < kHatchSize; ++x) {
            row[x] = Mixed(front, back, cell[static_cast<size_t>(y * kHatchSize + x)]);
        }
    }
    cairo_surface_mark_dirty(surface.get());
    // Whole cells more or less change nothing, and small numbers keep their fractions.
    const Affine toCell = place.worldToDevice *
                          Affine::Translation(static_cast<REAL>(-(place.origin.X % kHatchSize)),
                                              static_cast<REAL>(-(place.origin.Y % kHatchSize)));
    return SurfacePattern(surface, toCell, CAIRO_EXTEND_REPEAT);
}

}  // namespace vxgui::gdiplus
