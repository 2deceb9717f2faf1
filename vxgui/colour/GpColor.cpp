#include "vxgui/colour/GpColor.h"

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/ColorHls.h"
#include "vxgui/colour/modColours.h"
#include "vxgui/frame/modUtilities.h"

namespace vxgui {

GpColor::GpColor() { SetUpApartment(); }

void GpColor::Color(uint8_t a, uint8_t r, uint8_t g, uint8_t b) { argb_ = {b, g, r, a}; }

void GpColor::FromColorRef(int32_t ColorRef, uint8_t Alpha) {
    Value(MakeARGBFromColorRef(ColorRef, Alpha));
}

int32_t GpColor::ToColorRef() const { return ColorRefFromARGB(argb_, false); }

int16_t GpColor::hue() const { return static_cast<int16_t>(HlsFromColorRef(ToColorRef()).hue); }

void GpColor::hue(int16_t value) {
    const Hls hls = HlsFromColorRef(ToColorRef());
    FromColorRef(ColorHLSToRGB(static_cast<uint16_t>(value), hls.luminance, hls.saturation),
                 Alpha());
}

int16_t GpColor::Luminance() const {
    return static_cast<int16_t>(HlsFromColorRef(ToColorRef()).luminance);
}

void GpColor::Luminance(int16_t value) {
    const Hls hls = HlsFromColorRef(ToColorRef());
    FromColorRef(ColorHLSToRGB(hls.hue, static_cast<uint16_t>(value), hls.saturation), Alpha());
}

int16_t GpColor::Saturation() const {
    return static_cast<int16_t>(HlsFromColorRef(ToColorRef()).saturation);
}

void GpColor::Saturation(int16_t value) {
    const Hls hls = HlsFromColorRef(ToColorRef());
    FromColorRef(ColorHLSToRGB(hls.hue, hls.luminance, static_cast<uint16_t>(value)), Alpha());
}

int16_t GpColor::Brightness() const { return RoundHalfEven<int16_t>(WeightedSum(argb_) / 1000.0); }

}  // namespace vxgui
