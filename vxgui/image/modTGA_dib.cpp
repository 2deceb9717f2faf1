#include <cstring>
#include <limits>

#include "vxgui/image/modTGA.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {
namespace {

gdi::HBITMAP DibOfPixels(const TgaRecord& record) {
    gdi::BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = record.header.width;
    info.bmiHeader.biHeight = record.header.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(record.pixels.size() * sizeof(ARGB));
    void* bits = nullptr;
    const gdi::HBITMAP bitmap =
        gdi::CreateDIBSection(nullptr, &info, gdi::DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bits) {
        std::memcpy(bits, record.pixels.data(), record.pixels.size() * sizeof(ARGB));
        return bitmap;
    }
    if (bitmap) gdi::DeleteObject(bitmap);
    return nullptr;
}

}  // namespace

gdi::HBITMAP TgaToDib(const void* start, int32_t size, bool& hasFooter) {
    TgaRecord record;
    const bool decoded =
        TgaParse(record, start, size) == tga::kOk && TgaDecodeToArray(record) == tga::kOk;
    hasFooter = record.footer != nullptr;
    return decoded ? DibOfPixels(record) : nullptr;
}

gdi::HBITMAP TgaArrayToDib(const ByteArray& bytes, bool) {
    if (bytes.empty() || bytes.size() > std::numeric_limits<int32_t>::max()) return nullptr;
    bool hasFooter = false;
    return TgaToDib(bytes.data(), static_cast<int32_t>(bytes.size()), hasFooter);
}

}  // namespace vxgui
