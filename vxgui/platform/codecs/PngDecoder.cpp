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

private:
    // The library reports an error by a jump back to here. No object with a destructor may live
    // in `step`, whose frame the jump drops.
    template <class Step>
    bool Guarded(Step step) {
        if (setjmp(png_jmpbuf(png_))) return false;
        step();
        return true;
    }

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
        png_read_info(png_, info_);
    });
    if (!read) return false;
    header_.width = static_cast<int32_t>(png_get_image_width(png_, info_));
    header_.height = static_cast<int32_t>(png_get_image_height(png_, info_));
    header_.hasAlpha = (png_get_color_type(png_, info_) & PNG_COLOR_MASK_ALPHA) != 0 ||
                       png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
    return true;
}

void PngDecoder::AskForBgra() {
    png_set_expand(png_);  // palettes, depths below 8, and transparency by a key
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_bgr(png_);
    png_set_add_alpha(png_, 255, PNG_FILLER_AFTER);
}

bool PngDecoder::Decode(const PixelRows& rows) {
    return Guarded([&] {
        AskForBgra();
        const int passes = png_set_interlace_handling(png_);
        png_read_update_info(png_, info_);
        for (int pass = 0; pass < passes; ++pass) {
            for (int32_t y = 0; y < header_.height; ++y) png_read_row(png_, rows.Row(y), nullptr);
        }
        png_read_end(png_, nullptr);
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
