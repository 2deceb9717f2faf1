#include "vxgui/platform/gdiplus/effects/BlurPicture.h"

#include <algorithm>
#include <cstring>

#include "vxgui/pixels/Blur.h"
#include "vxgui/platform/gdiplus/words/Premultiply.h"

namespace vxgui::gdiplus {

// A copy with a margin holds what is beyond; the filter itself knows only clear pixels there.
std::vector<ARGB> Blurred(const EffectPicture& picture, const GpRect& area, INT radius,
                          bool clearBeyond) {
    const INT width = area.Width + 2 * radius, height = area.Height + 2 * radius;
    std::vector<vxgui::ARGB> framed(static_cast<size_t>(width) * static_cast<size_t>(height));
    const auto at = [&](INT x, INT y) -> ARGB {
        const INT column = std::clamp(x, 0, picture.width - 1);
        const INT row = std::clamp(y, 0, picture.height - 1);
        if (clearBeyond && (column != x || row != y)) return 0;
        return picture
            .pixels[static_cast<size_t>(row) * picture.RowSize() + static_cast<size_t>(column)];
    };
    size_t next = 0;
    for (INT y = 0; y < height; ++y) {
        for (INT x = 0; x < width; ++x) {
            framed[next++] = ARGBFromValue(
                static_cast<int32_t>(Premultiplied(at(area.X - radius + x, area.Y - radius + y))));
        }
    }
    const BoxKernel kernel = GaussianKernel(radius);
    Blur(framed, width, {radius, radius, width - radius - 1, height - radius - 1}, kernel, kernel);
    std::vector<ARGB> result(static_cast<size_t>(area.Width) * static_cast<size_t>(area.Height));
    for (INT y = 0; y < area.Height; ++y) {
        std::memcpy(&result[static_cast<size_t>(y) * static_cast<size_t>(area.Width)],
                    &framed[static_cast<size_t>(y + radius) * static_cast<size_t>(width) +
                            static_cast<size_t>(radius)],
                    static_cast<size_t>(area.Width) * sizeof(ARGB));
    }
    return result;
}

}  // namespace vxgui::gdiplus
