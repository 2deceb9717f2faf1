#include "vxgui/platform/codecs/GifReader.h"

#include <algorithm>

namespace vxgui::codecs {
namespace {

std::vector<uint32_t> ColorsOf(const ColorMapObject* map, int transparent) {
    std::vector<uint32_t> colors;
    for (int i = 0; map && i < map->ColorCount; ++i) {
        const GifColorType& color = map->Colors[i];
        const uint32_t alpha = i == transparent ? 0 : 0xFF000000;
        colors.push_back(alpha | static_cast<uint32_t>(color.Red) << 16 |
                         static_cast<uint32_t>(color.Green) << 8 | color.Blue);
    }
    return colors;
}

}  // namespace

int GifReader::Read(GifFileType* file, GifByteType* to, int count) {
    auto* self = static_cast<GifReader*>(file->UserData);
    const size_t size = std::min(static_cast<size_t>(count), self->rest_.size());
    std::copy_n(self->rest_.begin(), size, to);
    self->rest_ = self->rest_.subspan(size);
    return static_cast<int>(size);
}

bool GifReader::ReadExtension(GifFrame* frame) {
    int code = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(file_, &code, &block) == GIF_ERROR) return false;
    while (block) {
        GraphicsControlBlock control;
        if (code == GRAPHICS_EXT_FUNC_CODE &&
            DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
            frame->transparent = control.TransparentColor;
            frame->disposal = control.DisposalMode;
        }
        if (DGifGetExtensionNext(file_, &block) == GIF_ERROR) return false;
    }
    return true;
}

bool GifReader::ReadDescription(GifFrame* frame) {
    if (DGifGetImageDesc(file_) == GIF_ERROR) return false;
    const GifImageDesc& image = file_->Image;
    frame->left = image.Left;
    frame->top = image.Top;
    frame->width = image.Width;
    frame->height = image.Height;
    frame->interlaced = image.Interlace;
    frame->colors =
        ColorsOf(image.ColorMap ? image.ColorMap : file_->SColorMap, frame->transparent);
    return ApartmentDecodeLimits().Allow(frame->width, frame->height);
}

bool GifReader::Next(GifFrame* frame) {
    *frame = {};
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    while (file_ && DGifGetRecordType(file_, &record) == GIF_OK) {
        if (record == IMAGE_DESC_RECORD_TYPE) return ReadDescription(frame);
        if (record != EXTENSION_RECORD_TYPE || !ReadExtension(frame)) return false;
    }
    return false;
}

bool GifReader::ReadLines(const GifFrame& frame,
                          const std::function<void(int32_t y, Bytes indexes)>& take) {
    struct Pass {
        int32_t first, step;
    };
    static constexpr Pass kWhole[] = {{0, 1}};
    static constexpr Pass kInterlaced[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    std::vector<GifByteType> line(static_cast<size_t>(frame.width));
    for (const Pass& pass :
         frame.interlaced ? std::span<const Pass>(kInterlaced) : std::span<const Pass>(kWhole)) {
        for (int32_t y = pass.first; y < frame.height; y += pass.step) {
            if (DGifGetLine(file_, line.data(), frame.width) == GIF_ERROR) return false;
            take(y, line);
        }
    }
    return true;
}

}  // namespace vxgui::codecs
