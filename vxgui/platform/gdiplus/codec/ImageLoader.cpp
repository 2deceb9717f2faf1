#include "vxgui/platform/gdiplus/codec/ImageLoader.h"

#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/bitmap/PixelRow.h"

namespace vxgui::gdiplus {
namespace {

using codecs::ColorSpace;
using codecs::ImageDecoder;
using codecs::ImageFormat;
using codecs::ImageHeader;
using codecs::PixelForm;

PixelFormat FormatOf(const ImageHeader& header) {
    switch (header.form) {
        case PixelForm::Bgra32:
            return PixelFormat32bppARGB;
        case PixelForm::Bgrx32:
            return PixelFormat32bppRGB;
        case PixelForm::Bgr24:
            return PixelFormat24bppRGB;
        case PixelForm::Rgb565:
            return PixelFormat16bppRGB565;
        case PixelForm::Rgb555:
            return PixelFormat16bppRGB555;
        case PixelForm::Indexed:
            break;
    }
    return header.indexBits == 1   ? PixelFormat1bppIndexed
           : header.indexBits == 4 ? PixelFormat4bppIndexed
                                   : PixelFormat8bppIndexed;
}

GUID RawFormatOf(ImageFormat format) {
    constexpr GUID kFormats[] = {ImageFormatBMP,  ImageFormatGIF, ImageFormatIcon,
                                 ImageFormatJPEG, ImageFormatPNG, ImageFormatTIFF};
    return kFormats[static_cast<size_t>(format)];
}

UINT FlagsOf(const ImageHeader& header) {
    constexpr UINT kSpaces[] = {ImageFlagsColorSpaceRGB, ImageFlagsColorSpaceGRAY,
                                ImageFlagsColorSpaceCMYK, ImageFlagsColorSpaceYCCK};
    const UINT flags = ImageFlagsReadOnly | ImageFlagsHasRealPixelSize |
                       kSpaces[static_cast<size_t>(header.space)];
    return header.dpiX > 0 ? flags | ImageFlagsHasRealDPI : flags;
}

codecs::PixelRows RowsOf(Bitmap& bitmap) { return {bitmap.Row(0), bitmap.Stride()}; }

// Decodes to `T`, all rows at once, and hands each to `store`.
template <class T, class Decode, class Store>
bool DecodeRows(Bitmap& bitmap, Decode decode, Store store) {
    std::vector<T> all(size_t{bitmap.Width()} * bitmap.Height());
    const auto stride = static_cast<ptrdiff_t>(bitmap.Width() * sizeof(T));
    if (!decode(codecs::PixelRows{reinterpret_cast<uint8_t*>(all.data()), stride})) return false;
    std::span<const T> rest = all;
    for (UINT y = 0; y < bitmap.Height(); ++y, rest = rest.subspan(bitmap.Width())) {
        store(static_cast<INT>(y), rest.first(bitmap.Width()));
    }
    return true;
}

bool DecodeInto(ImageDecoder& decoder, Bitmap& bitmap) {
    const int bits = BitsPerPixel(bitmap.Format());
    if (bitmap.Format() == PixelFormat8bppIndexed) return decoder.DecodeIndexes(RowsOf(bitmap));
    if (bits == 32) return decoder.Decode(RowsOf(bitmap));
    if (IsIndexed(bitmap.Format())) {
        return DecodeRows<uint8_t>(
            bitmap, [&](const codecs::PixelRows& rows) { return decoder.DecodeIndexes(rows); },
            [&](INT y, std::span<const uint8_t> row) {
                WriteIndexes(bits, bitmap.Row(y), 0, row);
            });
    }
    return DecodeRows<ARGB>(
        bitmap, [&](const codecs::PixelRows& rows) { return decoder.Decode(rows); },
        [&](INT y, std::span<const ARGB> row) { bitmap.WriteStraight(0, y, row); });
}

Ref<Bitmap> DecodeFrame(const ByteArray& bytes, int frame) {
    const std::unique_ptr<ImageDecoder> decoder = codecs::OpenFrame(bytes, frame);
    if (!decoder) return nullptr;
    const ImageHeader header = decoder->Header();
    Ref<Bitmap> bitmap = Bitmap::Create(header.width, header.height, FormatOf(header));
    if (header.form == PixelForm::Indexed) {
        bitmap->Colors({PaletteFlagsOf(header.palette), header.palette});
    }
    if (!DecodeInto(*decoder, *bitmap)) return nullptr;
    if (header.dpiX > 0 && header.dpiY > 0) {
        bitmap->dpiX = static_cast<REAL>(header.dpiX);
        bitmap->dpiY = static_cast<REAL>(header.dpiY);
    }
    bitmap->rawFormat = RawFormatOf(header.format);
    bitmap->fileFlags = FlagsOf(header);
    bitmap->properties = codecs::ReadProperties(header.format, bytes, frame);
    return bitmap;
}

}  // namespace

Ref<Bitmap> LoadBitmap(ByteArray bytes) {
    Ref<Bitmap> bitmap = DecodeFrame(bytes, 0);
    if (!bitmap) return nullptr;
    bitmap->frameCount = static_cast<UINT>(codecs::FrameCount(bytes));
    if (bitmap->frameCount > 1) bitmap->file = std::make_shared<const ByteArray>(std::move(bytes));
    return bitmap;
}

bool SelectFrame(Bitmap& bitmap, UINT frame) {
    if (!bitmap.file) return frame == 0;
    const Ref<Bitmap> shown = DecodeFrame(*bitmap.file, static_cast<int>(frame));
    if (!shown) return false;
    bitmap.ExchangePixels(*shown);
    bitmap.dpiX = shown->dpiX;
    bitmap.dpiY = shown->dpiY;
    bitmap.fileFlags = shown->fileFlags;
    bitmap.properties = std::move(shown->properties);
    return true;
}

}  // namespace vxgui::gdiplus
