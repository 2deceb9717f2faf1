#include "vxgui/platform/gdi/BlitGeometry.h"

#include <algorithm>

namespace vxgui::gdi {
namespace {

int32_t Narrow(int64_t value) {
    return static_cast<int32_t>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
}

int32_t LowEnd(int64_t start, int64_t extent) {
    return Narrow(extent < 0 ? start + extent + 1 : start);
}
int32_t HighEnd(int64_t start, int64_t extent) {
    return Narrow(extent < 0 ? start + 1 : start + extent);
}

}  // namespace

void BlitGeometry::CutToTarget(const DeviceContext& dc) {
    const RECT box = dc.DrawableBox();
    across.Cut(box.left, box.right);
    down.Cut(box.top, box.bottom);
}

void BlitGeometry::CutToSource(const PixelTarget& source) {
    across.CutToSource(source.width);
    down.CutToSource(source.height);
}

RECT BlitGeometry::SourceArea() const {
    return {Narrow(across.SourceLow()), Narrow(down.SourceLow()), Narrow(across.SourceHigh()),
            Narrow(down.SourceHigh())};
}

RECT RectFromExtents(int x, int y, int width, int height) {
    return {LowEnd(x, width), LowEnd(y, height), HighEnd(x, width), HighEnd(y, height)};
}

}  // namespace vxgui::gdi
