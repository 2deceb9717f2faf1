#include "vxgui/platform/gdiplus/graphics/PixelsOfPath.h"

#include <new>

#include "vxgui/platform/gdiplus/Stroke.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"

namespace vxgui::gdiplus {
namespace {

Surface Mask(const PathPoints& path, FillMode mode, const GpRect& box) {
    Surface mask(cairo_image_surface_create(CAIRO_FORMAT_A8, box.Width, box.Height));
    cairo_t* const cairo = cairo_create(mask.get());
    cairo_translate(cairo, -box.X, -box.Y);
    cairo_set_antialias(cairo, CAIRO_ANTIALIAS_NONE);
    cairo_set_fill_rule(
        cairo, mode == FillModeWinding ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD);
    AppendPath(cairo, path);
    cairo_fill(cairo);
    const bool good = cairo_status(cairo) == CAIRO_STATUS_SUCCESS;
    cairo_destroy(cairo);
    cairo_surface_flush(mask.get());
    if (!good) throw std::bad_alloc();
    return mask;
}

// Appends the runs of covered bytes of a row.
void AppendRuns(const uint8_t* row, const GpRect& box, INT y, std::vector<pixman_box32_t>* runs) {
    for (INT x = 0; x < box.Width; ++x) {
        if (!row[x]) continue;
        const INT from = x;
        while (x < box.Width && row[x]) ++x;
        runs->push_back({box.X + from, y, box.X + x, y + 1});
    }
}

}  // namespace

gdi::PixelRegion PixelsOfPath(const PathPoints& path, FillMode mode, const GpRect& within) {
    if (within.Width <= 0 || within.Height <= 0) return {};
    const Surface mask = Mask(path, mode, within);
    const uint8_t* row = cairo_image_surface_get_data(mask.get());
    const int stride = cairo_image_surface_get_stride(mask.get());
    std::vector<pixman_box32_t> runs;
    for (INT y = within.Y; y < within.Y + within.Height; ++y, row += stride) {
        AppendRuns(row, within, y, &runs);
    }
    return gdi::PixelRegion::FromBoxes(runs);
}

}  // namespace vxgui::gdiplus
