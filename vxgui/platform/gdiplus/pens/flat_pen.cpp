#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus/Units.h"
#include "vxgui/platform/gdiplus/brushes/SolidBrush.h"
#include "vxgui/platform/gdiplus_pen.h"

namespace vxgui::gdiplus {
namespace {

GpStatus Create(Ref<Brush> brush, REAL width, Unit unit, GpPen** pen) {
    if (!IsUnit(unit)) return InvalidParameter;
    PenSettings settings;
    settings.width = width;
    settings.unit = unit;
    return HandOut(pen, New<Pen>(std::move(brush), std::move(settings)));
}

}  // namespace

extern "C" {

GpStatus GdipCreatePen1(ARGB color, REAL width, Unit unit, GpPen** pen) {
    return FlatCreate(pen, [&] { return Create(New<SolidBrush>(color), width, unit, pen); });
}

GpStatus GdipCreatePen2(GpBrush* brush, REAL width, Unit unit, GpPen** pen) {
    return FlatCreate(pen, [&] {
        return FlatOn<Brush>(brush,
                             [&](Brush& found) { return Create(found.Clone(), width, unit, pen); });
    });
}

GpStatus GdipClonePen(GpPen* pen, GpPen** clonepen) {
    return FlatCreate(clonepen, [&] {
        return FlatOn<Pen>(pen, [&](Pen& found) {
            return HandOut(clonepen, New<Pen>(found.brush->Clone(), PenSettings(found)));
        });
    });
}

GpStatus GdipDeletePen(GpPen* pen) { return FlatDelete<Pen>(pen); }

GpStatus GdipSetPenColor(GpPen* pen, ARGB argb) {
    return FlatSet<Pen>(pen, [&](Pen& found) { found.brush = New<SolidBrush>(argb); });
}

GpStatus GdipGetPenColor(GpPen* pen, ARGB* argb) {
    if (!argb) return InvalidParameter;
    return FlatOn<Pen>(pen,
                       [&](Pen& found) { return found.brush->IsSolid(argb) ? Ok : WrongState; });
}

GpStatus GdipSetPenBrushFill(GpPen* pen, GpBrush* brush) {
    return FlatOn<Brush>(brush, [&](Brush& fill) {
        return FlatSet<Pen>(pen, [&](Pen& found) { found.brush = fill.Clone(); });
    });
}

GpStatus GdipGetPenBrushFill(GpPen* pen, GpBrush** brush) {
    return FlatCreate(brush, [&] {
        return FlatOn<Pen>(pen, [&](Pen& found) { return HandOut(brush, found.brush->Clone()); });
    });
}

GpStatus GdipGetPenFillType(GpPen* pen, PenType* type) {
    return FlatGet<Pen>(pen, type,
                        [](Pen& found) { return static_cast<PenType>(found.brush->Type()); });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
