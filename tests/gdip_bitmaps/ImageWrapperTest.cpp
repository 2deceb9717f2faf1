#include <gtest/gtest.h>

#include "tests/gdip_bitmaps/ShownMessages.h"
#include "tests/support/GdiplusSession.h"
#include "tests/support/Images.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/gdip/Encoders.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/platform/core7.h"

namespace vxgui {
namespace {

class ImageWrapper : public testing::Test {
protected:
    static Ref<GpImage> Load(const std::string& file = "png-rgb-8.png") {
        Ref<GpImage> image = New<GpImage>();
        EXPECT_TRUE(image->FromFile(test::ImagePath(file)));
        return image;
    }
    std::string FirstBytes(const String& path, size_t count) {
        ByteArray bytes;
        core7::ReadWholeFile(path, &bytes);
        bytes.resize(count);
        return {bytes.begin(), bytes.end()};
    }

    test::GdiplusSession session_;
    test::TemporaryFolder folder_;
};

TEST_F(ImageWrapper, ANewOneIsEmpty) {
    const Ref<GpImage> image = New<GpImage>();
    EXPECT_EQ(image->Handle(), nullptr);
    EXPECT_EQ(image->Width(), 0);
    EXPECT_EQ(image->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(image->Clone(), nullptr);
    EXPECT_EQ(image->graphics(), nullptr);
    EXPECT_EQ(image->GetThumbnailImage(1, 1), nullptr);
}

TEST_F(ImageWrapper, AFailedCreationKeepsTheOldHandleAndTheFailure) {
    const Ref<GpImage> image = Load();
    const auto* handle = image->Handle();
    EXPECT_FALSE(image->FromFile(test::ImagePath("none.png")));
    EXPECT_EQ(image->Handle(), handle);
    EXPECT_EQ(image->Status, gdiplus::FileNotFound);
    EXPECT_EQ(image->Width(), 13);
    EXPECT_EQ(image->Status, gdiplus::FileNotFound) << "a success doesn't clear it";
    image->Status = gdiplus::Ok;
    EXPECT_EQ(image->Height(), 11);
    EXPECT_EQ(image->Status, gdiplus::Ok);
}

TEST_F(ImageWrapper, ItsOwnHandleGivenToItIsADeadOne) {
    const Ref<GpImage> image = Load();
    gdiplus::GpImage* handle = image->Handle();
    image->SetHandle(handle);
    EXPECT_EQ(image->Handle(), handle);
    EXPECT_EQ(image->Width(), 0);
    EXPECT_EQ(image->Status, gdiplus::InvalidParameter);
}

TEST_F(ImageWrapper, LoadsFromFilesStreamsAndMemory) {
    const ByteArray bytes = test::ReadTestFile("images/gif-89.gif");
    const Ref<GpImage> image = New<GpImage>();
    for (const bool managed : {false, true}) {
        EXPECT_TRUE(image->FromFile(test::ImagePath("gif-89.gif"), managed));
        EXPECT_TRUE(image->FromStream(ole::CreateStreamOnHGlobal(bytes).get(), managed));
        EXPECT_TRUE(image->FromPtr(bytes.data(), static_cast<int32_t>(bytes.size()), managed));
    }
    EXPECT_FALSE(image->FromPtr(bytes.data(), 0));
    EXPECT_FALSE(image->FromPtr(nullptr, 5));
    EXPECT_FALSE(image->FromStream(nullptr));
}

TEST_F(ImageWrapper, AByteArrayIsNeverUsed) {
    const ByteArray bytes = test::ReadTestFile("images/gif-89.gif");
    EXPECT_FALSE(New<GpImage>()->FromByteArray(bytes));
    EXPECT_FALSE(New<GpImage>()->FromByteArray({}));
}

TEST_F(ImageWrapper, GivesNoByteArray) {
    const test::ShownMessages messages;
    const Ref<GpImage> image = Load();
    ByteArray bytes;
    EXPECT_FALSE(image->GetByteArray(bytes, "image/png"));
    EXPECT_FALSE(image->GetByteArray(bytes));
    EXPECT_TRUE(messages.Texts().empty());
    EXPECT_FALSE(image->GetByteArray(bytes, "image/x-none"));
    ASSERT_EQ(messages.Texts().size(), 1u);
    EXPECT_EQ(messages.Texts()[0], "bmp jpeg gif tiff png:image/x-none");
    EXPECT_FALSE(image->SaveToByteArray(bytes, &gdiplus::CodecPNG));
}

TEST_F(ImageWrapper, IsSavedByMimeType) {
    const test::ShownMessages messages;
    const Ref<GpImage> image = Load();
    const String path = folder_.Path("out");
    ASSERT_TRUE(image->SaveToFile(path));
    EXPECT_EQ(FirstBytes(path, 2), "BM") << "bmp where nothing is said";
    struct Case {
        const char* mime;
        std::string start;
    };
    for (const Case& each :
         {Case{"image/jpeg", "\xFF\xD8"}, Case{"image/gif", "GIF89a"},
          Case{"image/tiff", std::string("II*\0", 4)}, Case{"image/png", "\x89PNG"}}) {
        ASSERT_TRUE(image->SaveToFile(path, each.mime)) << each.mime;
        EXPECT_EQ(FirstBytes(path, each.start.size()), each.start);
    }
    EXPECT_TRUE(messages.Texts().empty());
    EXPECT_FALSE(image->SaveToFile(path, "image/BMP")) << "to the letter";
    ASSERT_EQ(messages.Texts().size(), 1u);
    EXPECT_EQ(messages.Texts()[0], "bmp jpeg gif tiff png:image/BMP");
}

TEST_F(ImageWrapper, AJpegHasQuality80WhereNothingIsSaid) {
    const Ref<GpImage> image = Load();
    const auto size = [&](auto save) {
        const String path = folder_.Path("out.jpg");
        EXPECT_TRUE(save(path));
        ByteArray bytes;
        core7::ReadWholeFile(path, &bytes);
        return bytes;
    };
    const ByteArray plain =
        size([&](const String& path) { return image->SaveToFile(path, "image/jpeg"); });
    EXPECT_EQ(plain,
              size([&](const String& path) { return image->SaveToFile(path, "image/jpeg", 80); }));
    EXPECT_EQ(plain, size([&](const String& path) { return image->SaveToFile_Jpeg(path, 80); }));
    EXPECT_NE(plain, size([&](const String& path) { return image->SaveToFile_Jpeg(path, 10); }));
    EXPECT_EQ(size([&](const String& path) { return image->SaveToFile_Jpeg(path); }),
              size([&](const String& path) { return image->SaveToFile_Jpeg(path, 75); }))
        << "the encoder's own quality";
}

TEST_F(ImageWrapper, HasAWayToSaveForEachFormat) {
    const Ref<GpImage> image = Load();
    const String path = folder_.Path("out");
    EXPECT_TRUE(image->SaveToFile_Bmp(path));
    EXPECT_EQ(FirstBytes(path, 2), "BM");
    EXPECT_TRUE(image->SaveToFile_Png(path));
    EXPECT_EQ(FirstBytes(path, 4), "\x89PNG");
    for (const int32_t quality : {0, 50}) {
        EXPECT_TRUE(image->SaveToFile_Gif(path, quality));
        EXPECT_EQ(FirstBytes(path, 3), "GIF");
        EXPECT_TRUE(image->SaveToFile_Tiff(path, quality));
        EXPECT_EQ(FirstBytes(path, 2), "II");
    }
    EXPECT_FALSE(image->SaveToFile_Bmp(folder_.Path("none/out")));
    EXPECT_EQ(image->Status, gdiplus::GenericError);
}

TEST_F(ImageWrapper, IsSavedToAStreamAndInPages) {
    const Ref<GpImage> image = Load();
    const Ref<ole::IStream> stream = ole::CreateStreamOnHGlobal();
    gdiplus::EncoderParameters parameters{};
    int32_t value = gdiplus::EncoderValueMultiFrame;
    parameters.Count = 1;
    parameters.Parameter[0] = {gdiplus::EncoderSaveFlag, 1, 4, &value};
    ASSERT_TRUE(image->SaveToStream(stream.get(), &gdiplus::CodecTIFF, &parameters));
    value = gdiplus::EncoderValueFrameDimensionPage;
    EXPECT_TRUE(image->SaveAdd(&parameters));
    EXPECT_TRUE(image->SaveAddImage(Load("gif-89.gif")->Handle(), &parameters));
    value = gdiplus::EncoderValueFlush;
    EXPECT_TRUE(image->SaveAdd(&parameters));
    const Ref<GpImage> back = New<GpImage>();
    ASSERT_TRUE(back->FromStream(stream.get()));
    EXPECT_EQ(back->GetFrameCount(&gdiplus::FrameDimensionPage), 3u);
    EXPECT_TRUE(back->SelectActiveFrame(&gdiplus::FrameDimensionPage, 2));
    EXPECT_EQ(back->FrameDimensionsCount(), 1u);
    gdiplus::GUID dimension{};
    EXPECT_TRUE(back->GetFrameDimensionsList(&dimension, 1));
    EXPECT_EQ(dimension, gdiplus::FrameDimensionPage);
}

TEST_F(ImageWrapper, TellsOfItself) {
    const Ref<GpImage> image = Load();
    EXPECT_EQ(image->ImageType(), gdiplus::ImageTypeBitmap);
    EXPECT_EQ(image->PixelFormat(), gdiplus::PixelFormat24bppRGB);
    EXPECT_EQ(image->Format(), "{B96B3CAF-0728-11D3-9D7B-0000F81EF32E}");
    EXPECT_EQ(image->FormatCLSID(), gdiplus::ImageFormatPNG);
    EXPECT_GT(image->HorizontalResolution(), 0);
    EXPECT_GT(image->VerticalResolution(), 0);
    EXPECT_NE(image->Flags(), 0u);
    gdiplus::GpRectF bounds{};
    gdiplus::Unit unit{};
    EXPECT_TRUE(image->GetBounds(bounds, unit));
    EXPECT_EQ(bounds.Width, 13);
    EXPECT_EQ(unit, gdiplus::UnitPixel);
    float width = 0, height = 0;
    EXPECT_TRUE(image->GetPhysicalDimension(width, height));
    EXPECT_EQ(height, 11);
    EXPECT_EQ(image->Clone()->Width(), 13);
    EXPECT_EQ(image->GetThumbnailImage(5, 4)->Height(), 4);
    ASSERT_NE(image->graphics(), nullptr);
    EXPECT_TRUE(image->RotateFlip(gdiplus::Rotate90FlipNone));
    EXPECT_EQ(image->Width(), 11);
}

TEST_F(ImageWrapper, HandsOnPalettesPropertiesAndParameters) {
    const Ref<GpImage> image = Load("gif-89.gif");
    const int32_t size = image->PaletteSize();
    std::vector<uint32_t> buffer(static_cast<size_t>(size) / 4);
    auto* palette = reinterpret_cast<gdiplus::ColorPalette*>(buffer.data());
    ASSERT_TRUE(image->GetPalette(palette, size));
    EXPECT_TRUE(image->SetPalette(palette));
    EXPECT_FALSE(image->SetPalette(nullptr));

    uint16_t number = 6;
    const gdiplus::PropertyItem item{0x0112, 2, 3, &number};
    const uint32_t before = image->PropertyCount();
    ASSERT_TRUE(image->SetPropertyItem(&item));
    EXPECT_EQ(image->PropertyCount(), before + 1);
    std::vector<gdiplus::PROPID> ids(before + 1);
    EXPECT_TRUE(image->GetPropertyIdList(before + 1, ids.data()));
    EXPECT_EQ(ids.back(), 0x0112u);
    const uint32_t itemSize = image->GetPropertyItemSize(0x0112);
    std::vector<uint64_t> items(itemSize / 8 + 1);
    auto* record = reinterpret_cast<gdiplus::PropertyItem*>(items.data());
    ASSERT_TRUE(image->GetPropertyItem(0x0112, itemSize, record));
    EXPECT_EQ(*static_cast<uint16_t*>(record->value), 6);
    uint32_t total = 0, count = 0;
    ASSERT_TRUE(image->GetPropertySize(total, count));
    items.resize(total / 8 + 1);
    EXPECT_TRUE(image->GetAllPropertyItems(total, count,
                                           reinterpret_cast<gdiplus::PropertyItem*>(items.data())));
    EXPECT_TRUE(image->RemovePropertyItem(0x0112));
    EXPECT_FALSE(image->RemovePropertyItem(0x0112));
    EXPECT_EQ(image->Status, gdiplus::PropertyNotFound);

    const uint32_t listSize = image->GetEncoderParameterListSize(&gdiplus::CodecJPEG);
    items.resize(listSize / 8 + 1);
    auto* list = reinterpret_cast<gdiplus::EncoderParameters*>(items.data());
    ASSERT_TRUE(image->GetEncoderParameterList(&gdiplus::CodecJPEG, listSize, list));
    EXPECT_EQ(list->Count, 2u);
}

TEST_F(ImageWrapper, EncodersAreFoundByTheirMimeType) {
    gdiplus::CLSID id{};
    EXPECT_TRUE(GetEncoderClsid("image/tiff", id));
    EXPECT_EQ(id, gdiplus::CodecTIFF);
    EXPECT_FALSE(GetEncoderClsid("image/x-icon", id));
    EXPECT_EQ(id, gdiplus::CodecTIFF) << "kept";
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(GetCachedEncoder("image/png", id));
        EXPECT_EQ(id, gdiplus::CodecPNG);
    }
    EXPECT_FALSE(GetCachedEncoder("image/none", id));
}

TEST_F(ImageWrapper, EncodersGetOneParameterAtMost) {
    gdiplus::EncoderParameters parameters{};
    int32_t value = -7;
    BuildEncoderParameters(parameters, "image/tiff", 50, value);
    ASSERT_EQ(parameters.Count, 1u);
    EXPECT_EQ(parameters.Parameter[0].Guid, gdiplus::EncoderSaveFlag);
    EXPECT_EQ(parameters.Parameter[0].NumberOfValues, 1u);
    EXPECT_EQ(parameters.Parameter[0].Type, 4u);
    EXPECT_EQ(parameters.Parameter[0].Value, &value);
    EXPECT_EQ(value, 20);
    for (const auto& [asked, given] : {std::pair(50, 50), {-1, 0}, {101, 100}, {0, 0}}) {
        BuildEncoderParameters(parameters, "image/jpeg", asked, value);
        ASSERT_EQ(parameters.Count, 1u);
        EXPECT_EQ(parameters.Parameter[0].Guid, gdiplus::EncoderQuality);
        EXPECT_EQ(value, given);
    }
    for (const char* mime : {"image/gif", "image/png", "image/bmp", ""}) {
        BuildEncoderParameters(parameters, mime, 50, value);
        EXPECT_EQ(parameters.Count, 0u);
    }
}

}  // namespace
}  // namespace vxgui
