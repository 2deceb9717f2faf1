#include "vxgui/platform/codecs/ImageDecoder.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "vxgui/platform/codecs/BmpDecoder.h"
#include "vxgui/platform/codecs/GifDecoder.h"
#include "vxgui/platform/codecs/IcoDecoder.h"
#include "vxgui/platform/codecs/IconFile.h"
#include "vxgui/platform/codecs/JpegDecoder.h"
#include "vxgui/platform/codecs/PngDecoder.h"
#include "vxgui/platform/codecs/TiffDecoder.h"

namespace vxgui::codecs {
namespace {

struct Codec {
    bool (*matches)(Bytes bytes);
    std::unique_ptr<ImageDecoder> (*open)(Bytes bytes);
    std::unique_ptr<ImageDecoder> (*openFrame)(Bytes bytes, int frame) = nullptr;
    int (*frames)(Bytes bytes) = nullptr;
};

constexpr Codec kCodecs[] = {
    {IsPng, OpenPng},
    {IsJpeg, OpenJpeg},
    {IsGif, OpenGif, OpenGifFrame, GifFrameCount},
    {IsBmp, [](Bytes bytes) { return OpenBmp(bytes); }},
    {IsTiff, [](Bytes bytes) { return OpenTiff(bytes); }, OpenTiff, TiffPageCount},
    {IsIcon, OpenIco},
};

const Codec* CodecOf(Bytes bytes) {
    for (const Codec& codec : kCodecs) {
        if (codec.matches(bytes)) return &codec;
    }
    return nullptr;
}

}  // namespace

ImageDecoder::~ImageDecoder() = default;

bool ImageDecoder::DecodeIndexes(const PixelRows&) { return false; }

bool ImageDecoder::DecodeByPalette(const PixelRows& rows) {
    const auto width = static_cast<size_t>(header_.width);
    std::vector<uint8_t> indexes(width * static_cast<size_t>(header_.height));
    if (!DecodeIndexes({indexes.data(), static_cast<ptrdiff_t>(width)})) return false;
    std::array<uint32_t, 256> colors;
    colors.fill(0xFF000000);
    std::ranges::copy(header_.palette, colors.begin());
    const uint8_t* from = indexes.data();
    for (int32_t y = 0; y < header_.height; ++y) {
        uint8_t* to = rows.Row(y);
        for (size_t x = 0; x < width; ++x, to += 4) std::memcpy(to, &colors[*from++], 4);
    }
    return true;
}

std::vector<uint32_t> GrayShades(size_t count) {
    std::vector<uint32_t> shades(count);
    for (size_t i = 0; i < count; ++i) {
        shades[i] = 0xFF000000 | static_cast<uint32_t>(i * 255 / (count - 1)) * 0x010101;
    }
    return shades;
}

std::unique_ptr<ImageDecoder> OpenImage(Bytes bytes) {
    const Codec* codec = CodecOf(bytes);
    return codec ? codec->open(bytes) : nullptr;
}

std::unique_ptr<ImageDecoder> OpenFrame(Bytes bytes, int frame) {
    const Codec* codec = CodecOf(bytes);
    if (!codec || frame < 0) return nullptr;
    if (codec->openFrame) return codec->openFrame(bytes, frame);
    return frame == 0 ? codec->open(bytes) : nullptr;
}

int FrameCount(Bytes bytes) {
    const Codec* codec = CodecOf(bytes);
    return codec && codec->frames ? codec->frames(bytes) : 1;
}

std::optional<DecodedImage> DecodeImage(std::unique_ptr<ImageDecoder> decoder) {
    if (!decoder) return std::nullopt;
    const auto width = static_cast<size_t>(decoder->Header().width);
    const auto height = static_cast<size_t>(decoder->Header().height);
    DecodedImage image{decoder->Header(), std::vector<uint32_t>(width * height)};
    const PixelRows rows{reinterpret_cast<uint8_t*>(image.pixels.data()),
                         static_cast<ptrdiff_t>(width * 4)};
    if (!decoder->Decode(rows)) return std::nullopt;
    return image;
}

std::optional<DecodedImage> DecodeImage(Bytes bytes) { return DecodeImage(OpenImage(bytes)); }

}  // namespace vxgui::codecs
