#include <cstring>

#include "vxgui/platform/codecs/BmpDecoder.h"
#include "vxgui/platform/codecs/GifDecoder.h"
#include "vxgui/platform/codecs/IconFile.h"
#include "vxgui/platform/codecs/JpegDecoder.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi/IconLoading.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/ole.h"

namespace vxgui::ole {
namespace {

std::unique_ptr<codecs::ImageDecoder> OpenPicture(codecs::Bytes bytes) {
    if (codecs::IsBmp(bytes)) return codecs::OpenBmp(bytes, codecs::FourthByte::Kept);
    if (codecs::IsGif(bytes)) return codecs::OpenGif(bytes);
    if (codecs::IsJpeg(bytes)) return codecs::OpenJpeg(bytes);
    return nullptr;
}

gdi::HBITMAP Dib32(codecs::ImageDecoder& decoder) {
    const codecs::ImageHeader& header = decoder.Header();
    uint8_t* bottom = nullptr;
    const gdi::HBITMAP bitmap = gdi::CreateDib(header.width, header.height, 32, &bottom);
    if (!bitmap) return nullptr;
    const ptrdiff_t stride = ptrdiff_t{4} * header.width;
    if (decoder.Decode({bottom + (header.height - 1) * stride, -stride})) return bitmap;
    gdi::DeleteObject(bitmap);
    return nullptr;
}

gdi::HBITMAP Dib24(std::unique_ptr<codecs::ImageDecoder> decoder) {
    const auto image = codecs::DecodeImage(std::move(decoder));
    if (!image) return nullptr;
    const int32_t width = image->header.width, height = image->header.height;
    uint8_t* bottom = nullptr;
    const gdi::HBITMAP bitmap = gdi::CreateDib(width, height, 24, &bottom);
    const ptrdiff_t stride = (ptrdiff_t{3} * width + 3) / 4 * 4;
    for (int32_t y = 0; bitmap && y < height; ++y) {
        const uint32_t* from = &image->pixels[static_cast<size_t>(y) * static_cast<size_t>(width)];
        uint8_t* to = bottom + (height - 1 - y) * stride;
        for (int32_t x = 0; x < width; ++x) std::memcpy(to + 3 * x, &from[x], 3);
    }
    return bitmap;
}

Ref<Picture> LoadBitmap(codecs::Bytes bytes) {
    auto decoder = OpenPicture(bytes);
    if (!decoder) return nullptr;
    // A BMP with an alpha byte keeps it, in 32 bits; nothing else has one here.
    const codecs::ImageHeader& header = decoder->Header();
    const bool keepsAlpha = header.format == codecs::ImageFormat::Bmp && header.hasAlpha;
    const gdi::HBITMAP bitmap = keepsAlpha ? Dib32(*decoder) : Dib24(std::move(decoder));
    return OleCreatePictureIndirect(bitmap, kPictureBitmap, true);
}

}  // namespace

Ref<Picture> OleLoadPicture(const void* data, size_t size) {
    if (!data) return nullptr;
    const codecs::Bytes bytes(static_cast<const uint8_t*>(data), size);
    if (!codecs::IsIcon(bytes) && !codecs::IsCursor(bytes)) return LoadBitmap(bytes);
    return OleCreatePictureIndirect(gdi::IconOfFileBytes(data, size), kPictureIcon, true);
}

Ref<Picture> LoadPicture(const String& filename) {
    ByteArray bytes;
    if (!core7::ReadWholeFile(filename, &bytes)) return nullptr;
    return OleLoadPicture(bytes.data(), bytes.size());
}

}  // namespace vxgui::ole
