#include "vxgui/platform/codecs/PngDecoder.h"

#include <png.h>

#include <algorithm>
#include <cstring>

namespace vxgui::codecs {
namespace {

void OnError(png_structp png, png_const_charp) { png_longjmp(png, 1); }
void OnWarning(png_structp, png_const_charp) {}

class PngDecoder final : public ImageDecoder {
public:
    explicit PngDecoder(Bytes bytes) : ImageDecoder(ImageFormat::Png), rest_(bytes) {
        png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning);
        if (png_) info_ = png_create_info_struct(png_);
    }
    ~PngDecoder() override { png_destroy_read_struct(&png_, &info_, nullptr); }

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;
    bool DecodeIndexes(const PixelRows& rows) override;

private:
    // The library reports an error by a jump back to here. No object with a destructor may live
    // in `step`, whose frame the jump drops.
    template <class Step>
    bool Guarded(Step step) {
        if (setjmp(png_jmpbuf(png_))) return false;
        step();
        return true;
    }

    void SetForm();
    std::vector<uint32_t> Palette() const;
    void ReadRows(const PixelRows& rows);

    static void Read(png_structp png, png_bytep to, size_t count);
    void AskForBgra();

    Bytes rest_;
    png_structp png_ = nullptr;
    png_infop info_ = nullptr;
};

void PngDecoder::Read(png_structp png, png_bytep to, size_t count) {
    auto* self = static_cast<PngDecoder*>(png_get_io_ptr(png));
    if (count > self->rest_.size()) png_error(png, "the file ends early");
    std::copy_n(self->rest_.begin(), count, to);
    self->rest_ = self->rest_.subspan(count);
}

bool PngDecoder::ReadHeader() {
    if (!info_) return false;
    png_set_read_fn(png_, this, Read);
    const bool read = Guarded([this] {
        const auto side = static_cast<png_uint_32>(std::max(1, ApartmentDecodeLimits().side));
        png_set_user_limits(png_, side, side);
        // Texts and profiles can unpack to far more than the picture, and nobody asks for them.
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_AS_DEFAULT,
                                    reinterpret_cast<png_const_bytep>("pHYs"), 1);
        png_read_info(png_, info_);
    });
    if (!read) return false;
    header_.width = static_cast<int32_t>(png_get_image_width(png_, info_));
    header_.height = static_cast<int32_t>(png_get_image_height(png_, info_));
    header_.hasAlpha = (png_get_color_type(png_, info_) & PNG_COLOR_MASK_ALPHA) != 0 ||
                       png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
    constexpr double kMetresInAnInch = 0.0254;
    header_.dpiX = png_get_x_pixels_per_meter(png_, info_) * kMetresInAnInch;
    header_.dpiY = png_get_y_pixels_per_meter(png_, info_) * kMetresInAnInch;
    SetForm();
    return true;
}

// 2 bits have no form of their own, and 16 become 8; a clear shade of 16 bits is none of 8.
void PngDecoder::SetForm() {
    const int depth = png_get_bit_depth(png_, info_), type = png_get_color_type(png_, info_);
    const bool grey = type == PNG_COLOR_TYPE_GRAY && !(depth == 16 && header_.hasAlpha);
    if (!(type & PNG_COLOR_MASK_COLOR)) header_.space = ColorSpace::Gray;
    if (type == PNG_COLOR_TYPE_PALETTE || grey) {
        header_.SetIndexed(depth == 2 ? 4 : std::min(depth, 8), Palette());
    } else if (!header_.hasAlpha) {
        header_.form = PixelForm::Bgr24;
    }
}

std::vector<uint32_t> PngDecoder::Palette() const {
    png_bytep alphas = nullptr;
    int alphaCount = 0;
    png_color_16p key = nullptr;
    png_get_tRNS(png_, info_, &alphas, &alphaCount, &key);
    if (png_get_color_type(png_, info_) == PNG_COLOR_TYPE_GRAY) {
        std::vector<uint32_t> shades =
            GrayShades(size_t{1} << std::min<int>(png_get_bit_depth(png_, info_), 8));
        if (key && key->gray < shades.size()) shades[key->gray] &= 0xFFFFFF;
        return shades;
    }
    png_colorp colors = nullptr;
    int count = 0;
    png_get_PLTE(png_, info_, &colors, &count);
    std::vector<uint32_t> palette(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        const uint32_t alpha = alphas && i < alphaCount ? alphas[i] : 255;
        palette[static_cast<size_t>(i)] = alpha << 24 | static_cast<uint32_t>(colors[i].red) << 16 |
                                          static_cast<uint32_t>(colors[i].green) << 8 |
                                          colors[i].blue;
    }
    return palette;
}

void PngDecoder::AskForBgra() {
    png_set_expand(png_);  // palettes, depths below 8, and transparency by a key
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_bgr(png_);
    png_set_add_alpha(png_, 255, PNG_FILLER_AFTER);
}

void PngDecoder::ReadRows(const PixelRows& rows) {
    const int passes = png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    for (int pass = 0; pass < passes; ++pass) {
        for (int32_t y = 0; y < header_.height; ++y) png_read_row(png_, rows.Row(y), nullptr);
    }
    png_read_end(png_, nullptr);
}

bool PngDecoder::Decode(const PixelRows& rows) {
    return Guarded([&] {
        AskForBgra();
        ReadRows(rows);
    });
}

bool PngDecoder::DecodeIndexes(const PixelRows& rows) {
    return Guarded([&] {
        png_set_packing(png_);  // a byte a pixel, its value unchanged
        png_set_scale_16(png_);
        ReadRows(rows);
    });
}

}  // namespace

bool IsPng(Bytes bytes) {
    constexpr uint8_t kSignature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
    return bytes.size() >= sizeof kSignature &&
           std::equal(std::begin(kSignature), std::end(kSignature), bytes.begin());
}

std::unique_ptr<ImageDecoder> OpenPng(Bytes bytes) {
    return OpenWithin(std::make_unique<PngDecoder>(bytes));
}

}  // namespace vxgui::codecs
