#include "vxgui/platform/gdiplus/graphics/SlantedImage.h"

#include <cmath>

#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/Path.h"
#include "vxgui/platform/gdiplus/graphics/AxisTaps.h"
#include "vxgui/platform/gdiplus/graphics/ImageLayout.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"

namespace vxgui::gdiplus {
namespace {

cairo_filter_t FilterOf(InterpolationMode mode) {
    if (mode == InterpolationModeNearestNeighbor) return CAIRO_FILTER_NEAREST;
    const bool cubic =
        mode == InterpolationModeBicubic || mode == InterpolationModeHighQualityBicubic;
    return cubic ? CAIRO_FILTER_BEST : CAIRO_FILTER_BILINEAR;
}

double Distance(GpPointF a, GpPointF b) { return std::hypot(a.X - b.X, a.Y - b.Y); }

// The part on its own, in an upright picture of whole pixels: as it stands, or filtered to about
// the size that it is drawn in. `axis` becomes the stretch of the image that the picture shows.
void LayOut(ImageAxis& axis, double shownLength, InterpolationMode mode) {
    const double length = axis.source1 - axis.source0;
    if (Prefilters(mode) && length > shownLength) {
        axis.target1 = std::max(1.0, std::ceil(shownLength));
    } else {
        axis.source0 = std::floor(axis.source0);
        axis.source1 = std::ceil(axis.source1);
        axis.target1 = axis.source1 - axis.source0;
    }
    axis.target0 = 0;
}

void FillParallelogram(cairo_t* cairo, const GpPointF c[3]) {
    cairo_move_to(cairo, c[0].X, c[0].Y);
    cairo_line_to(cairo, c[1].X, c[1].Y);
    cairo_line_to(cairo, c[1].X + c[2].X - c[0].X, c[1].Y + c[2].Y - c[0].Y);
    cairo_line_to(cairo, c[2].X, c[2].Y);
    cairo_fill(cairo);
}

struct Slanted {
    GpRectF source;       // the part that is drawn, in order
    GpPointF corners[3];  // in device coordinates
    Axes axes;            // from the image to the picture of the part
};

Slanted SlantedOf(const ImagePart& part, const ImageSource& source, const GpPointF device[3],
                  InterpolationMode mode) {
    // The axes run along the parallelogram's sides, from 0 to 1.
    const GpPointF unit[3] = {{0, 0}, {1, 0}, {0, 1}};
    Axes axes = AxesOf(part.source, source, unit);
    const auto corner = [&](double u, double v) {
        return GpPointF{static_cast<REAL>(device[0].X + u * (device[1].X - device[0].X) +
                                          v * (device[2].X - device[0].X)),
                        static_cast<REAL>(device[0].Y + u * (device[1].Y - device[0].Y) +
                                          v * (device[2].Y - device[0].Y))};
    };
    const ImageAxis &x = axes.x, &y = axes.y;
    Slanted result{
        {static_cast<REAL>(x.source0), static_cast<REAL>(y.source0),
         static_cast<REAL>(x.source1 - x.source0), static_cast<REAL>(y.source1 - y.source0)},
        {corner(x.target0, y.target0), corner(x.target1, y.target0), corner(x.target0, y.target1)},
        axes};
    LayOut(result.axes.x, Distance(result.corners[0], result.corners[1]), mode);
    LayOut(result.axes.y, Distance(result.corners[0], result.corners[2]), mode);
    return result;
}

// From device pixels to those of the picture of the part.
std::optional<Affine> ToPicture(const Slanted& slanted) {
    if (slanted.axes.x.IsEmpty() || slanted.axes.y.IsEmpty()) return std::nullopt;
    const auto toDevice = RectToParallelogram(slanted.source, slanted.corners);
    const auto toSource = toDevice ? Inverse(*toDevice) : std::nullopt;
    if (!toSource) return std::nullopt;
    const ImageAxis &x = slanted.axes.x, &y = slanted.axes.y;
    const auto sx = static_cast<REAL>(1 / x.Step()), sy = static_cast<REAL>(1 / y.Step());
    return *toSource * Affine{sx,
                              0,
                              0,
                              sy,
                              static_cast<REAL>(-x.source0) * sx,
                              static_cast<REAL>(-y.source0) * sy};
}

bool IsTooLarge(const Axes& axes) {
    constexpr double kMostPixels = 1 << 28;
    return axes.x.target1 > INT16_MAX || axes.y.target1 > INT16_MAX ||
           axes.x.target1 * axes.y.target1 > kMostPixels;
}

// The pixels that the parallelogram touches.
GpRect PlaceOf(const Slanted& slanted) {
    const GpPointF* c = slanted.corners;
    const GpPointF last{c[1].X + c[2].X - c[0].X, c[1].Y + c[2].Y - c[0].Y};
    return PixelsAround(BoundsOfPoints({c[0], c[1], c[2], last}));
}

// The part alone, upright.
GpStatus DrawPicture(Graphics& graphics, const Slanted& slanted, const Affine& toPicture,
                     Canvas& picture) {
    const Surface surface = SurfaceOver(picture.Words());
    if (!surface) return OutOfMemory;
    return graphics.PaintDevice(PlaceOf(slanted), [&](cairo_t* cairo) {
        cairo_set_source_surface(cairo, surface.get(), 0, 0);
        const cairo_matrix_t matrix = CairoMatrix(toPicture);
        cairo_pattern_set_matrix(cairo_get_source(cairo), &matrix);
        cairo_pattern_set_extend(cairo_get_source(cairo), CAIRO_EXTEND_PAD);
        cairo_pattern_set_filter(cairo_get_source(cairo),
                                 FilterOf(graphics.state.interpolationMode));
        FillParallelogram(cairo, slanted.corners);
    });
}

}  // namespace

GpStatus DrawSlanted(Graphics& graphics, const ImagePart& part, const GpPointF device[3]) {
    const InterpolationMode mode = graphics.state.interpolationMode;
    const ImageSource source(part.bitmap, part.attributes);
    const Slanted slanted = SlantedOf(part, source, device, mode);
    const std::optional<Affine> toPicture = ToPicture(slanted);
    if (!toPicture || IsEmpty(graphics.Drawable(PlaceOf(slanted)))) return Ok;
    if (IsTooLarge(slanted.axes)) return OutOfMemory;
    const GpRect all{0, 0, static_cast<INT>(slanted.axes.x.target1),
                     static_cast<INT>(slanted.axes.y.target1)};
    return InBands(source, slanted.axes, {mode, true}, all, all.Height,
                   [&](const GpRect&, Canvas& picture) -> GpStatus {
                       if (part.abort.Aborts()) return Aborted;
                       return DrawPicture(graphics, slanted, *toPicture, picture);
                   });
}

}  // namespace vxgui::gdiplus
