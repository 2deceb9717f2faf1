#include "vxgui/platform/gdiplus/paths/Flatten.h"

#include <algorithm>

namespace vxgui::gdiplus {

Vec PointOf(const Bezier& c, double t) {
    const Vec a = Between(c[0], c[1], t), b = Between(c[1], c[2], t), d = Between(c[2], c[3], t);
    return Between(Between(a, b, t), Between(b, d, t), t);
}

int ChordsOf(const Bezier& c, double flatness) {
    constexpr double kFinest = 1.0 / 1024, kMost = 4096;
    const double bend =
        std::max((c[0] - c[1] * 2 + c[2]).Length(), (c[1] - c[2] * 2 + c[3]).Length());
    const double chords = std::ceil(std::sqrt(0.75 * bend / std::max(flatness, kFinest)));
    return static_cast<int>(std::isfinite(chords) ? std::clamp(chords, 1.0, kMost) : 1);
}

PathPoints Flattened(const PathPoints& path, const Affine& map, double flatness) {
    PathPoints result;
    VisitFlattened(path, map, flatness,
                   [&](Vec point, int type, bool) { result.Add(ToPointF(point), type); });
    return result;
}

Polygons FilledPolygons(const PathPoints& path, const Affine& map, double flatness) {
    Polygons result;
    VisitFlattened(path, map, flatness, [&](Vec point, int type, bool) {
        const int kind = type & PathPointTypePathTypeMask;
        if (kind == PathPointTypeStart || result.empty()) result.emplace_back();
        result.back().push_back(point);
    });
    return result;
}

}  // namespace vxgui::gdiplus
