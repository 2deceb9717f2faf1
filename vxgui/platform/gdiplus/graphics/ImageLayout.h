#pragma once

#include "vxgui/platform/gdiplus/graphics/ImageAxis.h"
#include "vxgui/platform/gdiplus/graphics/ImageSource.h"
#include "vxgui/platform/gdiplus/graphics/Surface.h"

namespace vxgui::gdiplus {

/// Premultiplied pixels that a surface shows.
struct Canvas {
    INT width, height;
    std::vector<ARGB> pixels;

    Surface Cover() { return SurfaceOver(pixels.data(), width, height, ptrdiff_t{width} * 4); }
};

struct Axes {
    ImageAxis x, y;

    bool IsEmpty() const { return x.IsEmpty() || y.IsEmpty(); }
};

/// Lays `part` out on the level box whose upper left, upper right and lower left corners these
/// are; what shows of it, and no source runs backwards.
Axes AxesOf(const GpRectF& part, const ImageSource& source, const GpPointF corners[3]);

/// The pixels `device` of what the axes lay out.
Canvas Resampled(const ImageSource& source, const Axes& axes, InterpolationMode mode, bool middle,
                 const GpRect& device);

}  // namespace vxgui::gdiplus
