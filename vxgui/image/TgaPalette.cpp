#include "vxgui/image/TgaPalette.h"

#include <algorithm>
#include <cstring>

#include "vxgui/base/LittleEndian.h"

namespace vxgui {
namespace {

// Maps of 15 and 16 bits begin at their first entry, the others at 0 whatever it says: this is
// meant.
void FillFrom555(TgaRecord& record, uint16_t forced) {
    ARGB* to = record.palette.data() + record.header.mapFirst;
    for (int32_t i = 0; i < record.header.mapLength; ++i) {
        const auto value = LoadLittle<uint16_t>(record.paletteData + 2 * i);
        to[i] = Rgb555(static_cast<uint16_t>(value | forced));
    }
}

void FillFrom24(TgaRecord& record) {
    for (int32_t i = 0; i < record.header.mapLength; ++i) {
        const uint8_t* entry = record.paletteData + 3 * i;
        record.palette[static_cast<size_t>(i)] = {entry[0], entry[1], entry[2], 255};
    }
}

void FillFrom32(TgaRecord& record) {
    std::memcpy(record.palette.data(), record.paletteData, 4u * record.header.mapLength);
}

void Fill(TgaRecord& record) {
    switch (record.header.mapEntrySize) {
        case 15:
            return FillFrom555(record, 0x8000);
        case 16:
            return FillFrom555(record, 0);
        case 24:
            return FillFrom24(record);
        default:
            return FillFrom32(record);
    }
}

// 0 for a size that no map has.
int32_t EntryBytes(uint8_t entrySize) {
    const bool known = entrySize == 15 || entrySize == 16 || entrySize == 24 || entrySize == 32;
    return known ? (entrySize + 1) / 8 : 0;
}

}  // namespace

int32_t ReadTgaPalette(TgaRecord& record) {
    const TgaHeader& header = record.header;
    const int32_t map = 18 + header.idLength;
    record.palette.clear();
    record.imageData = record.start + std::min(map, record.size);
    record.paletteData = nullptr;
    if (header.mapType != 1) return tga::kOk;
    if (header.mapLength == 0) return tga::kMapLength;
    const int32_t bytes = EntryBytes(header.mapEntrySize) * header.mapLength;
    if (bytes == 0) return tga::kMapEntrySize;
    if (map + bytes > record.size) return tga::kMapTruncated;

    record.palette.resize(size_t{header.mapFirst} + header.mapLength);
    record.paletteData = record.start + map;
    record.imageData = record.paletteData + bytes;
    Fill(record);
    return tga::kOk;
}

}  // namespace vxgui
