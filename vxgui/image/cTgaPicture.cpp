#include "vxgui/image/cTgaPicture.h"

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

bool cTgaPicture::SetData(const ByteArray& bytes) {
    return TgaParse(record_, bytes.data(), static_cast<int32_t>(bytes.size())) == tga::kOk &&
           TgaDecodeToArray(record_) == tga::kOk;
}

// None outside the picture, and while no pixels have been decoded.
const ARGB* cTgaPicture::PixelAt(int32_t x, int32_t y) const {
    if (x < 0 || x >= Width() || y < 0 || y >= Height() || record_.pixels.empty()) return nullptr;
    return &record_.pixels[static_cast<size_t>(y) * static_cast<size_t>(Width()) +
                           static_cast<size_t>(x)];
}

void cTgaPicture::GetPixel(int32_t x, int32_t y, uint8_t& blue, uint8_t& green, uint8_t& red,
                           uint8_t& alpha) const {
    const ARGB* pixel = PixelAt(x, y);
    if (!pixel) return;
    blue = pixel->Blue;
    green = pixel->Green;
    red = pixel->Red;
    alpha = pixel->Alpha;
}

void cTgaPicture::DrawPic(gdi::HDC dc) const {
    for (int32_t y = 0; y < Height(); ++y) {
        for (int32_t x = 0; x < Width(); ++x) {
            const ARGB* pixel = PixelAt(x, y);
            if (pixel) gdi::SetPixel(dc, x, y, gdi::RGB(pixel->Red, pixel->Green, pixel->Blue));
        }
    }
}

}  // namespace vxgui
