#pragma once

#include <vector>

#include "vxgui/platform/gdi/Bitmap.h"
#include "vxgui/platform/gdi_icons.h"

namespace vxgui::gdi {

/// An icon: an image and a mask of one size, as 32-bit words from the top row.
class Icon final : public GdiObject {
public:
    static constexpr GdiKind kKind = GdiKind::Icon;

    /// An icon with colours.
    Icon(const ICONINFO& info, const Bitmap& mask, const Bitmap& colors);
    /// A black and white one: the upper half of `both` is the mask, the lower one the image.
    Icon(const ICONINFO& info, const Bitmap& both);

    int32_t Width() const { return width_; }
    int32_t Height() const { return height_; }
    /// Words 0xAARRGGBB, straight; alpha is 0 throughout when the icon has none.
    PixelTarget Image() const { return View(image_); }
    /// Words 0x00FFFFFF where what is below stays, and 0.
    PixelTarget Mask() const { return View(mask_); }
    bool HasAlpha() const { return hasAlpha_; }

    /// Its description, with new bitmaps; without them when they can't be made.
    ICONINFO Describe() const;

private:
    using Words = std::vector<uint32_t>;
    PixelTarget View(const Words& words) const;
    Words ReadWords(const Bitmap& from, int32_t firstRow) const;

    ICONINFO info_;
    bool hasColors_;
    int32_t width_;
    int32_t height_;
    Words mask_;
    Words image_;
    bool hasAlpha_;
};

}  // namespace vxgui::gdi
