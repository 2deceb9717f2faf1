#include "vxgui/platform/gdi/Icon.h"

#include <algorithm>

#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

constexpr uint32_t kColorBits = 0x00FFFFFF;

bool AnyAlpha(const std::vector<uint32_t>& words) {
    return std::any_of(words.begin(), words.end(),
                       [](uint32_t word) { return (word & ~kColorBits) != 0; });
}

// A bit for each word that isn't black; rows start at even addresses.
std::vector<uint8_t> PackedBits(const PixelTarget& words) {
    const int32_t stride = (words.width + 15) / 16 * 2;
    std::vector<uint8_t> bits(static_cast<size_t>(stride) * static_cast<size_t>(words.height));
    for (int32_t y = 0; y < words.height; ++y) {
        for (int32_t x = 0; x < words.width; ++x) {
            if ((words.Row32(y)[x] & kColorBits) == 0) continue;
            bits[static_cast<size_t>(y * stride + x / 8)] |= static_cast<uint8_t>(0x80 >> x % 8);
        }
    }
    return bits;
}

HBITMAP MonochromeBitmap(const PixelTarget& upper, const PixelTarget* lower) {
    std::vector<uint8_t> bits = PackedBits(upper);
    if (lower) {
        const std::vector<uint8_t> more = PackedBits(*lower);
        bits.insert(bits.end(), more.begin(), more.end());
    }
    return CreateBitmap(upper.width, lower ? upper.height * 2 : upper.height, 1, 1, bits.data());
}

}  // namespace

Icon::Icon(const ICONINFO& info, const Bitmap& mask, const Bitmap& colors)
    : GdiObject(kKind),
      info_(info),
      hasColors_(true),
      width_(colors.Width()),
      height_(colors.Height()),
      mask_(ReadWords(mask, 0)),
      image_(ReadWords(colors, 0)),
      hasAlpha_(colors.Depth() == 32 && AnyAlpha(image_)) {
    for (uint32_t& word : mask_) word &= kColorBits;
}

Icon::Icon(const ICONINFO& info, const Bitmap& both)
    : GdiObject(kKind),
      info_(info),
      hasColors_(false),
      width_(both.Width()),
      height_(both.Height() / 2),
      mask_(ReadWords(both, 0)),
      image_(ReadWords(both, height_)),
      hasAlpha_(false) {}

PixelTarget Icon::View(const Words& words) const {
    PixelTarget view;
    view.top = reinterpret_cast<uint8_t*>(const_cast<uint32_t*>(words.data()));
    view.stride = ptrdiff_t{width_} * 4;
    view.width = width_;
    view.height = height_;
    view.depth = 32;
    return view;
}

// As many words as the icon has; what a smaller bitmap lacks is 0.
Icon::Words Icon::ReadWords(const Bitmap& from, int32_t firstRow) const {
    Words words(static_cast<size_t>(width_) * static_cast<size_t>(height_));
    const PixelTarget source = from.Target();
    const PixelTarget view = View(words);
    PixelConverter converter(source, view, MonoColors{});
    const int32_t count = std::min(width_, source.width);
    for (int32_t y = 0; y < std::min(height_, source.height - firstRow); ++y) {
        LoadRow(source, 0, firstRow + y, count, view.Row32(y));
        converter.Convert(view.Row32(y), count);
    }
    return words;
}

ICONINFO Icon::Describe() const {
    ICONINFO info = info_;
    const PixelTarget image = Image();
    info.hbmMask = MonochromeBitmap(Mask(), hasColors_ ? nullptr : &image);
    info.hbmColor = hasColors_ ? CreateBitmap(width_, height_, 1, 32, image_.data()) : nullptr;
    return info;
}

}  // namespace vxgui::gdi
