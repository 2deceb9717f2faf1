#pragma once

#include <cstdint>
#include <span>

#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// Turns the hue of pixels and moves their saturation and lightness, or gives them one hue, in
/// integers as far as it goes. All that doesn't depend on a pixel is worked out once. Alpha
/// stays.
class HlsAdjustment {
public:
    /// The hue in degrees, the others in percent, -100 to 100; the saturation 0 to 100 under
    /// `colourize`.
    HlsAdjustment(float hue, float luminance, float saturation, bool colourize);

    void Apply(std::span<ARGB> pixels) const;

private:
    /// Channels between the stages: they may leave 0 to 255 until the last.
    struct Channels {
        int32_t red, green, blue;
    };
    struct Pair {
        int32_t max, min;
    };

    /// The highest and the lowest channel, and the hue in sixths of a turn.
    struct HuePlace {
        Pair pair;
        float f;
    };

    void PrepareColourize();
    static HuePlace PlaceOf(Channels in);
    Channels Colourized(Channels in) const;
    Channels HueTurned(Channels in) const;
    Channels Saturated(Channels in) const;
    Pair Stretched(Pair pair) const;
    int32_t Lightened(int32_t channel) const;
    template <class Stage>
    void ApplyStage(std::span<ARGB> pixels, Stage stage) const;

    bool colourize_;
    float h_;             ///< sixths of a turn
    int32_t hSign_;       ///< of the hue
    int32_t p_ = 0;       ///< the hue's place on a circle of 1530
    int32_t sector_ = 0;  ///< sixth of the circle
    int32_t weight_ = 0;  ///< of the channel between the highest and the lowest, over 256
    float inv_;           ///< 1 less the saturation
    float sf_;            ///< the saturation as a fraction
    float sp_;            ///< 1 more than it under colourize, else half of it
    int32_t sb_ = 0;      ///< it on the scale of a channel
    int32_t sSign_;
    int32_t lInt_;  ///< the luminance in percent
    int32_t lBase_ = 0;
    int32_t lMul_ = 0;  ///< in 65536ths
};

}  // namespace vxgui
