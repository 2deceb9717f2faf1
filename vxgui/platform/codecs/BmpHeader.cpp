#include "vxgui/platform/codecs/BmpHeader.h"

#include <algorithm>
#include <limits>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::codecs {
namespace {

constexpr size_t kFileHeaderSize = 14;
constexpr uint32_t kCoreHeaderSize = 12;
constexpr uint32_t kPlainHeaderSize = 40;
constexpr uint32_t kOs2HeaderSize = 64;

// Fields behind the end of a short header read as 0.
class HeaderReader {
public:
    explicit HeaderReader(Bytes header) : header_(header) {}
    uint16_t Word(size_t at) const { return At<uint16_t>(at); }
    uint32_t Dword(size_t at) const { return At<uint32_t>(at); }

private:
    template <class T>
    T At(size_t at) const {
        return at + sizeof(T) <= header_.size() ? LoadLittle<T>(header_.data() + at) : T(0);
    }
    Bytes header_;
};

bool ReadSizes(const HeaderReader& fields, bool core, BmpHeader* header) {
    const int64_t width = core ? fields.Word(4) : static_cast<int32_t>(fields.Dword(4));
    const int64_t height = core ? fields.Word(6) : static_cast<int32_t>(fields.Dword(8));
    header->topDown = height < 0;
    if (width <= 0 || height == 0 || height == std::numeric_limits<int32_t>::min()) return false;
    header->width = static_cast<int32_t>(width);
    header->height = static_cast<int32_t>(height < 0 ? -height : height);
    header->bits = fields.Word(core ? 10 : 14);
    header->compression = static_cast<BmpCompression>(core ? 0 : fields.Dword(16));
    return true;
}

// Pixels a metre.
double DpiOf(uint32_t resolution) {
    return static_cast<int32_t>(resolution) > 0 ? resolution * 0.0254 : 0;
}

bool FitsTogether(const BmpHeader& header) {
    const uint16_t bits = header.bits;
    switch (header.compression) {
        case BmpCompression::None:
            return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
        case BmpCompression::Rle8:
            return bits == 8 && !header.topDown;
        case BmpCompression::Rle4:
            return bits == 4 && !header.topDown;
        case BmpCompression::BitFields:
        case BmpCompression::AlphaBitFields:
            return bits == 16 || bits == 32;
    }
    return false;
}

bool HasBitFields(const BmpHeader& header) {
    return header.compression == BmpCompression::BitFields ||
           header.compression == BmpCompression::AlphaBitFields;
}

// Behind a plain header the masks follow it; later headers hold them. The place is the same.
void ReadMasks(const HeaderReader& fields, uint32_t headerSize, BmpHeader* header) {
    if (!HasBitFields(*header)) {
        header->masks = header->bits == 16 ? BmpMasks{0x7C00, 0x3E0, 0x1F, 0}
                                           : BmpMasks{0xFF0000, 0xFF00, 0xFF, 0};
        return;
    }
    header->masks = {fields.Dword(40), fields.Dword(44), fields.Dword(48), 0};
    const bool withAlpha =
        headerSize >= 56 || header->compression == BmpCompression::AlphaBitFields;
    if (withAlpha) header->masks.alpha = fields.Dword(52);
}

size_t MaskBytes(uint32_t headerSize, const BmpHeader& header) {
    if (headerSize > kPlainHeaderSize || !HasBitFields(header)) return 0;
    return header.compression == BmpCompression::AlphaBitFields ? 16 : 12;
}

// The palette at `table`, which ends where the pixels begin, or, when the file header names no
// place for these, with as many colours as it says; the pixels follow it then. Answers where they
// begin.
size_t ReadPalette(Bytes bytes, size_t table, size_t entrySize, uint32_t used, size_t pixels,
                   BmpHeader* header) {
    if (header->bits > 8) return std::max(pixels, table);
    const size_t asked = used ? used : size_t{1} << header->bits;
    const size_t room = ((pixels > table ? pixels : bytes.size()) - table) / entrySize;
    const size_t count = std::min({asked, room, header->palette.size()});
    header->paletteSize = count;
    for (size_t i = 0; i < count; ++i) {
        const uint8_t* entry = &bytes[table + i * entrySize];
        header->palette[i] = 0xFF000000u | static_cast<uint32_t>(entry[2]) << 16 |
                             static_cast<uint32_t>(entry[1]) << 8 | entry[0];
    }
    return pixels > table ? pixels : table + std::min(asked, room) * entrySize;
}

}  // namespace

std::optional<BmpHeader> ReadBmpHeader(Bytes bytes) {
    if (bytes.size() < kFileHeaderSize + kCoreHeaderSize) return std::nullopt;
    const auto size = LoadLittle<uint32_t>(&bytes[kFileHeaderSize]);
    const bool core = size == kCoreHeaderSize;
    if ((!core && size < 16) || size > bytes.size() - kFileHeaderSize) return std::nullopt;

    BmpHeader header;
    // The masks of a plain header stand behind it, so they are read along with it.
    const HeaderReader fields(bytes.subspan(
        kFileHeaderSize,
        size == kPlainHeaderSize ? std::min<size_t>(56, bytes.size() - kFileHeaderSize) : size));
    if (!ReadSizes(fields, core, &header) || !FitsTogether(header)) return std::nullopt;
    // There, 3 and 4 are forms of compression of their own.
    if (size == kOs2HeaderSize && HasBitFields(header)) return std::nullopt;
    ReadMasks(fields, size, &header);
    header.dpiX = core ? 0 : DpiOf(fields.Dword(24));
    header.dpiY = core ? 0 : DpiOf(fields.Dword(28));

    const size_t table = kFileHeaderSize + size + MaskBytes(size, header);
    const size_t pixels = LoadLittle<uint32_t>(&bytes[10]);
    if (table > bytes.size() || pixels > bytes.size()) return std::nullopt;
    header.palette.fill(0xFF000000);
    header.pixelOffset =
        ReadPalette(bytes, table, core ? 3 : 4, core ? 0 : fields.Dword(32), pixels, &header);
    return header;
}

}  // namespace vxgui::codecs
