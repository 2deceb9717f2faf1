#include "vxgui/platform/codecs/JpegDecoder.h"

#include <csetjmp>
#include <cstdio>

#include <jerror.h>
#include <jpeglib.h>

#include <algorithm>

namespace vxgui::codecs {
namespace {

// A progressive picture needs about ten scans; a file of a megabyte can hold a hundred thousand,
// each of which walks the whole picture.

struct ErrorManager {
    jpeg_error_mgr base;
    std::jmp_buf jump;
};

void Leave(j_common_ptr info) { std::longjmp(reinterpret_cast<ErrorManager*>(info->err)->jump, 1); }

// The library repairs missing and damaged pixel data with grey and warns; for us that is no
// picture. Its other warnings are about oddities that many programs write.
void OnMessage(j_common_ptr info, int level) {
    if (level >= 0) return;
    const int code = info->err->msg_code;
    if (code == JWRN_JPEG_EOF || code == JWRN_HIT_MARKER || code == JWRN_HUFF_BAD_CODE ||
        code == JWRN_MUST_RESYNC) {
        Leave(info);
    }
}

void OnProgress(j_common_ptr info) {
    if (reinterpret_cast<j_decompress_ptr>(info)->input_scan_number > ApartmentLimits().jpegScans)
        Leave(info);
}

// 255 is no ink in files of the CMYK kind that carry the Adobe mark, which are nearly all.
void BgraFromCmyk(uint8_t* row, int32_t width, bool inverted) {
    for (uint8_t* pixel = row; pixel != row + 4 * static_cast<ptrdiff_t>(width); pixel += 4) {
        const uint8_t flip = inverted ? 0 : 255;
        const int c = pixel[0] ^ flip, m = pixel[1] ^ flip, y = pixel[2] ^ flip,
                  k = pixel[3] ^ flip;
        pixel[0] = static_cast<uint8_t>((y * k + 127) / 255);
        pixel[1] = static_cast<uint8_t>((m * k + 127) / 255);
        pixel[2] = static_cast<uint8_t>((c * k + 127) / 255);
        pixel[3] = 255;
    }
}

class JpegDecoder final : public ImageDecoder {
public:
    explicit JpegDecoder(Bytes bytes);
    ~JpegDecoder() override { jpeg_destroy_decompress(&info_); }

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;
    bool DecodeIndexes(const PixelRows& rows) override;

private:
    // The library reports an error by a jump back to here. No object with a destructor may live
    // in `step`, whose frame the jump drops.
    template <class Step>
    bool Guarded(Step step) {
        if (setjmp(errors_.jump)) return false;
        step();
        return true;
    }

    void SetForm();
    bool ReadRows(J_COLOR_SPACE space, const PixelRows& rows);

    bool HasFourInks() const {
        return info_.jpeg_color_space == JCS_CMYK || info_.jpeg_color_space == JCS_YCCK;
    }

    Bytes bytes_;
    ErrorManager errors_{};
    jpeg_progress_mgr progress_{};
    jpeg_decompress_struct info_{};
};

JpegDecoder::JpegDecoder(Bytes bytes) : ImageDecoder(ImageFormat::Jpeg), bytes_(bytes) {
    info_.err = jpeg_std_error(&errors_.base);
    errors_.base.error_exit = Leave;
    errors_.base.emit_message = OnMessage;
    progress_.progress_monitor = OnProgress;
}

bool JpegDecoder::ReadHeader() {
    const bool read = Guarded([this] {
        jpeg_create_decompress(&info_);
        info_.progress = &progress_;
        info_.mem->max_memory_to_use = static_cast<long>(ApartmentDecodeLimits().bytes);
        jpeg_mem_src(&info_, bytes_.data(), bytes_.size());
        jpeg_read_header(&info_, TRUE);
    });
    if (!read) return false;
    header_.width = static_cast<int32_t>(info_.image_width);
    header_.height = static_cast<int32_t>(info_.image_height);
    SetForm();
    return true;
}

void JpegDecoder::SetForm() {
    constexpr double kCentimetresInAnInch = 2.54;
    constexpr int kPerInch = 1, kPerCentimetre = 2;
    const double unit = info_.density_unit == kPerInch         ? 1
                        : info_.density_unit == kPerCentimetre ? kCentimetresInAnInch
                                                               : 0;
    if (info_.saw_JFIF_marker) {
        header_.dpiX = info_.X_density * unit;
        header_.dpiY = info_.Y_density * unit;
    }
    header_.form = PixelForm::Bgr24;
    if (info_.jpeg_color_space == JCS_CMYK) header_.space = ColorSpace::Cmyk;
    if (info_.jpeg_color_space == JCS_YCCK) header_.space = ColorSpace::Ycck;
    if (info_.jpeg_color_space != JCS_GRAYSCALE) return;
    header_.space = ColorSpace::Gray;
    header_.SetIndexed(8, GrayShades(256));
}

bool JpegDecoder::ReadRows(J_COLOR_SPACE space, const PixelRows& rows) {
    return Guarded([&] {
        info_.out_color_space = space;
        jpeg_start_decompress(&info_);
        while (info_.output_scanline < info_.output_height) {
            uint8_t* row = rows.Row(static_cast<int32_t>(info_.output_scanline));
            jpeg_read_scanlines(&info_, &row, 1);
            if (space == JCS_CMYK) BgraFromCmyk(row, header_.width, info_.saw_Adobe_marker);
        }
        jpeg_finish_decompress(&info_);
    });
}

bool JpegDecoder::Decode(const PixelRows& rows) {
    return ReadRows(HasFourInks() ? JCS_CMYK : JCS_EXT_BGRA, rows);
}

bool JpegDecoder::DecodeIndexes(const PixelRows& rows) { return ReadRows(JCS_GRAYSCALE, rows); }

}  // namespace

bool IsJpeg(Bytes bytes) {
    return bytes.size() >= 3 && bytes[0] == 0xFF && bytes[1] == 0xD8 && bytes[2] == 0xFF;
}

std::unique_ptr<ImageDecoder> OpenJpeg(Bytes bytes) {
    return OpenWithin(std::make_unique<JpegDecoder>(bytes));
}

}  // namespace vxgui::codecs
