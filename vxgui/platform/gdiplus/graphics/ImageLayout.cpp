#include "vxgui/platform/gdiplus/graphics/ImageLayout.h"

#include "vxgui/platform/gdiplus/graphics/Resampler.h"

namespace vxgui::gdiplus {

Axes AxesOf(const GpRectF& part, const ImageSource& source, const GpPointF corners[3]) {
    Axes axes{{part.X, static_cast<double>(part.X) + part.Width, corners[0].X, corners[1].X,
               source.Width()},
              {part.Y, static_cast<double>(part.Y) + part.Height, corners[0].Y, corners[2].Y,
               source.Height()}};
    for (ImageAxis* axis : {&axes.x, &axes.y}) {
        axis->PutSourceInOrder();
        if (!source.Wrap()) axis->CutToImage();
    }
    return axes;
}

Canvas Resampled(const ImageSource& source, const Axes& axes, InterpolationMode mode, bool middle,
                 const GpRect& device) {
    const EdgeRule xEdge(axes.x, source.Wrap(), false), yEdge(axes.y, source.Wrap(), true);
    Resampler resampler(source, MakeTaps(axes.x, mode, middle, device.X, device.X + device.Width),
                        xEdge, MakeTaps(axes.y, mode, middle, device.Y, device.Y + device.Height),
                        yEdge);
    Canvas canvas{device.Width, device.Height, {}};
    const auto width = static_cast<size_t>(device.Width);
    canvas.pixels.resize(width * static_cast<size_t>(device.Height));
    for (INT y = 0; y < device.Height; ++y) {
        resampler.Row(y, std::span(canvas.pixels).subspan(static_cast<size_t>(y) * width, width));
    }
    return canvas;
}

}  // namespace vxgui::gdiplus
