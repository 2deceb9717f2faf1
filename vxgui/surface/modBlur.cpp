#include "vxgui/surface/modBlur.h"

#include "vxgui/pixels/Level.h"
#include "vxgui/pixels/PixelBox.h"
#include "vxgui/platform/memory.h"

namespace vxgui {

namespace {

enum Status : int32_t { kBadSize = -1, kNoSource = -2, kUnreadable = -3, kUnwritable = -4 };

size_t PixelCount(int32_t w, int32_t h) { return static_cast<size_t>(w) * static_cast<size_t>(h); }

std::span<ARGB> PixelsAt(void* bits, int32_t w, int32_t h) {
    return {static_cast<ARGB*>(bits), PixelCount(w, h)};
}

}  // namespace

int32_t ConvolveBits(const ConvolutionKernel& kernel, void* src, void* dst, int32_t w, int32_t h,
                     int32_t x0, int32_t y0, int32_t x1, int32_t y1) {
    if (w < 1 || h < 1) return kBadSize;
    if (!src) return kNoSource;
    const size_t bytes = PixelCount(w, h) * sizeof(ARGB);
    if (kernel::IsBadReadPtr(src, bytes)) return kUnreadable;
    if (kernel::IsBadWritePtr(dst ? dst : src, bytes)) return kUnwritable;
    const std::span<ARGB> source = PixelsAt(src, w, h);
    if (!dst) return ConvolveInPlace(kernel, source, w, x0, y0, x1, y1);
    return Convolve(kernel, source, PixelsAt(dst, w, h), w, x0, y0, x1, y1);
}

void EdgeKernel3x3(void* bits, void* dst, int32_t w, int32_t h) {
    ConvolveBits(EdgeKernel(), bits, dst, w, h, 0, 0, 0, 0);
}

int32_t ScaleBitsLevel(void* bits, float factor, int32_t w, int32_t h, int32_t x0, int32_t y0,
                       int32_t x1, int32_t y1) {
    // It is the width that bounds y0.
    if (h < 1 || x0 < 0 || x0 >= w || y0 < 0 || y0 >= w) return 0;
    if (kernel::IsBadWritePtr(bits, PixelCount(w, h) * sizeof(ARGB))) return 0;
    const std::span<ARGB> pixels = PixelsAt(bits, w, h);
    const int32_t right = PixelBox::Last(x1, w), bottom = PixelBox::Last(y1, h);
    if (right < x0) return 0;
    const int32_t level = LevelOfFactor(factor);
    for (int32_t y = y0; y <= bottom; ++y) {
        ScaleLevel(pixels.subspan(PixelCount(w, y) + static_cast<size_t>(x0),
                                  static_cast<size_t>(right - x0 + 1)),
                   level);
    }
    return 0;
}

}  // namespace vxgui
