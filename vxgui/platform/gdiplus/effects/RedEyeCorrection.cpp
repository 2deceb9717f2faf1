#include <algorithm>
#include <cstring>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/effects/Effects.h"

namespace vxgui::gdiplus {
namespace {

// A pupil that the flash lit is far redder than anything else.
bool IsRedEye(ARGB pixel) {
    const ARGB red = pixel >> 16 & 255, green = pixel >> 8 & 255, blue = pixel & 255;
    return red >= 64 && red * 2 > std::max(green, blue) * 3;
}

ARGB WithoutRed(ARGB pixel) {
    const ARGB gray = ((pixel >> 8 & 255) + (pixel & 255)) / 2;
    return (pixel & 0xFF00FFFF) | gray << 16;
}

// The record has room for one area at least; each further one makes it longer.
class RedEyeCorrection final : public Effect {
public:
    std::vector<BYTE> Parameters() const override {
        const size_t room = std::max<size_t>(areas_.size(), 1);
        std::vector<BYTE> bytes(sizeof(int32_t) + room * sizeof(gdi::RECT));
        const auto count = static_cast<int32_t>(areas_.size());
        std::memcpy(bytes.data(), &count, sizeof count);
        if (count > 0) {
            std::memcpy(bytes.data() + sizeof count, areas_.data(),
                        areas_.size() * sizeof(gdi::RECT));
        }
        return bytes;
    }

    GpStatus Parameters(std::span<const BYTE> bytes) override {
        int32_t count = 0;
        if (bytes.size() < sizeof(RedEyeCorrectionParams)) return InvalidParameter;
        std::memcpy(&count, bytes.data(), sizeof count);
        const size_t room = (bytes.size() - sizeof count) / sizeof(gdi::RECT);
        if (count < 0 || static_cast<size_t>(count) > room) return InvalidParameter;
        areas_.resize(static_cast<size_t>(count));
        if (count > 0) {
            std::memcpy(areas_.data(), bytes.data() + sizeof count,
                        areas_.size() * sizeof(gdi::RECT));
        }
        return Ok;
    }

    void Apply(EffectPicture& picture, const GpRect& area, GpPoint origin) const override {
        for (const gdi::RECT& eye : areas_) {
            GpRect place = FromRECT(eye);
            place.X -= origin.X;
            place.Y -= origin.Y;
            Correct(picture, Common(place, area));
        }
    }

private:
    static void Correct(EffectPicture& picture, const GpRect& area) {
        for (INT y = area.Y; y < area.Y + area.Height; ++y) {
            for (INT x = area.X; x < area.X + area.Width; ++x) {
                ARGB& pixel = picture.Row(y)[static_cast<size_t>(x)];
                if (IsRedEye(pixel)) pixel = WithoutRed(pixel);
            }
        }
    }

    std::vector<gdi::RECT> areas_;
};

}  // namespace

Ref<Effect> MakeRedEyeCorrection() { return New<RedEyeCorrection>(); }

}  // namespace vxgui::gdiplus
