#include "vxgui/platform/gdiplus/strokes/Caps.h"
#include "vxgui/platform/gdiplus/strokes/Stroker.h"

namespace vxgui::gdiplus {
namespace {

/// Makes the corners of a line beside another.
class Parallel {
public:
    Parallel(double offset, LineJoin join, double miterLimit, double tolerance)
        : offset_(offset), join_(join), limit_(miterLimit), tolerance_(tolerance) {}

    void AddEnd(Vec at, Vec direction) { Add(at + direction.Right() * offset_, false); }

    void AddCorner(Vec before, const Corner& corner, Vec after) {
        const Vec in = (corner.at - before).Unit(), out = (after - corner.at).Unit();
        const double turn = std::atan2(Cross(in, out), Dot(in, out));
        const bool outer = turn * offset_ < 0;
        const double ratio = MiterRatio(in, out);
        if (outer && (corner.smooth || join_ == LineJoinRound)) {
            AddRound(corner.at, in.Right() * offset_, turn);
        } else if (ratio > limit_ || (outer && join_ == LineJoinBevel)) {
            AddEnd(corner.at, in);
            AddEnd(corner.at, out);
        } else {
            const Vec middle = (in.Right() + out.Right()).Unit();
            Add(corner.at + middle * (offset_ * ratio), corner.smooth);
        }
    }

    Line Take() { return std::move(line_); }

private:
    void AddRound(Vec at, Vec start, double turn) {
        Polygon arc;
        AddArc(arc, at, start, turn, tolerance_);
        for (const Vec point : arc) Add(point, true);
    }
    void Add(Vec at, bool smooth) {
        if (line_.corners.empty() || line_.corners.back().at != at) {
            line_.corners.push_back({at, smooth});
        }
    }

    double offset_;
    LineJoin join_;
    double limit_;
    double tolerance_;
    Line line_;
};

}  // namespace

Line Beside(const Line& line, double offset, LineJoin join, double miterLimit, double tolerance) {
    const auto& corners = line.corners;
    const size_t count = corners.size();
    Parallel parallel(offset, join, miterLimit, tolerance);
    if (!line.closed) parallel.AddEnd(corners[0].at, (corners[1].at - corners[0].at).Unit());
    for (size_t i = line.closed ? 0 : 1; i < (line.closed ? count : count - 1); ++i) {
        parallel.AddCorner(corners[(i + count - 1) % count].at, corners[i],
                           corners[(i + 1) % count].at);
    }
    if (!line.closed) {
        parallel.AddEnd(corners.back().at, (corners.back().at - corners[count - 2].at).Unit());
    }
    Line result = parallel.Take();
    result.closed = line.closed;
    return result;
}

}  // namespace vxgui::gdiplus
