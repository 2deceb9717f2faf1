#pragma once

#include <functional>

#include "vxgui/platform/gdiplus/graphics/ImageAxis.h"
#include "vxgui/platform/gdiplus/graphics/ImageSource.h"
#include "vxgui/platform/gdiplus/words/WordRows.h"

namespace vxgui::gdiplus {

/// Premultiplied pixels.
struct Canvas {
    INT width, height;
    std::vector<ARGB> pixels;

    WordRows Words() { return WordRows::Packed(pixels.data(), width, height); }
};

struct Axes {
    ImageAxis x, y;

    bool IsEmpty() const { return x.IsEmpty() || y.IsEmpty(); }
};

/// Lays `part` out on the level box whose upper left, upper right and lower left corners these
/// are; what shows of it, and no source runs backwards.
Axes AxesOf(const GpRectF& part, const ImageSource& source, const GpPointF corners[3]);

/// How pixels are made: sampled at their middles, or at their upper left corners.
struct Sampled {
    InterpolationMode mode;
    bool middle;
};

/// Takes the pixels of `place`, which may be used until it returns.
using TakeBand = std::function<GpStatus(const GpRect& place, Canvas& pixels)>;
/// Hands out the pixels `device` of what the axes lay out, from the top, so many rows at a time,
/// as long as they are taken with `Ok`.
GpStatus InBands(const ImageSource& source, const Axes& axes, const Sampled& how,
                 const GpRect& device, INT rows, const TakeBand& take);

}  // namespace vxgui::gdiplus
