#include "vxgui/platform/codecs/BmpEncoder.h"

#include <cmath>
#include <cstring>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::codecs {
namespace {

constexpr size_t kFileHeader = 14, kHeader = 40, kMasks = 12;

uint16_t BitsOf(const PictureToWrite& picture) {
    switch (picture.form) {
        case PixelForm::Indexed:
            return static_cast<uint16_t>(picture.indexBits);
        case PixelForm::Rgb555:
        case PixelForm::Rgb565:
            return 16;
        case PixelForm::Bgr24:
            return 24;
        default:
            return 32;
    }
}

class BmpWriter {
public:
    explicit BmpWriter(const PictureToWrite& picture)
        : picture_(picture),
          bits_(BitsOf(picture)),
          stride_((picture.Width() * bits_ + 31) / 32 * 4),
          colors_(picture.IsIndexed() ? size_t{1} << bits_ : 0) {}

    Written Write();

private:
    bool HasMasks() const { return picture_.form == PixelForm::Rgb565; }
    size_t PixelOffset() const {
        return kFileHeader + kHeader + (HasMasks() ? kMasks : 0) + colors_ * 4;
    }
    void Put(size_t at, uint32_t value) { StoreLittle(&bytes_[at], value); }
    void PutHeaders();
    void PutMasks();
    void PutRow(int32_t y, uint8_t* to);
    void PutIndexes(uint8_t* to);
    void PutColors(uint8_t* to) const;

    const PictureToWrite& picture_;
    const uint16_t bits_;
    const size_t stride_, colors_;
    std::vector<uint8_t> indexRow_;
    std::vector<uint32_t> colorRow_;
    Written bytes_;
};

uint32_t PixelsAMetre(double dpi) { return static_cast<uint32_t>(std::lround(dpi / 0.0254)); }

void BmpWriter::PutHeaders() {
    bytes_[0] = 'B';
    bytes_[1] = 'M';
    Put(2, static_cast<uint32_t>(bytes_.size()));
    Put(10, static_cast<uint32_t>(PixelOffset()));
    Put(14, kHeader);
    Put(18, static_cast<uint32_t>(picture_.width));
    Put(22, static_cast<uint32_t>(picture_.height));
    Put(26, 1u | static_cast<uint32_t>(bits_) << 16);
    Put(30, HasMasks() ? 3 : 0);
    Put(34, static_cast<uint32_t>(bytes_.size() - PixelOffset()));
    Put(38, PixelsAMetre(picture_.dpiX));
    Put(42, PixelsAMetre(picture_.dpiY));
    Put(46, static_cast<uint32_t>(colors_));
    for (size_t i = 0; i < std::min(colors_, picture_.palette.size()); ++i) {
        Put(kFileHeader + kHeader + 4 * i, picture_.palette[i] & 0xFFFFFF);
    }
}

void BmpWriter::PutMasks() {
    constexpr uint32_t kChannels[] = {0xF800, 0x7E0, 0x1F};
    for (size_t i = 0; i < 3; ++i) Put(kFileHeader + kHeader + 4 * i, kChannels[i]);
}

void BmpWriter::PutIndexes(uint8_t* to) {
    const size_t perByte = 8 / bits_;
    for (size_t x = 0; x < indexRow_.size(); ++x) {
        const size_t shift = 8 - bits_ * (x % perByte + 1);
        to[x / perByte] |= static_cast<uint8_t>(indexRow_[x] << shift);
    }
}

void BmpWriter::PutColors(uint8_t* to) const {
    const bool six = picture_.form == PixelForm::Rgb565;
    for (const uint32_t pixel : colorRow_) {
        if (bits_ == 16) {
            const uint32_t red = pixel >> 19 & 31,
                           green = pixel >> (six ? 10 : 11) & (six ? 63 : 31);
            StoreLittle(
                to, static_cast<uint16_t>(red << (six ? 11 : 10) | green << 5 | (pixel >> 3 & 31)));
        } else {
            for (int i = 0; i < bits_ / 8; ++i) to[i] = static_cast<uint8_t>(pixel >> 8 * i);
        }
        to += bits_ / 8;
    }
}

void BmpWriter::PutRow(int32_t y, uint8_t* to) {
    if (picture_.IsIndexed()) {
        picture_.indexes(y, indexRow_.data());
        return PutIndexes(to);
    }
    picture_.colors(y, colorRow_.data());
    PutColors(to);
}

Written BmpWriter::Write() {
    indexRow_.resize(picture_.IsIndexed() ? picture_.Width() : 0);
    colorRow_.resize(picture_.IsIndexed() ? 0 : picture_.Width());
    bytes_.resize(PixelOffset() + stride_ * static_cast<size_t>(picture_.height));
    PutHeaders();
    if (HasMasks()) PutMasks();
    uint8_t* to = bytes_.data() + PixelOffset();
    for (int32_t y = picture_.height; y-- > 0; to += stride_) PutRow(y, to);
    return std::move(bytes_);
}

}  // namespace

Written EncodeBmp(const PictureToWrite& picture) { return BmpWriter(picture).Write(); }

}  // namespace vxgui::codecs
