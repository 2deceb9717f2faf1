#include "vxgui/platform/gdi/Bitmap.h"

#include <cstring>

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

PixelTarget TargetOf(const BitmapShape& shape, uint8_t* bits, const ColorTable* colors) {
    PixelTarget target{bits, shape.stride, shape.width, shape.height, shape.depth, colors};
    if (shape.bottomUp) {
        target.top += (shape.height - 1) * shape.stride;
        target.stride = -shape.stride;
    }
    return target;
}

BITMAP RecordOf(const BitmapShape& shape, uint8_t* bits) {
    BITMAP record{};
    record.bmWidth = shape.width;
    record.bmHeight = shape.height;
    record.bmWidthBytes = static_cast<LONG>(shape.stride);
    record.bmPlanes = 1;
    record.bmBitsPixel = static_cast<WORD>(shape.depth);
    // The memory of a device bitmap is the platform's own affair.
    record.bmBits = shape.dibSection ? bits : nullptr;
    return record;
}

}  // namespace

Bitmap::Bitmap(const BitmapShape& shape, PixelBlock block, std::unique_ptr<ColorTable> colors)
    : GdiObject(kKind),
      shape_(shape),
      block_(block),
      colors_(std::move(colors)),
      target_(TargetOf(shape, block.bits, colors_.get())),
      record_(RecordOf(shape, block.bits)) {}

Bitmap::~Bitmap() { GivePixelsBack(block_); }

BITMAPINFOHEADER Bitmap::Header() const {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof(header);
    header.biWidth = shape_.width;
    header.biHeight = shape_.bottomUp ? shape_.height : -shape_.height;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(shape_.depth);
    header.biSizeImage = static_cast<DWORD>(shape_.stride * shape_.height);
    header.biClrUsed = colors_ ? static_cast<DWORD>(colors_->count) : 0;
    return header;
}

int Bitmap::Record(int size, void* buffer) const {
    if (!buffer) return kBitmapRecordSize;
    if (size < kBitmapRecordSize) return 0;
    if (!shape_.dibSection || size < kDibSectionRecordSize) {
        std::memcpy(buffer, &record_, sizeof(record_));
        return kBitmapRecordSize;
    }
    DIBSECTION record{};
    record.dsBm = record_;
    record.dsBmih = Header();
    std::memcpy(buffer, &record, sizeof(record));
    return kDibSectionRecordSize;
}

bool Bitmap::Claim(const DeviceContext* context) {
    const DeviceContext* owner = nullptr;
    return shape_.shared || Exchange(owner_, owner, context) || owner == context;
}

}  // namespace vxgui::gdi
