#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

/// The loops of the hue, lightness and saturation adjustment. What they are given is worked out
/// once; a channel may leave 0 to 255 between the steps and is held to it at the end. Alpha stays.
namespace vxgui::hls {

/// How the highest and the lowest channel of a pixel move apart or together. Named values have
/// single precision.
struct Stretch {
    int32_t sign;  ///< of the saturation; 0 leaves both
    float factor;  ///< the saturation as a fraction
    float rest;    ///< 1 less it
    float half;    ///< half of it
};

/// The last step. Up: factor * c / 65536 + base; down: base - (c ^ 255) * factor / 65536.
struct Light {
    int32_t sign;  ///< 0 leaves the channels
    int32_t base;
    int32_t factor;
};

VXPLATFORM_API int32_t Lightened(int32_t channel, const Light& light);

/// Turns hues by `turn` sixths of a circle, -1 to 5.
VXPLATFORM_API void TurnHues(std::span<ARGB> pixels, float turn, const Stretch& stretch,
                             const Light& light);
VXPLATFORM_API void Saturate(std::span<ARGB> pixels, const Stretch& stretch, const Light& light);
VXPLATFORM_API void Lighten(std::span<ARGB> pixels, const Light& light);
/// Gives each pixel the colour that stands for the truncated average of its channels.
VXPLATFORM_API void Colourize(std::span<ARGB> pixels, const std::array<ARGB, 256>& colors);

}  // namespace vxgui::hls
