#include "vxgui/platform/codecs/ImageProperties.h"

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/codecs/ExifReader.h"
#include "vxgui/platform/codecs/GifBlocks.h"
#include "vxgui/platform/codecs/JpegSegments.h"
#include "vxgui/platform/codecs/PngChunks.h"

namespace vxgui::codecs {
namespace {

template <class Values>
std::vector<uint8_t> Stored(const Values& values) {
    using Value = typename Values::value_type;
    std::vector<uint8_t> bytes(values.size() * sizeof(Value));
    uint8_t* to = bytes.data();
    for (const Value value : values) {
        StoreLittle(to, value);
        to += sizeof(Value);
    }
    return bytes;
}

ImageProperties OfGif(Bytes bytes) {
    const GifBlocks blocks = ReadGifBlocks(bytes);
    ImageProperties properties;
    if (blocks.delays.size() > 1) {
        properties.push_back({kFrameDelay, kPropertyLong, Stored(blocks.delays)});
    }
    if (blocks.loops) properties.push_back(ShortsProperty(kLoopCount, {*blocks.loops}));
    if (!blocks.comment.empty()) properties.push_back(TextProperty(kUserComment, blocks.comment));
    if (!blocks.globalPalette.empty()) {
        properties.push_back(BytesProperty(kGlobalPalette, kPropertyByte, blocks.globalPalette));
        properties.push_back(
            BytesProperty(kIndexBackground, kPropertyByte, {&blocks.background, 1}));
    }
    if (blocks.transparent) {
        properties.push_back(
            BytesProperty(kIndexTransparent, kPropertyByte, {&*blocks.transparent, 1}));
    }
    return properties;
}

}  // namespace

ImageProperty TextProperty(uint32_t id, Bytes text) {
    ImageProperty property{id, kPropertyAscii, {text.begin(), text.end()}};
    property.value.push_back(0);
    return property;
}

ImageProperty LongsProperty(uint32_t id, uint16_t type, std::initializer_list<uint32_t> values) {
    return {id, type, Stored(values)};
}

ImageProperty ShortsProperty(uint32_t id, const std::vector<uint16_t>& values) {
    return {id, kPropertyShort, Stored(values)};
}

ImageProperty BytesProperty(uint32_t id, uint16_t type, Bytes bytes) {
    return {id, type, {bytes.begin(), bytes.end()}};
}

ImageProperties ReadProperties(ImageFormat format, Bytes bytes, int frame) {
    switch (format) {
        case ImageFormat::Gif:
            return OfGif(bytes);
        case ImageFormat::Jpeg:
            return ReadJpegProperties(bytes);
        case ImageFormat::Png:
            return ReadPngProperties(bytes);
        case ImageFormat::Tiff:
            return ReadTiffProperties(bytes, frame);
        default:
            return {};
    }
}

}  // namespace vxgui::codecs
