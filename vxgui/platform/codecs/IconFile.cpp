#include "vxgui/platform/codecs/IconFile.h"

#include <algorithm>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/codecs/BmpDecoder.h"
#include "vxgui/platform/codecs/BmpHeader.h"
#include "vxgui/platform/codecs/PngDecoder.h"

namespace vxgui::codecs {
namespace {

constexpr size_t kHeaderSize = 6;
constexpr size_t kEntrySize = 16;
constexpr size_t kBmpFileHeaderSize = 14;
constexpr uint16_t kIconType = 1, kCursorType = 2;

uint16_t Word(Bytes bytes, size_t at) { return LoadLittle<uint16_t>(&bytes[at]); }
uint32_t Dword(Bytes bytes, size_t at) { return LoadLittle<uint32_t>(&bytes[at]); }

// The bytes of a directory's image; empty where they would leave the file.
Bytes ImageOf(Bytes file, size_t entry) {
    const size_t at = kHeaderSize + entry * kEntrySize;
    const size_t size = Dword(file, at + 8), offset = Dword(file, at + 12);
    if (offset > file.size() || size > file.size() - offset) return {};
    return file.subspan(offset, size);
}

bool HasType(Bytes bytes, uint16_t type) {
    if (bytes.size() < kHeaderSize + kEntrySize || Word(bytes, 0) != 0) return false;
    const size_t count = Word(bytes, 4);
    return Word(bytes, 2) == type && count > 0 &&
           bytes.size() >= kHeaderSize + count * kEntrySize && !ImageOf(bytes, 0).empty();
}

int Depth(Bytes image) {
    if (IsPng(image)) return 32;
    return image.size() >= 16 ? Word(image, 14) : 0;
}

// The sides are in bytes in the directory, where 0 stands for 256.
size_t ChooseEntry(Bytes bytes) {
    const auto sides = [&](size_t entry) { return Word(bytes, kHeaderSize + entry * kEntrySize); };
    size_t best = 0;
    for (size_t entry = 1; entry < Word(bytes, 4); ++entry) {
        if (sides(entry) != sides(0)) continue;
        if (Depth(ImageOf(bytes, entry)) > Depth(ImageOf(bytes, best))) best = entry;
    }
    return best;
}

// A bitmap here lacks its file header, and its height counts the mask too.
bool OpenBitmap(Bytes image, IconEntry* entry) {
    if (image.size() < 40) return false;
    const auto height = static_cast<int32_t>(Dword(image, 8));
    std::vector<uint8_t>& file = entry->bitmapFile;
    file = {'B', 'M'};
    file.resize(kBmpFileHeaderSize);
    file.insert(file.end(), image.begin(), image.end());
    StoreLittle(&file[kBmpFileHeaderSize + 8], static_cast<uint32_t>(height / 2));
    const std::optional<BmpHeader> header = ReadBmpHeader(file);
    if (!header || header->compression != BmpCompression::None || header->topDown) return false;
    entry->colours = OpenBmp(file, FourthByte::Kept);
    if (!entry->colours) return false;
    entry->storesAlpha = header->bits == 32;

    const auto rows = static_cast<size_t>(header->height),
               width = static_cast<size_t>(header->width);
    const size_t start = header->pixelOffset + (width * header->bits + 31) / 32 * 4 * rows;
    const size_t size = (width + 31) / 32 * 4 * rows;
    const bool whole = start <= file.size() && size <= file.size() - start;
    if (whole) entry->mask = Bytes(file).subspan(start, size);
    return whole || entry->storesAlpha;
}

bool OpenPngImage(Bytes image, IconEntry* entry) {
    entry->colours = OpenPng(image);
    entry->storesAlpha = true;
    return entry->colours != nullptr;
}

}  // namespace

bool IconEntry::Masked(int32_t x, int32_t y) const {
    if (mask.empty()) return false;
    const auto column = static_cast<size_t>(x);
    const auto row = static_cast<size_t>(colours->Header().height - 1 - y);
    const size_t stride = (static_cast<size_t>(colours->Header().width) + 31) / 32 * 4;
    return mask[row * stride + column / 8] & 0x80 >> column % 8;
}

bool IsIcon(Bytes bytes) { return HasType(bytes, kIconType); }
bool IsCursor(Bytes bytes) { return HasType(bytes, kCursorType); }

std::unique_ptr<IconEntry> OpenIcon(Bytes bytes) {
    auto entry = std::make_unique<IconEntry>();
    entry->cursor = IsCursor(bytes);
    if (!entry->cursor && !IsIcon(bytes)) return nullptr;
    const size_t chosen = ChooseEntry(bytes);
    const Bytes image = ImageOf(bytes, chosen);
    if (!(IsPng(image) ? OpenPngImage(image, entry.get()) : OpenBitmap(image, entry.get()))) {
        return nullptr;
    }
    if (entry->cursor) {
        entry->hotX = Word(bytes, kHeaderSize + chosen * kEntrySize + 4);
        entry->hotY = Word(bytes, kHeaderSize + chosen * kEntrySize + 6);
    }
    return entry;
}

}  // namespace vxgui::codecs
