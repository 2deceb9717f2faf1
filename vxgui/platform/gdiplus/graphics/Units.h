#pragma once

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// The pixels of one unit of length. A display and a world have no size of their own: theirs is
/// the pixel.
constexpr REAL PixelsPer(Unit unit, REAL dpi) {
    switch (unit) {
        case UnitPoint:
            return dpi / 72;
        case UnitInch:
            return dpi;
        case UnitDocument:
            return dpi / 300;
        case UnitMillimeter:
            return dpi / 25.4f;
        default:
            return 1;
    }
}

}  // namespace vxgui::gdiplus
