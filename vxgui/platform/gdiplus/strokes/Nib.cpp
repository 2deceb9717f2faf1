#include "vxgui/platform/gdiplus/strokes/Nib.h"

#include <algorithm>
#include <numbers>

#include "vxgui/platform/gdiplus/Units.h"
#include "vxgui/platform/gdiplus/strokes/Caps.h"

namespace vxgui::gdiplus {
namespace {

Affine WithoutShift(Affine a) {
    a.dx = a.dy = 0;
    return a;
}

}  // namespace

std::optional<Nib> NibOf(const PenSettings& pen, const StrokePlace& place, REAL thinnest) {
    const Affine device = WithoutShift(place.worldToDevice);
    const auto toWorld = Inverse(device);
    if (!toWorld) return {};
    Nib nib;
    nib.space = WithoutShift(pen.transform);
    if (pen.unit != UnitWorld) nib.space = nib.space * *toWorld;
    const auto inverse = Inverse(nib.space);
    if (!inverse) return {};
    nib.toSpace = *inverse;
    nib.pixels = MeanScale(nib.space * device);
    nib.width = std::max(pen.width * PixelsPer(pen.unit, place.dpi), thinnest / nib.pixels);
    if (!(nib.width > 0)) return {};
    return nib;
}

REAL ReachOf(const PenSettings& pen, bool hasJoins) {
    constexpr REAL kDiagonal = std::numbers::sqrt2_v<REAL>;
    REAL reach = pen.alignment == PenAlignmentInset ? 2 : 1;
    for (const LineCap cap : {pen.startCap, pen.endCap}) {
        if (cap == LineCapSquare) reach = std::max(reach, kDiagonal);
        if (IsAnchor(cap)) reach = std::max<REAL>(reach, 2);
    }
    const bool mitered = pen.lineJoin == LineJoinMiter || pen.lineJoin == LineJoinMiterClipped;
    // A clipped miter is a bevel across the mitre, whose ends lie off its middle line.
    return mitered && hasJoins ? std::max(reach, pen.miterLimit + 1) : reach;
}

}  // namespace vxgui::gdiplus
