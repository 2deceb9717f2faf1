#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// What a convolution does where its kernel leaves the picture.
enum ConvolutionMode : int32_t {
    ConvolutionSkip = 0,  ///< leaves those samples out; the weights stay as they are
    ConvolutionCopy = 1,  ///< copies the pixels whose kernel doesn't fit; any other value clamps
};

/// Weights row by row. One that is missing counts as 0.
struct ConvolutionKernel {
    int32_t Mode = ConvolutionSkip;
    int32_t Width = 0;
    int32_t Height = 0;
    std::vector<float> Weights;
};

/// Filters the box (x0, y0) to (x1, y1) of `source` into `target`: whole rows of `width` pixels,
/// in other memory. All four channels of a sample are multiplied by its weight and added, and
/// each addition is rounded at once, halves to even: that is meant. The result is the absolute
/// value of the sum, at most 255, so that a fall shows as an edge just as a rise does.
///
/// An even kernel reaches one further to the right and down. 0, or -1 when the first corner is
/// outside; a second one that is under 1 or outside is the last column or row.
VXPLATFORM_API int32_t Convolve(const ConvolutionKernel& kernel, std::span<const ARGB> source,
                                std::span<ARGB> target, int32_t width, int32_t x0, int32_t y0,
                                int32_t x1, int32_t y1);

/// The same in place: the result goes to memory that starts clear, and then all of that over
/// `pixels`, so that what lies around the box becomes clear too. That is meant.
VXPLATFORM_API int32_t ConvolveInPlace(const ConvolutionKernel& kernel, std::span<ARGB> pixels,
                                       int32_t width, int32_t x0, int32_t y0, int32_t x1,
                                       int32_t y1);

/// Three rows of 1, 0, -1; a border of one pixel is copied.
VXPLATFORM_API const ConvolutionKernel& EdgeKernel();

/// Filters a picture by the edge kernel in place. It is a gradient and no smoothing: uniform
/// areas become 0 in all channels, alpha too.
VXPLATFORM_API void EdgeKernel3x3(std::span<ARGB> pixels, int32_t width);

}  // namespace vxgui
