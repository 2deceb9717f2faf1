#include "vxgui/platform/ole/IconPicture.h"

#include <cstring>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/ole/Picture.h"

namespace vxgui::ole {
namespace {

// The file: a header of 6 bytes, one directory entry of 16, and the image without a file header,
// whose height counts the mask too.
constexpr size_t kDirectorySize = 6 + 16;
constexpr size_t kImageStart = kDirectorySize + sizeof(gdi::BITMAPINFOHEADER);

size_t MaskStride(int32_t width) { return (static_cast<size_t>(width) + 31) / 32 * 4; }

void WriteHeaders(uint8_t* at, gdi::SIZE size, size_t imageSize) {
    StoreLittle<uint16_t>(at + 2, 1);
    StoreLittle<uint16_t>(at + 4, 1);
    at[6] = static_cast<uint8_t>(size.cx);  // 256 and more read as 0, "see the image"
    at[7] = static_cast<uint8_t>(size.cy);
    StoreLittle<uint16_t>(at + 10, 1);
    StoreLittle<uint16_t>(at + 12, 32);
    StoreLittle(at + 14, static_cast<uint32_t>(imageSize));
    StoreLittle(at + 18, static_cast<uint32_t>(kDirectorySize));
    gdi::BITMAPINFOHEADER header = gdi::DibInfo(size.cx, size.cy).bmiHeader;
    header.biHeight *= 2;
    std::memcpy(at + kDirectorySize, &header, sizeof header);
}

void WriteMask(uint8_t* at, gdi::SIZE size, const std::vector<uint32_t>& mask) {
    for (size_t i = 0; i < mask.size(); ++i) {
        const size_t x = i % static_cast<size_t>(size.cx), y = i / static_cast<size_t>(size.cx);
        uint8_t& byte = at[y * MaskStride(size.cx) + x / 8];
        if (mask[i] & 0xFFFFFF) byte = static_cast<uint8_t>(byte | 0x80 >> x % 8);
    }
}

}  // namespace

IconParts::IconParts(gdi::HICON icon) {
    gdi::BITMAP mask{};
    if (!gdi::GetIconInfo(icon, &info_)) return;
    gdi::GetObjectA(info_.hbmMask, gdi::kBitmapRecordSize, &mask);
    size_ = {mask.bmWidth, info_.hbmColor ? mask.bmHeight : mask.bmHeight / 2};
}

IconParts::~IconParts() {
    if (info_.hbmColor) gdi::DeleteObject(info_.hbmColor);
    if (info_.hbmMask) gdi::DeleteObject(info_.hbmMask);
}

std::vector<uint32_t> IconParts::Words(gdi::HBITMAP bitmap, LONG height) const {
    gdi::BITMAPINFO info = gdi::DibInfo(size_.cx, height);
    std::vector<uint32_t> words(static_cast<size_t>(size_.cx) * static_cast<size_t>(height));
    const bool read = gdi::GetDIBits(nullptr, bitmap, 0, static_cast<UINT>(height), words.data(),
                                     &info, gdi::DIB_RGB_COLORS) == height;
    return read ? words : std::vector<uint32_t>();
}

// A black and white icon's image is the lower half of its mask, and so comes first here.
std::vector<uint32_t> IconParts::Colours() const {
    if (info_.hbmColor) return Words(info_.hbmColor, size_.cy);
    std::vector<uint32_t> words = Words(info_.hbmMask, size_.cy * 2);
    words.resize(words.size() / 2);
    return words;
}

std::vector<uint32_t> IconParts::Mask() const {
    if (info_.hbmColor) return Words(info_.hbmMask, size_.cy);
    std::vector<uint32_t> words = Words(info_.hbmMask, size_.cy * 2);
    words.erase(words.begin(), words.begin() + static_cast<ptrdiff_t>(words.size() / 2));
    return words;
}

IconPicture::IconPicture(gdi::HICON icon, gdi::SIZE pixels, bool own)
    : icon_(icon),
      own_(own),
      width_(HimetricFromPixels(pixels.cx)),
      height_(HimetricFromPixels(pixels.cy)) {}

IconPicture::~IconPicture() {
    if (own_) gdi::DestroyIcon(icon_);
}

void IconPicture::Render(gdi::HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy, int32_t,
                         int32_t, int32_t, int32_t) const {
    gdi::DrawIconEx(dc, x, y, icon_, cx, cy, 0, nullptr, gdi::DI_NORMAL);
}

bool IconPicture::SaveAsFile(ByteArray* bytes) const {
    bytes->clear();
    const IconParts parts(icon_);
    const std::vector<uint32_t> colours = parts.Colours(), mask = parts.Mask();
    if (colours.empty() || mask.empty()) return false;
    const gdi::SIZE size = parts.Size();
    const size_t colourSize = colours.size() * 4;
    const size_t maskSize = MaskStride(size.cx) * static_cast<size_t>(size.cy);
    bytes->resize(kImageStart + colourSize + maskSize);
    WriteHeaders(bytes->data(), size, bytes->size() - kDirectorySize);
    std::memcpy(bytes->data() + kImageStart, colours.data(), colourSize);
    WriteMask(bytes->data() + kImageStart + colourSize, size, mask);
    return true;
}

}  // namespace vxgui::ole
