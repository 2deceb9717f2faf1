#include "vxgui/platform/gdiplus/graphics/ImageLayout.h"

#include <algorithm>

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

GpStatus InBands(const ImageSource& source, const Axes& axes, const Sampled& how,
                 const GpRect& device, INT rows, const TakeBand& take) {
    const EdgeRule xEdge(axes.x, source.Wrap(), false), yEdge(axes.y, source.Wrap(), true);
    Resampler resampler(
        source, MakeTaps(axes.x, how.mode, how.middle, device.X, device.X + device.Width), xEdge,
        MakeTaps(axes.y, how.mode, how.middle, device.Y, device.Y + device.Height), yEdge);
    const auto width = static_cast<size_t>(device.Width);
    Canvas band{device.Width, 0, std::vector<ARGB>(width * static_cast<size_t>(rows))};
    GpStatus status = Ok;
    for (INT y = 0; y < device.Height && status == Ok; y += band.height) {
        band.height = std::min(rows, device.Height - y);
        for (INT i = 0; i < band.height; ++i) {
            resampler.Row(y + i,
                          std::span(band.pixels).subspan(static_cast<size_t>(i) * width, width));
        }
        status = take({device.X, device.Y + y, device.Width, band.height}, band);
    }
    return status;
}

}  // namespace vxgui::gdiplus
