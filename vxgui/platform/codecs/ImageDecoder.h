#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "vxgui/platform/codecs.h"

namespace vxgui::codecs {

using Bytes = std::span<const uint8_t>;

enum class ImageFormat { Bmp, Gif, Icon, Jpeg, Png, Tiff };

struct ImageHeader {
    ImageFormat format;
    int32_t width;
    int32_t height;
    bool hasAlpha;  ///< false: every pixel is opaque
};

/// The caller's memory for a decoded picture: rows of 32-bit pixels, blue lowest, with straight
/// alpha. `first` is the picture's top row.
struct PixelRows {
    uint8_t* first;
    ptrdiff_t stride;  ///< bytes from a row to the one below; negative for bottom-up memory

    uint8_t* Row(int32_t y) const { return first + y * stride; }
};

/// One picture in memory whose header has been read and which is within the apartment's limits.
/// Nothing of its size has been allocated yet.
class ImageDecoder {
public:
    virtual ~ImageDecoder();
    const ImageHeader& Header() const { return header_; }

    /// Decodes the first frame into `rows`, which have the header's size. For one call. False
    /// for a truncated or damaged picture; the rows then hold any part of it.
    virtual bool Decode(const PixelRows& rows) = 0;

protected:
    explicit ImageDecoder(ImageFormat format) : header_{format, 0, 0, false} {}

    ImageHeader header_;
};

/// The decoder, when it can read its header and that is within the limits; else null.
template <class Decoder>
std::unique_ptr<ImageDecoder> OpenWithin(std::unique_ptr<Decoder> decoder) {
    if (!decoder->ReadHeader()) return nullptr;
    const ImageHeader& header = decoder->Header();
    if (!ApartmentDecodeLimits().Allow(header.width, header.height)) return nullptr;
    return decoder;
}

/// Finds the format by the first bytes and reads the header. Null for an unknown format, a
/// damaged header and a picture over the limits. The bytes must outlive the decoder.
std::unique_ptr<ImageDecoder> OpenImage(Bytes bytes);

/// A decoded picture, the top row first, without gaps between the rows.
struct DecodedImage {
    ImageHeader header;
    std::vector<uint32_t> pixels;
};
std::optional<DecodedImage> DecodeImage(Bytes bytes);
std::optional<DecodedImage> DecodeImage(std::unique_ptr<ImageDecoder> decoder);

}  // namespace vxgui::codecs
