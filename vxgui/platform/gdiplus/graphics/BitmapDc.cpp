#include "vxgui/platform/gdiplus/graphics/BitmapDc.h"

#include "vxgui/platform/gdi_dib.h"

namespace vxgui::gdiplus {
namespace {

// Stands for a clear pixel, so that black without alpha drawn over it is seen to be a change.
constexpr ARGB kClearMark = 0x01000000;

}  // namespace

BitmapDc::BitmapDc(INT width, INT height) : width_(width), height_(height) {
    uint8_t* bits = nullptr;
    dib_ = gdi::CreateDib(width, height, 32, &bits);
    bottom_ = reinterpret_cast<ARGB*>(bits);
    if (dib_) dc_ = gdi::CreateCompatibleDC(nullptr);
    if (dc_) gdi::SelectObject(dc_, dib_);
}

BitmapDc::~BitmapDc() {
    if (dc_) gdi::DeleteDC(dc_);
    if (dib_) gdi::DeleteObject(dib_);
}

std::span<ARGB> BitmapDc::Row(INT y) {
    const auto width = static_cast<size_t>(width_);
    return {bottom_ + static_cast<size_t>(height_ - 1 - y) * width, width};
}

void BitmapDc::Mark() {
    for (INT y = 0; dc_ && y < height_; ++y) {
        for (ARGB& pixel : Row(y)) {
            if (pixel >> 24 == 0) pixel = kClearMark;
        }
        const std::span<const ARGB> row = Row(y);
        before_.insert(before_.end(), row.begin(), row.end());
    }
}

}  // namespace vxgui::gdiplus
