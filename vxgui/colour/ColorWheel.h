#pragma once

#include <array>

#include "vxgui/colour/WheelColors.h"
#include "vxgui/platform/gdi.h"

namespace vxgui {

/// The wheel of the colour dialog: three rings of 360 wedges around (75, 75). Angle 0 is at the
/// top, and angles grow anticlockwise. Each wedge spans two degrees, so that neighbours overlap
/// and no seam shows.
class VXGUI_LOCAL ColorWheel {
public:
    static constexpr int32_t kSide = 150;
    static constexpr int kAngles = 360;

    ColorWheel();
    ~ColorWheel();
    ColorWheel(const ColorWheel&) = delete;
    ColorWheel& operator=(const ColorWheel&) = delete;

    void Paint(gdi::HDC dc, const WheelValues& values) const;
    gdi::HRGN Wedge(int ring, int angle) const { return wedges_[Place(ring, angle)]; }
    /// Where the circle of one of the six radii, the largest first, passes the angle.
    gdi::POINT PointAt(int radius, int angle) const;

private:
    static size_t Place(int ring, int angle) {
        return static_cast<size_t>(angle * kWheelRings + ring);
    }
    void PlacePoints();
    gdi::HRGN MakeWedge(gdi::HDC dc, int ring, int angle) const;

    static constexpr int kRadii = 2 * kWheelRings;
    std::array<std::array<gdi::POINT, kRadii>, kAngles + 1> points_{};
    std::array<gdi::HRGN, static_cast<size_t>(kAngles) * kWheelRings> wedges_{};
};

}  // namespace vxgui
