#pragma once

#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus/strokes/Ruler.h"

namespace vxgui::gdiplus {

/// A pen's dashes in the units of a line.
class DashPattern {
public:
    DashPattern(const PenSettings& pen, double width);

    /// The dashes that lie within `whole`, cut at its ends; all of it for a pen without dashes.
    std::vector<Stretch> Within(const Stretch& whole) const;

private:
    bool IsSensible(const Stretch& whole) const;

    std::vector<double> lengths_;  // an even number
    double offset_;
    double total_ = 0;
};

}  // namespace vxgui::gdiplus
