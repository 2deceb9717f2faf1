#include "vxgui/platform/gdiplus/bitmap/DibLayout.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>

#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/limits.h"

namespace vxgui::gdiplus {
namespace {

const uint8_t* BehindHeader(const gdi::BITMAPINFO& info) {
    return reinterpret_cast<const uint8_t*>(&info) + info.bmiHeader.biSize;
}

PixelFormat Format16(const gdi::BITMAPINFO& info) {
    if (info.bmiHeader.biCompression != gdi::BI_BITFIELDS) return PixelFormat16bppRGB555;
    uint32_t masks[3];
    std::memcpy(masks, reinterpret_cast<const uint8_t*>(&info) + sizeof info.bmiHeader,
                sizeof masks);
    return masks[0] == 0xF800 ? PixelFormat16bppRGB565 : PixelFormat16bppRGB555;
}

PixelFormat FormatOfDib(const gdi::BITMAPINFO& info) {
    switch (info.bmiHeader.biBitCount) {
        case 1:
            return PixelFormat1bppIndexed;
        case 4:
            return PixelFormat4bppIndexed;
        case 8:
            return PixelFormat8bppIndexed;
        case 16:
            return Format16(info);
        case 24:
            return PixelFormat24bppRGB;
        case 32:
            return PixelFormat32bppRGB;
        default:
            return PixelFormatUndefined;
    }
}

bool IsPlain(const gdi::BITMAPINFOHEADER& header) {
    const bool fields = header.biCompression == gdi::BI_BITFIELDS && header.biBitCount >= 16;
    return header.biSize >= sizeof header && header.biWidth > 0 && header.biHeight != 0 &&
           header.biHeight != std::numeric_limits<LONG>::min() &&
           (header.biCompression == gdi::BI_RGB || fields);
}

}  // namespace

std::optional<PixelMemory> MemoryOfDib(const gdi::BITMAPINFO& info, void* bits) {
    const gdi::BITMAPINFOHEADER& header = info.bmiHeader;
    const PixelFormat format = FormatOfDib(info);
    if (!IsPlain(header) || format == PixelFormatUndefined) return std::nullopt;
    const INT height = std::abs(header.biHeight);
    const size_t stride = PaddedRowBytes(format, static_cast<size_t>(header.biWidth));
    constexpr auto kCounted = static_cast<size_t>(std::numeric_limits<INT>::max());
    const size_t most = std::min(kCounted, ApartmentLimits().imageBytes);
    if (stride > most / static_cast<size_t>(height)) return std::nullopt;
    PixelMemory memory{
        header.biWidth, height, format, static_cast<INT>(stride), static_cast<uint8_t*>(bits),
        nullptr};
    if (header.biHeight > 0) {
        if (bits) memory.first = memory.Row(height - 1);
        memory.stride = -memory.stride;
    }
    return memory;
}

Palette PaletteOfDib(const gdi::BITMAPINFO& info) {
    const WORD bits = info.bmiHeader.biBitCount;
    if (bits > 8) return {};
    const UINT most = 1u << bits;
    const UINT used =
        info.bmiHeader.biClrUsed ? std::min<UINT>(info.bmiHeader.biClrUsed, most) : most;
    Palette palette{0, std::vector<ARGB>(used)};
    std::memcpy(palette.entries.data(), BehindHeader(info), used * sizeof(ARGB));
    for (ARGB& entry : palette.entries) entry |= 0xFF000000;
    palette.flags = PaletteFlagsOf(palette.entries);
    return palette;
}

}  // namespace vxgui::gdiplus
