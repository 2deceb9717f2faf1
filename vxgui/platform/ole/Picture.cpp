#include "vxgui/platform/ole/Picture.h"

#include <cstring>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui::ole {
namespace {

constexpr int kHimetricPerInch = 2540;
constexpr size_t kFileHeaderSize = 14;

int32_t Himetric(int32_t pixels) { return gdi::MulDiv(pixels, kHimetricPerInch, gdi::ScreenDpi()); }

}  // namespace

BitmapPicture::BitmapPicture(gdi::HBITMAP bitmap, const gdi::BITMAP& record, bool own)
    : bitmap_(bitmap),
      record_(record),
      own_(own),
      width_(Himetric(record.bmWidth)),
      height_(Himetric(record.bmHeight)) {}

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

Ref<Picture> OleCreatePictureIndirect(gdi::HGDIOBJ handle, int16_t type, bool own) {
    gdi::BITMAP record{};
    if (!handle || type != kPictureBitmap) return nullptr;
    if (gdi::GetObjectA(handle, gdi::kBitmapRecordSize, &record) != gdi::kBitmapRecordSize) {
        return nullptr;
    }
    return New<BitmapPicture>(static_cast<gdi::HBITMAP>(handle), record, own);
}

}  // namespace vxgui::ole
