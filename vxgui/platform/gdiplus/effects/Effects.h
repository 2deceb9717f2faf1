#pragma once

#include "vxgui/platform/gdiplus/Effect.h"

namespace vxgui::gdiplus {

/// One function an effect; each makes one that changes nothing.
Ref<Effect> MakeBlur();
Ref<Effect> MakeSharpen();
Ref<Effect> MakeColorMatrixEffect();
Ref<Effect> MakeColorLut();
Ref<Effect> MakeBrightnessContrast();
Ref<Effect> MakeHueSaturationLightness();
Ref<Effect> MakeLevels();
Ref<Effect> MakeTint();
Ref<Effect> MakeColorBalance();
Ref<Effect> MakeRedEyeCorrection();
Ref<Effect> MakeColorCurve();

}  // namespace vxgui::gdiplus
