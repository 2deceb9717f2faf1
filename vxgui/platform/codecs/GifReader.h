#pragma once

#include <gif_lib.h>

#include <functional>

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

/// Where a picture of a GIF lies and how it is shown.
struct GifFrame {
    int32_t left = 0, top = 0, width = 0, height = 0;
    bool interlaced = false;
    int transparent = NO_TRANSPARENT_COLOR;
    int disposal = DISPOSAL_UNSPECIFIED;
    std::vector<uint32_t> colors;  ///< opaque; but for the transparent one
};

/// Reads a GIF picture by picture.
class GifReader {
public:
    explicit GifReader(Bytes bytes) : rest_(bytes) { file_ = DGifOpen(this, Read, nullptr); }
    ~GifReader() {
        if (file_) DGifCloseFile(file_, nullptr);
    }
    GifReader(const GifReader&) = delete;
    GifReader& operator=(const GifReader&) = delete;

    /// Of the canvas; 0 where the file leaves it to the first picture.
    int32_t Width() const { return file_ ? file_->SWidth : 0; }
    int32_t Height() const { return file_ ? file_->SHeight : 0; }

    /// Reads up to the pixels of the next picture. False at the end, for damage and over the
    /// limits.
    bool Next(GifFrame* frame);
    /// Hands out the lines of that picture, in the order of the file, each with its place.
    bool ReadLines(const GifFrame& frame,
                   const std::function<void(int32_t y, Bytes indexes)>& take);

private:
    static int Read(GifFileType* file, GifByteType* to, int count);
    bool ReadExtension(GifFrame* frame);
    bool ReadDescription(GifFrame* frame);

    Bytes rest_;
    GifFileType* file_ = nullptr;
};

}  // namespace vxgui::codecs
