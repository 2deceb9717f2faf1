#include <array>
#include <cmath>

#include "vxgui/frame/ScreenDots.h"
#include "vxgui/gdip/GpFont.h"

namespace vxgui {
namespace {

constexpr float kFailed = -1;
constexpr float kPathDpi = 96;
constexpr float kStep = 0.125f, kTooSmall = 0.25f, kTooLarge = 600;

// A font of the search, which ends with its scope.
class TrialFont {
public:
    TrialFont(gdiplus::GpFontFamily* family, float size, int32_t style) {
        made_ = flat::GdipCreateFont(family, size, style, gdiplus::UnitWorld, &font_);
    }
    ~TrialFont() {
        if (font_) flat::GdipDeleteFont(font_);
    }
    TrialFont(const TrialFont&) = delete;
    TrialFont& operator=(const TrialFont&) = delete;

    gdiplus::Status Made() const { return made_; }
    gdiplus::Status Height(float* height) const {
        return flat::GdipGetFontHeightGivenDPI(font_, kPathDpi, height);
    }

private:
    gdiplus::GpFont* font_ = nullptr;
    gdiplus::Status made_;
};

// The last few fonts whose handles were given out, so that these can be drawn with.
void KeepForAWhile(const Ref<ole::StdFont>& font) {
    thread_local std::array<Ref<ole::StdFont>, 16> kept;
    thread_local size_t next = 0;
    kept[next++ % kept.size()] = font;
}

}  // namespace

float GpFont::Height(gdiplus::GpGraphics* hGraphics) {
    if (!hGraphics) return HeightDPI(0);
    float height = 0;
    return Check(flat::GdipGetFontHeight(handle_, hGraphics, &height)) ? height : kFailed;
}

float GpFont::HeightDPI(float Dpi) {
    if (Dpi == 0) Dpi = static_cast<float>(ScreenDotsPerInch());
    float height = 0;
    return Check(flat::GdipGetFontHeightGivenDPI(handle_, Dpi, &height)) ? height : kFailed;
}

float GpFont::PointSize() {
    if (mUnit == gdiplus::UnitPoint) return mSize;
    return static_cast<float>(std::abs(HeightDPI(0)) * 72.0 / ScreenDotsPerInch());
}

gdi::HFONT GpFont::hFont() {
    const Ref<ole::StdFont> font = StdFont();
    KeepForAWhile(font);
    return font->hFont();
}

float GpFont::PathEmSize() {
    if (mPathEmSize == 0) FindPathEmSize();
    return mPathEmSize;
}

void GpFont::FindPathEmSize() {
    gdiplus::GpFontFamily* family = nullptr;
    if (!Check(flat::GdipCreateFontFamilyFromName(mName.data(), nullptr, &family))) return;
    float target = 0;
    if (Check(flat::GdipGetFontHeightGivenDPI(handle_, kPathDpi, &target)))
        SearchPathEmSize(family, target);
    flat::GdipDeleteFontFamily(family);
}

// The comparison is exact on purpose: where no step meets the height, the search runs to its end.
void GpFont::SearchPathEmSize(gdiplus::GpFontFamily* family, float target) {
    mPathEmSize = mSize;
    for (;;) {
        const TrialFont trial(family, mPathEmSize, mStyle);
        float height = 0;
        if (!Check(trial.Made()) || !Check(trial.Height(&height)) || height == target) return;
        mPathEmSize += kStep;
        if (mPathEmSize <= kTooSmall || mPathEmSize >= kTooLarge) return;
    }
}

}  // namespace vxgui
