#include <algorithm>
#include <set>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"

namespace vxgui::gdiplus {
namespace {

class Codecs : public BitmapTest {};

std::vector<std::u16string> MimesOf(const std::vector<ImageCodecInfo>& codecs) {
    std::vector<std::u16string> mimes;
    for (const ImageCodecInfo& each : codecs) mimes.push_back(each.MimeType);
    return mimes;
}

TEST_F(Codecs, ThatWriteAreFive) {
    UINT count = 0, size = 0;
    ASSERT_EQ(GdipGetImageEncodersSize(&count, &size), Ok);
    ASSERT_EQ(count, 5u);
    EXPECT_EQ(size, 5 * sizeof(ImageCodecInfo));
    std::vector<ImageCodecInfo> codecs(count);
    ASSERT_EQ(GdipGetImageEncoders(count, size, codecs.data()), Ok);
    EXPECT_EQ(MimesOf(codecs),
              (std::vector<std::u16string>{u"image/bmp", u"image/jpeg", u"image/gif", u"image/tiff",
                                           u"image/png"}));
    EXPECT_EQ(codecs[4].Clsid, CodecPNG);
    EXPECT_EQ(codecs[4].FormatID, ImageFormatPNG);
    EXPECT_EQ(codecs[4].SigSize, 8u);
    EXPECT_EQ(codecs[4].SigPattern[1], 'P');
    EXPECT_EQ(codecs[2].SigCount, 2u);
    EXPECT_EQ(codecs[2].SigSize, 6u);
    EXPECT_EQ(GdipGetImageEncoders(count - 1, size, codecs.data()), InvalidParameter);
    EXPECT_EQ(GdipGetImageEncoders(count, size, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetImageEncodersSize(nullptr, &size), InvalidParameter);
}

TEST_F(Codecs, ThatReadKnowIconsToo) {
    UINT count = 0, size = 0;
    ASSERT_EQ(GdipGetImageDecodersSize(&count, &size), Ok);
    ASSERT_EQ(count, 6u);
    std::vector<ImageCodecInfo> codecs(count);
    ASSERT_EQ(GdipGetImageDecoders(count, size, codecs.data()), Ok);
    EXPECT_EQ(MimesOf(codecs).back(), u"image/x-icon");
    EXPECT_EQ(GdipGetImageDecoders(count, size + 1, codecs.data()), InvalidParameter);
    EXPECT_EQ(GdipGetImageDecodersSize(&count, nullptr), InvalidParameter);
}

TEST_F(Codecs, NameTheirParameters) {
    GpImage* image = AsImage(Make(1, 1, PixelFormat24bppRGB));
    UINT size = 0;
    ASSERT_EQ(GdipGetEncoderParameterListSize(image, &CodecTIFF, &size), Ok);
    std::vector<uint64_t> buffer(size / 8 + 1);
    auto* list = reinterpret_cast<EncoderParameters*>(buffer.data());
    ASSERT_EQ(GdipGetEncoderParameterList(image, &CodecTIFF, size, list), Ok);
    ASSERT_EQ(list->Count, 3u);
    const EncoderParameter* each = list->Parameter;
    EXPECT_EQ(each[0].Guid, EncoderCompression);
    EXPECT_EQ(each[0].NumberOfValues, 5u);
    EXPECT_EQ(static_cast<const UINT32*>(each[0].Value)[1], 3u);
    EXPECT_EQ(each[1].Guid, EncoderColorDepth);
    EXPECT_EQ(static_cast<const UINT32*>(each[1].Value)[4], 32u);
    EXPECT_EQ(each[2].Guid, EncoderSaveFlag);

    ASSERT_EQ(GdipGetEncoderParameterListSize(image, &CodecJPEG, &size), Ok);
    EXPECT_EQ(GdipGetEncoderParameterList(image, &CodecJPEG, size + 1, list), InvalidParameter);
    EXPECT_EQ(GdipGetEncoderParameterList(image, &CodecJPEG, size, nullptr), InvalidParameter);
    for (const CLSID& codec : {CodecBMP, CodecPNG, CodecGIF}) {
        EXPECT_EQ(GdipGetEncoderParameterListSize(image, &codec, &size), NotImplemented);
    }
    EXPECT_EQ(GdipGetEncoderParameterListSize(image, &CodecIcon, &size), UnknownImageFormat);
    EXPECT_EQ(GdipGetEncoderParameterListSize(nullptr, &CodecJPEG, &size), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
