#include "tests/platform/gdiplus_brushes/BrushFixture.h"

#include <memory>

namespace vxgui::test {

TestPicture BrushFixture::Paint(gdiplus::GpBrush* brush, int width, int height,
                                const gdiplus::Affine& world, gdiplus::GpPoint origin) {
    TestPicture picture{width, height, std::vector<uint32_t>(size_t(width) * height)};
    cairo_surface_t* surface =
        cairo_image_surface_create_for_data(reinterpret_cast<uint8_t*>(picture.pixels.data()),
                                            CAIRO_FORMAT_ARGB32, width, height, width * 4);
    cairo_t* cairo = cairo_create(surface);
    const cairo_matrix_t matrix{world.m11, world.m12, world.m21, world.m22, world.dx, world.dy};
    cairo_set_matrix(cairo, &matrix);
    const gdiplus::Pattern pattern =
        gdiplus::Find<gdiplus::Brush>(brush)->MakePattern({world, {0, 0, width, height}, origin});
    cairo_set_source(cairo, pattern.get());
    cairo_paint(cairo);
    cairo_destroy(cairo);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
    return picture;
}

}  // namespace vxgui::test
