#pragma once

#include "vxgui/platform/gdiplus/strokes/Lines.h"

namespace vxgui::gdiplus {

/// Covers lines with polygons that are filled by winding, all of one direction.
class Stroker {
public:
    Stroker(double width, LineJoin join, double miterLimit, double tolerance, Polygons& out)
        : half_(width / 2),
          join_(join),
          limit_(std::max(1.0, miterLimit)),
          tolerance_(tolerance),
          out_(out) {}

    /// The line with its joins and flat ends.
    void Cover(const Line& line);
    void Add(Polygon polygon);

private:
    void Segment(Vec from, Vec to);
    void Join(Vec before, const Corner& corner, Vec after);
    void Miter(Vec at, Vec in, Vec out, double side);

    double half_;
    LineJoin join_;
    double limit_;
    double tolerance_;
    Polygons& out_;
};

/// Where two lines at a corner turn by an angle: its length's ratio to the line's width if their
/// edges are prolonged to where they meet.
double MiterRatio(Vec in, Vec out);

/// The line that runs beside a line, `offset` to its right, with corners as `join` makes them.
Line Beside(const Line& line, double offset, LineJoin join, double miterLimit, double tolerance);

}  // namespace vxgui::gdiplus
