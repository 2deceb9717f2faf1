#pragma once

#include <cstdint>

#include "vxgui/colour/IColorAdjust.h"

namespace vxgui {

/// Turns the hue and moves saturation and lightness, or gives all pixels one hue and saturation.
/// The properties can only be set; all start at 0.
class VXGUI_API ColorAdjust_HSL : public IColorAdjust {
public:
    ColorAdjust_HSL();

    void Colourize(bool value) { colourize_ = value; }
    /// Added to a pixel's hue, in sixths of a turn; the hue itself under `Colourize`.
    void hue(float value) { hue_ = value; }
    /// From -1 to 1; the saturation itself, from 0 to 1, under `Colourize`.
    void Saturation(float value) { saturation_ = value; }
    /// From -1 to 1; without effect under `Colourize`.
    void Lightness(float value) { lightness_ = value; }

    /// The alpha of `dARGB` stays.
    void TransColor(ARGB& sARGB, ARGB& dARGB) override;

    /// Channels of 0 to 255 to a hue of -1 to 5 in sixths of a turn (red 0, green 2, blue 4, and
    /// 4 for greys), a lightness and a saturation of 0 to 1.
    static void RGBtoHLS(int32_t r, int32_t g, int32_t b, float& h, float& l, float& s);
    /// The reverse. Any hue will do; lightness and saturation are held to 0 to 1.
    static void HLStoRGB(float h, float l, float s, int32_t& r, int32_t& g, int32_t& b);

protected:
    ~ColorAdjust_HSL() override = default;

private:
    bool colourize_ = false;
    float hue_ = 0;
    float saturation_ = 0;
    float lightness_ = 0;
};

}  // namespace vxgui
