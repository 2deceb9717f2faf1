#include "vxgui/platform/gdiplus/paths/Warp.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/paths/Flatten.h"

namespace vxgui::gdiplus {

Warp::Warp(const GpRectF& source, const Corners& corners, WarpMode mode)
    : source_(source.X, source.Y), size_(source.Width, source.Height), start_(corners[0]) {
    const auto [upperLeft, upperRight, lowerLeft, lowerRight] = corners;
    across_ = upperRight - upperLeft;
    down_ = lowerLeft - upperLeft;
    const Vec rest = upperLeft - upperRight - lowerLeft + lowerRight;
    const Vec right = upperRight - lowerRight, bottom = lowerLeft - lowerRight;
    const double area = Cross(right, bottom);
    if (mode == WarpModeBilinear || area == 0) {
        both_ = rest;
        return;
    }
    // Heckbert, Fundamentals of Texture Mapping and Image Warping, 1989: square to quadrilateral.
    pull_ = {Cross(rest, bottom) / area, Cross(right, rest) / area};
    across_ = across_ + upperRight * pull_.x;
    down_ = down_ + lowerLeft * pull_.y;
}

Vec Warp::Map(Vec point) const {
    constexpr double kHorizon = 1e-6;  // what lies behind the eye has no place
    const double u = (point.x - source_.x) / size_.x, v = (point.y - source_.y) / size_.y;
    const double depth = std::max(Dot(pull_, {u, v}) + 1, kHorizon);
    return (start_ + across_ * u + down_ * v + both_ * (u * v)) * (1 / depth);
}

namespace {

/// Splits a mapped curve until its chords are flat.
template <class Curve>
class Chords {
public:
    Chords(Curve curve, double flatness, PathPoints& out)
        : curve_(curve), flatness_(flatness), out_(out) {}

    void Add() const { Split(0, curve_(0), 1, curve_(1), 0); }

private:
    bool IsFlat(double from, Vec start, double to, Vec end) const {
        const Vec chord = end - start;
        const double length = std::max(chord.Length(), 1e-12);
        for (const double share : {0.25, 0.5, 0.75}) {
            const Vec off = curve_(std::lerp(from, to, share)) - start;
            const double along = std::clamp(Dot(off, chord) / (length * length), 0.0, 1.0);
            if ((off - chord * along).Length() > flatness_) return false;
        }
        return true;
    }
    void Split(double from, Vec start, double to, Vec end, int depth) const {
        constexpr int kDeepest = 12;
        if (depth == kDeepest || IsFlat(from, start, to, end)) {
            out_.Add(ToPointF(end), PathPointTypeLine);
            return;
        }
        const double middle = (from + to) / 2;
        const Vec split = curve_(middle);
        Split(from, start, middle, split, depth + 1);
        Split(middle, split, to, end, depth + 1);
    }

    Curve curve_;
    double flatness_;
    PathPoints& out_;
};

}  // namespace

PathPoints Warped(const PathPoints& path, const Warp& warp, const Affine& after, double flatness) {
    constexpr double kFinest = 1.0 / 1024;
    const auto map = [&](Vec point) { return Mapped(after, warp.Map(point)); };
    const auto at = [&](size_t i) { return Vec(path.points[i]); };
    PathPoints result;
    const auto add = [&](auto curve) { Chords(curve, std::max(flatness, kFinest), result).Add(); };
    for (size_t i = 0; i < path.Count(); ++i) {
        const BYTE kind = path.Kind(i);
        if (kind == PathPointTypeStart) {
            result.Add(ToPointF(map(at(i))), kind);
        } else if (kind == PathPointTypeLine) {
            add([&, i](double t) { return map(Between(at(i - 1), at(i), t)); });
        } else {
            const Bezier curve{at(i - 1), at(i), at(i + 1), at(i + 2)};
            add([&](double t) { return map(PointOf(curve, t)); });
            i += 2;
        }
        result.types.back() |= path.types[i] & ~PathPointTypePathTypeMask;
    }
    return result;
}

}  // namespace vxgui::gdiplus
