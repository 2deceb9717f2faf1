#include "vxgui/surface/HlsAdjustment.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "vxgui/base/Rounding.h"

// Named values have single precision, and the expressions between them double: where a result
// lies on a half, that decides.
namespace vxgui {

namespace {

float Single(double value) { return static_cast<float>(value); }

int32_t SignOf(float value) { return (value > 0) - (value < 0); }

/// Rounds a value of modest size to nearest, halves to even: adding 1.5 * 2^52 leaves the
/// integer in the lowest bits, without a call for each channel of each pixel.
int32_t Round(double value) {
    return static_cast<int32_t>(std::bit_cast<int64_t>(value + 6755399441055744.0));
}

uint8_t ToByte(int32_t channel) { return static_cast<uint8_t>(std::clamp(channel, 0, 255)); }

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
    sf_ = Single(std::clamp(saturation, colourize ? 0.0F : -100.0F, 100.0F) / 100.0);
    inv_ = Single(1.0 - sf_);
    sp_ = Single(colourize ? sf_ + 1.0 : sf_ / 2.0);
    sSign_ = SignOf(sf_);
    luminance = std::clamp(luminance, -100.0F, 100.0F);
    const float lf = Single(luminance / 100.0);
    lInt_ = RoundHalfEven(luminance);
    if (lf > 0) {
        lBase_ = RoundHalfEven(lf * 255.0);
        lMul_ = RoundHalfEven((1.0 - lf) * 65536);
    } else if (lf < 0) {
        lBase_ = RoundHalfEven(lf * 255.0 + 255);
        lMul_ = RoundHalfEven((lf + 1.0) * 65536);
    }
    if (colourize) PrepareColourize();
}

void HlsAdjustment::PrepareColourize() {
    if (h_ < 0) h_ = Single(h_ + 6.0);
    sb_ = RoundHalfEven<uint8_t>(sf_ * 255.0);
    p_ = RoundHalfEven(h_ * 255.0);
    sector_ = std::min(p_ / 255, 5);
    const int32_t within = p_ - sector_ * 255;
    weight_ = sector_ % 2 == 0 ? within : 255 - within;
}

HlsAdjustment::Channels HlsAdjustment::Colourized(Channels in) const {
    const int32_t average = (in.red + in.green + in.blue) / 3;
    if (sSign_ == 0) return {average, average, average};
    const int32_t lo = Round(average < 128 ? average * double{inv_} : average * double{sp_} - sb_);
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

HlsAdjustment::Pair HlsAdjustment::Stretched(Pair pair) const {
    const double sf = sf_;
    if (sSign_ > 0 && 255 - pair.max > pair.min) {
        return {Round(pair.max + pair.min * sf), Round(pair.min * double{inv_})};
    }
    if (sSign_ > 0) {
        const int32_t max = Round(pair.max + (255 - pair.max) * sf);
        return {max, Round(pair.min - (255 - max) * sf)};
    }
    if (sSign_ < 0) {
        const double step = (pair.max - pair.min) * double{sp_};
        return {Round(pair.max + step), Round(pair.min - step)};
    }
    return pair;
}

HlsAdjustment::HuePlace HlsAdjustment::PlaceOf(Channels in) {
    const auto [r, g, b] = in;
    const auto place = [](int32_t max, int32_t min, int32_t offset, int32_t sixth) {
        const int32_t d = max - min;
        return HuePlace{{max, min}, d ? Single(offset / static_cast<double>(d) + sixth) : 0.0F};
    };
    if (r > g && r > b) return place(r, std::min(g, b), g - b, 0);
    if (r > g) return place(b, g, r - g, 4);
    if (b > g) return place(b, r, r - g, 4);
    if (r > b) return place(g, b, b - r, 2);
    return place(g, r, b - r, 2);
}

HlsAdjustment::Channels HlsAdjustment::HueTurned(Channels in) const {
    auto [pair, f] = PlaceOf(in);
    if (pair.max > pair.min) pair = Stretched(pair);
    const auto [max, min] = pair;
    const int32_t d = max - min;
    f = WrapOnce(Single(double{f} + h_));
    const double place = f;
    switch (static_cast<int32_t>(std::floor(f))) {
        case -1:
            return {max, min, Round(min - place * d)};
        case 0:
            return {max, Round(place * d + min), min};
        case 1:
            return {Round(min - (place - 2) * d), max, min};
        case 2:
            return {min, max, Round((place - 2) * d + min)};
        case 3:
            return {min, Round(min - (place - 4) * d), max};
        default:
            return {Round((place - 4) * d + min), min, max};
    }
}

HlsAdjustment::Channels HlsAdjustment::Saturated(Channels in) const {
    // Ranks of equal channels follow the order of these tests.
    using Channel = int32_t Channels::*;
    constexpr Channel R = &Channels::red, G = &Channels::green, B = &Channels::blue;
    const auto [r, g, b] = in;
    Channel max, mid, min;
    const auto rank = [&](Channel first, Channel second, Channel third) {
        max = first;
        mid = second;
        min = third;
    };
    if (r > g && r > b) {
        b > g ? rank(R, B, G) : rank(R, G, B);
    } else if (r > g) {
        rank(B, R, G);
    } else if (b > g) {
        rank(B, G, R);
    } else {
        r > b ? rank(G, R, B) : rank(G, B, R);
    }
    const int32_t d = in.*max - in.*min;
    if (d == 0) return in;
    const Pair pair = Stretched({in.*max, in.*min});
    Channels out;
    out.*max = pair.max;
    out.*mid =
        Round((pair.max - pair.min) * (in.*mid - in.*min) / static_cast<double>(d) + pair.min);
    out.*min = pair.min;
    return out;
}

int32_t HlsAdjustment::Lightened(int32_t channel) const {
    if (lInt_ > 0) return lMul_ * channel / 65536 + lBase_;
    if (lInt_ < 0) return lBase_ - (channel ^ 255) * lMul_ / 65536;
    return channel;
}

template <class Stage>
void HlsAdjustment::ApplyStage(std::span<ARGB> pixels, Stage stage) const {
    for (ARGB& pixel : pixels) {
        const Channels out = stage(Channels{pixel.Red, pixel.Green, pixel.Blue});
        pixel.Red = ToByte(Lightened(out.red));
        pixel.Green = ToByte(Lightened(out.green));
        pixel.Blue = ToByte(Lightened(out.blue));
    }
}

void HlsAdjustment::Apply(std::span<ARGB> pixels) const {
    if (colourize_) {
        ApplyStage(pixels, [this](Channels in) { return Colourized(in); });
    } else if (hSign_ != 0) {
        ApplyStage(pixels, [this](Channels in) { return HueTurned(in); });
    } else if (sSign_ != 0) {
        ApplyStage(pixels, [this](Channels in) { return Saturated(in); });
    } else if (lInt_ != 0) {
        ApplyStage(pixels, [](Channels in) { return in; });
    }
}

}  // namespace vxgui
