#pragma once

#include <cairo.h>

#include <memory>

#include "tests/platform/gdiplus_geometry/GeometryTestSupport.h"
#include "tests/support/Golden.h"
#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/Stroke.h"

namespace vxgui::gdiplus {

inline PathPoints Points(const std::vector<GpPointF>& points, bool closed = false) {
    PathPoints path;
    for (const GpPointF& point : points) path.Add(point, path.IsEmpty() ? 0 : 1);
    if (closed) path.types.back() |= PathPointTypeCloseSubpath;
    return path;
}
inline PathPoints Curve(GpPointF a, GpPointF b, GpPointF c, GpPointF d) {
    PathPoints path;
    path.Add(a, PathPointTypeStart);
    for (const GpPointF& point : {b, c, d}) path.Add(point, PathPointTypeBezier);
    return path;
}

inline PenSettings PenOf(REAL width) {
    PenSettings pen;
    pen.width = width;
    return pen;
}

/// White pixels on which strokes are drawn in black.
class Sheet {
public:
    Sheet(int width, int height)
        : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)),
          cairo_(cairo_create(surface_.get())) {
        cairo_set_source_rgb(cairo_.get(), 1, 1, 1);
        cairo_paint(cairo_.get());
        cairo_set_source_rgb(cairo_.get(), 0, 0, 0);
    }

    void Draw(const PenSettings& pen, const PathPoints& path, const StrokePlace& place = {}) {
        const cairo_matrix_t matrix = CairoMatrix(place.worldToDevice);
        cairo_set_matrix(cairo_.get(), &matrix);
        StrokePath(cairo_.get(), pen, path, place);
    }
    test::TestPicture Picture() const {
        cairo_surface_flush(surface_.get());
        test::TestPicture picture;
        picture.width = cairo_image_surface_get_width(surface_.get());
        picture.height = cairo_image_surface_get_height(surface_.get());
        const auto stride = static_cast<size_t>(cairo_image_surface_get_stride(surface_.get()));
        for (int y = 0; y < picture.height; ++y) {
            const auto* row = reinterpret_cast<const uint32_t*>(
                cairo_image_surface_get_data(surface_.get()) + static_cast<size_t>(y) * stride);
            for (int x = 0; x < picture.width; ++x) picture.pixels.push_back(row[x] | 0xFF000000);
        }
        return picture;
    }
    /// The area that is black, in pixels.
    double Area() const {
        double area = 0;
        for (const uint32_t pixel : Picture().pixels) area += 1 - (pixel & 255) / 255.0;
        return area;
    }
    bool IsBlack(int x, int y) const { return (Picture().At(x, y) & 255) < 128; }

private:
    struct Release {
        void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
        void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
    };
    std::unique_ptr<cairo_surface_t, Release> surface_;
    std::unique_ptr<cairo_t, Release> cairo_;
};

}  // namespace vxgui::gdiplus
