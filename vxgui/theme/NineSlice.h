#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"

namespace vxgui {

/// A run of pixels along one axis.
struct Span {
    int32_t start;
    int32_t size;

    friend bool operator==(const Span&, const Span&) = default;
};

/// One band of a sliced frame along one axis: where it comes from and where it goes.
struct Band {
    Span target;
    Span source;
    /// How far apart its tiles start, where that isn't the size of the source: at most a pixel
    /// less.
    double pitch = 0;
};

/// A frame sliced along one axis into near edge, middle and far edge. All three bands share
/// their borders, computed once, so that no seam shows between them.
struct SlicedAxis {
    Band near;
    Band middle;
    Band far;
};

/// Slices a frame that is painted into a target along one axis. A target smaller than the frame
/// crops and never shrinks: the near edge and the middle lose their far end, the far edge its
/// near end. Source sizes are at least 1; target sizes may be 0 or below, which paints nothing.
VXGUI_LOCAL SlicedAxis SliceAxis(Span target, Span frame, int32_t nearMargin, int32_t farMargin);

}  // namespace vxgui
