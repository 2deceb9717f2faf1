#include "vxgui/platform/gdiplus/paths/PolygonSets.h"

#include <algorithm>
#include <clipper.hpp>

namespace vxgui::gdiplus {
namespace {

/// The library computes on integers: as fine ones as fit its quick range.
class Lattice {
public:
    explicit Lattice(std::initializer_list<const Polygons*> all) {
        double reach = 1e-6;
        for (const Polygons* polygons : all) {
            for (const Polygon& polygon : *polygons) {
                for (const Vec p : polygon) {
                    if (p.IsFinite()) reach = std::max({reach, std::abs(p.x), std::abs(p.y)});
                }
            }
        }
        scale_ = std::ldexp(1, 29 - std::ilogb(reach));
    }

    ClipperLib::Paths Enter(const Polygons& polygons) const {
        ClipperLib::Paths result;
        for (const Polygon& polygon : polygons) {
            ClipperLib::Path path;
            for (const Vec p : polygon) {
                if (p.IsFinite()) path.emplace_back(Step(p.x), Step(p.y));
            }
            result.push_back(std::move(path));
        }
        return result;
    }
    Polygons Leave(const ClipperLib::Paths& paths) const {
        Polygons result;
        for (const ClipperLib::Path& path : paths) {
            if (path.size() < 3) continue;
            Polygon& polygon = result.emplace_back();
            for (const auto& p : path) {
                polygon.emplace_back(static_cast<double>(p.X) / scale_,
                                     static_cast<double>(p.Y) / scale_);
            }
        }
        return result;
    }

private:
    ClipperLib::cInt Step(double value) const {
        return static_cast<ClipperLib::cInt>(std::llround(value * scale_));
    }

    double scale_;
};

ClipperLib::PolyFillType Rule(FillMode mode) {
    return mode == FillModeAlternate ? ClipperLib::pftEvenOdd : ClipperLib::pftNonZero;
}

Polygons Finished(const Lattice& lattice, ClipperLib::Paths& paths) {
    ClipperLib::CleanPolygons(paths, 4);  // corners that rounding made
    return lattice.Leave(paths);
}

}  // namespace

Polygons United(const Polygons& polygons, FillMode mode) {
    const Lattice lattice({&polygons});
    ClipperLib::Clipper clipper;
    ClipperLib::Paths result;
    clipper.AddPaths(lattice.Enter(polygons), ClipperLib::ptSubject, true);
    clipper.Execute(ClipperLib::ctUnion, result, Rule(mode), Rule(mode));
    return Finished(lattice, result);
}

Polygons Intersected(const Polygons& a, const Polygons& b, FillMode mode) {
    const Lattice lattice({&a, &b});
    ClipperLib::Clipper clipper;
    ClipperLib::Paths result;
    clipper.AddPaths(lattice.Enter(a), ClipperLib::ptSubject, true);
    clipper.AddPaths(lattice.Enter(b), ClipperLib::ptClip, true);
    clipper.Execute(ClipperLib::ctIntersection, result, ClipperLib::pftNonZero, Rule(mode));
    return Finished(lattice, result);
}

bool Fills(const Polygons& polygons, Vec point, FillMode mode) {
    int winding = 0;
    for (const Polygon& polygon : polygons) {
        for (size_t i = 0; i < polygon.size(); ++i) {
            const Vec a = polygon[i], b = polygon[(i + 1) % polygon.size()];
            const bool down = a.y <= point.y && point.y < b.y;
            const bool up = b.y <= point.y && point.y < a.y;
            if (!down && !up) continue;
            const double x = a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x);
            if (point.x < x) winding += down ? 1 : -1;
        }
    }
    return mode == FillModeAlternate ? winding % 2 != 0 : winding != 0;
}

Polygon CutConvex(const Polygon& polygon, Vec origin, Vec normal, double limit) {
    const auto excess = [&](Vec p) { return Dot(p - origin, normal) - limit; };
    Polygon result;
    for (size_t i = 0; i < polygon.size(); ++i) {
        const Vec a = polygon[i], b = polygon[(i + 1) % polygon.size()];
        const double overA = excess(a), overB = excess(b);
        if (overA <= 0) result.push_back(a);
        if ((overA < 0 && overB > 0) || (overA > 0 && overB < 0)) {
            result.push_back(Between(a, b, overA / (overA - overB)));
        }
    }
    return result;
}

}  // namespace vxgui::gdiplus
