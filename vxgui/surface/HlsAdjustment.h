#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "vxgui/pixels/HlsLoops.h"

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
    /// They may leave 0 to 255 until they are lightened.
    struct Channels {
        int32_t red, green, blue;
    };
    void PrepareColourize();
    Channels Colourized(int32_t average) const;
    ARGB ColorOf(int32_t average) const;

    bool colourize_;
    float h_;  ///< sixths of a turn
    int32_t hSign_;
    hls::Stretch stretch_{};
    hls::Light light_{};

    // Under colourize:
    int32_t p_ = 0;       ///< the hue's place on a circle of 1530
    int32_t sector_ = 0;  ///< sixth of the circle
    int32_t weight_ = 0;  ///< of the channel between the highest and the lowest, over 256
    float sp_ = 1;        ///< 1 more than the saturation
    int32_t sb_ = 0;      ///< it on the scale of a channel
    std::array<ARGB, 256> colors_{};  ///< for each average of the channels
};

}  // namespace vxgui
