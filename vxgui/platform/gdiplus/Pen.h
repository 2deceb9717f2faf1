#pragma once

#include <vector>

#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::gdiplus {

/// What a pen is besides its paint.
struct PenSettings {
    REAL width = 1;
    Unit unit = UnitWorld;
    LineCap startCap = LineCapFlat, endCap = LineCapFlat;
    DashCap dashCap = DashCapFlat;
    LineJoin lineJoin = LineJoinMiter;
    REAL miterLimit = 10;
    PenAlignment alignment = PenAlignmentCenter;
    Affine transform;
    DashStyle dashStyle = DashStyleSolid;
    REAL dashOffset = 0;
    std::vector<REAL> dashes;    ///< in pen widths; empty for a solid line
    std::vector<REAL> compound;  ///< shares of the width, ascending, from 0 to 1
};

/// What a pen handle names.
class Pen final : public FlatObject, public PenSettings {
public:
    Pen(Ref<Brush> brush, PenSettings settings)
        : PenSettings(std::move(settings)), brush(std::move(brush)) {}

    Ref<Brush> brush;  ///< the pen's own
};

}  // namespace vxgui::gdiplus
