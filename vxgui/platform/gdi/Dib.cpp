#include "vxgui/platform/gdi/Dib.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace vxgui::gdi {
namespace {

constexpr DWORD kSmallestHeader = sizeof(BITMAPINFOHEADER);
// The largest published header, with colour space and profile.
constexpr DWORD kLargestHeader = 124;

bool DepthServed(int depth) { return depth == 1 || depth == 8 || depth == 24 || depth == 32; }

const uint8_t* BytesOf(const BITMAPINFO* info) { return reinterpret_cast<const uint8_t*>(info); }

// The masks stand behind the 40 fields that all headers share, inside the later headers.
bool MasksArePlain(const BITMAPINFO* info) {
    constexpr uint32_t kPlain[3] = {0xFF0000, 0x00FF00, 0x0000FF};
    return std::memcmp(BytesOf(info) + kSmallestHeader, kPlain, sizeof(kPlain)) == 0;
}

bool CompressionServed(const BITMAPINFO* info) {
    const BITMAPINFOHEADER& header = info->bmiHeader;
    if (header.biCompression == BI_RGB) return true;
    return header.biCompression == BI_BITFIELDS && header.biBitCount == 32 && MasksArePlain(info);
}

bool HeaderServed(const BITMAPINFO* info, UINT usage) {
    if (!info || usage != DIB_RGB_COLORS) return false;
    const BITMAPINFOHEADER& header = info->bmiHeader;
    return header.biSize >= kSmallestHeader && header.biSize <= kLargestHeader &&
           header.biWidth > 0 && header.biHeight != 0 && header.biHeight != INT32_MIN &&
           header.biPlanes == 1 && DepthServed(header.biBitCount) && CompressionServed(info);
}

ColorTable ReadColors(const BITMAPINFO* info) {
    ColorTable table;
    table.count = 1 << info->bmiHeader.biBitCount;
    const int given = DibColorCount(info->bmiHeader);
    const uint8_t* quads = BytesOf(info) + DibColorOffset(info->bmiHeader);
    for (int i = 0; i < given; ++i, quads += 4) {
        table.colors[static_cast<size_t>(i)] =
            static_cast<uint32_t>(quads[0] | quads[1] << 8 | quads[2] << 16);
    }
    return table;
}

}  // namespace

PixelTarget DibForm::View(const void* bits, int32_t rows) const {
    auto* first = static_cast<uint8_t*>(const_cast<void*>(bits));
    const ptrdiff_t down = bottomUp ? -stride : stride;
    if (bottomUp && rows > 0) first += (rows - 1) * stride;
    return {first, down, width, rows, depth, Colors()};
}

int DibColorCount(const BITMAPINFOHEADER& header) {
    if (header.biBitCount > 8) return 0;
    const DWORD most = 1u << header.biBitCount;
    return static_cast<int>(header.biClrUsed == 0 ? most : std::min(header.biClrUsed, most));
}

size_t DibColorOffset(const BITMAPINFOHEADER& header) {
    const bool masksFollow =
        header.biCompression == BI_BITFIELDS && header.biSize == kSmallestHeader;
    return header.biSize + (masksFollow ? 12u : 0u);
}

bool ReadDibHeader(const BITMAPINFO* info, UINT usage, DibForm* form) {
    if (!HeaderServed(info, usage)) return false;
    const BITMAPINFOHEADER& header = info->bmiHeader;
    form->width = header.biWidth;
    form->height = std::abs(header.biHeight);
    form->bottomUp = header.biHeight > 0;
    form->depth = header.biBitCount;
    form->stride = RowBytes(form->width, form->depth, 4);
    return true;
}

bool ReadDib(const BITMAPINFO* info, UINT usage, DibForm* form) {
    if (!ReadDibHeader(info, usage, form)) return false;
    if (form->depth <= 8) form->colors = ReadColors(info);
    return true;
}

}  // namespace vxgui::gdi
