#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus/Units.h"
#include "vxgui/platform/gdiplus_pen.h"

namespace vxgui::gdiplus {
namespace {

bool IsKnown(REAL) { return true; }
bool IsKnown(Unit unit) { return IsUnit(unit); }
bool IsKnown(LineCap cap) {
    return (cap >= LineCapFlat && cap <= LineCapTriangle) ||
           (cap >= LineCapNoAnchor && cap <= LineCapArrowAnchor) || cap == LineCapCustom;
}
bool IsKnown(DashCap cap) {
    return cap == DashCapFlat || cap == DashCapRound || cap == DashCapTriangle;
}
bool IsKnown(LineJoin join) { return join >= LineJoinMiter && join <= LineJoinMiterClipped; }
bool IsKnown(PenAlignment mode) { return mode == PenAlignmentCenter || mode == PenAlignmentInset; }

/// Sets one field, when the value is one of its enumeration.
template <class Value>
GpStatus Set(GpPen* pen, Value PenSettings::*field, Value value) {
    if (!IsKnown(value)) return InvalidParameter;
    return FlatSet<Pen>(pen, [&](Pen& found) { found.*field = value; });
}

template <class Value>
GpStatus Get(GpPen* pen, Value PenSettings::*field, Value* value) {
    return FlatGet<Pen>(pen, value, [&](Pen& found) { return found.*field; });
}

}  // namespace

extern "C" {

/// The setter and the getter of a field, by the field's name in theirs.
#define VXGUI_PEN_FIELD(Name, field)                                             \
    GpStatus GdipSetPen##Name(GpPen* pen, decltype(PenSettings::field) value) {  \
        return Set(pen, &PenSettings::field, value);                             \
    }                                                                            \
    GpStatus GdipGetPen##Name(GpPen* pen, decltype(PenSettings::field)* value) { \
        return Get(pen, &PenSettings::field, value);                             \
    }

VXGUI_PEN_FIELD(Width, width)
VXGUI_PEN_FIELD(Unit, unit)
VXGUI_PEN_FIELD(StartCap, startCap)
VXGUI_PEN_FIELD(EndCap, endCap)
VXGUI_PEN_FIELD(DashCap197819, dashCap)
VXGUI_PEN_FIELD(LineJoin, lineJoin)
VXGUI_PEN_FIELD(Mode, alignment)
VXGUI_PEN_FIELD(DashOffset, dashOffset)

GpStatus GdipSetPenLineCap197819(GpPen* pen, LineCap startCap, LineCap endCap, DashCap dashCap) {
    if (!IsKnown(startCap) || !IsKnown(endCap) || !IsKnown(dashCap)) return InvalidParameter;
    return FlatSet<Pen>(pen, [&](Pen& found) {
        found.startCap = startCap;
        found.endCap = endCap;
        found.dashCap = dashCap;
    });
}

// Below 1 it is 1, as published.
GpStatus GdipSetPenMiterLimit(GpPen* pen, REAL miterLimit) {
    return Set(pen, &PenSettings::miterLimit, miterLimit > 1 ? miterLimit : 1);
}

GpStatus GdipGetPenMiterLimit(GpPen* pen, REAL* miterLimit) {
    return Get(pen, &PenSettings::miterLimit, miterLimit);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
