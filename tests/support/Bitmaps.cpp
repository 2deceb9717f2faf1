#include "tests/support/Bitmaps.h"

#include <cstring>

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::test {

TestPicture PictureOf(gdi::HBITMAP bitmap) {
    gdi::DIBSECTION section{};
    if (gdi::GetObjectA(bitmap, sizeof section, &section) != sizeof section) return {};
    const gdi::BITMAP& record = section.dsBm;
    const int pixelBytes = record.bmBitsPixel / 8;
    if (pixelBytes < 3) return {};
    TestPicture picture{record.bmWidth, record.bmHeight, {}};
    picture.pixels.resize(static_cast<size_t>(picture.width) * picture.height);
    for (int y = 0; y < picture.height; ++y) {
        const int row = section.dsBmih.biHeight > 0 ? picture.height - 1 - y : y;
        const auto* from = static_cast<const uint8_t*>(record.bmBits) + row * record.bmWidthBytes;
        for (int x = 0; x < picture.width; ++x) {
            std::memcpy(&picture.At(x, y), from + x * pixelBytes, pixelBytes);
        }
    }
    return picture;
}

}  // namespace vxgui::test
