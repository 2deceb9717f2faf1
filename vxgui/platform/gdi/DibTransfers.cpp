#include <algorithm>

#include "vxgui/platform/gdi/DeviceColors.h"
#include "vxgui/platform/gdi/Dib.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/RopBlit.h"
#include "vxgui/platform/gdi/Spans.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

// What of `wanted` rows from `first` on a picture of `height` rows has.
int32_t RowsThere(UINT first, UINT wanted, int32_t height) {
    const auto rows = static_cast<UINT>(height);
    return first >= rows ? 0 : static_cast<int32_t>(std::min(wanted, rows - first));
}

// The rectangle is counted from its top. The band of scans that are in memory is a picture of
// its own whose last row is scan `startScan`, and the source's lowest row is scan `sourceY`.
BlitGeometry BandGeometry(int x, int y, DWORD width, DWORD height, int sourceX, int sourceY,
                          UINT startScan, int32_t rows) {
    const int64_t bandTop = int64_t{startScan} + rows;
    const int64_t sourceTop = bandTop - (int64_t{sourceY} + height);
    return {{x, width, sourceX, width}, {y, height, sourceTop, height}};
}

void DescribeBitmap(const Bitmap& bitmap, BITMAPINFOHEADER& header) {
    const DWORD size = header.biSize;
    header = {};
    header.biSize = size;
    header.biWidth = bitmap.Width();
    header.biHeight = bitmap.Height();
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(bitmap.Depth());
}

// The colours that pixels of up to 8 bits are given in: the bitmap's own where the depth is the
// same, else those of a device bitmap.
void ChooseColors(const Bitmap& bitmap, DibForm& form) {
    if (bitmap.Depth() == form.depth && bitmap.Colors()) {
        form.colors = *bitmap.Colors();
    } else {
        form.colors = DeviceColors(form.depth);
    }
}

void WriteColors(const DibForm& form, BITMAPINFO* info) {
    auto* quad = reinterpret_cast<uint8_t*>(info) + DibColorOffset(info->bmiHeader);
    const int count = DibColorCount(info->bmiHeader);
    for (int i = 0; i < count; ++i, quad += 4) {
        const uint32_t color = form.colors->colors[static_cast<size_t>(i)];
        const uint8_t bytes[4] = {static_cast<uint8_t>(color), static_cast<uint8_t>(color >> 8),
                                  static_cast<uint8_t>(color >> 16), 0};
        std::copy_n(bytes, 4, quad);
    }
}

// Rows of `from`, the first of them `firstRow`, into the rows of `to`.
void CopyRows(const PixelTarget& from, int32_t firstRow, const PixelTarget& to) {
    PixelConverter converter(from, to, MonoColors{});
    const int32_t width = std::min(from.width, to.width);
    uint32_t words[kSpan];
    for (int32_t y = 0; y < to.height; ++y) {
        for (int32_t x = 0; x < width; x += kSpan) {
            const int32_t count = std::min(kSpan, width - x);
            LoadRow(from, x, firstRow + y, count, words);
            converter.Convert(words, count);
            StoreRow(to, x, y, count, words);
        }
    }
}

int ReadRows(const Bitmap& bitmap, UINT startScan, UINT scanLines, void* bits, BITMAPINFO* info,
             UINT usage) {
    DibForm form;
    if (!ReadDibHeader(info, usage, &form)) return 0;
    const int32_t height = bitmap.Height();
    const int32_t rows = RowsThere(startScan, scanLines, height);
    if (form.depth <= 8) {
        ChooseColors(bitmap, form);
        WriteColors(form, info);
    }
    if (rows == 0) return 0;
    const auto first = static_cast<int32_t>(startScan);
    CopyRows(bitmap.Target(), form.bottomUp ? height - first - rows : first, form.View(bits, rows));
    info->bmiHeader.biSizeImage = static_cast<DWORD>(form.Size());
    return rows;
}

}  // namespace

int SetDIBitsToDevice(HDC handle, int x, int y, DWORD width, DWORD height, int sourceX, int sourceY,
                      UINT startScan, UINT scanLines, const void* bits, const BITMAPINFO* info,
                      UINT usage) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    DibForm form;
    if (!dc || !bits || !ReadDib(info, usage, &form)) return 0;
    const int32_t rows = RowsThere(startScan, scanLines, form.height);
    if (rows == 0) return 0;
    const BlitSource source{form.View(bits, rows), MonoColorsOf(*dc, nullptr)};
    const BlitGeometry geometry =
        BandGeometry(x, y, width, height, sourceX, sourceY, startScan, rows);
    return RopBlit(*dc, source, geometry, Rop3(SRCCOPY), *dc->state.brush) ? rows : 0;
}

int GetDIBits(HDC dc, HBITMAP handle, UINT startScan, UINT scanLines, void* bits, BITMAPINFO* info,
              UINT usage) {
    const GdiRef<Bitmap> bitmap = Find<Bitmap>(handle);
    if ((dc && !FindContext(dc)) || !bitmap || !info) return 0;
    if (info->bmiHeader.biSize < sizeof(BITMAPINFOHEADER)) return 0;
    if (bits) return ReadRows(*bitmap, startScan, scanLines, bits, info, usage);
    if (info->bmiHeader.biBitCount == 0) DescribeBitmap(*bitmap, info->bmiHeader);
    DibForm form;
    if (!ReadDibHeader(info, usage, &form)) return 0;
    info->bmiHeader.biSizeImage = static_cast<DWORD>(form.Size());
    return bitmap->Height();
}

}  // namespace vxgui::gdi
