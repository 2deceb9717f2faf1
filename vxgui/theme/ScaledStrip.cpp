#include "vxgui/theme/ScaledStrip.h"

#include <algorithm>

#include "vxgui/base/Error.h"
#include "vxgui/pixels/ColorKey.h"
#include "vxgui/pixels/Premultiply.h"

namespace vxgui {
namespace {

// As much as a decoder makes of a picture.
constexpr int64_t kLargestArea = int64_t{64} << 20;

int32_t SizeOf(const std::vector<AreaBand>& bands) {
    int32_t size = 0;
    for (const AreaBand& band : bands) size += band.size;
    return size;
}

// The bands of all frames along one axis of a strip.
std::vector<AreaBand> BandsOf(const ScaledAxis& axis, int32_t strip, int32_t frames, int32_t base) {
    const int32_t frame = strip / frames;
    std::vector<AreaBand> bands;
    for (int32_t n = 0; n < frames; ++n)
        axis.AddBands(double(n) * frame, static_cast<double>(frame) / base, bands);
    return bands;
}

// Rows as the memory has them: the bottom one first.
std::vector<AreaBand> FromTheBottom(std::vector<AreaBand> bands, int32_t height) {
    std::ranges::reverse(bands);
    for (AreaBand& band : bands) band = {height - band.to, height - band.from, band.size};
    return bands;
}

std::vector<ARGB> PixelsOf(const StripUse& use) {
    const std::span<const ARGB> pixels = use.strip->Pixels();
    std::vector<ARGB> copy(pixels.begin(), pixels.end());
    if (!use.keyed) return copy;
    SetAlphaByKey(copy, static_cast<uint32_t>(use.strip->TransparentColor()), 0, 255);
    Premultiply(copy);
    return copy;
}

Ref<cAlphaDIBSection> NewStrip(int32_t width, int32_t height, const StripUse& use) {
    Ref<cAlphaDIBSection> strip = New<cAlphaDIBSection>();
    if (int64_t{width} * height > kLargestArea || !strip->Create(width, height))
        throw Error(ErrorNumber::OutOfMemory, "ThemeItem",
                    "A strip of " + String::FromInt(width) + "x" + String::FromInt(height) +
                        " pixels can't be made");
    const uint32_t flags = use.strip->Flags();
    strip->TransparentColor(use.strip->TransparentColor());
    strip->UseDrawDib(flags & cAlphaDIBSection::kUseDrawDib);
    strip->UseMsImag32(flags & cAlphaDIBSection::kUseMsImag32);
    // Marks the pixels that are to come; none of them is there yet.
    if (use.keyed || flags & cAlphaDIBSection::kPremultiplied) strip->PreMultiplyAlpha();
    return strip;
}

bool IsWhole(const cAlphaDIBSection& strip) {
    const int64_t asked = int64_t{std::max(strip.Width(), 0)} * std::max(strip.Height(), 0);
    return asked > 0 && static_cast<int64_t>(strip.Pixels().size()) == asked;
}

}  // namespace

Ref<cAlphaDIBSection> ScaleStrip(const StripUse& use, gdi::SIZE base, const ScaledAxis& x,
                                 const ScaledAxis& y) {
    const int32_t across = use.vertical ? 1 : use.frames, down = use.vertical ? use.frames : 1;
    if (!IsWhole(*use.strip) || use.strip->Width() < across || use.strip->Height() < down)
        return nullptr;
    const std::vector<AreaBand> columns = BandsOf(x, use.strip->Width(), across, base.cx);
    const std::vector<AreaBand> rows =
        FromTheBottom(BandsOf(y, use.strip->Height(), down, base.cy), use.strip->Height());
    Ref<cAlphaDIBSection> strip = NewStrip(SizeOf(columns), SizeOf(rows), use);
    AverageAreas(PixelsOf(use), use.strip->Width(), columns, rows, strip->Pixels());
    return strip;
}

}  // namespace vxgui
