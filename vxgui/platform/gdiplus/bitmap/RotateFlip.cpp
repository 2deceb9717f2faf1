#include "vxgui/platform/gdiplus/bitmap/RotateFlip.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/bitmap/PixelRow.h"

namespace vxgui::gdiplus {
namespace {

/// Where the source pixel of each target pixel lies, counted in pixels from the first.
struct Walk {
    INT width, height;  ///< of the target
    ptrdiff_t start, right, down;
};

Walk WalkOf(ptrdiff_t width, ptrdiff_t height, RotateFlipType type) {
    const ptrdiff_t last = width - 1, bottom = (height - 1) * width;
    Walk walk{};
    switch (type & 3) {
        case 0:
            walk = {0, 0, 0, 1, width};
            break;
        case 1:
            walk = {0, 0, bottom, -width, 1};
            break;
        case 2:
            walk = {0, 0, bottom + last, -1, -width};
            break;
        default:
            walk = {0, 0, last, width, -1};
    }
    walk.width = static_cast<INT>(type & 1 ? height : width);
    walk.height = static_cast<INT>(type & 1 ? width : height);
    if (type & 4) {
        walk.start += walk.right * (walk.width - 1);
        walk.right = -walk.right;
    }
    return walk;
}

size_t UnitOf(PixelFormat format) {
    return static_cast<size_t>(std::max(8, BitsPerPixel(format))) / 8;
}

// All pixels without gaps; indexes of less than 8 bits have a byte each.
std::vector<uint8_t> Packed(const Bitmap& bitmap) {
    const size_t rowSize = UnitOf(bitmap.Format()) * bitmap.Width();
    std::vector<uint8_t> packed(rowSize * bitmap.Height());
    for (UINT y = 0; y < bitmap.Height(); ++y) {
        const uint8_t* row = bitmap.Row(static_cast<INT>(y));
        const std::span<uint8_t> to = std::span(packed).subspan(rowSize * y, rowSize);
        if (IsIndexed(bitmap.Format())) {
            ReadIndexes(BitsPerPixel(bitmap.Format()), row, 0, to);
        } else {
            std::memcpy(to.data(), row, rowSize);
        }
    }
    return packed;
}

void StoreRow(PixelFormat format, std::span<const uint8_t> pixels, uint8_t* row) {
    if (IsIndexed(format)) return WriteIndexes(BitsPerPixel(format), row, 0, pixels);
    std::memcpy(row, pixels.data(), pixels.size());
}

}  // namespace

void RotateFlip(Bitmap& bitmap, RotateFlipType type) {
    const PixelFormat format = bitmap.Format();
    const size_t unit = UnitOf(format);
    const Walk walk = WalkOf(bitmap.Width(), bitmap.Height(), type);
    const std::vector<uint8_t> packed = Packed(bitmap);
    const Ref<Bitmap> turned = Bitmap::Create(walk.width, walk.height, format);
    turned->Colors(bitmap.Colors());
    std::vector<uint8_t> line(unit * static_cast<size_t>(walk.width));
    for (INT y = 0; y < walk.height; ++y) {
        ptrdiff_t from = walk.start + walk.down * y;
        for (size_t x = 0; x < line.size(); x += unit, from += walk.right) {
            std::memcpy(&line[x], &packed[static_cast<size_t>(from) * unit], unit);
        }
        StoreRow(format, line, turned->Row(y));
    }
    bitmap.ExchangePixels(*turned);
    if (type & 1) std::swap(bitmap.dpiX, bitmap.dpiY);
}

}  // namespace vxgui::gdiplus
