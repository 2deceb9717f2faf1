#include "tests/gdip/WrapperCalls.h"
#include "tests/gdip_bitmaps/ShownMessages.h"
#include "vxgui/gdip/Encoders.h"
#include "vxgui/gdip/GpImage.h"

namespace vxgui {
namespace {

// The encoders that there are, with identifiers from 71 up in this order.
std::vector<const char16_t*> gMimes;

gdiplus::GpStatus CountEncoders(UINT* count, UINT* size) {
    *count = static_cast<UINT>(gMimes.size());
    *size = *count * sizeof(gdiplus::ImageCodecInfo);
    return gdiplus::Ok;
}
gdiplus::GpStatus ListEncoders(UINT count, UINT, gdiplus::ImageCodecInfo* list) {
    for (UINT i = 0; i < count; ++i) {
        list[i] = {};
        list[i].Clsid.Data1 = 71 + i;
        list[i].MimeType = gMimes[i];
    }
    return gdiplus::Ok;
}

template <class Stub, class Function>
void Act(const Stub&, Function* function) {
    static_cast<std::atomic<Function*>*>(Stub::Place())->store(function);
}

class SavingCalls : public WrapperCalls<GpImage> {
protected:
    SavingCalls() {
        Act(flat::GdipGetImageEncodersSize, &CountEncoders);
        Act(flat::GdipGetImageEncoders, &ListEncoders);
    }
    static void AllEncoders() {
        gMimes = {u"image/bmp", u"image/jpeg", u"image/gif", u"image/tiff", u"image/png"};
    }

    const test::ShownMessages messages_;
};

// First, since identifiers that were found once are kept.
TEST_F(SavingCalls, AreNoneWithoutAnEncoder) {
    gMimes = {};
    Renew();
    EXPECT_FALSE(object_->SaveToFile_Bmp("a"));
    EXPECT_FALSE(object_->SaveToFile_Png("a"));
    EXPECT_FALSE(object_->SaveToFile_Jpeg("a"));
    EXPECT_FALSE(object_->SaveToFile_Gif("a"));
    EXPECT_FALSE(object_->SaveToFile_Tiff("a"));
    EXPECT_TRUE(messages_.Texts().empty());
    EXPECT_FALSE(object_->SaveToFile_Jpeg("a", 1));
    EXPECT_FALSE(object_->SaveToFile_Gif("a", -1));
    EXPECT_FALSE(object_->SaveToFile_Tiff("a", 1));
    EXPECT_FALSE(object_->SaveToFile("a"));
    ByteArray bytes;
    EXPECT_FALSE(object_->GetByteArray(bytes));
    EXPECT_EQ(
        messages_.Texts(),
        (std::vector<String>{"bmp jpeg gif tiff png:image/jpeg", "bmp jpeg gif tiff png:image/gif",
                             "bmp jpeg gif tiff png:image/tiff", "bmp jpeg gif tiff png:image/bmp",
                             "bmp jpeg gif tiff png:image/bmp"}));
    EXPECT_EQ(spy_.Taken(), "");
    EXPECT_EQ(object_->Status, gdiplus::Ok);
}

TEST_F(SavingCalls, AreOfTheLastEncoderWithTheVeryName) {
    gMimes = {u"image/x", u"image/y", u"image/x", u"IMAGE/X", u"image/xx", nullptr};
    gdiplus::CLSID id{};
    EXPECT_TRUE(GetEncoderClsid("image/x", id));
    EXPECT_EQ(id.Data1, 73u);
    EXPECT_FALSE(GetEncoderClsid("image/", id));
    EXPECT_EQ(id.Data1, 73u);
}

TEST_F(SavingCalls, OfAFormatHaveNoParameters) {
    AllEncoders();
    Are("GdipSaveImageToFile(#1, 'a', {71}, 0)", [](GpImage& i) { return i.SaveToFile_Bmp("a"); });
    Are("GdipSaveImageToFile(#1, 'a', {75}, 0)", [](GpImage& i) { return i.SaveToFile_Png("a"); });
    Are("GdipSaveImageToFile(#1, 'a', {72}, 0)", [](GpImage& i) { return i.SaveToFile_Jpeg("a"); });
    Are("GdipSaveImageToFile(#1, 'a', {73}, 0)", [](GpImage& i) { return i.SaveToFile_Gif("a"); });
    Are("GdipSaveImageToFile(#1, 'a', {74}, 0)", [](GpImage& i) { return i.SaveToFile_Tiff("a"); });
}

TEST_F(SavingCalls, WithAQualityHaveParameters) {
    AllEncoders();
    Are("GdipSaveImageToFile(#1, 'a', {72}, record)",
        [](GpImage& i) { return i.SaveToFile_Jpeg("a", 5); });
    Are("GdipSaveImageToFile(#1, 'a', {73}, record)",
        [](GpImage& i) { return i.SaveToFile_Gif("a", -5); });
    Are("GdipSaveImageToFile(#1, 'a', {74}, record)",
        [](GpImage& i) { return i.SaveToFile_Tiff("a", 5); });
    Are("GdipSaveImageToFile(#1, 'a', {71}, record)", [](GpImage& i) { return i.SaveToFile("a"); });
    Are("GdipSaveImageToFile(#1, 'a', {75}, record)",
        [](GpImage& i) { return i.SaveToFile("a", "image/png"); });
}

// What a save to a file was asked for.
int gQuality;
gdiplus::GpStatus TakeQuality(gdiplus::GpImage*, const gdiplus::WCHAR*, const gdiplus::CLSID*,
                              const gdiplus::EncoderParameters* parameters) {
    gQuality = parameters->Count ? *static_cast<int32_t*>(parameters->Parameter[0].Value) : -1;
    return gdiplus::Ok;
}

TEST_F(SavingCalls, HandOnTheQuality) {
    AllEncoders();
    Act(flat::GdipSaveImageToFile, &TakeQuality);
    const auto quality = [&](bool saved) {
        EXPECT_TRUE(saved);
        return gQuality;
    };
    EXPECT_EQ(quality(object_->SaveToFile("a", "image/jpeg")), 80);
    EXPECT_EQ(quality(object_->SaveToFile("a", "image/jpeg", 5)), 5);
    EXPECT_EQ(quality(object_->SaveToFile("a", "image/jpeg", 0)), 0);
    EXPECT_EQ(quality(object_->SaveToFile_Jpeg("a", 7)), 7);
    EXPECT_EQ(quality(object_->SaveToFile_Gif("a", 7)), -1) << "a GIF has none";
    EXPECT_EQ(quality(object_->SaveToFile("a")), -1);
}

TEST_F(SavingCalls, IntoAnArrayAreNone) {
    AllEncoders();
    Renew();
    ByteArray bytes(3);
    EXPECT_FALSE(object_->GetByteArray(bytes, "image/png"));
    EXPECT_EQ(bytes.size(), 3u);
    EXPECT_EQ(spy_.Taken(), "");
    EXPECT_TRUE(messages_.Texts().empty());
}

}  // namespace
}  // namespace vxgui
