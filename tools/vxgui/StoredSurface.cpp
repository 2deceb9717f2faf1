#include "tools/vxgui/StoredSurface.h"

#include <cstdlib>
#include <cstring>
#include <string_view>

#include "tools/vxgui/ToolError.h"
#include "vxgui/base/Error.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"

namespace vxgui::tool {
namespace {

constexpr size_t kBitmapHeaderAt = 20;
constexpr size_t kPixelsAt = 60;
const char* const kBagKey = "cAlphaDIBSection";

bool BeginsWith(const ByteArray& bytes, std::string_view mark) {
    return bytes.size() >= mark.size() && std::memcmp(bytes.data(), mark.data(), mark.size()) == 0;
}

bool IsPlain(const ByteArray& bytes) { return BeginsWith(bytes, "ADIB"); }

StoredHeader Fields(const ByteArray& plain) {
    StoredHeader header{LoadLittle<uint16_t>(&plain[4]),
                        static_cast<int16_t>(LoadLittle<uint16_t>(&plain[6])),
                        LoadLittle<uint32_t>(&plain[12]),
                        LoadLittle<uint32_t>(&plain[16]),
                        {}};
    std::memcpy(&header.bitmap, &plain[kBitmapHeaderAt], sizeof header.bitmap);
    return header;
}

// Rows begin at multiples of four bytes.
uint64_t NeededBytes(const gdi::BITMAPINFOHEADER& bitmap) {
    const uint64_t width = static_cast<uint64_t>(std::abs(int64_t{bitmap.biWidth}));
    const uint64_t height = static_cast<uint64_t>(std::abs(int64_t{bitmap.biHeight}));
    return (width * bitmap.biBitCount + 31) / 32 * 4 * height;
}

void Expect(bool holds, const std::string& path, const std::string& what, uint64_t expected,
            uint64_t found) {
    if (holds) return;
    Fail(path, "the serialized surface is damaged: " + what + " " + std::to_string(expected) +
                   " was expected, " + std::to_string(found) + " found");
}

}  // namespace

bool IsCompressed(const ByteArray& bytes) {
    return BeginsWith(bytes, "\x28\xB5\x2F\xFD");  // the magic number of a frame, RFC 8878
}

bool IsStoredSurface(const ByteArray& bytes) { return IsPlain(bytes) || IsCompressed(bytes); }

ByteArray PlainBlock(const ByteArray& bytes, const std::string& path) {
    if (!IsCompressed(bytes)) return bytes;
    std::optional<ByteArray> plain = core7::Decompress(bytes);
    if (!plain) {
        Fail(path,
             "the compressed surface can't be unpacked: a whole frame that states its size "
             "was expected");
    }
    return std::move(*plain);
}

StoredHeader HeaderOf(const ByteArray& plain, const std::string& path) {
    if (!IsPlain(plain)) Fail(path, "no serialized surface: the mark ADIB was expected");
    Expect(plain.size() >= kPixelsAt, path, "a header of", kPixelsAt, plain.size());
    const uint32_t headerSize = LoadLittle<uint32_t>(&plain[8]);
    const StoredHeader header = Fields(plain);
    Expect(header.version == 1 || header.version == 2, path, "version", 2, header.version);
    Expect(headerSize == kBitmapHeaderAt, path, "the header size", kBitmapHeaderAt, headerSize);
    const uint64_t needed = NeededBytes(header.bitmap), stated = header.bitmap.biSizeImage;
    Expect(stated >= needed, path, "an image size of", needed, stated);
    Expect(stated <= plain.size() - kPixelsAt, path, "pixels of as many bytes as", stated,
           plain.size() - kPixelsAt);
    return header;
}

Ref<cAlphaDIBSection> SurfaceOf(const ByteArray& plain, const std::string& path) {
    const gdi::BITMAPINFOHEADER bitmap = HeaderOf(plain, path).bitmap;
    if (bitmap.biWidth == 0 || bitmap.biHeight == 0) {
        Fail(path, "the serialized surface is empty: one with pixels was expected");
    }
    auto surface = New<cAlphaDIBSection>();
    if (surface->FromByteArray(plain)) return surface;
    Fail(path, "a surface of " + std::to_string(bitmap.biWidth) + "x" +
                   std::to_string(bitmap.biHeight) + " at " + std::to_string(bitmap.biBitCount) +
                   " bits a pixel can't be made; sides from 1 to 32767 and an area of up to 64 "
                   "megapixels were expected");
}

Ref<ole::PropertyBag> BagOf(const ByteArray& bytes, const std::string& path) {
    auto bag = New<ole::PropertyBag>();
    try {
        bag->Contents(bytes);
    } catch (const Error& error) {
        Fail(path, "no property bag: " + error.Description().Utf8());
    }
    return bag;
}

std::optional<ByteArray> SurfaceBlockOf(const ole::PropertyBag& bag) {
    const Variant value = bag.ReadProperty(kBagKey);
    const auto* block = value.As<ByteArray>();
    return block ? std::optional(*block) : std::nullopt;
}

}  // namespace vxgui::tool
