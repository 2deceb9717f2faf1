#include <cstring>
#include <limits>

#include "vxgui/image/modTGA.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui {
namespace {

gdi::HBITMAP DibOfPixels(const TgaRecord& record) {
    uint8_t* bits = nullptr;
    const gdi::HBITMAP bitmap =
        gdi::CreateDib(record.header.width, record.header.height, 32, &bits);
    if (bitmap) std::memcpy(bits, record.pixels.data(), record.pixels.size() * sizeof(ARGB));
    return bitmap;
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
