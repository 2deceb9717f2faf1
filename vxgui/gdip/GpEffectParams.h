#pragma once

#include "vxgui/platform/gdiplus_effects.h"

namespace vxgui {

/// The effects that `GpEffect` makes. The effect of a colour matrix takes a `ColorMatrix`, any
/// other the record of its name.
enum class GpEffectType : int32_t {
    blur = 0,
    sharpen = 1,
    ColorMatrix = 2,
    ColorLUT = 3,
    BrightnessContrast = 4,
    HueSaturationLightness = 5,
    Levels = 6,
    Tint = 7,
    ColorBalance = 8,
    RedEyeCorrection = 9,
    ColorCurve = 10,
};

using gdiplus::AdjustBlackSaturation;
using gdiplus::AdjustContrast;
using gdiplus::AdjustDensity;
using gdiplus::AdjustExposure;
using gdiplus::AdjustHighlight;
using gdiplus::AdjustMidtone;
using gdiplus::AdjustShadow;
using gdiplus::AdjustWhiteSaturation;
using gdiplus::CurveAdjustments;
using gdiplus::CurveChannel;
using gdiplus::CurveChannelAll;
using gdiplus::CurveChannelBlue;
using gdiplus::CurveChannelGreen;
using gdiplus::CurveChannelRed;

using gdiplus::BlurParams;
using gdiplus::BrightnessContrastParams;
using gdiplus::ColorBalanceParams;
using gdiplus::ColorChannelLUT;
using gdiplus::ColorCurveParams;
using gdiplus::ColorLUTParams;
using gdiplus::HueSaturationLightnessParams;
using gdiplus::LevelsParams;
using gdiplus::RedEyeCorrectionParams;
using gdiplus::SharpenParams;
using gdiplus::TintParams;

}  // namespace vxgui
