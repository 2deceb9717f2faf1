#include <algorithm>
#include <cmath>

#include "vxgui/pixels/ColorMatrix.h"
#include "vxgui/platform/gdiplus/effects/EffectOf.h"
#include "vxgui/platform/gdiplus/effects/Effects.h"
#include "vxgui/platform/gdiplus/effects/HueTurn.h"

namespace vxgui::gdiplus {
namespace {

class ColorMatrixEffect final : public PixelEffect<ColorMatrixEffect, ColorMatrix> {
public:
    ColorMatrixEffect() : PixelEffect(ColorMatrix{}) {
        for (int i = 0; i < 5; ++i) params_.m[i][i] = 1;
    }
    void Turn(std::span<ARGB> pixels) const { ApplyColorMatrix(pixels, params_.m); }

private:
    bool IsValid(const ColorMatrix&) const override { return true; }
};

class HueSaturationLightness final
    : public PixelEffect<HueSaturationLightness, HueSaturationLightnessParams> {
public:
    HueSaturationLightness() : PixelEffect({0, 0, 0}) {}
    void Turn(std::span<ARGB> pixels) const {
        if (params_.hueLevel == 0 && params_.saturationLevel == 0 && params_.lightnessLevel == 0) {
            return;
        }
        for (ARGB& pixel : pixels) {
            pixel = WithHue(pixel, params_.hueLevel, params_.saturationLevel / 100.0,
                            params_.lightnessLevel / 100.0);
        }
    }

private:
    bool IsValid(const HueSaturationLightnessParams& params) const override {
        return Within(params.hueLevel, -180, 180) && Within(params.saturationLevel, -100, 100) &&
               Within(params.lightnessLevel, -100, 100);
    }
};

// Adds of a hue, less its own gray, so that the picture's brightness stays about the same.
class Tint final : public PixelEffect<Tint, TintParams> {
public:
    Tint() : PixelEffect({0, 0}) {}
    void Turn(std::span<ARGB> pixels) const { ApplyColorMatrix(pixels, Matrix().m); }

private:
    bool IsValid(const TintParams& params) const override {
        return Within(params.hue, -180, 180) && Within(params.amount, -100, 100);
    }
    // The published wheel begins at blue and runs against the usual one.
    ColorMatrix Matrix() const {
        const PureColor hue = PureHue(240 - params_.hue);
        const double gray = 0.299 * hue.red + 0.587 * hue.green + 0.114 * hue.blue;
        const double share = params_.amount / 200.0;
        ColorMatrix matrix{};
        for (int i = 0; i < 5; ++i) matrix.m[i][i] = 1;
        matrix.m[4][0] = static_cast<REAL>((hue.red - gray) * share);
        matrix.m[4][1] = static_cast<REAL>((hue.green - gray) * share);
        matrix.m[4][2] = static_cast<REAL>((hue.blue - gray) * share);
        return matrix;
    }
};

}  // namespace

Ref<Effect> MakeColorMatrixEffect() { return New<ColorMatrixEffect>(); }
Ref<Effect> MakeHueSaturationLightness() { return New<HueSaturationLightness>(); }
Ref<Effect> MakeTint() { return New<Tint>(); }

}  // namespace vxgui::gdiplus
