#pragma once

#include <cstdint>

#include "vxgui/pixels/Convolution.h"

/// The library's own filters over pixel memory that a caller points at: `w` times `h` pixels in
/// memory order. Memory that isn't there in that size is not touched.
namespace vxgui {

/// `Convolve` of `src` into `dst`, or in place when `dst` is null; pixels outside the rectangle
/// then become clear. 0; -1 for a size or first corner that can't be; -2 without `src`; -3 when
/// `src` can't be read; -4 when the memory for the result can't be written.
int32_t ConvolveBits(const ConvolutionKernel& kernel, void* src, void* dst, int32_t w, int32_t h,
                     int32_t x0, int32_t y0, int32_t x1, int32_t y1);

/// The gradient filter of `EdgeKernel` over the whole picture.
void EdgeKernel3x3(void* bits, void* dst, int32_t w, int32_t h);

/// Multiplies all four channels of a rectangle by a factor of 0 to 256; they saturate. The first
/// corner must lie in the picture, except that `y0` is bounded by the width, which is meant; a
/// second one that is under 1 or outside is the last column or row. Always 0.
int32_t ScaleBitsLevel(void* bits, float factor, int32_t w, int32_t h, int32_t x0, int32_t y0,
                       int32_t x1, int32_t y1);

}  // namespace vxgui
