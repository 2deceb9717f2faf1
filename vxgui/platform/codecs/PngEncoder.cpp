#include "vxgui/platform/codecs/PngEncoder.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/codecs/PngChunks.h"

namespace vxgui::codecs {
namespace {

void OnError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
void OnWarning(png_structp, png_const_charp) {}
void Flush(png_structp) {}

class PngWriter {
public:
    explicit PngWriter(const PictureToWrite& picture) : picture_(picture) {
        png_ = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning);
        if (png_) info_ = png_create_info_struct(png_);
    }
    ~PngWriter() { png_destroy_write_struct(&png_, &info_); }

    Written Write();

private:
    static void Put(png_structp png, png_bytep bytes, size_t size) {
        auto* self = static_cast<PngWriter*>(png_get_io_ptr(png));
        self->bytes_.insert(self->bytes_.end(), bytes, bytes + size);
    }
    int ColorType() const;
    void PutHeader();
    void PutPalette();
    void PutResolution();
    void PutProperty(const ImageProperty& property);
    void PutRows();

    const PictureToWrite& picture_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
    Written bytes_;
    std::vector<uint8_t> indexRow_;
    std::vector<uint32_t> colorRow_;
};

int PngWriter::ColorType() const {
    return picture_.IsIndexed()  ? PNG_COLOR_TYPE_PALETTE
           : picture_.HasAlpha() ? PNG_COLOR_TYPE_RGB_ALPHA
                                 : PNG_COLOR_TYPE_RGB;
}

void PngWriter::PutHeader() {
    png_set_IHDR(png_, info_, static_cast<png_uint_32>(picture_.width),
                 static_cast<png_uint_32>(picture_.height),
                 picture_.IsIndexed() ? picture_.indexBits : 8, ColorType(), PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
}

// Transparency ends with the last colour that isn't opaque.
void PngWriter::PutPalette() {
    png_color colors[256]{};
    png_byte alphas[256]{};
    const size_t count = std::min(picture_.palette.size(), size_t{1} << picture_.indexBits);
    int transparent = 0;
    for (size_t i = 0; i < count; ++i) {
        const uint32_t color = picture_.palette[i];
        colors[i] = {static_cast<png_byte>(color >> 16), static_cast<png_byte>(color >> 8),
                     static_cast<png_byte>(color)};
        alphas[i] = static_cast<png_byte>(color >> 24);
        if (alphas[i] != 255) transparent = static_cast<int>(i) + 1;
    }
    png_set_PLTE(png_, info_, colors, static_cast<int>(count));
    if (transparent) png_set_tRNS(png_, info_, alphas, transparent, nullptr);
}

void PngWriter::PutResolution() {
    constexpr double kMetresInAnInch = 0.0254;
    png_set_pHYs(png_, info_,
                 static_cast<png_uint_32>(std::lround(picture_.dpiX / kMetresInAnInch)),
                 static_cast<png_uint_32>(std::lround(picture_.dpiY / kMetresInAnInch)),
                 PNG_RESOLUTION_METER);
}

void PngWriter::PutProperty(const ImageProperty& property) {
    if (property.id == kGamma && property.value.size() >= 8) {
        const auto numerator = LoadLittle<uint32_t>(property.value.data());
        const auto denominator = LoadLittle<uint32_t>(property.value.data() + 4);
        if (numerator) png_set_gAMA(png_, info_, static_cast<double>(denominator) / numerator);
        return;
    }
    const char* keyword = KeywordOfProperty(property.id);
    if (!*keyword || property.type != kPropertyAscii || property.value.empty()) return;
    png_text text{};
    text.compression = PNG_TEXT_COMPRESSION_NONE;
    text.key = const_cast<char*>(keyword);
    text.text = reinterpret_cast<char*>(const_cast<uint8_t*>(property.value.data()));
    text.text_length = strnlen(text.text, property.value.size());
    if (text.text_length < property.value.size()) png_set_text(png_, info_, &text, 1);
}

void PngWriter::PutRows() {
    if (!picture_.IsIndexed() && !picture_.HasAlpha()) png_set_filler(png_, 0, PNG_FILLER_AFTER);
    png_set_bgr(png_);
    png_set_packing(png_);
    for (int32_t y = 0; y < picture_.height; ++y) {
        if (picture_.IsIndexed()) {
            picture_.indexes(y, indexRow_.data());
            png_write_row(png_, indexRow_.data());
        } else {
            picture_.colors(y, colorRow_.data());
            png_write_row(png_, reinterpret_cast<png_const_bytep>(colorRow_.data()));
        }
    }
}

Written PngWriter::Write() {
    if (!info_) return {};
    indexRow_.resize(picture_.Width());
    colorRow_.resize(picture_.Width());
    // The library reports an error by a jump back to here.
    if (setjmp(png_jmpbuf(png_))) return {};
    png_set_write_fn(png_, this, Put, Flush);
    PutHeader();
    if (picture_.IsIndexed()) PutPalette();
    PutResolution();
    for (const ImageProperty& property : picture_.properties) PutProperty(property);
    png_write_info(png_, info_);
    PutRows();
    png_write_end(png_, info_);
    return std::move(bytes_);
}

}  // namespace

Written EncodePng(const PictureToWrite& picture) { return PngWriter(picture).Write(); }

}  // namespace vxgui::codecs
