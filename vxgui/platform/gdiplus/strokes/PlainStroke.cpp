#include "vxgui/platform/gdiplus/strokes/PlainStroke.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/strokes/DashPattern.h"
#include "vxgui/platform/gdiplus/strokes/Stroker.h"

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

bool IsCairoCap(LineCap cap) {
    return cap == LineCapFlat || cap == LineCapSquare || cap == LineCapRound;
}

bool HasTurnBeyond(const Line& line, REAL limit) {
    const auto& corners = line.corners;
    const size_t count = corners.size();
    for (size_t i = line.closed ? 0 : 1; i + (line.closed ? 0 : 1) < count; ++i) {
        const Vec in = corners[i].at - corners[(i + count - 1) % count].at;
        const Vec out = corners[(i + 1) % count].at - corners[i].at;
        if (MiterRatio(in.Unit(), out.Unit()) > limit) return true;
    }
    return false;
}

/// True when a corner may be too sharp for its miter: cairo would bevel where we clip. The points
/// that steer curves stand in for these, since they turn at least as much.
bool MayClipMiters(const PenSettings& pen, const PathPoints& path, const Nib& nib) {
    if (pen.lineJoin != LineJoinMiter || path.Count() < 3) return false;
    PathPoints steering = path;
    for (BYTE& type : steering.types) {
        if ((type & PathPointTypePathTypeMask) == PathPointTypeBezier)
            type ^= PathPointTypeBezier ^ PathPointTypeLine;
    }
    for (const Line& line : LinesOf(steering, nib.toSpace, 1)) {
        if (HasTurnBeyond(line, std::max<REAL>(1, pen.miterLimit))) return true;
    }
    return false;
}

/// True when cairo's pen draws what the interface asks for.
bool IsPlain(const PenSettings& pen, const PathPoints& path, const Nib& nib) {
    if (!pen.compound.empty() || pen.alignment != PenAlignmentCenter) return false;
    if (pen.startCap != pen.endCap || !IsCairoCap(pen.startCap)) return false;
    const bool flat = pen.startCap == LineCapFlat && pen.dashCap == DashCapFlat;
    return (pen.dashes.empty() || (flat && std::isfinite(pen.dashOffset))) &&
           !MayClipMiters(pen, path, nib);
}

void SetDashes(cairo_t* cairo, const PenSettings& pen, double width) {
    if (pen.dashes.empty()) {
        cairo_set_dash(cairo, nullptr, 0, 0);
        return;
    }
    const DashPattern pattern(pen, width);
    const std::vector<double>& lengths = pattern.Lengths();
    cairo_set_dash(cairo, lengths.data(), static_cast<int>(lengths.size()), pattern.Offset());
}

}  // namespace

bool StrokePlainly(cairo_t* cairo, const PenSettings& pen, const PathPoints& path, const Nib& nib) {
    if (!IsPlain(pen, path, nib)) return false;
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
