#include "vxgui/platform/gdiplus/bitmap/ConvertFormat.h"

#include <algorithm>

#include "vxgui/platform/gdiplus/bitmap/Dither.h"
#include "vxgui/platform/gdiplus/bitmap/FixedPalettes.h"
#include "vxgui/platform/gdiplus/bitmap/Luminance.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/bitmap/PixelRow.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB kOpaque = 0xFF000000;

bool HasFewColors(PixelFormat format) { return BitsPerPixel(format) <= 16; }

ARGB GrayOf(ARGB color) { return (color & kOpaque) | Luminance(color) * 0x010101; }

// The brightness, on a scale of 255, of the level of so many bits that is nearest.
ARGB NearestLevel(ARGB brightness, int bits) {
    const ARGB most = (1u << bits) - 1;
    return (brightness * most + 127) / 255 * 255 / most;
}

DitherTarget TargetOf(const Conversion& conversion, PaletteMatcher& matcher) {
    DitherTarget target;
    const PixelFormat format = conversion.format;
    if (IsIndexed(format)) {
        target.step = IntensityStep(conversion.paletteType);
        target.snap = [&](ARGB color) {
            return conversion.palette.At(matcher.Nearest(color)) | kOpaque;
        };
    } else {
        target.step = 8;
        target.snap = [greenBits = format == PixelFormat16bppRGB565 ? 6 : 5](ARGB color) {
            return (color & kOpaque) | NearestLevel(color >> 16 & 255, 5) << 16 |
                   NearestLevel(color >> 8 & 255, greenBits) << 8 | NearestLevel(color & 255, 5);
        };
    }
    return target;
}

// Of less than the threshold there is nothing left, of the others all.
void CutAlpha(std::span<ARGB> row, REAL threshold) {
    for (ARGB& pixel : row) {
        const bool clear = static_cast<REAL>(pixel >> 24) * 100 < threshold * 255;
        pixel = clear ? 0 : pixel | kOpaque;
    }
}

// To the few colours of indexed and 16-bit formats.
void Reduce(const Bitmap& from, Bitmap& to, const Conversion& conversion) {
    PaletteMatcher matcher(conversion.palette.entries);
    const auto ditherer = MakeDitherer(conversion.dither, TargetOf(conversion, matcher));
    const bool gray = conversion.palette.flags & PaletteFlagsGrayScale;
    std::vector<ARGB> row(from.Width());
    for (UINT line = 0; line < from.Height(); ++line) {
        const auto y = static_cast<INT>(line);
        from.ReadStraight(0, y, row);
        CutAlpha(row, conversion.alphaThreshold);
        if (gray) std::ranges::transform(row, row.begin(), GrayOf);
        ditherer->Apply(y, row);
        WritePixels(to.Format(), to.Row(y), 0, row, &matcher);
    }
}

}  // namespace

void ConvertFormat(Bitmap& bitmap, const Conversion& conversion) {
    const PixelFormat format = conversion.format;
    Ref<Bitmap> result;
    if (!HasFewColors(format) || format == PixelFormat16bppGrayScale) {
        result = bitmap.CopyArea(bitmap.Bounds(), format);
    } else {
        result = Bitmap::Create(bitmap.Bounds().Width, bitmap.Bounds().Height, format);
        if (IsIndexed(format)) result->Colors(conversion.palette);
        Reduce(bitmap, *result, conversion);
    }
    bitmap.ExchangePixels(*result);
}

}  // namespace vxgui::gdiplus
