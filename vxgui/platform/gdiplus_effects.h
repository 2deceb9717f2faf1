#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Effects over the pixels of a bitmap.
namespace vxgui::gdiplus {

struct BlurParams {
    float radius;        ///< 0 to 255: how far a pixel spreads
    int32_t expandEdge;  ///< not 0: edges fade, and a result of its own grows by the radius
};
struct SharpenParams {
    float radius;  ///< 0 to 255
    float amount;  ///< 0 to 100
};
struct TintParams {
    int32_t hue;     ///< -180 to 180; 0 is blue, 60 cyan, 120 green, -60 magenta, -120 red
    int32_t amount;  ///< -100 to 100: how much of the hue more
};
/// Bytes of more areas may follow; the size then tells how many there are.
struct RedEyeCorrectionParams {
    int32_t numberOfAreas;
    gdi::RECT areas;
};
struct BrightnessContrastParams {
    int32_t brightnessLevel;  ///< -255 to 255
    int32_t contrastLevel;    ///< -100 to 100
};
/// Each from -100 to 100.
struct ColorBalanceParams {
    int32_t cyanRed, magentaGreen, yellowBlue;
};

enum CurveAdjustments : int32_t {
    AdjustExposure = 0,         ///< -255 to 255
    AdjustDensity = 1,          ///< -255 to 255
    AdjustContrast = 2,         ///< -100 to 100
    AdjustHighlight = 3,        ///< -100 to 100
    AdjustShadow = 4,           ///< -100 to 100
    AdjustMidtone = 5,          ///< -100 to 100
    AdjustWhiteSaturation = 6,  ///< 0 to 255; 255 changes nothing
    AdjustBlackSaturation = 7,  ///< 0 to 255; 0 changes nothing
};
enum CurveChannel : int32_t {
    CurveChannelAll = 0,
    CurveChannelRed = 1,
    CurveChannelGreen = 2,
    CurveChannelBlue = 3,
};
struct ColorCurveParams {
    CurveAdjustments adjustment;
    CurveChannel channel;
    int32_t adjustValue;
};

struct ColorChannelLUT {
    BYTE Colors[256];
};
struct ColorLUTParams {
    ColorChannelLUT lutB, lutG, lutR, lutA;
};
struct HueSaturationLightnessParams {
    int32_t hueLevel;         ///< -180 to 180 degrees
    int32_t saturationLevel;  ///< -100 to 100
    int32_t lightnessLevel;   ///< -100 to 100
};
struct LevelsParams {
    int32_t highlight;  ///< 0 to 100: what is above becomes full
    int32_t midtone;    ///< -100 to 100
    int32_t shadow;     ///< 0 to 100: what is below becomes 0
};

extern "C" {

/// Memory that the caller owns, as auxiliary data is.
VXPLATFORM_API void* GdipAlloc(size_t size);
VXPLATFORM_API void GdipFree(void* memory);

/// `guid` is one of eleven; any other gives `InvalidParameter`. A new effect changes nothing.
VXPLATFORM_API GpStatus GdipCreateEffect(GUID guid, CGpEffect** effect);
VXPLATFORM_API GpStatus GdipDeleteEffect(CGpEffect* effect);
VXPLATFORM_API GpStatus GdipGetEffectParameterSize(CGpEffect* effect, UINT* size);
/// A size that isn't the record's or a value out of its range gives `InvalidParameter`.
VXPLATFORM_API GpStatus GdipSetEffectParameters(CGpEffect* effect, const void* params, UINT size);
/// `size` is the room before and the record's size behind; too little gives `InsufficientBuffer`.
VXPLATFORM_API GpStatus GdipGetEffectParameters(CGpEffect* effect, UINT* size, void* params);

/// Applies an effect in place, to a part of the bitmap or, with a null, to all of it. `auxData`,
/// when it is asked for, gets the tables of an effect that has some: a `ColorLUTParams` for
/// `GdipFree`; null and 0 for others.
VXPLATFORM_API GpStatus GdipBitmapApplyEffect(GpBitmap* bitmap, CGpEffect* effect, gdi::RECT* roi,
                                              BOOL useAuxData, void** auxData, INT* auxDataSize);
/// Applies it to a copy of the part. `outputRect` tells where the result lies on the bitmap. Takes
/// the one bitmap itself where the published function takes a list and its count: no effect works
/// on more than one, and callers of this module pass no count.
VXPLATFORM_API GpStatus GdipBitmapCreateApplyEffect(GpBitmap* bitmap, CGpEffect* effect,
                                                    gdi::RECT* roi, gdi::RECT* outputRect,
                                                    GpBitmap** outputBitmap, BOOL useAuxData,
                                                    void** auxData, INT* auxDataSize);

}  // extern "C"

}  // namespace vxgui::gdiplus

/// The functions above, for the tables that list all.
#define VXGUI_GDIPLUS_EFFECTS(X)   \
    X(GdipAlloc)                   \
    X(GdipBitmapApplyEffect)       \
    X(GdipBitmapCreateApplyEffect) \
    X(GdipCreateEffect)            \
    X(GdipDeleteEffect)            \
    X(GdipFree)                    \
    X(GdipGetEffectParameterSize)  \
    X(GdipGetEffectParameters)     \
    X(GdipSetEffectParameters)
