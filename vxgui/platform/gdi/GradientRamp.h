#pragma once

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

/// The colours 0x00RRGGBB along a line of `length` pixels between two vertices. Pixel p has
/// ((c0*(n-p) + c1*p) / n) >> 8 of 16-bit channels: the end colour itself is never reached.
class GradientRamp {
public:
    GradientRamp(const TRIVERTEX& from, const TRIVERTEX& to, int64_t length)
        : from_(from), to_(to), length_(length) {}

    uint32_t Color(int64_t p) const {
        return Channel(from_.Red, to_.Red, p) << 16 | Channel(from_.Green, to_.Green, p) << 8 |
               Channel(from_.Blue, to_.Blue, p);
    }

private:
    uint32_t Channel(int64_t from, int64_t to, int64_t p) const {
        return static_cast<uint32_t>((from * (length_ - p) + to * p) / length_ >> 8);
    }

    const TRIVERTEX& from_;
    const TRIVERTEX& to_;
    const int64_t length_;
};

}  // namespace vxgui::gdi
