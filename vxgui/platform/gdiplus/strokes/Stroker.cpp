#include "vxgui/platform/gdiplus/strokes/Stroker.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/strokes/Caps.h"

namespace vxgui::gdiplus {

double MiterRatio(Vec in, Vec out) {
    const double cosine = std::sqrt(std::max(0.0, (1 + Dot(in, out)) / 2));  // of half the turn
    return 1 / std::max(cosine, 1e-9);
}

void Stroker::Add(Polygon polygon) {
    double area = 0;
    for (size_t i = 0; i < polygon.size(); ++i) {
        area += Cross(polygon[i] - polygon[0], polygon[(i + 1) % polygon.size()] - polygon[0]);
    }
    if (area == 0) return;
    if (area < 0) std::reverse(polygon.begin(), polygon.end());
    out_.push_back(std::move(polygon));
}

void Stroker::Cover(const Line& line) {
    const auto& corners = line.corners;
    const size_t count = corners.size(), segments = line.closed ? count : count - 1;
    for (size_t i = 0; i < segments; ++i) Segment(corners[i].at, corners[(i + 1) % count].at);
    for (size_t i = line.closed ? 0 : 1; i < segments; ++i) {
        Join(corners[(i + count - 1) % count].at, corners[i], corners[(i + 1) % count].at);
    }
}

void Stroker::Segment(Vec from, Vec to) {
    const Vec side = (to - from).Unit().Right() * half_;
    // The ends of the middle line are corners too, so that joins fit without a crack.
    Add({from + side, to + side, to, to - side, from - side, from});
}

void Stroker::Join(Vec before, const Corner& corner, Vec after) {
    const Vec in = (corner.at - before).Unit(), out = (after - corner.at).Unit();
    const double turn = std::atan2(Cross(in, out), Dot(in, out));
    if (turn == 0) return;
    const double side = turn > 0 ? -half_ : half_;  // the outer side lies away from the turn
    if (corner.smooth || join_ == LineJoinRound) {
        Polygon fan{corner.at};
        AddArc(fan, corner.at, in.Right() * side, turn, tolerance_);
        Add(std::move(fan));
    } else if (join_ == LineJoinBevel) {
        Add({corner.at, corner.at + in.Right() * side, corner.at + out.Right() * side});
    } else {
        Miter(corner.at, in, out, side);
    }
}

void Stroker::Miter(Vec at, Vec in, Vec out, double side) {
    const Vec a = at + in.Right() * side, b = at + out.Right() * side;
    const double ratio = MiterRatio(in, out), cosine = 1 / ratio;
    const double sine = std::sqrt(std::max(0.0, 1 - cosine * cosine));
    if (ratio <= limit_) {
        const double length = half_ * sine / cosine;
        Add({at, a, a + in * length, b});
    } else if (join_ == LineJoinMiterClipped) {
        Add({at, a, b});
    } else {  // cut across at the limit
        const double length = half_ * (limit_ - cosine) / sine;
        Add({at, a, a + in * length, b - out * length, b});
    }
}

}  // namespace vxgui::gdiplus
