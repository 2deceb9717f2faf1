#include "vxgui/platform/ole/Picture.h"

#include <cstring>
#include <new>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_icons.h"
#include "vxgui/platform/ole/IconPicture.h"

namespace vxgui::ole {
namespace {

constexpr int kHimetricPerInch = 2540;
constexpr size_t kFileHeaderSize = 14;

}  // namespace

int32_t HimetricFromPixels(int32_t pixels) {
    return gdi::MulDiv(pixels, kHimetricPerInch, gdi::ScreenDpi());
}

BitmapPicture::BitmapPicture(gdi::HBITMAP bitmap, const gdi::BITMAP& record, bool own)
    : bitmap_(bitmap),
      record_(record),
      own_(own),
      width_(HimetricFromPixels(record.bmWidth)),
      height_(HimetricFromPixels(record.bmHeight)) {}

BitmapPicture::~BitmapPicture() {
    if (own_) gdi::DeleteObject(bitmap_);
}

// The source's y axis points up from the bottom row.
void BitmapPicture::Render(gdi::HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy,
                           int32_t sourceX, int32_t sourceY, int32_t sourceCx,
                           int32_t sourceCy) const {
    const auto across = [&](int32_t value) { return gdi::MulDiv(value, record_.bmWidth, width_); };
    const auto up = [&](int32_t value) { return gdi::MulDiv(value, record_.bmHeight, height_); };
    const gdi::HDC source = gdi::CreateCompatibleDC(dc);
    if (const gdi::HGDIOBJ old = gdi::SelectObject(source, bitmap_)) {
        gdi::StretchBlt(dc, x, y, cx, cy, source, across(sourceX), record_.bmHeight - up(sourceY),
                        across(sourceCx), -up(sourceCy), gdi::SRCCOPY);
        gdi::SelectObject(source, old);
    }
    gdi::DeleteDC(source);
}

// BMP: 32 bits where the bitmap has an alpha byte to keep, else 24.
bool BitmapPicture::SaveAsFile(ByteArray* bytes) const {
    gdi::BITMAPINFO info =
        gdi::DibInfo(record_.bmWidth, record_.bmHeight, record_.bmBitsPixel == 32 ? 32 : 24);
    constexpr size_t kHeaders = kFileHeaderSize + sizeof info.bmiHeader;
    const size_t size = kHeaders + info.bmiHeader.biSizeImage;
    bytes->assign(size, 0);
    uint8_t* at = bytes->data();
    std::memcpy(at, "BM", 2);
    StoreLittle(at + 2, static_cast<uint32_t>(size));
    StoreLittle(at + 10, static_cast<uint32_t>(kHeaders));
    std::memcpy(at + kFileHeaderSize, &info.bmiHeader, sizeof info.bmiHeader);
    const auto rows = static_cast<UINT>(record_.bmHeight);
    const bool read = gdi::GetDIBits(nullptr, bitmap_, 0, rows, at + kHeaders, &info,
                                     gdi::DIB_RGB_COLORS) == record_.bmHeight;
    if (!read) bytes->clear();
    return read;
}

namespace {

Ref<Picture> PictureOfBitmap(gdi::HGDIOBJ handle, bool own) {
    gdi::BITMAP record{};
    const bool bitmap =
        gdi::GetObjectA(handle, gdi::kBitmapRecordSize, &record) == gdi::kBitmapRecordSize;
    if (!bitmap) return nullptr;
    return New<BitmapPicture>(static_cast<gdi::HBITMAP>(handle), record, own);
}

Ref<Picture> PictureOfIcon(gdi::HGDIOBJ handle, bool own) {
    const auto icon = static_cast<gdi::HICON>(handle);
    const IconParts parts(icon);
    if (!parts) return nullptr;
    return New<IconPicture>(icon, parts.Size(), own);
}

}  // namespace

Ref<Picture> OleCreatePictureIndirect(gdi::HGDIOBJ handle, int16_t type, bool own) try {
    if (!handle) return nullptr;
    if (type == kPictureBitmap) return PictureOfBitmap(handle, own);
    return type == kPictureIcon ? PictureOfIcon(handle, own) : nullptr;
} catch (const std::bad_alloc&) {  // what was handed over has nobody else to end it
    if (own && type == kPictureBitmap) gdi::DeleteObject(handle);
    if (own && type == kPictureIcon) gdi::DestroyIcon(static_cast<gdi::HICON>(handle));
    throw;
}

}  // namespace vxgui::ole
