#pragma once

#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus/Vec.h"

namespace vxgui::gdiplus {

struct Corner {
    Vec at;
    bool smooth;  ///< within a curve, whatever the pen's join
};

/// A line of corners, no two alike next to each other; closed, the last goes on to the first.
struct Line {
    std::vector<Corner> corners;
    bool closed = false;
};

/// The figures of a path as lines, mapped by `map`.
std::vector<Line> LinesOf(const PathPoints& path, const Affine& map, double flatness);

/// A cap and where it sits.
struct PlacedCap {
    LineCap cap;
    Vec at;
    Vec outward;   ///< of length 1
    bool atStart;  ///< of the line that it ends
};

/// What a pen draws of a figure: the dashes, without their caps, and the caps.
struct DashedLine {
    std::vector<Line> dashes;
    std::vector<PlacedCap> caps;
};
DashedLine Dashed(const Line& line, const PenSettings& pen, double width);

}  // namespace vxgui::gdiplus
