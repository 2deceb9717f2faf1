#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/bitmap/ConvertFormat.h"
#include "vxgui/platform/gdiplus/bitmap/FixedPalettes.h"
#include "vxgui/platform/gdiplus/bitmap/MedianCut.h"
#include "vxgui/platform/gdiplus/bitmap/PaletteRecord.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {
namespace {

bool IsPaletteType(PaletteType type) {
    return type >= PaletteTypeCustom && type <= PaletteTypeFixedHalftone256;
}
bool IsDitherType(DitherType type) { return type >= DitherTypeNone && type < DitherTypeMax; }

// The caller's palette, else one of the type; as many colours as the format has indexes for.
Palette PaletteFor(const Bitmap& bitmap, PixelFormat format, PaletteType type,
                   const ColorPalette* given) {
    const size_t most = size_t{1} << BitsPerPixel(format);
    Palette palette;
    if (given && given->Count > 0 && given->Count <= 256) {
        palette = LoadPalette(*given);
    } else {
        palette.entries = type == PaletteTypeOptimal ? MedianCut(bitmap, most) : FixedColors(type);
    }
    if (palette.entries.size() > most) palette.entries.resize(most);
    palette.flags |= PaletteFlagsOf(palette.entries);
    return palette;
}

std::vector<ARGB> ColorsOfType(PaletteType type, size_t optimal, const Bitmap* bitmap) {
    if (type != PaletteTypeOptimal) return FixedColors(type);
    return bitmap ? MedianCut(*bitmap, optimal) : std::vector<ARGB>();
}

// The capacity of the record is what its count says.
GpStatus Initialize(ColorPalette* palette, PaletteType type, size_t optimal, bool transparent,
                    const Bitmap* bitmap) {
    const size_t reserved = transparent ? 1 : 0;
    Palette made{0, ColorsOfType(type, optimal > reserved ? optimal - reserved : 1, bitmap)};
    if (made.entries.empty()) return InvalidParameter;
    if (transparent && made.entries.size() < 256) made.entries.push_back(0);
    if (made.entries.size() > palette->Count) return InvalidParameter;
    made.flags = PaletteFlagsOf(made.entries);
    if (type >= PaletteTypeFixedHalftone8) made.flags |= PaletteFlagsHalftone;
    StorePalette(made, palette);
    return Ok;
}

}  // namespace

extern "C" {

GpStatus GdipBitmapConvertFormat(GpBitmap* bitmap, PixelFormat format, DitherType dither,
                                 PaletteType type, ColorPalette* palette, REAL alphaThreshold) {
    if (!IsPixelFormat(format) || !IsDitherType(dither) || !IsPaletteType(type) ||
        !(alphaThreshold >= 0 && alphaThreshold <= 100)) {
        return InvalidParameter;
    }
    return FlatOnPixels(bitmap, [&](Bitmap& found) {
        Palette used;
        if (IsIndexed(format)) {
            used = PaletteFor(found, format, type, palette);
            if (used.entries.empty()) return InvalidParameter;
        }
        ConvertFormat(found, {format, dither, type, std::move(used), alphaThreshold});
        return Ok;
    });
}

GpStatus GdipInitializePalette(ColorPalette* palette, PaletteType type, INT optimalColors,
                               BOOL useTransparentColor, GpBitmap* bitmap) {
    if (!palette || !IsPaletteType(type)) return InvalidParameter;
    if (type == PaletteTypeOptimal && (optimalColors < 1 || optimalColors > 256)) {
        return InvalidParameter;
    }
    return Flat([&]() -> GpStatus {
        const Ref<Bitmap> found = Find<Bitmap>(bitmap);
        if (found && found->IsLocked()) return ObjectBusy;
        return Initialize(palette, type, static_cast<size_t>(optimalColors), useTransparentColor,
                          found.get());
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
