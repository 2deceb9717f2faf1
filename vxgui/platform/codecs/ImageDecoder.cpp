#include "vxgui/platform/codecs/ImageDecoder.h"

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
};

constexpr Codec kCodecs[] = {
    {IsPng, OpenPng},   {IsJpeg, OpenJpeg},
    {IsGif, OpenGif},   {IsBmp, [](Bytes bytes) { return OpenBmp(bytes); }},
    {IsTiff, OpenTiff}, {IsIcon, OpenIco},
};

}  // namespace

DecodeLimits& ApartmentDecodeLimits() {
    static thread_local DecodeLimits limits;
    return limits;
}

ImageDecoder::~ImageDecoder() = default;

std::unique_ptr<ImageDecoder> OpenImage(Bytes bytes) {
    for (const Codec& codec : kCodecs) {
        if (codec.matches(bytes)) return codec.open(bytes);
    }
    return nullptr;
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
