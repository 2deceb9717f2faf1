#pragma once

#include <span>
#include <vector>

#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// A memory context over a copy of a bitmap's pixels, which finds what was drawn there.
class BitmapDc {
public:
    BitmapDc(INT width, INT height);
    ~BitmapDc();
    BitmapDc(const BitmapDc&) = delete;
    BitmapDc& operator=(const BitmapDc&) = delete;

    /// Null when it can't be had.
    gdi::HDC Dc() const { return dc_; }
    /// Premultiplied pixels, to be filled before `Mark`.
    std::span<ARGB> Row(INT y);
    /// Remembers the pixels as they are now.
    void Mark();
    /// Calls `visit(x, y, pixel)` for each pixel that has changed since, premultiplied. What
    /// draws without alpha leaves 0 there and means opaque colours.
    template <class Visit>
    void ForEachChange(Visit visit) {
        for (INT y = 0; dc_ && y < height_; ++y) {
            const std::span<const ARGB> now = Row(y);
            const ARGB* then = &before_[static_cast<size_t>(y) * now.size()];
            for (size_t x = 0; x < now.size(); ++x) {
                if (now[x] != then[x]) visit(static_cast<INT>(x), y, Drawn(now[x]));
            }
        }
    }

private:
    static ARGB Drawn(ARGB pixel) { return pixel >> 24 ? pixel : pixel | 0xFF000000; }

    const INT width_;
    const INT height_;
    ARGB* bottom_ = nullptr;
    gdi::HBITMAP dib_ = nullptr;
    gdi::HDC dc_ = nullptr;
    std::vector<ARGB> before_;
};

}  // namespace vxgui::gdiplus
