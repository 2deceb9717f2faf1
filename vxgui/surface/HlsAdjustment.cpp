#include "vxgui/surface/HlsAdjustment.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"

// Named values have single precision, and the expressions between them double: where a result
// lies on a half, that decides.
namespace vxgui {

namespace {

float Single(double value) { return static_cast<float>(value); }

int32_t SignOf(float value) { return (value > 0) - (value < 0); }

/// Holds a hue to -1 to 5 after one step.
float WrapOnce(float h) {
    if (h < -1) return Single(h + 6.0);
    if (h > 5) return Single(h - 6.0);
    return h;
}

}  // namespace

HlsAdjustment::HlsAdjustment(float hue, float luminance, float saturation, bool colourize)
    : colourize_(colourize),
      h_(WrapOnce(Single(RoundHalfEven(hue) % 360 / 60.0))),
      hSign_(SignOf(h_)) {
    stretch_.factor = Single(std::clamp(saturation, colourize ? 0.0F : -100.0F, 100.0F) / 100.0);
    stretch_.rest = Single(1.0 - stretch_.factor);
    stretch_.half = Single(stretch_.factor / 2.0);
    stretch_.sign = SignOf(stretch_.factor);
    luminance = std::clamp(luminance, -100.0F, 100.0F);
    const float lf = Single(luminance / 100.0);
    if (lf > 0) {
        light_.base = RoundHalfEven(lf * 255.0);
        light_.factor = RoundHalfEven((1.0 - lf) * 65536);
    } else if (lf < 0) {
        light_.base = RoundHalfEven(lf * 255.0 + 255);
        light_.factor = RoundHalfEven((lf + 1.0) * 65536);
    }
    // That of the rounded percent: up to a half nothing happens.
    light_.sign = SignOf(static_cast<float>(RoundHalfEven(luminance)));
    if (colourize) PrepareColourize();
}

void HlsAdjustment::PrepareColourize() {
    if (h_ < 0) h_ = Single(h_ + 6.0);
    sp_ = Single(stretch_.factor + 1.0);
    sb_ = RoundHalfEven<uint8_t>(stretch_.factor * 255.0);
    p_ = RoundHalfEven(h_ * 255.0);
    sector_ = std::min(p_ / 255, 5);
    const int32_t within = p_ - sector_ * 255;
    weight_ = sector_ % 2 == 0 ? within : 255 - within;
    for (size_t i = 0; i < colors_.size(); ++i) colors_[i] = ColorOf(static_cast<int32_t>(i));
}

HlsAdjustment::Channels HlsAdjustment::Colourized(int32_t average) const {
    if (stretch_.sign == 0) return {average, average, average};
    const int32_t lo = RoundHalfEven(average < 128 ? average * double{stretch_.rest}
                                                   : average * double{sp_} - sb_);
    const int32_t hi = 2 * average - lo;
    const int32_t mix = lo + (hi - lo) * weight_ / 256;
    switch (sector_) {
        case 0:
            return {hi, mix, lo};
        case 1:
            return {mix, hi, lo};
        case 2:
            return {lo, hi, mix};
        case 3:
            return {lo, mix, hi};
        case 4:
            return {mix, lo, hi};
        default:
            return {hi, lo, mix};
    }
}

ARGB HlsAdjustment::ColorOf(int32_t average) const {
    const auto byte = [this](int32_t channel) {
        return static_cast<uint8_t>(std::clamp(hls::Lightened(channel, light_), 0, 255));
    };
    const Channels out = Colourized(average);
    return {byte(out.blue), byte(out.green), byte(out.red), 0};
}

void HlsAdjustment::Apply(std::span<ARGB> pixels) const {
    if (colourize_) {
        hls::Colourize(pixels, colors_);
    } else if (hSign_ != 0) {
        hls::TurnHues(pixels, h_, stretch_, light_);
    } else if (stretch_.sign != 0) {
        hls::Saturate(pixels, stretch_, light_);
    } else if (light_.sign != 0) {
        hls::Lighten(pixels, light_);
    }
}

}  // namespace vxgui
