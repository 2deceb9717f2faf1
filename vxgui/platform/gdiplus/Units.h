#pragma once

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

constexpr bool IsUnit(Unit unit) { return unit >= UnitWorld && unit <= UnitMillimeter; }

/// The units of a length in an inch; 0 for those that have no length of their own: the world, a
/// display, a pixel.
constexpr double UnitsPerInch(Unit unit) {
    switch (unit) {
        case UnitPoint:
            return 72;
        case UnitInch:
            return 1;
        case UnitDocument:
            return 300;
        case UnitMillimeter:
            return 25.4;
        default:
            return 0;
    }
}

/// The pixels of one unit; 1 for a unit without a length.
constexpr REAL PixelsPer(Unit unit, REAL dpi) {
    const auto units = static_cast<REAL>(UnitsPerInch(unit));
    return units > 0 ? dpi / units : 1;
}

}  // namespace vxgui::gdiplus
