#include "vxgui/platform/gdiplus/Stroke.h"
#include "vxgui/platform/gdiplus/paths/PolygonSets.h"
#include "vxgui/platform/gdiplus/strokes/Caps.h"
#include "vxgui/platform/gdiplus/strokes/Nib.h"
#include "vxgui/platform/gdiplus/strokes/Stroker.h"

namespace vxgui::gdiplus {
namespace {

/// Strokes the lines of a path, in the space of a nib.
class Outliner {
public:
    Outliner(const PenSettings& pen, double width, double tolerance, Polygons& out)
        : pen_(pen), width_(width), tolerance_(tolerance), out_(out) {}

    void Add(const Line& line) {
        if (line.closed && pen_.alignment == PenAlignmentInset) {
            AddInset(line);
        } else if (pen_.compound.empty()) {
            AddPlain(line, width_, out_);
        } else {
            AddCompound(line);
        }
    }

private:
    Stroker StrokerOf(double width, Polygons& out) const {
        return Stroker(width, pen_.lineJoin, pen_.miterLimit, tolerance_, out);
    }

    void AddPlain(const Line& line, double width, Polygons& out) {
        const DashedLine dashed = Dashed(line, pen_, width_);
        Stroker stroker = StrokerOf(width, out);
        for (const Line& dash : dashed.dashes) stroker.Cover(dash);
        for (const PlacedCap& cap : dashed.caps) stroker.Add(ShapeOf(cap, width, tolerance_));
    }

    /// Twice the width, of which the inner half stays. A compound has no meaning there.
    void AddInset(const Line& line) {
        Polygons stroke;
        AddPlain(line, 2 * width_, stroke);
        Polygon area;
        for (const Corner& corner : line.corners) area.push_back(corner.at);
        for (Polygon& part : Intersected(stroke, {area}, FillModeWinding)) {
            out_.push_back(std::move(part));
        }
    }

    void AddCompound(const Line& line) {
        const DashedLine dashed = Dashed(line, pen_, width_);
        for (size_t i = 0; i + 1 < pen_.compound.size(); i += 2) {
            const Stripe stripe{(pen_.compound[i] - 0.5) * width_,
                                (pen_.compound[i + 1] - 0.5) * width_};
            AddStripe(dashed, stripe);
        }
        for (const PlacedCap& cap : dashed.caps) {
            if (IsAnchor(cap.cap)) StrokerOf(width_, out_).Add(ShapeOf(cap, width_, tolerance_));
        }
    }
    /// By distances to the right of the middle.
    struct Stripe {
        double from, to;
    };
    void AddStripe(const DashedLine& dashed, const Stripe& stripe) {
        Stroker stroker = StrokerOf(stripe.to - stripe.from, out_);
        for (const Line& dash : dashed.dashes) {
            const Line beside = Beside(dash, (stripe.from + stripe.to) / 2, pen_.lineJoin,
                                       pen_.miterLimit, tolerance_);
            if (beside.corners.size() > 1) stroker.Cover(beside);
        }
        for (const PlacedCap& cap : dashed.caps) {
            if (!IsAnchor(cap.cap)) stroker.Add(Within(cap, stripe));
        }
    }
    Polygon Within(const PlacedCap& cap, const Stripe& stripe) const {
        const Vec right = cap.atStart ? -cap.outward.Right() : cap.outward.Right();
        const Polygon shape = ShapeOf(cap, width_, tolerance_);
        return CutConvex(CutConvex(shape, cap.at, right, stripe.to), cap.at, -right, -stripe.from);
    }

    const PenSettings& pen_;
    double width_;
    double tolerance_;
    Polygons& out_;
};

}  // namespace

Polygons StrokePolygons(const PenSettings& pen, const PathPoints& path, const StrokePlace& place,
                        REAL flatness, REAL thinnest) {
    const auto nib = NibOf(pen, place, thinnest);
    if (!nib) return {};
    Polygons result;
    constexpr REAL kFinest = 1.f / 1024;
    const double tolerance = (flatness > kFinest ? flatness : kFinest) / nib->pixels;
    Outliner outliner(pen, nib->width, tolerance, result);
    for (const Line& line : LinesOf(path, nib->toSpace, tolerance)) outliner.Add(line);
    for (Polygon& polygon : result) {
        for (Vec& corner : polygon) corner = Mapped(nib->space, corner);
    }
    return result;
}

}  // namespace vxgui::gdiplus
