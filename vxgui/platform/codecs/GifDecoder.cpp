#include "vxgui/platform/codecs/GifDecoder.h"

#include <algorithm>
#include <cstring>

#include "vxgui/platform/codecs/GifBlocks.h"
#include "vxgui/platform/codecs/GifReader.h"

namespace vxgui::codecs {
namespace {

constexpr size_t kMostColors = 256;

class GifDecoder final : public ImageDecoder {
public:
    GifDecoder(Bytes bytes, int frame)
        : ImageDecoder(ImageFormat::Gif), reader_(bytes), skipped_(frame) {}

    bool ReadHeader();
    bool Decode(const PixelRows& rows) override;
    bool DecodeIndexes(const PixelRows& rows) override;

private:
    void SetForm();
    bool Covers() const;
    bool Draw(const PixelRows& rows);
    void Clear(const PixelRows& rows) const;
    std::vector<uint8_t> Keep(const PixelRows& rows) const;
    void Restore(const PixelRows& rows, const std::vector<uint8_t>& kept) const;
    /// The part of the picture that lies on the canvas.
    int32_t VisibleWidth() const { return std::min(frame_.width, header_.width - frame_.left); }
    int32_t VisibleHeight() const { return std::min(frame_.height, header_.height - frame_.top); }

    GifReader reader_;
    GifFrame frame_;
    const int skipped_;
    size_t outside_ = 0;  ///< the index of the canvas around the picture
};

// A canvas of size 0 is as large as its first picture needs.
bool GifDecoder::ReadHeader() {
    if (!reader_.Next(&frame_)) return false;
    header_.width = reader_.Width() ? reader_.Width() : frame_.left + frame_.width;
    header_.height = reader_.Height() ? reader_.Height() : frame_.top + frame_.height;
    SetForm();
    return true;
}

bool GifDecoder::Covers() const {
    return frame_.left == 0 && frame_.top == 0 && frame_.width >= header_.width &&
           frame_.height >= header_.height;
}

// Around the picture the canvas is clear, for which an index must be free.
void GifDecoder::SetForm() {
    const bool transparent = frame_.transparent != NO_TRANSPARENT_COLOR;
    header_.hasAlpha = skipped_ || !Covers() || transparent;
    std::vector<uint32_t> colors = frame_.colors;
    outside_ = transparent ? static_cast<size_t>(frame_.transparent) : colors.size();
    if (skipped_ || (!Covers() && outside_ == kMostColors)) return;
    if (header_.hasAlpha && outside_ >= colors.size()) {
        colors.resize(outside_ + 1, 0xFF000000);
        colors[outside_] = 0;
    }
    header_.SetIndexed(8, std::move(colors));
}

bool GifDecoder::DecodeIndexes(const PixelRows& rows) {
    const auto width = static_cast<size_t>(header_.width);
    for (int32_t y = 0; y < header_.height; ++y) {
        std::memset(rows.Row(y), static_cast<int>(outside_), width);
    }
    return reader_.ReadLines(frame_, [&](int32_t y, Bytes indexes) {
        if (y >= VisibleHeight() || VisibleWidth() <= 0) return;
        std::copy_n(indexes.begin(), VisibleWidth(), rows.Row(frame_.top + y) + frame_.left);
    });
}

// Draws the current picture over what is there, through its transparent colour; on the empty
// canvas that keeps what it is made of.
bool GifDecoder::Draw(const PixelRows& rows) {
    std::vector<uint32_t> colors = frame_.colors;
    colors.resize(kMostColors, 0xFF000000);
    if (frame_.transparent >= 0) colors[static_cast<size_t>(frame_.transparent)] &= 0xFFFFFF;
    return reader_.ReadLines(frame_, [&](int32_t y, Bytes indexes) {
        if (y >= VisibleHeight()) return;
        uint8_t* to = rows.Row(frame_.top + y) + 4 * static_cast<ptrdiff_t>(frame_.left);
        for (int32_t x = 0; x < VisibleWidth(); ++x, to += 4) {
            const uint8_t index = indexes[static_cast<size_t>(x)];
            if (index != frame_.transparent || !skipped_) std::memcpy(to, &colors[index], 4);
        }
    });
}

void GifDecoder::Clear(const PixelRows& rows) const {
    for (int32_t y = 0; y < VisibleHeight() && VisibleWidth() > 0; ++y) {
        std::memset(rows.Row(frame_.top + y) + 4 * static_cast<ptrdiff_t>(frame_.left), 0,
                    static_cast<size_t>(VisibleWidth()) * 4);
    }
}

std::vector<uint8_t> GifDecoder::Keep(const PixelRows& rows) const {
    std::vector<uint8_t> kept;
    for (int32_t y = 0; y < header_.height; ++y) {
        kept.insert(kept.end(), rows.Row(y),
                    rows.Row(y) + 4 * static_cast<ptrdiff_t>(header_.width));
    }
    return kept;
}

void GifDecoder::Restore(const PixelRows& rows, const std::vector<uint8_t>& kept) const {
    const size_t size = static_cast<size_t>(header_.width) * 4;
    for (int32_t y = 0; y < header_.height; ++y) {
        std::memcpy(rows.Row(y), &kept[static_cast<size_t>(y) * size], size);
    }
}

bool GifDecoder::Decode(const PixelRows& rows) {
    for (int32_t y = 0; y < header_.height; ++y) {
        std::memset(rows.Row(y), 0, static_cast<size_t>(header_.width) * 4);
    }
    for (int frame = 0; frame < skipped_; ++frame) {
        const bool previous = frame_.disposal == DISPOSE_PREVIOUS;
        const std::vector<uint8_t> kept = previous ? Keep(rows) : std::vector<uint8_t>();
        if (!Draw(rows)) return false;
        if (previous) Restore(rows, kept);
        if (frame_.disposal == DISPOSE_BACKGROUND) Clear(rows);
        if (!reader_.Next(&frame_)) return false;
    }
    return Draw(rows);
}

}  // namespace

bool IsGif(Bytes bytes) {
    return bytes.size() >= 6 && (std::memcmp(bytes.data(), "GIF87a", 6) == 0 ||
                                 std::memcmp(bytes.data(), "GIF89a", 6) == 0);
}

std::unique_ptr<ImageDecoder> OpenGif(Bytes bytes) { return OpenGifFrame(bytes, 0); }

std::unique_ptr<ImageDecoder> OpenGifFrame(Bytes bytes, int frame) {
    return OpenWithin(std::make_unique<GifDecoder>(bytes, frame));
}

int GifFrameCount(Bytes bytes) {
    return std::clamp(static_cast<int>(ReadGifBlocks(bytes).delays.size()), 1, 65535);
}

}  // namespace vxgui::codecs
