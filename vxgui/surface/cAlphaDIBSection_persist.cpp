#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Require.h"
#include "vxgui/base/VariantValue.h"
#include "vxgui/platform/codecs.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/known_memory.h"
#include "vxgui/platform/memory.h"
#include "vxgui/surface/DibInfo.h"
#include "vxgui/surface/cAlphaDIBSection.h"

// docs/formats.md has both forms byte by byte.
namespace vxgui {

namespace {

constexpr char kKey[] = "cAlphaDIBSection";
constexpr char kCompressedKey[] = "cAlphaDIBSection_compressed";

/// What stands before the bitmap header in a serialized surface.
struct SerialHeader {
    char magic[4];
    uint16_t version;
    int16_t flags;
    uint32_t size;
    int32_t transparentColor;
    uint32_t surfaceFlags;
};
static_assert(sizeof(SerialHeader) == 20);

constexpr char kMagic[4] = {'A', 'D', 'I', 'B'};
constexpr size_t kPixelOffset = sizeof(SerialHeader) + sizeof(gdi::BITMAPINFOHEADER);

bool IsReadable(const SerialHeader& header) {
    return std::memcmp(header.magic, kMagic, sizeof kMagic) == 0 &&
           (header.version == 1 || header.version == 2) && header.size == sizeof header;
}

size_t ImageSize(const gdi::BITMAPINFOHEADER& header) {
    return static_cast<size_t>(std::max(0, static_cast<int32_t>(header.biSizeImage)));
}

/// A block of a hundred bytes must not have gigabytes made for it.
bool IsAllowed(const gdi::BITMAPINFOHEADER& header) {
    return codecs::ApartmentDecodeLimits().Allow(header.biWidth,
                                                 std::abs(int64_t{header.biHeight}));
}

}  // namespace

void cAlphaDIBSection::ToByteArray(ByteArray& b, int16_t Flags) try {
    SerialHeader serial{{}, 2, Flags, sizeof serial, transparentColor_, flags_};
    std::ranges::copy(kMagic, serial.magic);
    const size_t imageSize = bits_ ? ImageSize(header_) : 0;
    b.assign(kPixelOffset + imageSize, 0);
    std::memcpy(b.data(), &serial, sizeof serial);
    std::memcpy(b.data() + sizeof serial, &header_, sizeof header_);
    const size_t there = std::min(imageSize, MemorySize());
    if (there) std::memcpy(b.data() + kPixelOffset, bits_, there);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.ToByteArray");
}

bool cAlphaDIBSection::Equal(const Ref<cAlphaDIBSection>& Item) try {
    if (!Item) return false;
    ByteArray mine, other;
    ToByteArray(mine, 0);
    Item->ToByteArray(other, 0);
    return mine == other;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.Equal");
}

bool cAlphaDIBSection::FromByteArray(const ByteArray& b) try {
    const kernel::KnownMemory ours(b.data(), b.size());
    return !b.empty() && FromLp(b.data(), static_cast<int32_t>(b.size()));
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.FromByteArray");
}

bool cAlphaDIBSection::FromLp(const void* lp, int32_t SIZE) {
    SerialHeader serial;
    constexpr auto kSize = static_cast<int32_t>(sizeof serial);
    if (SIZE <= kSize || kernel::IsBadReadPtr(lp, sizeof serial)) return false;
    std::memcpy(&serial, lp, sizeof serial);
    if (!IsReadable(serial) || !DibFromLp(static_cast<const uint8_t*>(lp) + kSize, SIZE - kSize)) {
        return false;
    }
    flags_ = serial.surfaceFlags;
    transparentColor_ = serial.transparentColor;
    return true;
}

bool cAlphaDIBSection::DibFromLp(const void* lp, int32_t SIZE) {
    StoredHeader info;
    constexpr auto kSize = static_cast<int32_t>(sizeof info.header);
    if (SIZE < kSize || kernel::IsBadReadPtr(lp, sizeof info.header)) return false;
    std::memcpy(&info.header, lp, sizeof info.header);
    const uint8_t* pixels = static_cast<const uint8_t*>(lp) + kSize;
    const size_t imageSize = ImageSize(info.header);
    if (static_cast<size_t>(SIZE - kSize) < imageSize || kernel::IsBadReadPtr(pixels, imageSize) ||
        !IsAllowed(info.header)) {
        return false;
    }
    const gdi::HDC dc = gdi::CreateCompatibleDC(compatibleDC_);
    if (!dc) return false;
    void* bits = nullptr;
    // The pixels come over first: the block may lie in the memory that is about to go.
    const gdi::HBITMAP bitmap =
        gdi::CreateFilledDIBSection(reinterpret_cast<const gdi::BITMAPINFO*>(&info),
                                    gdi::DIB_RGB_COLORS, {pixels, imageSize}, &bits);
    if (!bitmap) {
        gdi::DeleteDC(dc);
        return false;
    }
    Adopt(dc, bitmap, bits, info.header);
    return true;
}

void cAlphaDIBSection::Adopt(gdi::HDC dc, gdi::HBITMAP bitmap, void* bits,
                             const gdi::BITMAPINFOHEADER& header) {
    ClearUp();
    compatibleDC_ = nullptr;
    header_ = header;
    hDIB_ = bitsOwner_ = bitmap;
    hDC_ = dc;
    bits_ = bits;
    oldBitmap_ = gdi::SelectObject(hDC_, hDIB_);
}

void cAlphaDIBSection::WriteProperties(const Ref<ole::PropertyBag>& PropBag, int32_t Flags) try {
    ole::PropertyBag& bag = Require(PropBag, kKey);
    const bool compressed = Flags & 1;
    ByteArray buffer;
    ToByteArray(buffer, static_cast<int16_t>(Flags & 1));
    if (!compressed) bag.WriteProperty(kCompressedKey, 0, 1);
    bag.WriteProperty(kKey, compressed ? core7::Compress(buffer) : std::move(buffer));
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.WriteProperties");
}

void cAlphaDIBSection::ReadProperties(const Ref<ole::PropertyBag>& PropBag) try {
    const ole::PropertyBag& bag = Require(PropBag, kKey);
    const bool compressed = IntegerFrom(bag.ReadProperty(kCompressedKey, 1), kKey) != 0;
    const Variant value = bag.ReadProperty(kKey);
    const auto* stored = value.As<ByteArray>();
    if (!stored) return;
    if (!compressed || core7::GetSize(*stored) == 0) {
        FromByteArray(*stored);
    } else if (const auto plain = core7::Decompress(*stored)) {
        FromByteArray(*plain);
    }
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.ReadProperties");
}

}  // namespace vxgui
