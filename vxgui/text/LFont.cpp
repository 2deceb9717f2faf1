#include "vxgui/text/LFont.h"

#include <cmath>
#include <tuple>

#include "vxgui/base/Rounding.h"
#include "vxgui/frame/ScreenDots.h"
#include "vxgui/frame/modUtilities.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {

namespace {

/// What `Clone` copies and `Equal` compares, in the order of the comparison.
auto Fields(auto& font) {
    return std::tie(font.Name, font.Height, font.Width, font.Escapement, font.Orientation,
                    font.Weight, font.Italic, font.Underline, font.StrikeOut, font.CharSet,
                    font.OutPrecision, font.ClipPrecision, font.Quality, font.PitchAndFamily);
}

}  // namespace

LFont::LFont() { SetUpApartment(); }

LFont::~LFont() {
    Unwatch();
    Dispose();
}

void LFont::Create(const String& name, int32_t height, int32_t width, int32_t escapement,
                   int32_t orientation, int32_t weight, uint8_t italic, uint8_t underline,
                   uint8_t strikeOut, uint8_t charSet, uint8_t outPrecision, uint8_t clipPrecision,
                   uint8_t quality, uint8_t pitchAndFamily) {
    const KeepAlive keep(this);
    Dispose();
    Fields(*this) =
        std::tie(name, height, width, escapement, orientation, weight, italic, underline, strikeOut,
                 charSet, outPrecision, clipPrecision, quality, pitchAndFamily);
}

Ref<LFont> LFont::Clone() const {
    Ref<LFont> copy = New<LFont>();
    Fields(*copy) = Fields(*this);
    return copy;
}

bool LFont::Equal(const Ref<LFont>& other) const {
    return other && Fields(*this) == Fields(*other);
}

float LFont::SIZE() const {
    const int32_t height = Height < 0 ? WrapSub(0, Height) : Height;
    return static_cast<float>(WrapMul(height, 72) / ScreenDotsPerInch());
}

void LFont::SIZE(float points) {
    const KeepAlive keep(this);
    Dispose();
    Height = RoundHalfEvenChecked(-(ScreenDotsPerInch() * points / 72), "LFont.SIZE");
    Width = 0;
}

}  // namespace vxgui
