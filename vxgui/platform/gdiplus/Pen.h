#pragma once

#include <vector>

#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::gdiplus {

/// What a pen handle names.
class Pen final : public FlatObject {
public:
    Pen(Ref<Brush> brush, REAL width, Unit unit)
        : brush(std::move(brush)), width(width), unit(unit) {}

    Ref<Brush> brush;  ///< the pen's own
    REAL width;
    Unit unit;
    LineCap startCap = LineCapFlat, endCap = LineCapFlat;
    DashCap dashCap = DashCapFlat;
    LineJoin lineJoin = LineJoinMiter;
    REAL miterLimit = 10;
    PenAlignment alignment = PenAlignmentCenter;
    Affine transform;
    DashStyle dashStyle = DashStyleSolid;
    REAL dashOffset = 0;
    std::vector<REAL> dashes;    ///< in pen widths
    std::vector<REAL> compound;  ///< shares of the width, ascending, from 0 to 1
};

}  // namespace vxgui::gdiplus
