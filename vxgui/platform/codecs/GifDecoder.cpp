#include "vxgui/platform/codecs/GifDecoder.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace vxgui::codecs {
namespace {

class GifDecoder final : public ImageDecoder {
public:
    explicit GifDecoder(Bytes bytes) : ImageDecoder(ImageFormat::Gif), rest_(bytes) {
        file_ = DGifOpen(this, Read, nullptr);
    }
    ~GifDecoder() override {
        if (file_) DGifCloseFile(file_, nullptr);
    }

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;

private:
    static int Read(GifFileType* file, GifByteType* to, int count);
    bool ReadExtension();
    bool ReadFrameHeader();
    void FillColours();
    bool DecodeLine(const PixelRows& rows, int32_t y);

    const GifImageDesc& Frame() const { return file_->Image; }

    Bytes rest_;
    GifFileType* file_ = nullptr;
    int transparent_ = NO_TRANSPARENT_COLOR;
    std::array<uint32_t, 256> colours_{};
    std::vector<GifByteType> line_;
};

int GifDecoder::Read(GifFileType* file, GifByteType* to, int count) {
    auto* self = static_cast<GifDecoder*>(file->UserData);
    const size_t size = std::min(static_cast<size_t>(count), self->rest_.size());
    std::copy_n(self->rest_.begin(), size, to);
    self->rest_ = self->rest_.subspan(size);
    return static_cast<int>(size);
}

bool GifDecoder::ReadExtension() {
    int code = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(file_, &code, &block) == GIF_ERROR) return false;
    while (block) {
        GraphicsControlBlock control;
        if (code == GRAPHICS_EXT_FUNC_CODE &&
            DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
            transparent_ = control.TransparentColor;
        }
        if (DGifGetExtensionNext(file_, &block) == GIF_ERROR) return false;
    }
    return true;
}

// A canvas of size 0 is as large as its first frame needs.
bool GifDecoder::ReadFrameHeader() {
    if (DGifGetImageDesc(file_) == GIF_ERROR) return false;
    header_.width = file_->SWidth ? file_->SWidth : Frame().Left + Frame().Width;
    header_.height = file_->SHeight ? file_->SHeight : Frame().Top + Frame().Height;
    const bool covered = Frame().Left == 0 && Frame().Top == 0 && Frame().Width >= header_.width &&
                         Frame().Height >= header_.height;
    header_.hasAlpha = !covered || transparent_ != NO_TRANSPARENT_COLOR;
    return ApartmentDecodeLimits().Allow(Frame().Width, Frame().Height);
}

bool GifDecoder::ReadHeader() {
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    while (file_ && DGifGetRecordType(file_, &record) == GIF_OK) {
        if (record == IMAGE_DESC_RECORD_TYPE) return ReadFrameHeader();
        if (record != EXTENSION_RECORD_TYPE || !ReadExtension()) return false;
    }
    return false;
}

// Indexes without a colour are black.
void GifDecoder::FillColours() {
    colours_.fill(0xFF000000);
    const ColorMapObject* map = Frame().ColorMap ? Frame().ColorMap : file_->SColorMap;
    for (int i = 0; map && i < map->ColorCount; ++i) {
        const GifColorType& colour = map->Colors[i];
        colours_[static_cast<size_t>(i)] = 0xFF000000u | static_cast<uint32_t>(colour.Red) << 16 |
                                           static_cast<uint32_t>(colour.Green) << 8 | colour.Blue;
    }
    if (transparent_ != NO_TRANSPARENT_COLOR) {
        colours_[static_cast<size_t>(transparent_)] &= 0xFFFFFF;
    }
}

// The whole line is unpacked, and what lies on the canvas is kept.
bool GifDecoder::DecodeLine(const PixelRows& rows, int32_t y) {
    if (DGifGetLine(file_, line_.data(), Frame().Width) == GIF_ERROR) return false;
    const int32_t row = Frame().Top + y;
    const int32_t count = std::min(Frame().Width, header_.width - Frame().Left);
    if (row >= header_.height || count <= 0) return true;
    uint8_t* to = rows.Row(row) + 4 * static_cast<ptrdiff_t>(Frame().Left);
    for (int32_t x = 0; x < count; ++x, to += 4) {
        std::memcpy(to, &colours_[line_[static_cast<size_t>(x)]], 4);
    }
    return true;
}

bool GifDecoder::Decode(const PixelRows& rows) {
    for (int32_t y = 0; y < header_.height; ++y) {
        std::memset(rows.Row(y), 0, static_cast<size_t>(header_.width) * 4);
    }
    FillColours();
    line_.resize(static_cast<size_t>(Frame().Width));
    struct Pass {
        int32_t first, step;
    };
    static constexpr Pass kWhole[] = {{0, 1}};
    static constexpr Pass kInterlaced[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    for (const Pass& pass :
         Frame().Interlace ? std::span<const Pass>(kInterlaced) : std::span<const Pass>(kWhole)) {
        for (int32_t y = pass.first; y < Frame().Height; y += pass.step) {
            if (!DecodeLine(rows, y)) return false;
        }
    }
    return true;
}

}  // namespace

bool IsGif(Bytes bytes) {
    return bytes.size() >= 6 && (std::memcmp(bytes.data(), "GIF87a", 6) == 0 ||
                                 std::memcmp(bytes.data(), "GIF89a", 6) == 0);
}

std::unique_ptr<ImageDecoder> OpenGif(Bytes bytes) {
    return OpenWithin(std::make_unique<GifDecoder>(bytes));
}

}  // namespace vxgui::codecs
