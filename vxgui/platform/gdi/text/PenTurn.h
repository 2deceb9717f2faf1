#pragma once

#include <cmath>
#include <cstdint>

namespace vxgui::gdi {

/// A place in the target, or the pen there.
struct PenPoint {
    int64_t x, y;
};

/// The angle at which a line runs.
class PenTurn {
public:
    /// In tenths of a degree, against the clock.
    explicit PenTurn(int32_t tenths)
        : none_(tenths == 0),
          cosine_(std::cos(Radians(tenths))),
          sine_(std::sin(Radians(tenths))) {}

    bool None() const { return none_; }

    /// What lies `along` and `above` from the start of the line, as far to the right and up.
    double Right(double along, double above) const { return along * cosine_ - above * sine_; }
    double Up(double along, double above) const { return along * sine_ + above * cosine_; }

    /// The point that lies there from `pen`, rounded.
    PenPoint From(PenPoint pen, int64_t along, int64_t above) const {
        if (none_) return {pen.x + along, pen.y - above};
        const auto x = static_cast<double>(along), y = static_cast<double>(above);
        return {pen.x + std::llround(Right(x, y)), pen.y - std::llround(Up(x, y))};
    }

private:
    static double Radians(int32_t tenths) { return tenths * (3.14159265358979323846 / 1800); }

    bool none_;
    double cosine_, sine_;
};

}  // namespace vxgui::gdi
