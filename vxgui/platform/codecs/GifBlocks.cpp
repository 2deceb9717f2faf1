#include "vxgui/platform/codecs/GifBlocks.h"

#include <cstring>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::codecs {
namespace {

constexpr size_t kHeaderSize = 13;
constexpr uint8_t kExtension = 0x21, kPicture = 0x2C;
constexpr uint8_t kControl = 0xF9, kComment = 0xFE, kApplication = 0xFF;

class BlockReader {
public:
    explicit BlockReader(Bytes bytes) : rest_(bytes) {}

    GifBlocks Read();

private:
    Bytes Take(size_t size) {
        const Bytes taken = rest_.first(std::min(size, rest_.size()));
        rest_ = rest_.subspan(taken.size());
        return taken;
    }
    uint8_t TakeByte() {
        const Bytes byte = Take(1);
        return byte.empty() ? 0 : byte[0];
    }
    static size_t PaletteSize(uint8_t flags) { return flags & 0x80 ? size_t{6} << (flags & 7) : 0; }

    /// The sub-blocks of a block, one after the other, at most the first 64 KiB.
    std::vector<uint8_t> TakeSubBlocks();
    void ReadExtension();
    void ReadPicture();

    Bytes rest_;
    GifBlocks blocks_;
    uint32_t delay_ = 0;
};

std::vector<uint8_t> BlockReader::TakeSubBlocks() {
    constexpr size_t kMost = 65536;
    std::vector<uint8_t> all;
    while (const uint8_t size = TakeByte()) {
        const Bytes block = Take(size);
        if (all.size() < kMost) all.insert(all.end(), block.begin(), block.end());
    }
    return all;
}

void BlockReader::ReadExtension() {
    const uint8_t kind = TakeByte();
    const std::vector<uint8_t> data = TakeSubBlocks();
    if (kind == kControl && data.size() >= 4) {
        delay_ = LoadLittle<uint16_t>(&data[1]);
        if (data[0] & 1 && !blocks_.transparent) blocks_.transparent = data[3];
    } else if (kind == kComment) {
        blocks_.comment.insert(blocks_.comment.end(), data.begin(), data.end());
    } else if (kind == kApplication && data.size() >= 14 &&
               std::memcmp(data.data(), "NETSCAPE2.0\1", 12) == 0) {
        blocks_.loops = LoadLittle<uint16_t>(&data[12]);
    }
}

void BlockReader::ReadPicture() {
    const Bytes description = Take(9);
    if (description.size() < 9) return;
    Take(PaletteSize(description[8]) + 1);
    while (const uint8_t size = TakeByte()) Take(size);
    blocks_.delays.push_back(delay_);
    delay_ = 0;
}

GifBlocks BlockReader::Read() {
    const Bytes header = Take(kHeaderSize);
    if (header.size() < kHeaderSize) return {};
    blocks_.background = header[11];
    const Bytes palette = Take(PaletteSize(header[10]));
    blocks_.globalPalette.assign(palette.begin(), palette.end());
    for (uint8_t block = TakeByte(); block; block = TakeByte()) {
        if (block == kExtension) {
            ReadExtension();
        } else if (block == kPicture) {
            ReadPicture();
        } else {
            break;
        }
    }
    return std::move(blocks_);
}

}  // namespace

GifBlocks ReadGifBlocks(Bytes bytes) { return BlockReader(bytes).Read(); }

}  // namespace vxgui::codecs
