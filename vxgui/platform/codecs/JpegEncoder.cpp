#include "vxgui/platform/codecs/JpegEncoder.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

#include <algorithm>
#include <cmath>

#include "vxgui/platform/codecs/ExifWriter.h"

namespace vxgui::codecs {
namespace {

struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf jump;
};

void Leave(j_common_ptr info) { std::longjmp(reinterpret_cast<ErrorManager*>(info->err)->jump, 1); }
void OnMessage(j_common_ptr, int) {}

bool IsGrayScale(const PictureToWrite& picture) {
    return picture.IsIndexed() && std::ranges::all_of(picture.palette, [](uint32_t color) {
               return (color & 255) == (color >> 8 & 255) && (color & 255) == (color >> 16 & 255);
           });
}

void OverBlack(std::vector<uint32_t>& row) {
    for (uint32_t& pixel : row) {
        const uint32_t alpha = pixel >> 24;
        if (alpha == 255) continue;
        uint32_t result = 0;
        for (int shift = 0; shift < 24; shift += 8) {
            result |= ((pixel >> shift & 255) * alpha + 127) / 255 << shift;
        }
        pixel = result;
    }
}

class JpegWriter {
public:
    JpegWriter(const PictureToWrite& picture, int quality)
        : picture_(picture),
          quality_(quality),
          gray_(IsGrayScale(picture)),
          exif_(WriteExif(picture.properties)),
          colorRow_(picture.Width()),
          grayRow_(picture.Width()) {
        info_.err = jpeg_std_error(&errors_.base);
        errors_.base.error_exit = Leave;
        errors_.base.emit_message = OnMessage;
    }
    ~JpegWriter() {
        jpeg_destroy_compress(&info_);
        std::free(memory_);
    }

    Written Write();

private:
    void Start();
    void PutExif();
    void PutRow(int32_t y);

    const PictureToWrite& picture_;
    const int quality_;
    const bool gray_;
    const std::vector<uint8_t> exif_;
    std::vector<uint32_t> colorRow_;
    std::vector<uint8_t> grayRow_;
    ErrorManager errors_{};
    jpeg_compress_struct info_{};
    unsigned char* memory_ = nullptr;
    unsigned long size_ = 0;
};

void JpegWriter::Start() {
    info_.image_width = static_cast<JDIMENSION>(picture_.width);
    info_.image_height = static_cast<JDIMENSION>(picture_.height);
    info_.input_components = gray_ ? 1 : 4;
    info_.in_color_space = gray_ ? JCS_GRAYSCALE : JCS_EXT_BGRX;
    jpeg_set_defaults(&info_);
    jpeg_set_quality(&info_, quality_, TRUE);
    info_.density_unit = 1;  // an inch
    info_.X_density = static_cast<UINT16>(std::clamp(std::lround(picture_.dpiX), 1l, 65535l));
    info_.Y_density = static_cast<UINT16>(std::clamp(std::lround(picture_.dpiY), 1l, 65535l));
    jpeg_start_compress(&info_, TRUE);
    PutExif();
}

void JpegWriter::PutExif() {
    constexpr size_t kMost = 65533;
    if (exif_.empty() || exif_.size() > kMost) return;
    jpeg_write_marker(&info_, JPEG_APP0 + 1, exif_.data(), static_cast<unsigned>(exif_.size()));
}

void JpegWriter::PutRow(int32_t y) {
    picture_.colors(y, colorRow_.data());
    OverBlack(colorRow_);
    auto* row = reinterpret_cast<uint8_t*>(colorRow_.data());
    if (gray_) {
        std::ranges::transform(colorRow_, grayRow_.begin(),
                               [](uint32_t pixel) { return static_cast<uint8_t>(pixel); });
        row = grayRow_.data();
    }
    jpeg_write_scanlines(&info_, &row, 1);
}

Written JpegWriter::Write() {
    if (setjmp(errors_.jump)) return {};
    jpeg_create_compress(&info_);
    jpeg_mem_dest(&info_, &memory_, &size_);
    Start();
    for (int32_t y = 0; y < picture_.height; ++y) PutRow(y);
    jpeg_finish_compress(&info_);
    return Written(memory_, memory_ + size_);
}

}  // namespace

Written EncodeJpeg(const PictureToWrite& picture, int quality) {
    return JpegWriter(picture, quality).Write();
}

}  // namespace vxgui::codecs
