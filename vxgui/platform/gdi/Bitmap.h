#pragma once

#include <memory>

#include "vxgui/platform/gdi/GdiObject.h"
#include "vxgui/platform/gdi/PixelBlocks.h"
#include "vxgui/platform/gdi/PixelTarget.h"
#include "vxgui/platform/gdi/Pooled.h"

namespace vxgui::gdi {

class DeviceContext;

/// Size, form and memory of a bitmap.
struct BitmapShape {
    int32_t width = 0;
    int32_t height = 0;
    int depth = 32;        ///< 1, 8, 24 or 32
    ptrdiff_t stride = 0;  ///< bytes from one row in memory to the next
    bool bottomUp = false;
    bool dibSection = false;
    bool shared = false;  ///< the stock bitmap, which all contexts may have selected at once
};

/// A bitmap: a DIB section, a device bitmap or the pixels of a host.
class Bitmap final : public GdiObject, public Pooled<Bitmap> {
public:
    static constexpr GdiKind kKind = GdiKind::Bitmap;

    Bitmap(const BitmapShape& shape, PixelBlock block, std::unique_ptr<ColorTable> colors = {});
    ~Bitmap() override;

    int32_t Width() const { return shape_.width; }
    int32_t Height() const { return shape_.height; }
    int Depth() const { return shape_.depth; }
    bool IsDibSection() const { return shape_.dibSection; }
    const BitmapShape& Shape() const { return shape_; }
    /// First byte of the pixel memory.
    uint8_t* Bits() const { return block_.bits; }
    const ColorTable* Colors() const { return colors_.get(); }
    const PixelTarget& Target() const { return target_; }

    /// `BITMAP`, or `DIBSECTION` for a DIB section when `size` has room for it.
    int Record(int size, void* buffer) const override;

    /// A bitmap can be selected in one context alone, at once: true if it is `context`'s now.
    bool Claim(const DeviceContext* context);

protected:
    void Deselected() override { owner_.store(nullptr, std::memory_order_release); }

private:
    BITMAPINFOHEADER Header() const;

    const BitmapShape shape_;
    const PixelBlock block_;
    const std::unique_ptr<ColorTable> colors_;
    const PixelTarget target_;
    const BITMAP record_;  // every operation of a surface asks for it
    std::atomic<const DeviceContext*> owner_{nullptr};
};

}  // namespace vxgui::gdi
