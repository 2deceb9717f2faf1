#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/words/Premultiply.h"
#include "vxgui/platform/gdiplus/effects/BlurPicture.h"
#include "vxgui/platform/gdiplus/effects/EffectOf.h"
#include "vxgui/platform/gdiplus/effects/Effects.h"

namespace vxgui::gdiplus {
namespace {

INT PixelsOf(float radius) { return static_cast<INT>(std::ceil(radius)); }

bool IsRadius(float radius) { return radius >= 0 && radius <= 255; }

// Calls change(pixel, blurred pixel), the second premultiplied, for an area.
template <class Change>
void WithBlurred(EffectPicture& picture, const GpRect& area, INT radius, bool clearBeyond,
                 Change change) {
    const std::vector<ARGB> blurred = Blurred(picture, area, radius, clearBeyond);
    auto next = blurred.begin();
    for (INT y = area.Y; y < area.Y + area.Height; ++y) {
        for (INT x = area.X; x < area.X + area.Width; ++x) {
            change(picture.Row(y)[static_cast<size_t>(x)], *next++);
        }
    }
}

class Blur final : public EffectOf<BlurParams> {
public:
    Blur() : EffectOf({0, 0}) {}

    INT Reach() const override { return PixelsOf(params_.radius); }
    bool Expands() const override { return params_.expandEdge != 0; }
    void Apply(EffectPicture& picture, const GpRect& area, GpPoint) const override {
        if (Reach() == 0) return;
        WithBlurred(picture, area, Reach(), Expands(),
                    [](ARGB& pixel, ARGB blurred) { pixel = Straight(blurred); });
    }

private:
    bool IsValid(const BlurParams& params) const override { return IsRadius(params.radius); }
};

// Moves each colour away from what lies around it.
class Sharpen final : public EffectOf<SharpenParams> {
public:
    Sharpen() : EffectOf({0, 0}) {}

    INT Reach() const override { return PixelsOf(params_.radius); }
    void Apply(EffectPicture& picture, const GpRect& area, GpPoint) const override {
        if (Reach() == 0 || params_.amount == 0) return;
        WithBlurred(picture, area, Reach(), false, [this](ARGB& pixel, ARGB blurred) {
            pixel = Sharpened(pixel, Straight(blurred));
        });
    }

private:
    bool IsValid(const SharpenParams& params) const override {
        return IsRadius(params.radius) && params.amount >= 0 && params.amount <= 100;
    }
    ARGB Sharpened(ARGB pixel, ARGB around) const {
        const float share = params_.amount / 100;
        // What the blurred pixels went through, so that nothing moves where nothing differs.
        const ARGB own = Straight(Premultiplied(pixel));
        ARGB result = pixel & 0xFF000000;
        for (int shift = 0; shift < 24; shift += 8) {
            const auto at = static_cast<float>(pixel >> shift & 255);
            const float away =
                static_cast<float>(own >> shift & 255) - static_cast<float>(around >> shift & 255);
            result |= static_cast<ARGB>(std::clamp(at + away * share, 0.0f, 255.0f) + 0.5f)
                      << shift;
        }
        return result;
    }
};

}  // namespace

Ref<Effect> MakeBlur() { return New<Blur>(); }
Ref<Effect> MakeSharpen() { return New<Sharpen>(); }

}  // namespace vxgui::gdiplus
