#pragma once

#include <array>
#include <vector>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/AreaAverage.h"

namespace vxgui {

/// A frame along one axis at a factor. Near edge, middle and far edge are scaled and rounded once,
/// each by itself, and drawn as they then are: nothing is rounded again when the item is painted.
class VXGUI_LOCAL ScaledAxis {
public:
    /// A frame without margins.
    ScaledAxis(int32_t frame, double factor);
    /// `tiled`: the middle is repeated in some piece of the frame. Margins that don't fit the
    /// frame, or are below 0, cut nothing: the frame is scaled as one.
    ScaledAxis(int32_t frame, int32_t nearMargin, int32_t farMargin, double factor, bool tiled);

    /// Pixels of the scaled frame.
    int32_t Size() const;
    /// How far apart tiles of the middle start, a fraction of a pixel included; 0 where none do.
    double TilePitch() const { return pitch_; }
    /// Adds the bands of a frame in a strip: it starts at `start` and is `density` times as large
    /// as the frame of this axis.
    void AddBands(double start, double density, std::vector<AreaBand>& bands) const;

private:
    std::array<AreaBand, 3> bands_{};  ///< those without size aren't there
    double pitch_ = 0;
};

}  // namespace vxgui
