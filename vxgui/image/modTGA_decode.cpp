#include <algorithm>
#include <array>
#include <cstring>
#include <span>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/image/TgaPalette.h"
#include "vxgui/image/modTGA.h"
#include "vxgui/platform/codecs.h"

namespace vxgui {
namespace {

using Bytes = std::span<const uint8_t>;

// Where pixels go: row r, column c is pixel r * pitch + c. What falls outside is dropped.
struct PixelTarget {
    ARGB* pixels;
    int64_t count;
    int32_t pitch;

    void Put(int32_t row, int32_t column, ARGB colour) const {
        const int64_t index = int64_t{row} * pitch + column;
        if (index < count) pixels[index] = colour;
    }
};

bool RunsLeft(const TgaHeader& header) { return header.descriptor & 0x10; }
bool RunsDown(const TgaHeader& header) { return header.descriptor & 0x20; }
int64_t PixelCount(const TgaHeader& header) { return int64_t{header.width} * header.height; }

// Takes the pixels of the source in the file's order, as many as are there. `colourOf` makes a
// colour of the bytes of one, or answers a status that ends the picture.
template <class ColourOf>
int32_t DecodeEach(const TgaHeader& header, Bytes source, const PixelTarget& target, size_t size,
                   ColourOf colourOf) {
    for (int32_t i = 0; i < header.height; ++i) {
        const int32_t row = RunsDown(header) ? header.height - 1 - i : i;
        for (int32_t j = 0; j < header.width; ++j) {
            if (source.size() < size) return tga::kOk;
            ARGB colour;
            if (const int32_t status = colourOf(source.data(), colour)) return status;
            target.Put(row, RunsLeft(header) ? header.width - 1 - j : j, colour);
            source = source.subspan(size);
        }
    }
    return tga::kOk;
}

int32_t IndexAt(const uint8_t* at, size_t size) {
    int32_t index = 0;
    for (size_t i = 0; i < size; ++i) index |= at[i] << (8 * i);
    return index;
}

int32_t DecodeMapped(const TgaRecord& record, Bytes source, const PixelTarget& target,
                     size_t size) {
    return DecodeEach(record.header, source, target, size, [&](const uint8_t* at, ARGB& colour) {
        const int32_t index = IndexAt(at, size);
        if (index >= record.header.mapLength) return -index;
        colour = record.palette[static_cast<size_t>(index)];
        return tga::kOk;
    });
}

// Whether the pixels lie in the file as they do in a surface.
bool IsCopy(const TgaHeader& header, size_t size) {
    return size == sizeof(ARGB) && !RunsLeft(header) && !RunsDown(header);
}

// The file's first row is the last one of the target. Its last pixels may be missing.
void CopyRowsDown(const TgaHeader& header, Bytes source, ARGB* pixels) {
    for (int32_t row = header.height - 1; row >= 0; --row) {
        const size_t count = std::min<size_t>(header.width, source.size() / sizeof(ARGB));
        std::memcpy(static_cast<void*>(pixels + int64_t{row} * header.width), source.data(),
                    count * sizeof(ARGB));
        source = source.subspan(count * sizeof(ARGB));
    }
}

int32_t DecodeTrueColour(const TgaRecord& record, Bytes source, const PixelTarget& target,
                         size_t size) {
    const TgaHeader& header = record.header;
    if (IsCopy(header, size)) {
        const size_t bytes = std::min(static_cast<size_t>(PixelCount(header)) * 4, source.size());
        std::memcpy(target.pixels, source.data(), bytes);
        return tga::kOk;
    }
    if (size == 4 && !RunsLeft(header) && target.pitch == header.width) {
        CopyRowsDown(header, source, target.pixels);
        return tga::kOk;
    }
    return DecodeEach(header, source, target, size, [&](const uint8_t* at, ARGB& colour) {
        colour = size == 2 ? Rgb555(LoadLittle<uint16_t>(at))
                           : ARGB{at[0], at[1], at[2], size == 4 ? at[3] : uint8_t{255}};
        return tga::kOk;
    });
}

// A grey picture is a white one with that mask.
int32_t DecodeGrey(const TgaRecord& record, Bytes source, const PixelTarget& target) {
    return DecodeEach(record.header, source, target, 1, [](const uint8_t* at, ARGB& colour) {
        colour = {255, 255, 255, *at};
        return tga::kOk;
    });
}

// Writes the pixel of `Size` bytes so many times, eight of them at once.
template <size_t Size>
void Repeat(const uint8_t* pixel, size_t count, uint8_t* target) {
    std::array<uint8_t, 8 * Size> eight;
    for (size_t i = 0; i < 8; ++i) std::memcpy(&eight[i * Size], pixel, Size);
    for (; count >= 8; count -= 8, target += eight.size()) {
        std::memcpy(target, eight.data(), eight.size());
    }
    for (; count > 0; --count, target += Size) std::memcpy(target, pixel, Size);
}

// Unpacks runs of pixels of `Size` bytes until the source or the target ends; answers what is left
// of the target.
template <size_t Size>
std::span<uint8_t> UnpackRuns(Bytes source, std::span<uint8_t> target) {
    while (!target.empty() && !source.empty()) {
        const uint8_t head = source[0];
        source = source.subspan(1);
        if (source.size() < Size) break;
        const size_t length = std::min<size_t>((head & 127u) + 1, target.size() / Size);
        const bool repeated = head > 127;
        const size_t run = repeated ? length : std::min(length, source.size() / Size);
        if (repeated) {
            Repeat<Size>(source.data(), run, target.data());
        } else {
            std::copy_n(source.data(), run * Size, target.data());
        }
        source = source.subspan((repeated ? 1 : run) * Size);
        target = target.subspan(run * Size);
    }
    return target;
}

std::span<uint8_t> Unpack(Bytes source, std::span<uint8_t> target, size_t size) {
    if (size == 2) return UnpackRuns<2>(source, target);
    return size == 3 ? UnpackRuns<3>(source, target) : UnpackRuns<4>(source, target);
}

// Bytes a pixel, 0 for a depth that the image type does not come in.
size_t PixelBytes(const TgaHeader& header) {
    const uint8_t depth = header.depth;
    switch (header.imageType & 7) {
        case 1:
            return depth == 8 || depth == 16 || depth == 24 ? depth / 8 : 0;
        case 2:
            return depth == 16 || depth == 24 || depth == 32 ? depth / 8 : 0;
        default:
            return depth == 8 ? 1 : 0;
    }
}

int32_t DecodePixels(const TgaRecord& record, Bytes source, const PixelTarget& target,
                     size_t size) {
    switch (record.header.imageType & 7) {
        case 1:
            return DecodeMapped(record, source, target, size);
        case 2:
            return DecodeTrueColour(record, source, target, size);
        default:
            return DecodeGrey(record, source, target);
    }
}

int32_t DecodePacked(const TgaRecord& record, Bytes packed, const PixelTarget& target,
                     size_t size) {
    if (record.header.imageType == 10 && IsCopy(record.header, size)) {
        const std::span pixels(reinterpret_cast<uint8_t*>(target.pixels),
                               static_cast<size_t>(PixelCount(record.header)) * size);
        std::ranges::fill(Unpack(packed, pixels, size), uint8_t{0});
        return tga::kOk;
    }
    std::vector<uint8_t> unpacked(static_cast<size_t>(PixelCount(record.header)) * size);
    // Types 9 and 11 hand source and target to the unpacker the wrong way round, so that their
    // pixels are those of the fresh buffer: this is meant. The block, which may be read-only, is
    // spared.
    if (record.header.imageType == 10) Unpack(packed, unpacked, size);
    return DecodePixels(record, unpacked, target, size);
}

int32_t CheckSize(const TgaHeader& header) {
    if (header.width == 0 || header.height == 0) return tga::kEmpty;
    const bool allowed = codecs::ApartmentDecodeLimits().Allow(header.width, header.height);
    return allowed ? tga::kOk : tga::kUnreadable;
}

int32_t Decode(TgaRecord& record, const PixelTarget& target) {
    if (const int32_t status = ReadTgaPalette(record)) return status;
    const TgaHeader& header = record.header;
    const size_t size = PixelBytes(header);
    if (size == 0) return tga::kDepth;
    const Bytes source(record.imageData, record.start + record.size);
    if (header.imageType >= 9) return DecodePacked(record, source, target, size);
    const bool whole = source.size() >= static_cast<size_t>(PixelCount(header)) * size;
    // A grey picture is not tested: what is missing of it stays as it was.
    if (header.imageType != 3 && !whole) return tga::kUnreadable;
    return DecodePixels(record, source, target, size);
}

}  // namespace

int32_t TgaDecodeToArray(TgaRecord& record) {
    if (const int32_t status = CheckSize(record.header)) return status;
    record.pixels.assign(static_cast<size_t>(PixelCount(record.header)), ARGB{});
    return Decode(record, {record.pixels.data(), PixelCount(record.header), record.header.width});
}

// Rows are as far apart as the picture is high, not wide: this is meant.
int32_t TgaDecodeToSurfaceBits(TgaRecord& record, void* pixels) {
    if (const int32_t status = CheckSize(record.header)) return status;
    return Decode(record,
                  {static_cast<ARGB*>(pixels), PixelCount(record.header), record.header.height});
}

}  // namespace vxgui
