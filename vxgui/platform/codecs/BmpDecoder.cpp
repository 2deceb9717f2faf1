#include "vxgui/platform/codecs/BmpDecoder.h"

#include <bit>
#include <cstring>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/codecs/BmpHeader.h"
#include "vxgui/platform/codecs/BmpRle.h"

namespace vxgui::codecs {
namespace {

// One colour of a pixel with bit fields, brought to 8 bits: more bits are cut, fewer are repeated
// from the top (5 bits: abcdeabc), so that the darkest is 0 and the brightest 255.
class Channel {
public:
    /// False for a mask with a gap.
    bool SetMask(uint32_t mask, uint8_t whenAbsent) {
        table_.fill(whenAbsent);
        if (mask == 0) return true;
        const int low = std::countr_zero(mask);
        const int width = std::popcount(mask);
        if (std::countr_one(mask >> low) != width) return false;
        const int kept = std::min(width, 8);
        mask_ = mask;
        shift_ = low + width - kept;
        for (int value = 0; value < 1 << kept; ++value) {
            table_[static_cast<size_t>(value)] = Widened(value, kept);
        }
        return true;
    }

    uint8_t Of(uint32_t pixel) const { return table_[(pixel & mask_) >> shift_]; }

private:
    static uint8_t Widened(int value, int width) {
        int bits = value << (8 - width);
        for (int have = width; have < 8; have *= 2) bits |= bits >> have;
        return static_cast<uint8_t>(bits);
    }

    uint32_t mask_ = 0;
    int shift_ = 0;
    std::array<uint8_t, 256> table_{};
};

class BmpDecoder final : public ImageDecoder {
public:
    BmpDecoder(Bytes bytes, FourthByte fourth)
        : ImageDecoder(ImageFormat::Bmp), bytes_(bytes), fourth_(fourth) {}

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;
    bool DecodeIndexes(const PixelRows& rows) override;

private:
    bool SetChannels();
    void SetForm();
    bool DecodePlain(const PixelRows& rows) const;
    void DecodeRow(const uint8_t* from, uint8_t* to) const;
    void UnpackIndexes(const uint8_t* from, uint8_t* to) const;
    void DecodeFields(const uint8_t* from, uint8_t* to) const;

    Bytes bytes_;
    FourthByte fourth_;
    BmpHeader bmp_;
    Channel blue_, green_, red_, alpha_;
};

bool BmpDecoder::ReadHeader() {
    const std::optional<BmpHeader> read = ReadBmpHeader(bytes_);
    if (!read) return false;
    bmp_ = *read;
    header_.width = bmp_.width;
    header_.height = bmp_.height;
    header_.dpiX = bmp_.dpiX;
    header_.dpiY = bmp_.dpiY;
    if (!SetChannels()) return false;
    SetForm();
    return true;
}

// What no plain form says keeps 32 bits.
void BmpDecoder::SetForm() {
    if (bmp_.bits <= 8) {
        const size_t count = bmp_.paletteSize ? bmp_.paletteSize : size_t{1} << bmp_.bits;
        return header_.SetIndexed(
            bmp_.bits,
            {bmp_.palette.begin(), bmp_.palette.begin() + static_cast<ptrdiff_t>(count)});
    }
    if (header_.hasAlpha) return;
    const bool five = bmp_.masks.red == 0x7C00 && bmp_.masks.green == 0x3E0;
    const bool six = bmp_.masks.red == 0xF800 && bmp_.masks.green == 0x7E0;
    header_.form = bmp_.bits == 24                                      ? PixelForm::Bgr24
                   : bmp_.bits == 16 && bmp_.masks.blue == 0x1F && five ? PixelForm::Rgb555
                   : bmp_.bits == 16 && bmp_.masks.blue == 0x1F && six  ? PixelForm::Rgb565
                                                                        : PixelForm::Bgrx32;
}

bool BmpDecoder::SetChannels() {
    BmpMasks masks = bmp_.masks;
    const bool undeclared = bmp_.bits == 32 && bmp_.compression == BmpCompression::None;
    if (undeclared && fourth_ == FourthByte::Kept) masks.alpha = 0xFF000000;
    header_.hasAlpha = bmp_.bits > 8 && bmp_.bits != 24 && masks.alpha != 0;
    return (masks.red | masks.green | masks.blue) != 0 && blue_.SetMask(masks.blue, 0) &&
           green_.SetMask(masks.green, 0) && red_.SetMask(masks.red, 0) &&
           alpha_.SetMask(masks.alpha, 255);
}

void BmpDecoder::UnpackIndexes(const uint8_t* from, uint8_t* to) const {
    const int bits = bmp_.bits;
    const int mask = (1 << bits) - 1;
    for (int32_t x = 0; x < bmp_.width; ++x) {
        const int64_t bit = static_cast<int64_t>(x) * bits;
        to[x] = static_cast<uint8_t>(from[bit / 8] >> (8 - bits - bit % 8) & mask);
    }
}

void BmpDecoder::DecodeFields(const uint8_t* from, uint8_t* to) const {
    const ptrdiff_t size = bmp_.bits / 8;
    for (int32_t x = 0; x < bmp_.width; ++x, from += size, to += 4) {
        const uint32_t pixel = size == 2 ? LoadLittle<uint16_t>(from) : LoadLittle<uint32_t>(from);
        to[0] = blue_.Of(pixel);
        to[1] = green_.Of(pixel);
        to[2] = red_.Of(pixel);
        to[3] = alpha_.Of(pixel);
    }
}

void BmpDecoder::DecodeRow(const uint8_t* from, uint8_t* to) const {
    if (bmp_.bits <= 8) return UnpackIndexes(from, to);
    if (bmp_.bits != 24) return DecodeFields(from, to);
    for (int32_t x = 0; x < bmp_.width; ++x, from += 3, to += 4) {
        std::memcpy(to, from, 3);
        to[3] = 255;
    }
}

// The padding of the last row may be missing.
bool BmpDecoder::DecodePlain(const PixelRows& rows) const {
    const size_t rowBits = static_cast<size_t>(bmp_.width) * bmp_.bits;
    const size_t stride = (rowBits + 31) / 32 * 4;
    const size_t needed = stride * static_cast<size_t>(bmp_.height - 1) + (rowBits + 7) / 8;
    if (bytes_.size() - bmp_.pixelOffset < needed) return false;
    const uint8_t* from = bytes_.data() + bmp_.pixelOffset;
    for (int32_t y = 0; y < bmp_.height; ++y, from += stride) {
        DecodeRow(from, rows.Row(bmp_.topDown ? y : bmp_.height - 1 - y));
    }
    return true;
}

bool BmpDecoder::Decode(const PixelRows& rows) {
    return bmp_.bits <= 8 ? DecodeByPalette(rows) : DecodePlain(rows);
}

bool BmpDecoder::DecodeIndexes(const PixelRows& rows) {
    const bool runs =
        bmp_.compression == BmpCompression::Rle8 || bmp_.compression == BmpCompression::Rle4;
    return runs ? DecodeBmpRuns(bmp_, bytes_.subspan(bmp_.pixelOffset), rows) : DecodePlain(rows);
}

}  // namespace

bool IsBmp(Bytes bytes) { return bytes.size() >= 2 && bytes[0] == 'B' && bytes[1] == 'M'; }

std::unique_ptr<ImageDecoder> OpenBmp(Bytes bytes, FourthByte fourth) {
    return OpenWithin(std::make_unique<BmpDecoder>(bytes, fourth));
}

}  // namespace vxgui::codecs
