#include "vxgui/platform/gdiplus/brushes/PathShape.h"

#include <cmath>

#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/brushes/Patterns.h"

namespace vxgui::gdiplus {
namespace {

// Steps of a depth: several to a shade of 256.
constexpr size_t kDepths = 2048;

MeshCorner CornerAt(const Affine& toMesh, GpPointF point, float depth, float weight, float share) {
    const GpPointF at = toMesh.Apply(point);
    return {at.X, at.Y, depth, weight, weight * share};
}

GpRectF BoxOfFigures(const std::vector<OutlineFigure>& figures, const Affine& to) {
    std::vector<GpPointF> points;
    for (const OutlineFigure& figure : figures) {
        for (const OutlineCorner& corner : figure) points.push_back(to.Apply(corner.point));
    }
    return BoundsOfPoints(points);
}

// What the figures cover of each pixel of an area.
Surface CoverageOf(const std::vector<OutlineFigure>& figures, FillMode fillMode, const GpRect& area,
                   const Affine& toArea) {
    Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, area.Width, area.Height));
    cairo_t* cairo = cairo_create(surface.get());
    const cairo_matrix_t matrix = CairoMatrix(toArea);
    cairo_set_matrix(cairo, &matrix);
    for (const OutlineFigure& figure : figures) {
        for (const OutlineCorner& corner : figure) {
            cairo_line_to(cairo, corner.point.X, corner.point.Y);
        }
        cairo_close_path(cairo);
        cairo_new_sub_path(cairo);
    }
    cairo_set_fill_rule(
        cairo, fillMode == FillModeWinding ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD);
    cairo_fill(cairo);
    const bool good = cairo_status(cairo) == CAIRO_STATUS_SUCCESS;
    cairo_destroy(cairo);
    cairo_surface_flush(surface.get());
    return good ? std::move(surface) : nullptr;
}

// A covered pixel more. The shares of all that touch a pixel make up the whole at most, but for
// rounding.
uint32_t Added(uint32_t pixel, uint32_t added, uint32_t coverage) {
    uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const uint32_t part = ((added >> shift & 255) * coverage + 127) / 255;
        result |= std::min(255u, (pixel >> shift & 255) + part) << shift;
    }
    return result;
}

void AddCovered(const Surface& surface, const GpRect& area, const ShadeMesh& mesh,
                const Surface& coverage) {
    const unsigned char* shares = cairo_image_surface_get_data(coverage.get());
    for (INT y = 0; y < area.Height; ++y) {
        uint32_t* const to = RowOf(surface, area.Y + y) + area.X;
        for (INT x = 0; x < area.Width; ++x) {
            if (shares[x] > 0) to[x] = Added(to[x], mesh.Row(y)[x], shares[x]);
        }
        shares += cairo_image_surface_get_stride(coverage.get());
    }
}

}  // namespace

PathShape::PathShape(const PathBrush& brush)
    : brush_(brush),
      figures_(OutlineOf(brush.Points(), brush.surround, brush.blend.Scale())),
      center_(ShadeOf(brush.centerColor, brush.blend.Scale())) {
    const Blend& blend = brush.blend;
    for (size_t i = 0; i <= kDepths; ++i) {
        const REAL place = static_cast<REAL>(i) / kDepths;
        if (blend.presets.values.empty()) {
            factors_.push_back(blend.FactorAt(place));
        } else {
            presets_.push_back(PixelOf(blend.PresetAt(place), blend.Scale()));
        }
    }
}

uint32_t PathShape::At(float depth, const Shade& edge) const {
    const auto index = static_cast<size_t>(depth * kDepths + 0.5f);
    if (!presets_.empty()) return presets_[index];
    return PixelOf(Mix(edge, center_, factors_[index]), brush_.blend.Scale());
}

GpPointF PathShape::Inner(GpPointF point) const {
    return {brush_.center.X + (point.X - brush_.center.X) * brush_.focusScales.X,
            brush_.center.Y + (point.Y - brush_.center.Y) * brush_.focusScales.Y};
}

// From the edge to its image under the focus scales, which is deepest, and from there on to the
// centre. The colours of the edge mix as if all rays met in the centre.
void PathShape::PaintEdge(ShadeMesh& mesh, const Affine& toMesh, const OutlineCorner& a,
                          const OutlineCorner& b) const {
    const float inner = (brush_.focusScales.X + brush_.focusScales.Y) / 2;
    const MeshCorner outerA = CornerAt(toMesh, a.point, 0, 1, 0);
    const MeshCorner outerB = CornerAt(toMesh, b.point, 0, 1, 1);
    const MeshCorner innerA = CornerAt(toMesh, Inner(a.point), 1, inner, 0);
    const MeshCorner innerB = CornerAt(toMesh, Inner(b.point), 1, inner, 1);
    const MeshCorner center = CornerAt(toMesh, brush_.center, 1, 0, 0);
    mesh.Paint({{outerA, outerB, innerA}, a.shade, b.shade, true}, *this);
    mesh.Paint({{outerB, innerB, innerA}, a.shade, b.shade, false}, *this);
    mesh.Paint({{innerA, innerB, center}, a.shade, b.shade, false}, *this);
}

void PathShape::Paint(const Surface& surface, const Affine& toSurface) const {
    const GpRect whole{0, 0, cairo_image_surface_get_width(surface.get()),
                       cairo_image_surface_get_height(surface.get())};
    const GpRect area = Common(whole, PixelsAround(BoxOfFigures(figures_, toSurface)));
    if (IsEmpty(area)) return;
    const Affine toArea =
        toSurface * Affine::Translation(static_cast<REAL>(-area.X), static_cast<REAL>(-area.Y));
    const Surface coverage = CoverageOf(figures_, brush_.Filling(), area, toArea);
    if (!coverage) throw std::bad_alloc();
    ShadeMesh mesh(area.Width, area.Height);
    for (const OutlineFigure& figure : figures_) {
        for (size_t i = 0; i < figure.size(); ++i) {
            PaintEdge(mesh, toArea, figure[i], figure[(i + 1) % figure.size()]);
        }
    }
    AddCovered(surface, area, mesh, coverage);
    cairo_surface_mark_dirty(surface.get());
}

}  // namespace vxgui::gdiplus
