#pragma once

#include <span>
#include <vector>

#include "vxgui/pixels/Shade.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// Values at ascending places from 0 to 1.
template <class T>
struct Stops {
    std::vector<T> values;
    std::vector<REAL> places;
};

/// How a gradient gets from its first colour to its second, or through preset colours.
class Blend {
public:
    /// A single factor blends evenly, whatever its value.
    Stops<REAL> factors{{1}, {0}};
    Stops<ARGB> presets;  ///< when there are any, the factors don't count
    bool gammaCorrection = false;

    ShadeScale Scale() const { return gammaCorrection ? ShadeScale::Light : ShadeScale::Stored; }
    /// The share of the second colour at `place`, which is bounded to 0 to 1.
    REAL FactorAt(REAL place) const;
    /// The preset colour there.
    Shade PresetAt(REAL place) const;

    /// A bell, or a rise and fall along straight lines, that is `scale` high at `focus`.
    void Bell(REAL focus, REAL scale);
    void Triangle(REAL focus, REAL scale);
};

/// From 0 to 1, without a step back.
bool ArePlaces(std::span<const REAL> places);

}  // namespace vxgui::gdiplus
