#include "vxgui/platform/gdiplus/brushes/Patterns.h"

#include "vxgui/platform/gdiplus/CairoMatrix.h"

namespace vxgui::gdiplus {
namespace {

double Share(ARGB color, int shift) { return (color >> shift & 255) / 255.0; }

}  // namespace

Pattern ClearPattern() { return SolidPattern(0); }

Pattern SolidPattern(ARGB color) {
    return Pattern(cairo_pattern_create_rgba(Share(color, 16), Share(color, 8), Share(color, 0),
                                             Share(color, 24)));
}

Pattern SurfacePattern(const Surface& surface, const Affine& worldToSurface, cairo_extend_t extend,
                       cairo_filter_t filter) {
    if (!surface) return nullptr;
    Pattern pattern(cairo_pattern_create_for_surface(surface.get()));
    const cairo_matrix_t matrix = CairoMatrix(worldToSurface);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
    cairo_pattern_set_extend(pattern.get(), extend);
    cairo_pattern_set_filter(pattern.get(), filter);
    return pattern;
}

Surface MakeSurface(INT width, INT height) {
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height));
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS ? std::move(surface)
                                                                       : nullptr;
}

}  // namespace vxgui::gdiplus
