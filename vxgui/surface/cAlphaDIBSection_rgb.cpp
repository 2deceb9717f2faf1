#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

namespace {

/// One channel's share of `AdjustRGB`: above 0 towards full, below 0 down by a constant.
class ChannelShift {
public:
    explicit ChannelShift(float value) : sign_((value > 0) - (value < 0)) {
        if (sign_ > 0) {
            base_ = RoundHalfEven(value * 255.0);
            factor_ = static_cast<float>(1.0 - value);
        } else if (sign_ < 0) {
            base_ = RoundHalfEven(value * 255.0 + 255);
            factor_ = 1;  // and not 1 + value: a constant is taken off
        }
    }

    uint8_t operator()(uint8_t c) const {
        if (sign_ == 0) return c;
        const double result =
            sign_ > 0 ? double{factor_} * c + base_ : base_ - (c ^ 255) * double{factor_};
        return RoundHalfEven<uint8_t>(std::clamp(result, 0.0, 255.0));
    }

private:
    int32_t sign_;
    int32_t base_ = 0;
    float factor_ = 0;
};

}  // namespace

void cAlphaDIBSection::AdjustRGB(float Red, float Green, float Blue, int32_t xStart, int32_t yStart,
                                 int32_t xEnd, int32_t yEnd) {
    const std::span<ARGB> pixels = Pixels();
    if (pixels.empty()) return;
    const ChannelShift red(Red), green(Green), blue(Blue);
    // A pixel index at the start and an offset in bytes at the end: hosts give them so.
    const int64_t first = WrapMul(xStart, 4) / 4;
    const int64_t last = (xEnd == -1 ? BytesPerScanLine() - 4 : xEnd) >> 2;
    const int32_t bottom = std::max(yStart, 0);
    for (int32_t row = std::min(yEnd == -1 ? Height() - 1 : yEnd, Height() - 1); row >= bottom;
         --row) {
        // Offsets outside the row lead into its neighbours, those outside the memory nowhere.
        const int64_t start = int64_t{row} * Width();
        const int64_t from = std::max(start + first, int64_t{0});
        const int64_t to = std::min(start + last, static_cast<int64_t>(pixels.size()) - 1);
        for (int64_t at = from; at <= to; ++at) {
            ARGB& pixel = pixels[static_cast<size_t>(at)];
            pixel.Red = red(pixel.Red);
            pixel.Green = green(pixel.Green);
            pixel.Blue = blue(pixel.Blue);
        }
    }
}

}  // namespace vxgui
