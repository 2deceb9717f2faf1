#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus_pen.h"

namespace vxgui::gdiplus {
namespace {

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

GpStatus GdipSetPenLineCap197819(GpPen* pen, LineCap startCap, LineCap endCap, DashCap dashCap) {
    if (!IsKnown(startCap) || !IsKnown(endCap) || !IsKnown(dashCap)) return InvalidParameter;
    return FlatSet<Pen>(pen, [&](Pen& found) {
        found.startCap = startCap;
        found.endCap = endCap;
        found.dashCap = dashCap;
    });
}

GpStatus GdipSetPenStartCap(GpPen* pen, LineCap startCap) {
    return Set(pen, &PenSettings::startCap, startCap);
}

GpStatus GdipGetPenStartCap(GpPen* pen, LineCap* startCap) {
    return Get(pen, &PenSettings::startCap, startCap);
}

GpStatus GdipSetPenEndCap(GpPen* pen, LineCap endCap) {
    return Set(pen, &PenSettings::endCap, endCap);
}

GpStatus GdipGetPenEndCap(GpPen* pen, LineCap* endCap) {
    return Get(pen, &PenSettings::endCap, endCap);
}

GpStatus GdipSetPenDashCap197819(GpPen* pen, DashCap dashCap) {
    return Set(pen, &PenSettings::dashCap, dashCap);
}

GpStatus GdipGetPenDashCap197819(GpPen* pen, DashCap* dashCap) {
    return Get(pen, &PenSettings::dashCap, dashCap);
}

GpStatus GdipSetPenLineJoin(GpPen* pen, LineJoin lineJoin) {
    return Set(pen, &PenSettings::lineJoin, lineJoin);
}

GpStatus GdipGetPenLineJoin(GpPen* pen, LineJoin* lineJoin) {
    return Get(pen, &PenSettings::lineJoin, lineJoin);
}

GpStatus GdipSetPenMode(GpPen* pen, PenAlignment penMode) {
    return Set(pen, &PenSettings::alignment, penMode);
}

GpStatus GdipGetPenMode(GpPen* pen, PenAlignment* penMode) {
    return Get(pen, &PenSettings::alignment, penMode);
}

GpStatus GdipSetPenMiterLimit(GpPen* pen, REAL miterLimit) {
    return FlatSet<Pen>(pen,
                        [&](Pen& found) { found.miterLimit = miterLimit > 1 ? miterLimit : 1; });
}

GpStatus GdipGetPenMiterLimit(GpPen* pen, REAL* miterLimit) {
    return Get(pen, &PenSettings::miterLimit, miterLimit);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
