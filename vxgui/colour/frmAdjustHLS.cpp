#include "vxgui/colour/frmAdjustHLS.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/HueDegrees.h"
#include "vxgui/colour/modColours.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

constexpr forms::AdjustCaptions kCaptions{u"色彩调整 色调、饱和度、亮度",
                                          {u"色　调", u"饱和度", u"亮　度"},
                                          u"单色化",
                                          u"预览",
                                          u"确 定",
                                          u"取 消",
                                          u"还 原",
                                          ColorWheel::kSide};

struct RealColor {
    double red, green, blue;
};

// Up to twice the full scale, so that a colour is full over a sixth of the circle.
RealColor BaseColor(int32_t hue) {
    const auto part = [](int32_t degrees) -> double { return RoundHalfEven(degrees * 255 / 60.0); };
    if (hue < 120) return {part(120 - hue), part(hue), 0};
    if (hue < 240) return {0, part(240 - hue), part(hue - 120)};
    return {part(hue - 240), 0, part(360 - hue)};
}

int32_t Shaded(double channel, int32_t lightness) {
    if (lightness < 121) return std::min(RoundHalfEven(channel * lightness / 120), 255);
    const int32_t base = RoundHalfEven((lightness - 120) * 256 / 120.0);
    return std::min(RoundHalfEven(channel * (240 - lightness) / 120 + base), 255);
}

}  // namespace

frmAdjustHLS::frmAdjustHLS() = default;
frmAdjustHLS::~frmAdjustHLS() = default;

void frmAdjustHLS::HueRGB(int32_t hue, int32_t& r, int32_t& g, int32_t& b) const {
    const WheelColor color = PureHue(hue);
    r = color.red;
    g = color.green;
    b = color.blue;
}

int32_t frmAdjustHLS::HLSCOLOR(int32_t H, int32_t L, int32_t S) const {
    const double saturation = S / 240.0;
    const int32_t grey = RoundHalfEven((1 - saturation) * 128);
    const auto channel = [&](double base) { return Shaded(base * saturation + grey, L); };
    const RealColor base = BaseColor(HueInRange(H));
    return ColorRefOf(channel(base.red), channel(base.green), channel(base.blue));
}

void frmAdjustHLS::ShowModal(forms::Toolkit* toolkit) {
    const KeepAlive alive(this);
    result_ = false;
    if (!toolkit || !surface_ || form_) return;
    const std::unique_ptr<forms::AdjustForm> form = toolkit->CreateAdjustForm(*this, kCaptions);
    if (!form) return;
    form_ = form.get();
    form->ShowModal();
    form_ = nullptr;
}

void frmAdjustHLS::Loaded(double viewWidth, double viewHeight) {
    view_.ViewSize(RoundHalfEven(viewWidth), RoundHalfEven(viewHeight));
    unadjusted_ = surface_->Picture();
    view_.PictureSize(surface_->Width(), surface_->Height());
    view_.ResetZoom();
    wheel_ = std::make_unique<ColorWheel>();
    form_->ScaleText(view_.ScaleText().view());
    form_->Ticked(forms::AdjustBox::Colourize, values_.Colourize());
    PutInControls();
    form_->Ticked(forms::AdjustBox::Preview, previewTicked_);
}

void frmAdjustHLS::Resized(double viewWidth, double viewHeight) {
    view_.ViewSize(RoundHalfEven(viewWidth), RoundHalfEven(viewHeight));
}

void frmAdjustHLS::Unloaded() {
    form_->StopTimer();
    wheel_ = nullptr;
    unadjusted_ = nullptr;
}

void frmAdjustHLS::ButtonPressed(forms::AdjustButton button) {
    switch (button) {
        case forms::AdjustButton::Ok:
            return Accept();
        case forms::AdjustButton::Cancel:
            return Close(false);
        case forms::AdjustButton::Reset:
            values_.Reset();
            PutInControls();
            ValueChanged();
    }
}

void frmAdjustHLS::Accept() {
    surface_->ResetAdjustColor();
    AdjustAll(0);
    Close(true);
}

void frmAdjustHLS::Close(bool result) {
    result_ = result;
    form_->Close();
}

}  // namespace vxgui
