#include <algorithm>

#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_icons.h"
#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/bitmap/DeviceBitmap.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB kOpaque = 0xFF000000;

/// The two bitmaps of an icon, deleted at the end.
struct IconParts {
    gdi::ICONINFO info{};

    ~IconParts() {
        if (info.hbmMask) gdi::DeleteObject(info.hbmMask);
        if (info.hbmColor) gdi::DeleteObject(info.hbmColor);
    }
};

// The colours have alpha, or what is masked is clear. What an icon without colours would invert
// is drawn white.
Ref<Bitmap> BitmapOfIcon(const gdi::ICONINFO& info) {
    GpPoint size{}, maskSize{};
    std::vector<ARGB> mask = WordsOfDeviceBitmap(info.hbmMask, &maskSize);
    std::vector<ARGB> colors = WordsOfDeviceBitmap(info.hbmColor, &size);
    if (mask.empty()) return nullptr;
    if (colors.empty()) {
        size = {maskSize.X, maskSize.Y / 2};
        const auto pixels = static_cast<ptrdiff_t>(mask.size() / 2);
        colors.assign(mask.begin() + pixels, mask.end());
    }
    Ref<Bitmap> bitmap = Bitmap::Create(size.X, size.Y, PixelFormat32bppARGB);
    if (!bitmap || mask.size() < colors.size()) return nullptr;
    const bool ownAlpha =
        info.hbmColor && std::ranges::any_of(colors, [](ARGB c) { return c >> 24; });
    for (size_t i = 0; !ownAlpha && i < colors.size(); ++i) {
        colors[i] = mask[i] & 0xFFFFFF ? 0 : colors[i] | kOpaque;
    }
    std::span<const ARGB> rest = colors;
    for (INT y = 0; y < size.Y; ++y, rest = rest.subspan(bitmap->Width())) {
        bitmap->WriteStraight(0, y, rest.first(bitmap->Width()));
    }
    return bitmap;
}

// A mask of 1 where the bitmap is clear; rows start at even addresses.
gdi::HBITMAP MaskOf(const Bitmap& bitmap) {
    const size_t stride = (bitmap.Width() + 15) / 16 * 2;
    std::vector<uint8_t> bits(stride * bitmap.Height());
    std::vector<ARGB> row(bitmap.Width());
    for (UINT y = 0; y < bitmap.Height(); ++y) {
        bitmap.ReadStraight(0, static_cast<INT>(y), row);
        for (size_t x = 0; x < row.size(); ++x) {
            if (row[x] >> 24 == 0) bits[y * stride + x / 8] |= static_cast<uint8_t>(0x80 >> x % 8);
        }
    }
    return gdi::CreateBitmap(static_cast<int>(bitmap.Width()), static_cast<int>(bitmap.Height()), 1,
                             1, bits.data());
}

gdi::HBITMAP ColorsOf(const Bitmap& bitmap) {
    uint8_t* to = nullptr;
    const gdi::HBITMAP colors =
        gdi::CreateDib(bitmap.Bounds().Width, bitmap.Bounds().Height, 32, &to);
    if (!colors) return nullptr;
    std::vector<ARGB> row(bitmap.Width());
    for (INT y = bitmap.Bounds().Height; y-- > 0;) {
        bitmap.ReadStraight(0, y, row);
        to = std::copy_n(reinterpret_cast<const uint8_t*>(row.data()), row.size() * 4, to);
    }
    return colors;
}

}  // namespace

extern "C" {

GpStatus GdipCreateBitmapFromHICON(gdi::HICON icon, GpBitmap** bitmap) {
    return FlatCreate(bitmap, [&] {
        IconParts parts;
        if (!gdi::GetIconInfo(icon, &parts.info)) return InvalidParameter;
        Ref<Bitmap> made = BitmapOfIcon(parts.info);
        return made ? HandOut(bitmap, std::move(made)) : InvalidParameter;
    });
}

GpStatus GdipCreateHICONFromBitmap(GpBitmap* bitmap, gdi::HICON* icon) {
    return FlatCreate(icon, [&] {
        return FlatOnPixels(bitmap, [&](Bitmap& found) {
            const IconParts parts{{1, 0, 0, MaskOf(found), ColorsOf(found)}};
            *icon = gdi::CreateIconIndirect(&parts.info);
            return *icon ? Ok : OutOfMemory;
        });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
