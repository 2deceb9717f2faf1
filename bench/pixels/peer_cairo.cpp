#include <cairo.h>

#include "bench/pixels/Works.h"

namespace vxgui::bench {
namespace {

std::shared_ptr<cairo_surface_t> SurfaceOver(const std::shared_ptr<Pixels>& pixels) {
    return {cairo_image_surface_create_for_data(pixels->Bytes(), CAIRO_FORMAT_ARGB32, pixels->width,
                                                pixels->height, pixels->Stride()),
            [pixels](cairo_surface_t* surface) { cairo_surface_destroy(surface); }};
}

auto Paints(bool runs, int alpha) {
    return [=](int side) {
        return [=] {
            const auto source =
                SurfaceOver(Square(side, Premultiplied(StraightPicture(side, side, runs))));
            const auto target = SurfaceOver(Target(side));
            const std::shared_ptr<cairo_t> cairo(cairo_create(target.get()), cairo_destroy);
            return [=, kept = target] {
                cairo_set_source_surface(cairo.get(), source.get(), 0, 0);
                alpha < 255 ? cairo_paint_with_alpha(cairo.get(), alpha / 255.0)
                            : cairo_paint(cairo.get());
            };
        };
    };
}

const bool kAdded = [] {
    AddSides("over", "cairo", Paints(false, 255));
    AddSides("over-runs", "cairo", Paints(true, 255));
    AddSides("over-constant", "cairo", Paints(false, kOverConstant));
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
