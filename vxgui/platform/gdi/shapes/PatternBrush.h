#pragma once

#include <vector>

#include "vxgui/platform/gdi/Bitmap.h"
#include "vxgui/platform/gdi/Brush.h"

namespace vxgui::gdi {

/// A brush that repeats a picture from the device origin plus the brush origin. It copies the
/// picture, so the bitmap may change or go afterwards.
class PatternBrush final : public Brush {
public:
    explicit PatternBrush(const Bitmap& bitmap);

    void Row(const DeviceContext& dc, int32_t x, int32_t y, int32_t count,
             uint32_t* colors) const override;

private:
    size_t RowStart(int32_t y) const;

    const int32_t width_;
    const int32_t height_;
    // A monochrome device bitmap has no colours: its bits take those of the context.
    const bool hasColors_;
    std::vector<uint32_t> pixels_;
};

}  // namespace vxgui::gdi
