#include <cstring>

#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {
namespace {

uint8_t* RowOf(const BitmapData& data, int32_t y) {
    return static_cast<uint8_t*>(data.Scan0) + static_cast<ptrdiff_t>(y) * data.Stride;
}

}  // namespace

bool Bitmap::Contains(const GpRect& area) const {
    return area.X >= 0 && area.Y >= 0 && area.Width > 0 && area.Height > 0 &&
           area.X <= width_ - area.Width && area.Y <= height_ - area.Height;
}

void Bitmap::CopyOut(const GpRect& area, const BitmapData& data) const {
    for (int32_t y = 0; y < area.Height; ++y) {
        std::memcpy(RowOf(data, y), &pixels_[Index(area.X, area.Y + y)],
                    static_cast<size_t>(area.Width) * 4);
    }
}

void Bitmap::CopyIn(const GpRect& area, const BitmapData& data) {
    for (int32_t y = 0; y < area.Height; ++y) {
        std::memcpy(&pixels_[Index(area.X, area.Y + y)], RowOf(data, y),
                    static_cast<size_t>(area.Width) * 4);
    }
}

// Without a buffer of the caller's own, the pixels themselves are opened: the stride is then
// that of the whole bitmap.
GpStatus Bitmap::Lock(const GpRect& area, UINT flags, PixelFormat format, BitmapData* data) {
    if (lock_) return WrongState;
    if (!Contains(area) || format != PixelFormat32bppARGB) return InvalidParameter;
    const bool ownBuffer = flags & ImageLockModeUserInputBuf;
    if (ownBuffer && !data->Scan0) return InvalidParameter;
    data->Width = static_cast<UINT>(area.Width);
    data->Height = static_cast<UINT>(area.Height);
    data->PixelFormat = format;
    if (!ownBuffer) {
        data->Stride = width_ * 4;
        data->Scan0 = &pixels_[Index(area.X, area.Y)];
    } else if (flags & ImageLockModeRead) {
        CopyOut(area, *data);
    }
    lock_ = HeldLock{area, flags};
    return Ok;
}

GpStatus Bitmap::Unlock(const BitmapData& data) {
    if (!lock_) return WrongState;
    const HeldLock held = *lock_;
    lock_.reset();
    constexpr UINT kWritten = ImageLockModeUserInputBuf | ImageLockModeWrite;
    if ((held.flags & kWritten) == kWritten && data.Scan0) CopyIn(held.area, data);
    return Ok;
}

}  // namespace vxgui::gdiplus
