#pragma once

#include <optional>
#include <vector>

#include "vxgui/base/Variant.h"
#include "vxgui/platform/gdiplus/Image.h"

namespace vxgui::gdiplus {

/// A picture of 32-bit pixels, blue lowest, with straight alpha, the top row first.
class Bitmap final : public Image {
public:
    Bitmap(int32_t width, int32_t height, std::vector<uint32_t> pixels)
        : width_(width), height_(height), pixels_(std::move(pixels)) {}

    UINT Width() const override { return static_cast<UINT>(width_); }
    UINT Height() const override { return static_cast<UINT>(height_); }
    const uint32_t* Row(int32_t y) const { return &pixels_[Index(0, y)]; }

    GpStatus Lock(const GpRect& area, UINT flags, PixelFormat format, BitmapData* data);
    GpStatus Unlock(const BitmapData& data);

private:
    struct HeldLock {
        GpRect area;
        UINT flags;
    };

    size_t Index(int32_t x, int32_t y) const {
        return static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x);
    }
    bool Contains(const GpRect& area) const;
    void CopyOut(const GpRect& area, const BitmapData& data) const;
    void CopyIn(const GpRect& area, const BitmapData& data);

    int32_t width_;
    int32_t height_;
    std::vector<uint32_t> pixels_;
    std::optional<HeldLock> lock_;
};

/// The first frame of a picture file in memory, or none.
Ref<Bitmap> DecodeBitmap(const ByteArray& bytes);

}  // namespace vxgui::gdiplus
