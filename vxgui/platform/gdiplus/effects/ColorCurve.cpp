#include "vxgui/platform/gdiplus/effects/EffectOf.h"
#include "vxgui/platform/gdiplus/effects/Effects.h"
#include "vxgui/platform/gdiplus/effects/Tones.h"

namespace vxgui::gdiplus {
namespace {

struct Range {
    int32_t low, high;
};
constexpr Range kRanges[] = {{-255, 255}, {-255, 255}, {-100, 100}, {-100, 100},
                             {-100, 100}, {-100, 100}, {0, 255},    {0, 255}};

// What lies at `full` becomes full, what lies at `none` nothing.
double Stretched(double value, double none, double full) {
    return full > none ? (value - none) * 255 / (full - none) : value >= full ? 255 : 0;
}

// Each curve rises everywhere, whatever its value. Those of the tones leave both ends: a
// highlight works most at two thirds, a shadow at one third.
double Curve(CurveAdjustments adjustment, int value, double tone) {
    const double place = tone / 255, share = value / 100.0;
    switch (adjustment) {
        case AdjustExposure:
            return tone * std::exp2(value / 128.0);
        case AdjustDensity:
            return 255 * std::pow(place, std::exp2(-value / 128.0));
        case AdjustContrast:
            return Contrast(tone, value);
        case AdjustHighlight:
            return 255 * (place + share * place * place * (1 - place));
        case AdjustShadow:
            return 255 * (place + share * place * (1 - place) * (1 - place));
        case AdjustMidtone:
            return 255 * Midtone(place, value);
        case AdjustWhiteSaturation:
            return Stretched(tone, 0, value);
        default:
            return Stretched(tone, value, 255);
    }
}

class ColorCurve final : public TableEffect<ColorCurveParams> {
public:
    ColorCurve() : TableEffect({AdjustExposure, CurveChannelAll, 0}) {}

    std::optional<ChannelTables> Tables() const override {
        const ByteTable curve = MakeByteTable(
            [this](int i) { return Curve(params_.adjustment, params_.adjustValue, i); });
        const ByteTable same = SameTone();
        const auto of = [&](CurveChannel channel) {
            return params_.channel == CurveChannelAll || params_.channel == channel ? curve : same;
        };
        return ChannelTables{of(CurveChannelBlue), of(CurveChannelGreen), of(CurveChannelRed),
                             same};
    }

private:
    bool IsValid(const ColorCurveParams& params) const override {
        if (!Within(params.adjustment, AdjustExposure, AdjustBlackSaturation)) return false;
        const Range range = kRanges[params.adjustment];
        return Within(params.channel, CurveChannelAll, CurveChannelBlue) &&
               Within(params.adjustValue, range.low, range.high);
    }
};

}  // namespace

Ref<Effect> MakeColorCurve() { return New<ColorCurve>(); }

}  // namespace vxgui::gdiplus
