#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/base/Object.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// A colour and what can be derived from it. Hue, luminance and saturation are 0 to 240; a full
/// turn of hue is 240, and that of a grey is 160. Results are ARGB values unless said otherwise;
/// `bColorRef` asks for a COLORREF instead. Only the setters change the object.
class VXGUI_API GpColor : public Object {
public:
    GpColor();

    // The colour.
    void Color(uint8_t a, uint8_t r, uint8_t g, uint8_t b);
    uint8_t Alpha() const { return argb_.Alpha; }
    void Alpha(uint8_t value) { argb_.Alpha = value; }
    uint8_t Blue() const { return argb_.Blue; }
    void Blue(uint8_t value) { argb_.Blue = value; }
    uint8_t Green() const { return argb_.Green; }
    void Green(uint8_t value) { argb_.Green = value; }
    uint8_t Red() const { return argb_.Red; }
    void Red(uint8_t value) { argb_.Red = value; }
    /// The ARGB value; a new object's is -16777216, opaque black.
    int32_t Value() const { return ValueFromARGB(argb_); }
    void Value(int32_t value) { argb_ = ARGBFromValue(value); }
    void FromColorRef(int32_t ColorRef, uint8_t Alpha = 255);
    ARGB MakeARGB() const { return argb_; }
    int32_t ToColorRef() const;

    // Its place on the scales. A value that is set is not checked and keeps the alpha.
    int16_t hue() const;
    void hue(int16_t value);
    int16_t Luminance() const;
    void Luminance(int16_t value);
    int16_t Saturation() const;
    void Saturation(int16_t value);
    /// The weighted sum of the channels, 0 to 255.
    int16_t Brightness() const;

    // Colours that go with it.
    /// The opposite hue, at full saturation and middle luminance.
    int32_t ComplementaryColor(bool bColorRef = false) const;
    /// The opposite on the painters' wheel of red, yellow and blue.
    int32_t ComplementaryColorRYB(bool bColorRef = false) const;
    /// A colour that stands out against this one.
    int32_t Diff(bool bColorRef = false) const;
    int32_t Invert() const;

    // Shades. `percDarker` and `percLighter` are 0 to 1.
    int32_t Dark() const;
    int32_t Darker(float percDarker) const;
    int32_t DarkDark() const;
    int32_t Light() const;
    int32_t Lighter(float percLighter) const;
    int32_t LightLight() const;
    /// Luminance or saturation changed by `n` tenths of a percent: with `bScale` of the way to the
    /// end of the scale, else of the whole scale.
    int32_t AdjustLuma(int16_t n, bool bScale) const;
    int32_t AdjustSatu(int16_t n, bool bScale) const;
    /// The hue turned by `n`.
    int32_t AdjustHue(int16_t n) const;

protected:
    ~GpColor() override = default;

private:
    ARGB argb_{0, 0, 0, 255};
};

}  // namespace vxgui
