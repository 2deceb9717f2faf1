#include "vxgui/colour/AdjustValues.h"

namespace vxgui {

WheelValues AdjustValues::ForWheel() const {
    return {Value(kHue), Value(kSaturation), Value(kLightness), colourize_};
}

SliderRange AdjustValues::Range(int index) const {
    if (index == kHue) return colourize_ ? SliderRange{0, 360} : SliderRange{-180, 180};
    if (index == kSaturation && colourize_) return {0, 100};
    return {-100, 100};
}

int32_t AdjustValues::Mirrored(int index, int32_t value) const {
    if (index == kHue) return value;
    return index == kSaturation && colourize_ ? 100 - value : -value;
}

}  // namespace vxgui
