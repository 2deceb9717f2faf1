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

    const std::vector<double>& Lengths() const { return lengths_; }
    /// How far into the pattern a line begins: less than the pattern's length, 0 or more.
    double Offset() const { return offset_; }

private:
    bool IsSensible(const Stretch& whole) const;

    std::vector<double> lengths_;  // an even number
    double offset_;
    double total_ = 0;
};

}  // namespace vxgui::gdiplus
