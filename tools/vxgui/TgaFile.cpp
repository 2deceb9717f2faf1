#include "tools/vxgui/TgaFile.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "tools/vxgui/StraightSurface.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/image/modTGA.h"

namespace vxgui::tool {
namespace {

constexpr size_t kHeaderSize = 18;
constexpr uint8_t kTrueColour = 2;
constexpr uint8_t kPackedTrueColour = 10;
constexpr uint8_t kAlphaBits = 8;
// Offsets of two areas that aren't there, and the signature with its zero byte.
constexpr std::string_view kFooter{"\0\0\0\0\0\0\0\0TRUEVISION-XFILE.\0", 26};

std::string Reason(int32_t status) {
    constexpr const char* kReasons[] = {
        "its pixels end early, or it is over 32767 pixels a side or 64 megapixels",
        "a header of 18 bytes was expected",
        "its image type isn't one of 1, 2, 3 and 10",
        "a colour map was expected",
        "a colour map with entries was expected",
        "colour map entries of 15, 16, 24 or 32 bits were expected",
        "its colour map ends early",
        "its depth doesn't fit its image type",
        "it is empty",
    };
    if (status < 0) return "a pixel is of colour " + std::to_string(-status) + ", past the map";
    return kReasons[status - 1];
}

// Whether the runs hold as many pixels as the picture has.
bool RunsAreWhole(const TgaRecord& record) {
    const int64_t size = (record.header.depth + 7) / 8;
    int64_t at = record.imageData - record.start;
    int64_t missing = int64_t{record.header.width} * record.header.height;
    while (missing > 0) {
        if (at >= record.size) return false;
        const uint8_t head = record.start[at];
        const int64_t run = std::min<int64_t>((head & 127) + 1, missing);
        at += 1 + (head > 127 ? 1 : run) * size;
        missing -= run;
    }
    return at <= record.size;
}

bool IsWhole(const TgaRecord& record) {
    if (record.header.imageType == kPackedTrueColour) return RunsAreWhole(record);
    const int64_t there = record.start + record.size - record.imageData;
    return there >= int64_t{record.header.width} * record.header.height * (record.header.depth / 8);
}

void Check(const TgaRecord& record, int32_t status, const std::string& path) {
    if (status != tga::kOk) Fail(path, "a TGA that can't be read: " + Reason(status));
    const uint8_t type = record.header.imageType;
    if (type == 9 || type == 11) {
        Fail(path, "a TGA of type " + std::to_string(type) +
                       " isn't read; one that isn't packed was expected");
    }
}

}  // namespace

Ref<cAlphaDIBSection> ReadTga(const ByteArray& bytes, const std::string& path) {
    TgaRecord record;
    Check(record, TgaParse(record, bytes.data(), static_cast<int32_t>(bytes.size())), path);
    Check(record, TgaDecodeToArray(record), path);
    if (!IsWhole(record)) Check(record, tga::kUnreadable, path);
    auto surface = NewSurface(record.header.width, record.header.height, path);
    std::memcpy(surface->DIBSectionBitsPtr(), record.pixels.data(),
                record.pixels.size() * sizeof(ARGB));
    return surface;
}

ByteArray TgaOf(cAlphaDIBSection& straight) {
    std::array<uint8_t, kHeaderSize> header{};
    header[2] = kTrueColour;
    StoreLittle(&header[12], static_cast<uint16_t>(straight.Width()));
    StoreLittle(&header[14], static_cast<uint16_t>(straight.Height()));
    header[16] = 32;
    header[17] = kAlphaBits;
    const auto* pixels = static_cast<const uint8_t*>(straight.DIBSectionBitsPtr());
    const auto size =
        static_cast<size_t>(straight.BytesPerScanLine()) * static_cast<size_t>(straight.Height());
    ByteArray bytes(header.begin(), header.end());
    bytes.insert(bytes.end(), pixels, pixels + size);
    bytes.insert(bytes.end(), kFooter.begin(), kFooter.end());
    return bytes;
}

}  // namespace vxgui::tool
