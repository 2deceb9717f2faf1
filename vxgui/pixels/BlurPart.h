#pragma once

#include <cstddef>

#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// A part of a picture: rows that are `stride` pixels apart.
struct BlurPart {
    ARGB* pixels;
    size_t width, height, stride;

    ARGB* Row(size_t y) const { return pixels + y * stride; }
};

/// What the kernels reach, and where the part that is blurred begins in it.
struct BlurReach {
    BlurPart source, target;
    size_t left, top;
};

}  // namespace vxgui
