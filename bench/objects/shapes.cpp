#include <cmath>
#include <functional>
#include <numbers>

#include "bench/Beside.h"
#include "bench/objects/Pictures.h"

namespace vxgui::bench {
namespace {

using namespace gdiplus;

constexpr int kSide = 512;
constexpr ARGB kColor = 0xFF336699;

using Points = std::vector<GpPointF>;

// `draw(graphics, pen, brush)`, antialiased, with a pen of two pixels.
template <class Draw>
auto Ours(Draw draw) {
    return [=] {
        auto canvas = std::make_shared<OurCanvas>(kSide, kSide);
        GdipSetSmoothingMode(canvas->graphics, SmoothingModeAntiAlias);
        GdipSetPixelOffsetMode(canvas->graphics, PixelOffsetModeHalf);
        const auto brush = OurBrush(kColor);
        GpPen* created = nullptr;
        GdipCreatePen1(kColor, 2, UnitPixel, &created);
        const std::shared_ptr<GpPen> pen(created, GdipDeletePen);
        return [=] { draw(canvas->graphics, pen.get(), brush.get()); };
    };
}

// `trace(cairo)` makes the path, with the same geometry.
template <class Trace>
auto Cairos(Trace trace, void (*paint)(cairo_t*)) {
    return [=] {
        auto canvas = std::make_shared<CairoCanvas>(kSide, kSide);
        return [=] {
            SetCairoColor(canvas->cairo, kColor);
            cairo_set_line_width(canvas->cairo, 2);
            trace(canvas->cairo);
            paint(canvas->cairo);
        };
    };
}

template <class Draw, class Trace>
void Add(const std::string& work, int size, Draw draw, Trace trace, void (*paint)(cairo_t*)) {
    Beside(work, std::to_string(size), "ours", Ours(draw));
    Beside(work, std::to_string(size), "cairo", Cairos(trace, paint));
}

// A star of so many corners.
Points Star(int corners, float size) {
    Points points;
    for (int i = 0; i < corners; ++i) {
        const float turn =
            2 * std::numbers::pi_v<float> * static_cast<float>(i * 3) / static_cast<float>(corners);
        points.push_back(
            {size / 2 * (1 + std::sin(turn)) + 10.25f, size / 2 * (1 - std::cos(turn)) + 10.25f});
    }
    return points;
}

void TraceLines(cairo_t* cairo, const Points& points) {
    for (const GpPointF& point : points) cairo_line_to(cairo, point.X, point.Y);
}

void TraceEllipse(cairo_t* cairo, float size) {
    cairo_arc(cairo, 10.25 + size / 2, 10.25 + size / 2, size / 2, 0, 2 * std::numbers::pi);
    cairo_close_path(cairo);
}

void AddLines(int size) {
    const auto far = static_cast<float>(size);
    Add(
        "line", size,
        [=](GpGraphics* g, GpPen* pen, GpBrush*) {
            GdipDrawLine(g, pen, 10.25f, 12.5f, far, far * 0.7f);
        },
        [=](cairo_t* cairo) {
            cairo_move_to(cairo, 10.25, 12.5);
            cairo_line_to(cairo, far, far * 0.7f);
        },
        cairo_stroke);
    const Points star = Star(20, far);
    Add(
        "polyline", size,
        [=](GpGraphics* g, GpPen* pen, GpBrush*) {
            GdipDrawLines(g, pen, star.data(), static_cast<INT>(star.size()));
        },
        [=](cairo_t* cairo) { TraceLines(cairo, star); }, cairo_stroke);
    Add(
        "bezier", size,
        [=](GpGraphics* g, GpPen* pen, GpBrush*) {
            GdipDrawBezier(g, pen, 10, far, 20, 10, far - 20, 2 * far, far, 10);
        },
        [=](cairo_t* cairo) {
            cairo_move_to(cairo, 10, far);
            cairo_curve_to(cairo, 20, 10, far - 20, 2 * far, far, 10);
        },
        cairo_stroke);
}

void AddAreas(int size) {
    const auto far = static_cast<float>(size);
    const Points star = Star(20, far);
    Add(
        "polygon-fill", size,
        [=](GpGraphics* g, GpPen*, GpBrush* brush) {
            GdipFillPolygon(g, brush, star.data(), static_cast<INT>(star.size()), FillModeWinding);
        },
        [=](cairo_t* cairo) {
            TraceLines(cairo, star);
            cairo_close_path(cairo);
        },
        cairo_fill);
    Add(
        "ellipse-fill", size,
        [=](GpGraphics* g, GpPen*, GpBrush* brush) {
            GdipFillEllipse(g, brush, 10.25f, 10.25f, far, far);
        },
        [=](cairo_t* cairo) { TraceEllipse(cairo, far); }, cairo_fill);
    Add(
        "ellipse", size,
        [=](GpGraphics* g, GpPen* pen, GpBrush*) {
            GdipDrawEllipse(g, pen, 10.25f, 10.25f, far, far);
        },
        [=](cairo_t* cairo) { TraceEllipse(cairo, far); }, cairo_stroke);
}

const bool kAdded = [] {
    for (const int size : {32, 256}) {
        AddLines(size);
        AddAreas(size);
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
