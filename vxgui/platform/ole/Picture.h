#pragma once

#include "vxgui/platform/ole.h"

namespace vxgui::ole {

/// The extent of so many pixels, at the screen's resolution.
int32_t HimetricFromPixels(int32_t pixels);

/// A picture over a bitmap.
class BitmapPicture final : public Picture {
public:
    BitmapPicture(gdi::HBITMAP bitmap, const gdi::BITMAP& record, bool own);

    gdi::HGDIOBJ Handle() const override { return bitmap_; }
    int16_t Type() const override { return kPictureBitmap; }
    int32_t Width() const override { return width_; }
    int32_t Height() const override { return height_; }
    void Render(gdi::HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy, int32_t sourceX,
                int32_t sourceY, int32_t sourceCx, int32_t sourceCy) const override;
    bool SaveAsFile(ByteArray* bytes) const override;

protected:
    ~BitmapPicture() override;

private:
    const gdi::HBITMAP bitmap_;
    const gdi::BITMAP record_;
    const bool own_;
    const int32_t width_;   // HIMETRIC
    const int32_t height_;  // HIMETRIC
};

}  // namespace vxgui::ole
