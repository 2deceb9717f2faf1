#include <cstdlib>

#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/bitmap/CopyPixels.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"

namespace vxgui::gdiplus {
namespace {

uint8_t* RowOf(uint8_t* pixels, INT stride, INT y) {
    return pixels + static_cast<ptrdiff_t>(y) * stride;
}

// Without a palette there is nothing that indexes could mean.
bool CanLockAs(PixelFormat own, PixelFormat format) {
    return IsPixelFormat(format) && (!IsIndexed(format) || IsIndexed(own));
}

// Rows of a caller's buffer mustn't overlap.
bool CanHold(const BitmapData& data, const GpRect& area, PixelFormat format) {
    const size_t needed = RowBytes(format, static_cast<size_t>(area.Width));
    const auto stride = static_cast<size_t>(std::abs(int64_t{data.Stride}));
    return data.Scan0 && (area.Height == 1 || stride >= needed);
}

}  // namespace

// The bitmap's own rows serve where the format is theirs and the area begins on a whole byte.
bool Bitmap::OpensInPlace(const GpRect& area, UINT flags, PixelFormat format) const {
    return !(flags & ImageLockModeUserInputBuf) && format == memory_.format &&
           area.X * BitsPerPixel(format) % 8 == 0;
}

void Bitmap::Fill(const HeldLock& lock) const {
    PixelCopier copier({memory_.format, &palette_}, {lock.format, &palette_});
    for (INT y = 0; y < lock.area.Height; ++y) {
        copier.Copy(Row(lock.area.Y + y), static_cast<size_t>(lock.area.X),
                    RowOf(lock.pixels, lock.stride, y), 0, static_cast<size_t>(lock.area.Width));
    }
}

void Bitmap::TakeBack(const HeldLock& lock) {
    PixelCopier copier({lock.format, &palette_}, {memory_.format, &palette_});
    for (INT y = 0; y < lock.area.Height; ++y) {
        copier.Copy(RowOf(lock.pixels, lock.stride, y), 0, Row(lock.area.Y + y),
                    static_cast<size_t>(lock.area.X), static_cast<size_t>(lock.area.Width));
    }
}

GpStatus Bitmap::Lock(const GpRect& area, UINT flags, PixelFormat format, BitmapData* data) {
    if (lock_) return WrongState;
    if (!Contains(area) || !CanLockAs(memory_.format, format)) return InvalidParameter;
    HeldLock lock{area,    flags, format, data->Stride, static_cast<uint8_t*>(data->Scan0),
                  nullptr, true};
    if (flags & ImageLockModeUserInputBuf) {
        if (!CanHold(*data, area, format)) return InvalidParameter;
    } else if (OpensInPlace(area, flags, format)) {
        lock.stride = memory_.stride;
        lock.pixels = Row(area.Y) + area.X * BitsPerPixel(format) / 8;
        lock.copied = false;
    } else {
        const size_t stride = PaddedRowBytes(format, static_cast<size_t>(area.Width));
        lock.stride = static_cast<INT>(stride);
        lock.buffer = ZeroedBytes(stride * static_cast<size_t>(area.Height));
        lock.pixels = lock.buffer.get();
    }
    if (lock.copied && flags & ImageLockModeRead) Fill(lock);
    *data = {static_cast<UINT>(area.Width),
             static_cast<UINT>(area.Height),
             lock.stride,
             format,
             lock.pixels,
             0};
    lock_ = std::move(lock);
    return Ok;
}

// What counts is what was opened, whatever the caller has done to the record.
GpStatus Bitmap::Unlock(const BitmapData&) {
    if (!lock_) return WrongState;
    const HeldLock held = std::move(*lock_);
    lock_.reset();
    if (held.copied && held.flags & ImageLockModeWrite) TakeBack(held);
    return Ok;
}

}  // namespace vxgui::gdiplus
