#include "vxgui/platform/gdi/shapes/PatternBrush.h"

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/Record.h"

namespace vxgui::gdi {
namespace {

// Where coordinate `at` falls in a tile of `size` pixels that starts at `origin`.
int32_t InTile(int32_t at, int32_t origin, int32_t size) {
    const int64_t remainder = (int64_t{at} - origin) % size;
    return static_cast<int32_t>(remainder < 0 ? remainder + size : remainder);
}

}  // namespace

PatternBrush::PatternBrush(const Bitmap& bitmap)
    : Brush(LOGBRUSH{BS_PATTERN, 0, reinterpret_cast<uintptr_t>(bitmap.Handle())}),
      width_(bitmap.Width()),
      height_(bitmap.Height()),
      hasColors_(bitmap.Depth() != 1 || bitmap.Colors()),
      pixels_(static_cast<size_t>(width_) * static_cast<size_t>(height_)) {
    const PixelTarget target = bitmap.Target();
    for (int32_t y = 0; y < height_; ++y) {
        LoadRow(target, 0, y, width_, pixels_.data() + RowStart(y));
    }
    if (!hasColors_) return;
    for (uint32_t& pixel : pixels_) pixel = ColorOf(target, pixel, MonoColors{});
}

size_t PatternBrush::RowStart(int32_t y) const {
    return static_cast<size_t>(y) * static_cast<size_t>(width_);
}

void PatternBrush::Row(const DeviceContext& dc, int32_t x, int32_t y, int32_t count,
                       uint32_t* colors) const {
    const POINT origin = dc.state.brushOrigin;
    const uint32_t* const row = pixels_.data() + RowStart(InTile(y, origin.y, height_));
    const MonoColors bits = MonoColorsOf(dc, nullptr);
    int32_t column = InTile(x, origin.x, width_);
    for (int32_t i = 0; i < count; ++i) {
        const uint32_t pixel = row[column];
        colors[i] = hasColors_ ? pixel : pixel != 0 ? bits.one : bits.zero;
        if (++column == width_) column = 0;
    }
}

}  // namespace vxgui::gdi
