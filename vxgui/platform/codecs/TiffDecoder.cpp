#include "vxgui/platform/codecs/TiffDecoder.h"

#include <tiffio.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <unordered_map>

namespace vxgui::codecs {
namespace {

// The file as the library reads it: bytes with a position, which can't be written.
struct MemoryFile {
    Bytes bytes;
    uint64_t position = 0;
    bool endsEarly = false;  ///< a value of the directory lies past the end
};

tmsize_t Read(thandle_t handle, void* to, tmsize_t size) {
    auto* file = static_cast<MemoryFile*>(handle);
    if (file->position >= file->bytes.size() || size <= 0) return 0;
    const size_t count = std::min(static_cast<size_t>(size),
                                  file->bytes.size() - static_cast<size_t>(file->position));
    std::memcpy(to, file->bytes.data() + file->position, count);
    file->position += count;
    return static_cast<tmsize_t>(count);
}
tmsize_t Write(thandle_t, void*, tmsize_t) { return 0; }
toff_t Seek(thandle_t handle, toff_t move, int origin) {
    auto* file = static_cast<MemoryFile*>(handle);
    const uint64_t base = origin == SEEK_SET   ? 0
                          : origin == SEEK_CUR ? file->position
                                               : file->bytes.size();
    return file->position = base + move;
}
int Close(thandle_t) { return 0; }
toff_t Size(thandle_t handle) { return static_cast<MemoryFile*>(handle)->bytes.size(); }

int OnError(TIFF*, void*, const char*, const char*, va_list) { return 1; }

// The library goes on without a tag that it can't read, were it the palette, and warns. Its other
// warnings are about oddities that many programs write.
int OnWarning(TIFF*, void* user, const char*, const char* format, va_list) {
    if (std::strstr(format, "IO error")) static_cast<MemoryFile*>(user)->endsEarly = true;
    return 1;
}

struct CloseTiff {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffHandle = std::unique_ptr<TIFF, CloseTiff>;

TiffHandle OpenFile(MemoryFile* file) {
    struct FreeOptions {
        void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
    };
    const std::unique_ptr<TIFFOpenOptions, FreeOptions> options(TIFFOpenOptionsAlloc());
    if (!options) return nullptr;
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(),
                                        static_cast<tmsize_t>(ApartmentDecodeLimits().bytes));
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), OnError, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), OnWarning, file);
    return TiffHandle(TIFFClientOpenExt("", "rm", file, Read, Write, Seek, Close, Size, nullptr,
                                        nullptr, options.get()));
}

// The colour that, multiplied by the alpha, gives the stored one.
uint32_t Unmultiplied(uint32_t pixel) {
    const uint32_t alpha = pixel >> 24;
    if (alpha == 0 || alpha == 255) return pixel;
    uint32_t result = alpha << 24;
    for (int shift = 0; shift < 24; shift += 8) {
        const uint32_t channel = pixel >> shift & 255;
        result |= std::min(255u, (channel * 255 + alpha / 2) / alpha) << shift;
    }
    return result;
}

// The library's pixels have red in the lowest byte.
uint32_t BgraFromRgba(uint32_t pixel) {
    return (pixel & 0xFF00FF00) | (pixel & 0xFF) << 16 | (pixel >> 16 & 0xFF);
}

class TiffDecoder final : public ImageDecoder {
public:
    TiffDecoder(Bytes bytes, int page)
        : ImageDecoder(ImageFormat::Tiff), file_{bytes}, page_(page) {}

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;
    bool DecodeIndexes(const PixelRows& rows) override;

private:
    uint16_t Field(uint32_t tag) const;
    void SetForm();
    void SetResolution();
    std::vector<uint32_t> ColorMap(size_t count) const;
    void TakeAlphaAsItIs();

    MemoryFile file_;
    const int page_;
    TiffHandle tiff_;
    bool multiplied_ = false;
};

bool TiffDecoder::ReadHeader() {
    tiff_ = OpenFile(&file_);
    uint32_t width = 0, height = 0;
    if (tiff_ && page_ && !TIFFSetDirectory(tiff_.get(), static_cast<tdir_t>(page_))) return false;
    if (!tiff_ || file_.endsEarly || !TIFFGetField(tiff_.get(), TIFFTAG_IMAGEWIDTH, &width) ||
        !TIFFGetField(tiff_.get(), TIFFTAG_IMAGELENGTH, &height)) {
        return false;
    }
    header_.width = static_cast<int32_t>(std::min(width, 0x7FFFFFFFu));
    header_.height = static_cast<int32_t>(std::min(height, 0x7FFFFFFFu));
    TakeAlphaAsItIs();
    SetForm();
    SetResolution();
    return true;
}

uint16_t TiffDecoder::Field(uint32_t tag) const {
    uint16_t value = 0;
    TIFFGetFieldDefaulted(tiff_.get(), tag, &value);
    return value;
}

void TiffDecoder::SetResolution() {
    constexpr double kCentimetresInAnInch = 2.54;
    float x = 0, y = 0;
    TIFFGetField(tiff_.get(), TIFFTAG_XRESOLUTION, &x);
    TIFFGetField(tiff_.get(), TIFFTAG_YRESOLUTION, &y);
    const uint16_t unit = Field(TIFFTAG_RESOLUTIONUNIT);
    if (unit == RESUNIT_NONE || !(x > 0) || !(y > 0)) return;
    const double scale = unit == RESUNIT_CENTIMETER ? kCentimetresInAnInch : 1;
    header_.dpiX = x * scale;
    header_.dpiY = y * scale;
}

// What no form says keeps 24 bits, or 32 with an alpha.
void TiffDecoder::SetForm() {
    const uint16_t bits = Field(TIFFTAG_BITSPERSAMPLE), kind = Field(TIFFTAG_PHOTOMETRIC);
    const bool grey = kind == PHOTOMETRIC_MINISBLACK || kind == PHOTOMETRIC_MINISWHITE;
    if (grey) header_.space = ColorSpace::Gray;
    if (kind == PHOTOMETRIC_SEPARATED) header_.space = ColorSpace::Cmyk;
    if (!header_.hasAlpha) header_.form = PixelForm::Bgr24;
    if (Field(TIFFTAG_SAMPLESPERPIXEL) != 1 || !(grey || kind == PHOTOMETRIC_PALETTE)) return;
    const int stored = bits == 2 ? 4 : std::min<int>(bits, 8);
    if (stored != 1 && stored != 4 && stored != 8) return;
    if (grey) return header_.SetIndexed(stored, GrayShades(size_t{1} << std::min<int>(bits, 8)));
    std::vector<uint32_t> colors = ColorMap(size_t{1} << std::min<int>(bits, 8));
    if (!colors.empty()) header_.SetIndexed(stored, std::move(colors));
}

// Of 16 bits a channel, unless all are so small that the writer meant 8.
std::vector<uint32_t> TiffDecoder::ColorMap(size_t count) const {
    uint16_t *red = nullptr, *green = nullptr, *blue = nullptr;
    if (!TIFFGetField(tiff_.get(), TIFFTAG_COLORMAP, &red, &green, &blue)) return {};
    const auto small = [&](const uint16_t* channel) {
        return std::all_of(channel, channel + count, [](uint16_t value) { return value < 256; });
    };
    const bool eight = small(red) && small(green) && small(blue);
    const auto scaled = [&](uint16_t value) -> uint32_t { return eight ? value : value >> 8; };
    std::vector<uint32_t> colors(count);
    for (size_t i = 0; i < count; ++i) {
        colors[i] = 0xFF000000 | scaled(red[i]) << 16 | scaled(green[i]) << 8 | scaled(blue[i]);
    }
    return colors;
}

// For a colour that the library has rounded in another way.
uint8_t NearestIndex(const std::vector<uint32_t>& palette, uint32_t color) {
    const auto distance = [&](uint32_t entry) {
        int sum = 0;
        for (int shift = 0; shift < 24; shift += 8) {
            const int apart =
                static_cast<int>(entry >> shift & 255) - static_cast<int>(color >> shift & 255);
            sum += apart * apart;
        }
        return sum;
    };
    const auto best = std::ranges::min_element(palette, {}, distance);
    return static_cast<uint8_t>(best - palette.begin());
}

// The library hands out colours alone, whatever the compression and the tiling; each has the index
// of its first entry.
bool TiffDecoder::DecodeIndexes(const PixelRows& rows) {
    const auto width = static_cast<size_t>(header_.width);
    std::vector<uint32_t> pixels(width * static_cast<size_t>(header_.height));
    if (!Decode({reinterpret_cast<uint8_t*>(pixels.data()), static_cast<ptrdiff_t>(width * 4)})) {
        return false;
    }
    std::unordered_map<uint32_t, uint8_t> indexes;
    for (size_t i = 0; i < header_.palette.size(); ++i) {
        indexes.emplace(header_.palette[i], static_cast<uint8_t>(i));
    }
    const uint32_t* from = pixels.data();
    for (int32_t y = 0; y < header_.height; ++y) {
        std::generate_n(rows.Row(y), width, [&] {
            const auto [found, unknown] = indexes.try_emplace(*from++, uint8_t{0});
            if (unknown) found->second = NearestIndex(header_.palette, found->first);
            return found->second;
        });
    }
    return true;
}

// Notes an alpha, and whether the stored colours are multiplied by it. The library would multiply
// the others, and lose what straight pixels need: told that they are multiplied already, it keeps
// them.
void TiffDecoder::TakeAlphaAsItIs() {
    uint16_t count = 0;
    uint16_t* kinds = nullptr;
    if (!TIFFGetField(tiff_.get(), TIFFTAG_EXTRASAMPLES, &count, &kinds) || count == 0) return;
    header_.hasAlpha = true;
    multiplied_ = kinds[0] == EXTRASAMPLE_ASSOCALPHA;
    if (kinds[0] != EXTRASAMPLE_UNASSALPHA) return;
    std::vector<uint16_t> changed(kinds, kinds + count);
    changed[0] = EXTRASAMPLE_ASSOCALPHA;
    TIFFSetField(tiff_.get(), TIFFTAG_EXTRASAMPLES, count, changed.data());
}

bool TiffDecoder::Decode(const PixelRows& rows) {
    const auto width = static_cast<size_t>(header_.width);
    std::vector<uint32_t> raster(width * static_cast<size_t>(header_.height));
    if (!TIFFReadRGBAImageOriented(tiff_.get(), static_cast<uint32_t>(header_.width),
                                   static_cast<uint32_t>(header_.height), raster.data(),
                                   ORIENTATION_TOPLEFT, 1)) {
        return false;
    }
    const uint32_t* from = raster.data();
    for (int32_t y = 0; y < header_.height; ++y) {
        uint8_t* to = rows.Row(y);
        for (size_t x = 0; x < width; ++x, to += 4) {
            const uint32_t pixel = BgraFromRgba(*from++);
            const uint32_t straight = multiplied_ ? Unmultiplied(pixel) : pixel;
            std::memcpy(to, &straight, 4);
        }
    }
    return true;
}

}  // namespace

bool IsTiff(Bytes bytes) {
    if (bytes.size() < 4) return false;
    const auto starts = [&](const char* mark) { return std::memcmp(bytes.data(), mark, 4) == 0; };
    return starts("II*\0") || starts("MM\0*") || starts("II+\0") || starts("MM\0+");
}

std::unique_ptr<ImageDecoder> OpenTiff(Bytes bytes, int page) {
    return OpenWithin(std::make_unique<TiffDecoder>(bytes, page));
}

int TiffPageCount(Bytes bytes) {
    MemoryFile file{bytes};
    const TiffHandle tiff = OpenFile(&file);
    return tiff ? std::clamp<int>(TIFFNumberOfDirectories(tiff.get()), 1, 65535) : 1;
}

}  // namespace vxgui::codecs
