#include "vxgui/platform/gdiplus/codec/ImageSaver.h"

#include <algorithm>

#include "vxgui/platform/codecs/BmpEncoder.h"
#include "vxgui/platform/codecs/GifEncoder.h"
#include "vxgui/platform/codecs/JpegEncoder.h"
#include "vxgui/platform/codecs/PngEncoder.h"
#include "vxgui/platform/gdiplus/bitmap/ConvertFormat.h"
#include "vxgui/platform/gdiplus/bitmap/FixedPalettes.h"
#include "vxgui/platform/gdiplus/bitmap/MedianCut.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/bitmap/PixelRow.h"
#include "vxgui/platform/gdiplus/bitmap/RotateFlip.h"

namespace vxgui::gdiplus {
namespace {

using codecs::PictureToWrite;
using codecs::PixelForm;
using codecs::TiffCompression;

PixelForm FormOf(PixelFormat format) {
    switch (format) {
        case PixelFormat16bppRGB555:
            return PixelForm::Rgb555;
        case PixelFormat16bppRGB565:
            return PixelForm::Rgb565;
        case PixelFormat32bppRGB:
            return PixelForm::Bgrx32;
        default:
            return IsIndexed(format)  ? PixelForm::Indexed
                   : HasAlpha(format) ? PixelForm::Bgra32
                                      : PixelForm::Bgr24;
    }
}

PictureToWrite PictureOf(const Bitmap& bitmap) {
    PictureToWrite picture;
    picture.width = bitmap.Bounds().Width;
    picture.height = bitmap.Bounds().Height;
    picture.form = FormOf(bitmap.Format());
    picture.indexBits = BitsPerPixel(bitmap.Format());
    picture.palette = bitmap.Colors().entries;
    picture.dpiX = bitmap.dpiX;
    picture.dpiY = bitmap.dpiY;
    picture.properties = bitmap.properties;
    picture.colors = [&bitmap](int32_t y, uint32_t* pixels) {
        bitmap.ReadStraight(0, y, {pixels, bitmap.Width()});
    };
    picture.indexes = [&bitmap](int32_t y, uint8_t* indexes) {
        ReadIndexes(BitsPerPixel(bitmap.Format()), bitmap.Row(y), 0, {indexes, bitmap.Width()});
    };
    return picture;
}

bool HasClearPixels(const Bitmap& bitmap) {
    std::vector<ARGB> row(bitmap.Width());
    for (UINT y = 0; y < bitmap.Height(); ++y) {
        bitmap.ReadStraight(0, static_cast<INT>(y), row);
        if (std::ranges::any_of(row, [](ARGB pixel) { return pixel >> 24 < 128; })) return true;
    }
    return false;
}

// A copy with at most 256 colours, of which one is clear where the picture has clear pixels.
Ref<Bitmap> WithPalette(const Bitmap& bitmap, PixelFormat format) {
    const bool clear = HasAlpha(bitmap.Format()) && HasClearPixels(bitmap);
    Palette palette;
    palette.entries = MedianCut(bitmap, (size_t{1} << BitsPerPixel(format)) - (clear ? 1 : 0));
    if (clear) palette.entries.push_back(0);
    palette.flags = PaletteFlagsOf(palette.entries);
    Ref<Bitmap> copy = bitmap.Copy();
    ConvertFormat(*copy, {format, DitherTypeErrorDiffusion, PaletteTypeOptimal, palette, 50});
    return copy;
}

Ref<Bitmap> InBlackAndWhite(const Bitmap& bitmap) {
    Palette palette{0, FixedColors(PaletteTypeFixedBW)};
    palette.flags = PaletteFlagsOf(palette.entries);
    Ref<Bitmap> copy = bitmap.Copy();
    ConvertFormat(
        *copy, {PixelFormat1bppIndexed, DitherTypeErrorDiffusion, PaletteTypeFixedBW, palette, 0});
    return copy;
}

ByteArray EncodeTurned(const Bitmap& bitmap, const SaveOptions& options) {
    constexpr RotateFlipType kTurns[] = {Rotate90FlipNone, Rotate180FlipNone, Rotate270FlipNone,
                                         RotateNoneFlipX, Rotate180FlipX};
    const auto turn = static_cast<size_t>(*options.transform - EncoderValueTransformRotate90);
    if (turn >= std::size(kTurns)) return {};
    const Ref<Bitmap> copy = bitmap.Copy();
    RotateFlip(*copy, kTurns[turn]);
    return codecs::EncodeJpeg(PictureOf(*copy), options.quality);
}

ByteArray EncodeTiff(const Bitmap& bitmap, const SaveOptions& options) {
    codecs::TiffWriter writer;
    return AddPage(writer, bitmap, options) ? writer.Bytes() : ByteArray();
}

std::optional<TiffCompression> CompressionOf(const SaveOptions& options) {
    switch (options.compression.value_or(EncoderValueCompressionLZW)) {
        case EncoderValueCompressionLZW:
            return TiffCompression::Lzw;
        case EncoderValueCompressionCCITT3:
            return TiffCompression::Ccitt3;
        case EncoderValueCompressionCCITT4:
            return TiffCompression::Ccitt4;
        case EncoderValueCompressionRle:
            return TiffCompression::Rle;
        case EncoderValueCompressionNone:
            return TiffCompression::None;
        default:
            return std::nullopt;
    }
}

// The picture in the depth of a page; none for a depth that there isn't.
Ref<Bitmap> InDepth(const Bitmap& bitmap, UINT depth) {
    if (depth == static_cast<UINT>(BitsPerPixel(bitmap.Format()))) return bitmap.Copy();
    switch (depth) {
        case 1:
            return InBlackAndWhite(bitmap);
        case 4:
            return WithPalette(bitmap, PixelFormat4bppIndexed);
        case 8:
            return WithPalette(bitmap, PixelFormat8bppIndexed);
        case 24:
            return bitmap.CopyArea(bitmap.Bounds(), PixelFormat24bppRGB);
        case 32:
            return bitmap.CopyArea(bitmap.Bounds(), PixelFormat32bppARGB);
        default:
            return nullptr;
    }
}

}  // namespace

bool IsEncoder(const CLSID& codec) {
    constexpr CLSID kEncoders[] = {CodecBMP, CodecJPEG, CodecGIF, CodecTIFF, CodecPNG};
    return std::ranges::count(kEncoders, codec) != 0;
}

ByteArray EncodeBitmap(const Bitmap& bitmap, const CLSID& encoder, const SaveOptions& options) {
    if (encoder == CodecBMP) return codecs::EncodeBmp(PictureOf(bitmap));
    if (encoder == CodecPNG) return codecs::EncodePng(PictureOf(bitmap));
    if (encoder == CodecTIFF) return EncodeTiff(bitmap, options);
    if (encoder == CodecJPEG) {
        return options.transform ? EncodeTurned(bitmap, options)
                                 : codecs::EncodeJpeg(PictureOf(bitmap), options.quality);
    }
    if (encoder != CodecGIF) return {};
    const Ref<Bitmap> reduced =
        IsIndexed(bitmap.Format()) ? bitmap.Copy() : WithPalette(bitmap, PixelFormat8bppIndexed);
    return codecs::EncodeGif(PictureOf(*reduced));
}

bool AddPage(codecs::TiffWriter& writer, const Bitmap& bitmap, const SaveOptions& options) {
    const std::optional<TiffCompression> compression = CompressionOf(options);
    if (!compression) return false;
    const bool fax = *compression != TiffCompression::Lzw && *compression != TiffCompression::None;
    const Ref<Bitmap> page = fax             ? InDepth(bitmap, 1)
                             : options.depth ? InDepth(bitmap, *options.depth)
                                             : bitmap.Copy();
    if (!page) return false;
    page->dpiX = bitmap.dpiX;
    page->dpiY = bitmap.dpiY;
    PictureToWrite picture = PictureOf(*page);
    picture.properties = bitmap.properties;
    return writer.Add(picture, *compression);
}

}  // namespace vxgui::gdiplus
