#include "vxgui/platform/gdiplus/codec/CodecList.h"

#include "vxgui/platform/gdiplus_formats.h"

namespace vxgui::gdiplus {
namespace {

constexpr DWORD kReads =
    ImageCodecFlagsDecoder | ImageCodecFlagsSupportBitmap | ImageCodecFlagsBuiltin;
constexpr DWORD kReadsAndWrites = kReads | ImageCodecFlagsEncoder;
constexpr DWORD kVersion = 1;

// First bytes of files, and the bits of them that count.
constexpr BYTE kBmp[] = {'B', 'M'};
constexpr BYTE kJpeg[] = {0xFF, 0xD8};
constexpr BYTE kGif[] = {'G', 'I', 'F', '8', '9', 'a', 'G', 'I', 'F', '8', '7', 'a'};
constexpr BYTE kTiff[] = {'I', 'I', 'M', 'M'};
constexpr BYTE kPng[] = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
constexpr BYTE kIcon[] = {0, 0, 1, 0};
constexpr BYTE kAll[] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};

template <size_t kSize>
constexpr ImageCodecInfo Codec(const CLSID& clsid, const GUID& format, const WCHAR* name,
                               const WCHAR* description, const WCHAR* extensions, const WCHAR* mime,
                               DWORD flags, DWORD signatures, const BYTE (&pattern)[kSize]) {
    return {clsid,
            format,
            name,
            nullptr,
            description,
            extensions,
            mime,
            flags,
            kVersion,
            signatures,
            static_cast<DWORD>(kSize / signatures),
            pattern,
            kAll};
}

constexpr ImageCodecInfo kCodecs[] = {
    Codec(CodecBMP, ImageFormatBMP, u"Built-in BMP Codec", u"BMP", u"*.BMP;*.DIB;*.RLE",
          u"image/bmp", kReadsAndWrites, 1, kBmp),
    Codec(CodecJPEG, ImageFormatJPEG, u"Built-in JPEG Codec", u"JPEG", u"*.JPG;*.JPEG;*.JPE;*.JFIF",
          u"image/jpeg", kReadsAndWrites, 1, kJpeg),
    Codec(CodecGIF, ImageFormatGIF, u"Built-in GIF Codec", u"GIF", u"*.GIF", u"image/gif",
          kReadsAndWrites, 2, kGif),
    Codec(CodecTIFF, ImageFormatTIFF, u"Built-in TIFF Codec", u"TIFF", u"*.TIF;*.TIFF",
          u"image/tiff", kReadsAndWrites, 2, kTiff),
    Codec(CodecPNG, ImageFormatPNG, u"Built-in PNG Codec", u"PNG", u"*.PNG", u"image/png",
          kReadsAndWrites, 1, kPng),
    Codec(CodecIcon, ImageFormatIcon, u"Built-in ICO Codec", u"ICO", u"*.ICO", u"image/x-icon",
          kReads, 1, kIcon),
};

}  // namespace

std::vector<ImageCodecInfo> CodecsWith(DWORD flags) {
    std::vector<ImageCodecInfo> codecs;
    for (const ImageCodecInfo& each : kCodecs) {
        if ((each.Flags & flags) == flags) codecs.push_back(each);
    }
    return codecs;
}

}  // namespace vxgui::gdiplus
