#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/graphics/ImageSource.h"

namespace vxgui::gdiplus {

/// Asked before the work and before each band of the result is drawn; true ends the drawing.
struct AbortCheck {
    BOOL (*ask)(void*) = nullptr;
    void* data = nullptr;

    bool Aborts() const { return ask && ask(data); }
};

/// What is drawn: a part of an image, in its pixels. Negative sizes mirror.
struct ImagePart {
    const Bitmap& bitmap;
    GpRectF source;
    const ImageAttributes* attributes = nullptr;
    AbortCheck abort;
};

/// How many rows of that width are made before they are drawn: as many as stay in a near cache.
constexpr INT RowsOfBand(INT width) {
    constexpr INT kPixels = 1 << 14;
    return width < kPixels ? kPixels / width : 1;
}

/// Draws a part in the parallelogram of three corners in world coordinates: upper left, upper
/// right, lower left.
GpStatus DrawPart(Graphics& graphics, const ImagePart& part, const GpPointF corners[3]);

}  // namespace vxgui::gdiplus
