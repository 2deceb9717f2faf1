#include "tools/vxgui/PictureDepth.h"

namespace vxgui::tool {
namespace {

/// The numbers of a header; one that isn't there whole is 0.
class Numbers {
public:
    explicit Numbers(const ByteArray& bytes, bool highestFirst = false)
        : bytes_(bytes), highestFirst_(highestFirst) {}

    uint32_t Get(size_t at, size_t size) const {
        if (at > bytes_.size() || bytes_.size() - at < size) return 0;
        uint32_t value = 0;
        for (size_t i = 0; i < size; ++i)
            value = value << 8 | bytes_[at + (highestFirst_ ? i : size - 1 - i)];
        return value;
    }
    size_t size() const { return bytes_.size(); }

private:
    const ByteArray& bytes_;
    bool highestFirst_;
};

// The oldest header, of 12 bytes, has sides of 16 bits.
uint32_t BmpDepth(const Numbers& file) {
    return file.Get(14, 4) == 12 ? file.Get(24, 2) : file.Get(28, 2);
}

// Depth of a channel, and the colour type that says how many there are.
uint32_t PngDepth(const Numbers& file) {
    constexpr uint32_t kChannels[] = {1, 0, 3, 1, 2, 0, 4, 0};
    return file.Get(24, 1) * kChannels[file.Get(25, 1) & 7];
}

bool IsFrameMarker(uint32_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Segments follow each other until the one that begins a frame.
uint32_t JpegDepth(const ByteArray& bytes) {
    const Numbers file(bytes, true);
    for (size_t at = 2; at + 4 <= file.size() && file.Get(at, 1) == 0xFF;) {
        const uint32_t marker = file.Get(at + 1, 1);
        if (IsFrameMarker(marker)) return file.Get(at + 4, 1) * file.Get(at + 9, 1);
        at += marker == 0xFF ? 1 : 2 + file.Get(at + 2, 2);
    }
    return 0;
}

// A directory of entries of twelve bytes: tag, type, count, and the value or where it stands.
uint32_t TiffDepth(const ByteArray& bytes) {
    constexpr uint32_t kBitsPerSample = 258, kSamplesPerPixel = 277;
    const Numbers file(bytes, bytes.size() > 0 && bytes[0] == 'M');
    const size_t directory = file.Get(4, 4);
    uint32_t bits = 1, samples = 1;
    for (uint32_t i = 0; i < file.Get(directory, 2); ++i) {
        const size_t entry = directory + 2 + size_t{12} * i;
        const uint32_t tag = file.Get(entry, 2);
        const bool inside = file.Get(entry + 4, 4) <= 2;
        if (tag == kSamplesPerPixel) samples = file.Get(entry + 8, 2);
        if (tag == kBitsPerSample) bits = file.Get(inside ? entry + 8 : file.Get(entry + 8, 4), 2);
    }
    return bits * samples;
}

uint32_t Depth(const ByteArray& bytes, PictureKind kind) {
    const Numbers file(bytes);
    switch (kind) {
        case PictureKind::Bmp:
            return BmpDepth(file);
        case PictureKind::Png:
            return PngDepth(file);
        case PictureKind::Jpeg:
            return JpegDepth(bytes);
        case PictureKind::Gif:
            return (file.Get(10, 1) & 7) + 1;
        case PictureKind::Tiff:
            return TiffDepth(bytes);
        case PictureKind::Tga:
            return file.Get(16, 1);
        default:
            return 0;
    }
}

}  // namespace

int32_t DepthOf(const ByteArray& bytes, PictureKind kind) {
    return static_cast<int32_t>(Depth(bytes, kind));
}

}  // namespace vxgui::tool
