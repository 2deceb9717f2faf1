#include "vxgui/platform/codecs/TiffDecoder.h"

#include <tiffio.h>

#include <algorithm>
#include <bit>
#include <cstring>

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
    explicit TiffDecoder(Bytes bytes) : ImageDecoder(ImageFormat::Tiff), file_{bytes} {}

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;

private:
    void TakeAlphaAsItIs();

    MemoryFile file_;
    TiffHandle tiff_;
    bool multiplied_ = false;
};

bool TiffDecoder::ReadHeader() {
    tiff_ = OpenFile(&file_);
    uint32_t width = 0, height = 0;
    if (!tiff_ || file_.endsEarly || !TIFFGetField(tiff_.get(), TIFFTAG_IMAGEWIDTH, &width) ||
        !TIFFGetField(tiff_.get(), TIFFTAG_IMAGELENGTH, &height)) {
        return false;
    }
    header_.width = static_cast<int32_t>(std::min(width, 0x7FFFFFFFu));
    header_.height = static_cast<int32_t>(std::min(height, 0x7FFFFFFFu));
    TakeAlphaAsItIs();
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

std::unique_ptr<ImageDecoder> OpenTiff(Bytes bytes) {
    return OpenWithin(std::make_unique<TiffDecoder>(bytes));
}

}  // namespace vxgui::codecs
