#include "vxgui/platform/gdiplus/bitmap/DeviceBitmap.h"

#include <cstdlib>

#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdiplus/bitmap/DibLayout.h"

namespace vxgui::gdiplus {
namespace {

struct ColoredInfo {
    gdi::BITMAPINFO info{};
    gdi::RGBQUAD more[255]{};
};

bool Describe(gdi::HBITMAP bitmap, gdi::BITMAP* record) {
    return bitmap && gdi::GetObjectA(bitmap, sizeof *record, record) == sizeof *record &&
           record->bmWidth > 0 && record->bmHeight != 0;
}

bool ReadBits(gdi::HBITMAP bitmap, int32_t height, void* bits, gdi::BITMAPINFO* info) {
    const int rows = std::abs(height);
    return gdi::GetDIBits(nullptr, bitmap, 0, static_cast<UINT>(rows), bits, info,
                          gdi::DIB_RGB_COLORS) == rows;
}

}  // namespace

Ref<Bitmap> CopyOfDeviceBitmap(gdi::HBITMAP bitmap) {
    gdi::BITMAP record{};
    if (!Describe(bitmap, &record)) return nullptr;
    ColoredInfo colored;
    colored.info = gdi::DibInfo(record.bmWidth, std::abs(record.bmHeight), record.bmBitsPixel);
    std::optional<PixelMemory> shape = MemoryOfDib(colored.info, nullptr);
    if (!shape) return nullptr;
    const auto size =
        static_cast<size_t>(std::abs(shape->stride)) * static_cast<size_t>(shape->height);
    OwnedBytes bytes = ZeroedBytes(size);
    if (!ReadBits(bitmap, record.bmHeight, bytes.get(), &colored.info)) return nullptr;
    shape = MemoryOfDib(colored.info, bytes.get());
    shape->owned = std::move(bytes);
    Ref<Bitmap> result = New<Bitmap>(std::move(*shape));
    if (record.bmBitsPixel <= 8) result->Colors(PaletteOfDib(colored.info));
    return result;
}

std::vector<ARGB> WordsOfDeviceBitmap(gdi::HBITMAP bitmap, GpPoint* size) {
    gdi::BITMAP record{};
    if (!Describe(bitmap, &record)) return {};
    *size = {record.bmWidth, std::abs(record.bmHeight)};
    gdi::BITMAPINFO info = gdi::DibInfo(size->X, -size->Y);
    std::vector<ARGB> words(static_cast<size_t>(size->X) * static_cast<size_t>(size->Y));
    if (!ReadBits(bitmap, record.bmHeight, words.data(), &info)) return {};
    return words;
}

}  // namespace vxgui::gdiplus
