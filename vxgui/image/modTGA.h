#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "vxgui/base/Variant.h"
#include "vxgui/pixels/ARGB.h"
#include "vxgui/platform/gdi_types.h"

/// The reader of Truevision TGA pictures that lie in memory whole. No byte outside the block is
/// read: wherever the format would lead past its end, the access is dropped or refused.
namespace vxgui {

/// Status codes. A negative one is a pixel's palette index that was out of range, negated.
namespace tga {
constexpr int32_t kOk = 0;
constexpr int32_t kUnreadable = 1;     ///< no block, pixels past its end, or over the limits
constexpr int32_t kTooShort = 2;       ///< below 18 bytes
constexpr int32_t kImageType = 3;      ///< not supported
constexpr int32_t kMapType = 4;        ///< not 1 for a mapped picture
constexpr int32_t kMapLength = 5;      ///< 0 for a mapped picture
constexpr int32_t kMapEntrySize = 6;   ///< not 15, 16, 24 or 32
constexpr int32_t kMapTruncated = 7;   ///< runs past the block's end
constexpr int32_t kDepth = 8;          ///< not supported for this image type
constexpr int32_t kEmpty = 9;          ///< width or height below 1
constexpr uint8_t kPremultiplied = 4;  ///< the attributes type of premultiplied pixels
}  // namespace tga

/// The header, 18 bytes in a file, little-endian.
struct TgaHeader {
    uint8_t idLength = 0;
    uint8_t mapType = 0;
    uint8_t imageType = 0;
    uint16_t mapFirst = 0;
    uint16_t mapLength = 0;
    uint8_t mapEntrySize = 0;
    uint16_t xOrigin = 0;
    uint16_t yOrigin = 0;
    uint16_t width = 0;
    uint16_t height = 0;
    uint8_t depth = 0;
    uint8_t descriptor = 0;  ///< bit 4: columns from right to left; bit 5: rows from the top down
};

/// The decoder's working record. The pointers are into the block, which must outlive their use.
struct TgaRecord {
    const uint8_t* start = nullptr;
    int32_t size = 0;
    const uint8_t* footer = nullptr;     ///< null when none was recognised
    const uint8_t* extension = nullptr;  ///< null when there is none
    const uint8_t* imageData = nullptr;
    const uint8_t* paletteData = nullptr;
    uint8_t attributesType = 3;
    TgaHeader header;
    std::array<uint8_t, 26> footerBytes{};
    std::vector<ARGB> palette;
    std::vector<ARGB> pixels;  ///< rows of `header.width`, the bottom row first
};

/// Stores the block in the record, reads its header and checks it.
int32_t TgaParse(TgaRecord& record, const void* start, int32_t size);
/// Decodes into the record's own array.
int32_t TgaDecodeToArray(TgaRecord& record);
/// Decodes into the width * height pixels of a surface. Row r, column c goes to pixel
/// r * height + c; what falls outside is dropped.
int32_t TgaDecodeToSurfaceBits(TgaRecord& record, void* pixels);

/// A 32-bit DIB section of the picture, which the caller owns; null on failure.
gdi::HBITMAP TgaToDib(const void* start, int32_t size, bool& hasFooter);
gdi::HBITMAP TgaArrayToDib(const ByteArray& bytes, bool unused = false);

/// Whether the block ends in the format's signature.
bool TgaHasFooter(const void* start, int32_t size);

}  // namespace vxgui
