#include "vxgui/platform/gdiplus/effects/EffectOf.h"
#include "vxgui/platform/gdiplus/effects/Effects.h"
#include "vxgui/platform/gdiplus/effects/Tones.h"

namespace vxgui::gdiplus {
namespace {

class BrightnessContrast final : public TableEffect<BrightnessContrastParams> {
public:
    BrightnessContrast() : TableEffect({0, 0}) {}

    std::optional<ChannelTables> Tables() const override {
        return ForColors(MakeByteTable([this](int i) {
            return Contrast(i + params_.brightnessLevel, params_.contrastLevel);
        }));
    }

private:
    bool IsValid(const BrightnessContrastParams& params) const override {
        return Within(params.brightnessLevel, -255, 255) && Within(params.contrastLevel, -100, 100);
    }
};

class Levels final : public TableEffect<LevelsParams> {
public:
    Levels() : TableEffect({100, 0, 0}) {}

    std::optional<ChannelTables> Tables() const override {
        return ForColors(MakeByteTable([this](int i) { return 255 * Toned(i * 100 / 255.0); }));
    }

private:
    bool IsValid(const LevelsParams& params) const override {
        return Within(params.highlight, 0, 100) && Within(params.midtone, -100, 100) &&
               Within(params.shadow, 0, 100);
    }
    // A shadow at the highlight or above it leaves a step.
    double Toned(double percent) const {
        const double range = params_.highlight - params_.shadow;
        if (percent >= params_.highlight) return 1;
        if (percent <= params_.shadow || range <= 0) return 0;
        return Midtone((percent - params_.shadow) / range, params_.midtone);
    }
};

class ColorBalance final : public TableEffect<ColorBalanceParams> {
public:
    ColorBalance() : TableEffect({0, 0, 0}) {}

    std::optional<ChannelTables> Tables() const override {
        return ChannelTables{Shifted(params_.yellowBlue), Shifted(params_.magentaGreen),
                             Shifted(params_.cyanRed), SameTone()};
    }

private:
    bool IsValid(const ColorBalanceParams& params) const override {
        return Within(params.cyanRed, -100, 100) && Within(params.magentaGreen, -100, 100) &&
               Within(params.yellowBlue, -100, 100);
    }
    // 100 adds half of the whole range.
    static ByteTable Shifted(int percent) {
        return MakeByteTable([percent](int i) { return i + percent * 255 / 200.0; });
    }
};

class ColorLut final : public TableEffect<ColorLUTParams> {
public:
    ColorLut() : TableEffect(ColorLUTParams{}) {
        const ByteTable same = SameTone();
        for (ColorChannelLUT* lut : {&params_.lutB, &params_.lutG, &params_.lutR, &params_.lutA}) {
            std::memcpy(lut->Colors, same.data(), same.size());
        }
    }

    std::optional<ChannelTables> Tables() const override {
        return ChannelTables{std::to_array(params_.lutB.Colors), std::to_array(params_.lutG.Colors),
                             std::to_array(params_.lutR.Colors),
                             std::to_array(params_.lutA.Colors)};
    }

private:
    bool IsValid(const ColorLUTParams&) const override { return true; }
};

}  // namespace

Ref<Effect> MakeBrightnessContrast() { return New<BrightnessContrast>(); }
Ref<Effect> MakeLevels() { return New<Levels>(); }
Ref<Effect> MakeColorBalance() { return New<ColorBalance>(); }
Ref<Effect> MakeColorLut() { return New<ColorLut>(); }

}  // namespace vxgui::gdiplus
