#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "vxgui/pixels/ARGB.h"

namespace vxgui::view {

/// How the colours of a skin are changed.
struct Recolour {
    float hue = 0;         ///< degrees to turn by, -180 to 180
    float saturation = 0;  ///< percent, -100 to 100
    float lightness = 0;   ///< percent, -100 to 100

    bool IsNone() const { return hue == 0 && saturation == 0 && lightness == 0; }
    friend bool operator==(const Recolour&, const Recolour&) = default;
};

/// Colours that stand for "nothing here", 0xRRGGBB.
using KeyColours = std::vector<uint32_t>;

/// Changes pixels with straight alpha; the alpha stays. A pixel of a key colour stays as it is, and
/// no other one becomes it.
void RecolourPixels(std::span<ARGB> pixels, const Recolour& how, const KeyColours& keys = {});

/// The same for one colour, a COLORREF.
int32_t RecolouredRef(int32_t colour, const Recolour& how);

}  // namespace vxgui::view
