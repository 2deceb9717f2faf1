#pragma once

#include "vxgui/platform/corehlp.h"

/// The numbered services. `bits` is a block of 32-bit pixels, blue, green, red, alpha in memory,
/// bottom row first. A null block, a size that isn't positive and a size that says more than
/// there is memory make a service do nothing and answer one of the codes below; 0 is success.
namespace vxgui::corehlp {

enum Status : int32_t {
    kDone = 0,
    kBadSize = -1,         ///< not positive, beyond 32 bits of bytes, or a rectangle outside
    kNoBits = -2,          ///< a null block
    kBitsUnreadable = -3,  ///< the source isn't there in the whole size
    kBitsUnwritable = -4,  ///< what is to be changed isn't, or can't be written
};

/// Each pixel becomes the mean of the `blurWidth` x `blurHeight` pixels around it, in all four
/// channels; a size of 1 or less leaves its direction alone. With `useColor` the pixels then take
/// `color` (red lowest) under the blurred alpha, premultiplied.
BlurFunction Blur;

/// Sets the alpha of pixels whose 24 colour bits are those of `color` (red lowest) to
/// `matchAlpha` and, unless `keep`, that of all others to `otherAlpha`; colour bytes stay.
SetTransColorFunction SetTransColor;

/// Copies each pixel whose 24 colour bits aren't those of `key` (red lowest) to the same place.
MergeTransparentFunction MergeTransparent;

/// Blurs all four channels of the whole picture in place, each direction by its own radius. A
/// radius of 0 or less leaves its direction alone. `zero` must be 0: the place of the result is
/// the source.
GaussianBlurFunction GaussianBlur;

/// The same for the rectangle (x1, y1) to (x2, y2) in memory order, ends included. The first
/// corner must lie in the picture; a second one that is under 1 or outside becomes the last
/// column or row. What lies around the rectangle is taken in and stays.
GaussianBlurExFunction GaussianBlurEx;

/// The service of a number, or null.
void* ServiceAddress(intptr_t number);

}  // namespace vxgui::corehlp
