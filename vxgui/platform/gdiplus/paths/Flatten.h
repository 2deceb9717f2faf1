#pragma once

#include <array>

#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/Vec.h"

namespace vxgui::gdiplus {

using Bezier = std::array<Vec, 4>;

Vec PointOf(const Bezier& curve, double t);
/// How many chords of equal steps stay within `flatness` of the curve (Wang's bound).
int ChordsOf(const Bezier& curve, double flatness);

/// Calls `visit(point, type, smooth)` for each point of the path with its curves as lines, mapped
/// by `map`, no line further than `flatness` from its curve. `type` is a start or line with the
/// flags of the path's own point; `smooth` holds for points within a curve.
template <class Visit>
void VisitFlattened(const PathPoints& path, const Affine& map, double flatness, Visit visit) {
    const auto at = [&](size_t i) { return Mapped(map, Vec(path.points[i])); };
    for (size_t i = 0; i < path.Count(); ++i) {
        if (path.Kind(i) != PathPointTypeBezier) {
            visit(at(i), path.types[i], false);
            continue;
        }
        const Bezier curve{at(i - 1), at(i), at(i + 1), at(i + 2)};
        i += 2;
        const int chords = ChordsOf(curve, flatness);
        for (int chord = 1; chord < chords; ++chord) {
            visit(PointOf(curve, double(chord) / chords), int{PathPointTypeLine}, true);
        }
        const int flags = path.types[i] & ~PathPointTypePathTypeMask;
        visit(curve[3], flags | PathPointTypeLine, false);
    }
}

/// The path with lines for its curves.
PathPoints Flattened(const PathPoints& path, const Affine& map, double flatness);
/// What the path fills, figure by figure.
Polygons FilledPolygons(const PathPoints& path, const Affine& map, double flatness);

}  // namespace vxgui::gdiplus
