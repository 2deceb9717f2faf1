#include "vxgui/platform/gdi/IconLoading.h"

#include <cstring>
#include <new>

#include "vxgui/platform/codecs/IconFile.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_images.h"

namespace vxgui::gdi {
namespace {

using codecs::IconEntry;

// Rows of bits, the top one first, padded to 2 bytes, as device bitmaps have them.
HBITMAP MaskBitmap(const IconEntry& entry) {
    const codecs::ImageHeader& header = entry.colours->Header();
    const size_t stride = (static_cast<size_t>(header.width) + 15) / 16 * 2;
    std::vector<uint8_t> bits(stride * static_cast<size_t>(header.height));
    for (int32_t y = 0; y < header.height; ++y) {
        uint8_t* row = &bits[stride * static_cast<size_t>(y)];
        for (int32_t x = 0; x < header.width; ++x) {
            if (entry.Masked(x, y)) row[x / 8] = static_cast<uint8_t>(row[x / 8] | 0x80 >> x % 8);
        }
    }
    return CreateBitmap(header.width, header.height, 1, 1, bits.data());
}

// Alpha is 0 throughout where the image stores none.
HBITMAP ColourBitmap(IconEntry& entry) {
    const int32_t width = entry.colours->Header().width, height = entry.colours->Header().height;
    uint8_t* bottom = nullptr;
    const HBITMAP bitmap = CreateDib(width, height, 32, &bottom);
    if (!bitmap) return nullptr;
    const ptrdiff_t stride = ptrdiff_t{4} * width;
    if (!entry.colours->Decode({bottom + stride * (height - 1), -stride})) {
        DeleteObject(bitmap);
        return nullptr;
    }
    const ptrdiff_t size = stride * height;
    for (ptrdiff_t at = 3; !entry.storesAlpha && at < size; at += 4) bottom[at] = 0;
    return bitmap;
}

}  // namespace

HICON IconOfFileBytes(const void* bytes, size_t size) {
    const auto entry = codecs::OpenIcon({static_cast<const uint8_t*>(bytes), size});
    if (!entry) return nullptr;
    ICONINFO info{!entry->cursor, entry->hotX, entry->hotY, nullptr, ColourBitmap(*entry)};
    if (!info.hbmColor) return nullptr;
    info.hbmMask = MaskBitmap(*entry);
    const HICON icon = CreateIconIndirect(&info);
    DeleteObject(info.hbmColor);
    DeleteObject(info.hbmMask);
    return icon;
}

HANDLE LoadImageA(HANDLE module, const String& filename, UINT type, int width, int height,
                  UINT flags) try {
    const bool served = type == IMAGE_ICON || type == IMAGE_CURSOR;
    if (module || !served || width != 0 || height != 0 || !(flags & LR_LOADFROMFILE)) {
        return nullptr;
    }
    ByteArray bytes;
    if (!core7::ReadWholeFile(filename, &bytes)) return nullptr;
    return IconOfFileBytes(bytes.data(), bytes.size());
} catch (const std::bad_alloc&) {
    return nullptr;
}

}  // namespace vxgui::gdi
