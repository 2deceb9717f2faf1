#include "vxgui/platform/gdiplus/strokes/PlainStroke.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/CairoMatrix.h"

namespace vxgui::gdiplus {
namespace {

cairo_line_cap_t CairoCap(LineCap cap) {
    if (cap == LineCapRound) return CAIRO_LINE_CAP_ROUND;
    return cap == LineCapSquare ? CAIRO_LINE_CAP_SQUARE : CAIRO_LINE_CAP_BUTT;
}

cairo_line_join_t CairoJoin(LineJoin join) {
    if (join == LineJoinRound) return CAIRO_LINE_JOIN_ROUND;
    return join == LineJoinBevel ? CAIRO_LINE_JOIN_BEVEL : CAIRO_LINE_JOIN_MITER;
}

void SetDashes(cairo_t* cairo, const PenSettings& pen, double width) {
    std::vector<double> lengths(pen.dashes.begin(), pen.dashes.end());
    for (double& length : lengths) length *= width;
    cairo_set_dash(cairo, lengths.data(), static_cast<int>(lengths.size()), pen.dashOffset * width);
}

}  // namespace

bool StrokePlainly(cairo_t* cairo, const PenSettings& pen, const PathPoints& path, const Nib& nib) {
    cairo_save(cairo);
    AppendPath(cairo, path);
    const cairo_matrix_t space = CairoMatrix(nib.space);
    cairo_transform(cairo, &space);
    cairo_set_line_width(cairo, nib.width);
    cairo_set_line_cap(cairo, CairoCap(pen.startCap));
    cairo_set_line_join(cairo, CairoJoin(pen.lineJoin));
    cairo_set_miter_limit(cairo, std::max<double>(1, pen.miterLimit));
    SetDashes(cairo, pen, nib.width);
    cairo_stroke(cairo);
    cairo_restore(cairo);
    return true;
}

}  // namespace vxgui::gdiplus
