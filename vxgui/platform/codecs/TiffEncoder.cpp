#include "vxgui/platform/codecs/TiffEncoder.h"

#include <tiffio.h>

#include <algorithm>
#include <cstring>

namespace vxgui::codecs {

/// Bytes with a position, as the library writes to them.
struct TiffWriter::File {
    Written bytes;
    uint64_t position = 0;
    TIFF* tiff = nullptr;

    static File& Of(thandle_t handle) { return *static_cast<File*>(handle); }
    static tmsize_t Read(thandle_t handle, void* to, tmsize_t size);
    static tmsize_t Write(thandle_t handle, void* from, tmsize_t size);
    static toff_t Seek(thandle_t handle, toff_t move, int origin);
    static int Close(thandle_t) { return 0; }
    static toff_t Size(thandle_t handle) { return Of(handle).bytes.size(); }
};

tmsize_t TiffWriter::File::Read(thandle_t handle, void* to, tmsize_t size) {
    File& file = Of(handle);
    const uint64_t left = file.bytes.size() - std::min<uint64_t>(file.bytes.size(), file.position);
    const auto count = static_cast<size_t>(std::min<uint64_t>(static_cast<uint64_t>(size), left));
    if (count) std::memcpy(to, file.bytes.data() + file.position, count);
    file.position += count;
    return static_cast<tmsize_t>(count);
}

tmsize_t TiffWriter::File::Write(thandle_t handle, void* from, tmsize_t size) {
    File& file = Of(handle);
    const uint64_t end = file.position + static_cast<uint64_t>(size);
    if (end > file.bytes.size()) file.bytes.resize(end);
    std::memcpy(file.bytes.data() + file.position, from, static_cast<size_t>(size));
    file.position = end;
    return size;
}

toff_t TiffWriter::File::Seek(thandle_t handle, toff_t move, int origin) {
    File& file = Of(handle);
    const uint64_t base = origin == SEEK_SET   ? 0
                          : origin == SEEK_CUR ? file.position
                                               : file.bytes.size();
    return file.position = base + move;
}

namespace {

int OnMessage(TIFF*, void*, const char*, const char*, va_list) { return 1; }

uint16_t CompressionOf(TiffCompression compression) {
    constexpr uint16_t kCodes[] = {COMPRESSION_NONE, COMPRESSION_LZW, COMPRESSION_CCITTRLE,
                                   COMPRESSION_CCITTFAX3, COMPRESSION_CCITTFAX4};
    return kCodes[static_cast<size_t>(compression)];
}

bool IsFax(TiffCompression compression) {
    return compression != TiffCompression::None && compression != TiffCompression::Lzw;
}

uint16_t BitsOf(const PictureToWrite& page) {
    return static_cast<uint16_t>(page.IsIndexed() ? page.indexBits : 8);
}
uint16_t SamplesOf(const PictureToWrite& page) {
    return static_cast<uint16_t>(page.IsIndexed() ? 1 : page.HasAlpha() ? 4 : 3);
}

// A page of black and white is one of light or of ink; any other palette goes along.
bool IsBlackAndWhite(const PictureToWrite& page) {
    return page.indexBits == 1 && page.palette.size() == 2 &&
           ((page.palette[0] ^ page.palette[1]) & 0xFFFFFF) == 0xFFFFFF &&
           ((page.palette[0] & 0xFFFFFF) == 0 || (page.palette[1] & 0xFFFFFF) == 0);
}

void SetPhotometry(TIFF* tiff, const PictureToWrite& page) {
    if (!page.IsIndexed()) {
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    } else if (IsBlackAndWhite(page)) {
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC,
                     page.palette[0] & 0xFFFFFF ? PHOTOMETRIC_MINISWHITE : PHOTOMETRIC_MINISBLACK);
    } else {
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_PALETTE);
        uint16_t map[3][256] = {};
        for (size_t i = 0; i < std::min<size_t>(page.palette.size(), 256); ++i) {
            for (size_t channel = 0; channel < 3; ++channel) {
                const uint32_t value = page.palette[i] >> (16 - 8 * channel) & 255;
                map[channel][i] = static_cast<uint16_t>(value * 257);
            }
        }
        TIFFSetField(tiff, TIFFTAG_COLORMAP, map[0], map[1], map[2]);
    }
    if (page.HasAlpha()) {
        const uint16_t straight = EXTRASAMPLE_UNASSALPHA;
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &straight);
    }
}

void SetFields(TIFF* tiff, const PictureToWrite& page, TiffCompression compression) {
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<uint32_t>(page.width));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<uint32_t>(page.height));
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, BitsOf(page));
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, SamplesOf(page));
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, CompressionOf(compression));
    TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    TIFFSetField(tiff, TIFFTAG_XRESOLUTION, page.dpiX);
    TIFFSetField(tiff, TIFFTAG_YRESOLUTION, page.dpiY);
    SetPhotometry(tiff, page);
    const bool lzwOfColors = compression == TiffCompression::Lzw && !page.IsIndexed();
    if (lzwOfColors) TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, TIFFDefaultStripSize(tiff, 0));
}

// Texts that a page of the library's own making can hold.
void SetTexts(TIFF* tiff, const ImageProperties& properties) {
    constexpr uint32_t kTexts[] = {kImageDescription, 0x010F,  kEquipModel, kSoftwareUsed,
                                   kDateTime,         kArtist, kCopyright};
    for (const ImageProperty& each : properties) {
        const bool ended = !each.value.empty() && each.value.back() == 0;
        if (ended && each.type == kPropertyAscii && std::ranges::count(kTexts, each.id)) {
            TIFFSetField(tiff, each.id, reinterpret_cast<const char*>(each.value.data()));
        }
    }
}

class PageRows {
public:
    explicit PageRows(const PictureToWrite& page)
        : page_(page), colors_(page.Width()), indexes_(page.Width()) {}

    void Read(int32_t y, std::vector<uint8_t>& to) {
        if (page_.IsIndexed()) {
            page_.indexes(y, indexes_.data());
            return Pack(to);
        }
        page_.colors(y, colors_.data());
        uint8_t* at = to.data();
        for (const uint32_t pixel : colors_) {
            for (const int shift : {16, 8, 0}) *at++ = static_cast<uint8_t>(pixel >> shift);
            if (page_.HasAlpha()) *at++ = static_cast<uint8_t>(pixel >> 24);
        }
    }

private:
    void Pack(std::vector<uint8_t>& to) const {
        const auto bits = static_cast<size_t>(page_.indexBits), perByte = 8 / bits;
        std::ranges::fill(to, 0);
        for (size_t x = 0; x < indexes_.size(); ++x) {
            to[x / perByte] |= static_cast<uint8_t>(indexes_[x] << (8 - bits * (x % perByte + 1)));
        }
    }

    const PictureToWrite& page_;
    std::vector<uint32_t> colors_;
    std::vector<uint8_t> indexes_;
};

}  // namespace

TiffWriter::TiffWriter() : file_(std::make_unique<File>()) {
    TIFFOpenOptions* options = TIFFOpenOptionsAlloc();
    if (!options) return;
    TIFFOpenOptionsSetErrorHandlerExtR(options, OnMessage, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options, OnMessage, nullptr);
    file_->tiff = TIFFClientOpenExt("", "wm", file_.get(), File::Read, File::Write, File::Seek,
                                    File::Close, File::Size, nullptr, nullptr, options);
    TIFFOpenOptionsFree(options);
}

TiffWriter::~TiffWriter() {
    if (file_->tiff) TIFFClose(file_->tiff);
}

bool TiffWriter::Add(const PictureToWrite& page, TiffCompression compression) {
    TIFF* tiff = file_->tiff;
    if (!tiff || (IsFax(compression) && (!page.IsIndexed() || page.indexBits != 1))) return false;
    SetFields(tiff, page, compression);
    SetTexts(tiff, page.properties);
    PageRows rows(page);
    std::vector<uint8_t> row(static_cast<size_t>(TIFFScanlineSize(tiff)));
    for (int32_t y = 0; y < page.height; ++y) {
        rows.Read(y, row);
        if (TIFFWriteScanline(tiff, row.data(), static_cast<uint32_t>(y), 0) < 0) return false;
    }
    return TIFFWriteDirectory(tiff) == 1 && TIFFFlush(tiff) == 1;
}

const Written& TiffWriter::Bytes() const { return file_->bytes; }

}  // namespace vxgui::codecs
