#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/colour/WheelColors.h"

namespace vxgui {

struct SliderRange {
    int32_t min, max;
};

/// The numbers of the colour dialog: hue, saturation and lightness of each of the two modes, and
/// how a slider, which stands upside down, holds them.
class VXGUI_LOCAL AdjustValues {
public:
    enum Index { kHue, kSaturation, kLightness, kCount };

    bool Colourize() const { return colourize_; }
    void Colourize(bool value) { colourize_ = value; }
    /// Of the present mode.
    int32_t Value(int index) const { return Present()[static_cast<size_t>(index)]; }
    void Value(int index, int32_t value) { Present()[static_cast<size_t>(index)] = value; }
    void Reset() { Present() = {}; }
    WheelValues ForWheel() const;

    SliderRange Range(int index) const;
    /// From a number to the slider's place and back: the same mapping both ways.
    int32_t Mirrored(int index, int32_t value) const;

private:
    using Numbers = std::array<int32_t, kCount>;
    const Numbers& Present() const { return numbers_[colourize_]; }
    Numbers& Present() { return numbers_[colourize_]; }

    bool colourize_ = false;
    Numbers numbers_[2]{};
};

}  // namespace vxgui
