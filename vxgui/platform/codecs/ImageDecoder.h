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

/// How a file keeps its pixels.
enum class PixelForm { Bgra32, Bgrx32, Bgr24, Rgb565, Rgb555, Indexed };
enum class ColorSpace { Rgb, Gray, Cmyk, Ycck };

struct ImageHeader {
    ImageFormat format = ImageFormat::Bmp;
    int32_t width = 0;
    int32_t height = 0;
    bool hasAlpha = false;  ///< false: every pixel is opaque
    PixelForm form = PixelForm::Bgra32;
    ColorSpace space = ColorSpace::Rgb;
    int indexBits = 0;              ///< of an indexed form: 1, 4 or 8
    std::vector<uint32_t> palette;  ///< straight colours; an index past its end is opaque black
    double dpiX = 0, dpiY = 0;      ///< 0 where the file doesn't say

    void SetIndexed(int bits, std::vector<uint32_t> colors) {
        form = PixelForm::Indexed;
        indexBits = bits;
        palette = std::move(colors);
    }
};

/// `count` shades from black to white.
std::vector<uint32_t> GrayShades(size_t count);

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
    /// The same for an indexed form, in place of `Decode`: a byte a pixel.
    virtual bool DecodeIndexes(const PixelRows& rows);

protected:
    explicit ImageDecoder(ImageFormat format) { header_.format = format; }

    /// `Decode` by way of `DecodeIndexes`.
    bool DecodeByPalette(const PixelRows& rows);

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
/// The same for one frame of several; the first is 0.
std::unique_ptr<ImageDecoder> OpenFrame(Bytes bytes, int frame);
/// Pages of a TIFF, pictures of an animated GIF; 1 for the rest, and at most 65535.
int FrameCount(Bytes bytes);

/// A decoded picture, the top row first, without gaps between the rows.
struct DecodedImage {
    ImageHeader header;
    std::vector<uint32_t> pixels;
};
std::optional<DecodedImage> DecodeImage(Bytes bytes);
std::optional<DecodedImage> DecodeImage(std::unique_ptr<ImageDecoder> decoder);

}  // namespace vxgui::codecs
