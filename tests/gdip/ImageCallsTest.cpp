#include "tests/gdip/WrapperCalls.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpImage.h"

namespace vxgui {
namespace {

using test::Handle;

class ImageCalls : public WrapperCalls<GpImage> {
protected:
    const gdiplus::CLSID id_{5, 0, 0, {}};
    const gdiplus::EncoderParameters parameters_{};
    gdiplus::IStream* const stream_ = Handle<gdiplus::IStream>(2);
};

TEST_F(ImageCalls, OfLoading) {
    Are("GdipLoadImageFromFile('a', out); GdipDisposeImage(#1)",
        [](GpImage& i) { return i.FromFile("a"); });
    Are("GdipLoadImageFromFileICM('a', out); GdipDisposeImage(#1)",
        [](GpImage& i) { return i.FromFile("a", true); });
    Are("GdipLoadImageFromStream(#2, out); GdipDisposeImage(#1)",
        [&](GpImage& i) { return i.FromStream(stream_); });
    Are("GdipLoadImageFromStreamICM(#2, out); GdipDisposeImage(#1)",
        [&](GpImage& i) { return i.FromStream(stream_, true); });
    Are("GdipCloneImage(#1, out)", [](GpImage& i) { return i.Clone(); });
}

TEST_F(ImageCalls, OfAnEmptyBlockAndOfAnArrayAreNone) {
    Renew();
    const ByteArray bytes(9);
    EXPECT_FALSE(object_->FromPtr(bytes.data(), 0));
    EXPECT_FALSE(object_->FromPtr(nullptr, 9));
    EXPECT_FALSE(object_->FromByteArray(bytes));
    EXPECT_FALSE(object_->FromByteArray(bytes, true));
    ByteArray target(3);
    EXPECT_FALSE(object_->SaveToByteArray(target, &id_));
    EXPECT_EQ(target.size(), 3u);
    EXPECT_EQ(spy_.Taken(), "");
    EXPECT_EQ(object_->Status, gdiplus::Ok);
}

TEST_F(ImageCalls, OfSaving) {
    const auto other = Handle<gdiplus::GpImage>(3);
    Are("GdipSaveImageToFile(#1, 'a', {5}, 0)", [&](GpImage& i) { return i.Save("a", &id_); });
    Are("GdipSaveImageToFile(#1, 'a', {5}, record)",
        [&](GpImage& i) { return i.Save("a", &id_, &parameters_); });
    Are("GdipSaveImageToStream(#1, #2, {5}, 0)",
        [&](GpImage& i) { return i.SaveToStream(stream_, &id_); });
    Are("GdipSaveImageToStream(#1, #2, {5}, record)",
        [&](GpImage& i) { return i.SaveToStream(stream_, &id_, &parameters_); });
    Are("GdipSaveAdd(#1, record)", [&](GpImage& i) { return i.SaveAdd(&parameters_); });
    Are("GdipSaveAddImage(#1, #3, record)",
        [&](GpImage& i) { return i.SaveAddImage(other, &parameters_); });
    gdiplus::EncoderParameters list;
    Are("GdipGetEncoderParameterListSize(#1, {5}, out)",
        [&](GpImage& i) { return i.GetEncoderParameterListSize(&id_); });
    Are("GdipGetEncoderParameterList(#1, {5}, 7, out)",
        [&](GpImage& i) { return i.GetEncoderParameterList(&id_, 7, &list); });
}

TEST_F(ImageCalls, OfWhatTheImageIs) {
    Are("GdipGetImageType(#1, out)", [](GpImage& i) { return i.ImageType(); });
    Are("GdipGetImageWidth(#1, out)", [](GpImage& i) { return i.Width(); });
    Are("GdipGetImageHeight(#1, out)", [](GpImage& i) { return i.Height(); });
    Are("GdipGetImageHorizontalResolution(#1, out)",
        [](GpImage& i) { return i.HorizontalResolution(); });
    Are("GdipGetImageVerticalResolution(#1, out)",
        [](GpImage& i) { return i.VerticalResolution(); });
    Are("GdipGetImageFlags(#1, out)", [](GpImage& i) { return i.Flags(); });
    Are("GdipGetImagePixelFormat(#1, out)", [](GpImage& i) { return i.PixelFormat(); });
    Are("GdipGetImageRawFormat(#1, {0})", [](GpImage& i) { i.FormatCLSID(); });
    Are("GdipGetImageRawFormat(#1, {0})", [](GpImage& i) { i.Format(); });
}

TEST_F(ImageCalls, ThatFailClearWhatTheyWereToFill) {
    gdiplus::GpRectF bounds{5, 5, 5, 5};
    auto unit = gdiplus::UnitInch;
    float width = 5, height = 5;
    uint32_t total = 5, count = 5;
    Are("GdipGetImageBounds(#1, {0 0 0 0}, out)",
        [&](GpImage& i) { return i.GetBounds(bounds, unit); });
    EXPECT_EQ(unit, 0);
    Are("GdipGetImageDimension(#1, out, out)",
        [&](GpImage& i) { return i.GetPhysicalDimension(width, height); });
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
    Are("GdipGetPropertySize(#1, out, out)",
        [&](GpImage& i) { return i.GetPropertySize(total, count); });
    EXPECT_EQ(total, 0u);
    EXPECT_EQ(count, 0u);
}

TEST_F(ImageCalls, OfOtherPictures) {
    const auto abort = [](void*) -> int32_t { return 0; };
    Are("GdipGetImageGraphicsContext(#1, out)", [](GpImage& i) { return i.graphics(); });
    Are("GdipGetImageThumbnail(#1, 5, 6, out, 0, 0)",
        [](GpImage& i) { return i.GetThumbnailImage(5, 6); });
    Are("GdipGetImageThumbnail(#1, 5, 6, out, function, #7)",
        [&](GpImage& i) { return i.GetThumbnailImage(5, 6, abort, Handle<void>(7)); });
    Are("GdipImageRotateFlip(#1, 5)",
        [](GpImage& i) { return i.RotateFlip(gdiplus::Rotate90FlipX); });
}

TEST_F(ImageCalls, OfFramesAndPalettes) {
    gdiplus::GUID ids[] = {id_, {}};
    gdiplus::ColorPalette palette{};
    Are("GdipImageGetFrameDimensionsCount(#1, out)",
        [](GpImage& i) { return i.FrameDimensionsCount(); });
    Are("GdipImageGetFrameDimensionsList(#1, {5}, 2)",
        [&](GpImage& i) { return i.GetFrameDimensionsList(ids, 2); });
    Are("GdipImageGetFrameCount(#1, {5}, out)", [&](GpImage& i) { return i.GetFrameCount(&id_); });
    Are("GdipImageSelectActiveFrame(#1, {5}, 2)",
        [&](GpImage& i) { return i.SelectActiveFrame(&id_, 2); });
    Are("GdipGetImagePaletteSize(#1, out)", [](GpImage& i) { return i.PaletteSize(); });
    Are("GdipGetImagePalette(#1, out, 7)", [&](GpImage& i) { return i.GetPalette(&palette, 7); });
    Are("GdipSetImagePalette(#1, record)", [&](GpImage& i) { return i.SetPalette(&palette); });
}

TEST_F(ImageCalls, OfProperties) {
    gdiplus::PROPID ids[2];
    gdiplus::PropertyItem items[2]{};
    Are("GdipGetPropertyCount(#1, out)", [](GpImage& i) { return i.PropertyCount(); });
    Are("GdipGetPropertyIdList(#1, 2, out)",
        [&](GpImage& i) { return i.GetPropertyIdList(2, ids); });
    Are("GdipGetPropertyItemSize(#1, 7, out)", [](GpImage& i) { return i.GetPropertyItemSize(7); });
    Are("GdipGetPropertyItem(#1, 7, 8, out)",
        [&](GpImage& i) { return i.GetPropertyItem(7, 8, items); });
    Are("GdipGetAllPropertyItems(#1, 7, 2, out)",
        [&](GpImage& i) { return i.GetAllPropertyItems(7, 2, items); });
    Are("GdipRemovePropertyItem(#1, 7)", [](GpImage& i) { return i.RemovePropertyItem(7); });
    Are("GdipSetPropertyItem(#1, record)", [&](GpImage& i) { return i.SetPropertyItem(items); });
}

// Without GDI+ the stubs answer Ok and store nothing.
TEST_F(ImageCalls, ThatStoreNothingMakeNoImage) {
    Renew();
    object_->Dispose();
    spy_.Taken();
    spy_.HandOutNothing();
    EXPECT_FALSE(object_->FromFile("a"));
    EXPECT_FALSE(object_->FromStream(stream_));
    EXPECT_EQ(object_->Status, gdiplus::Ok);
    const Ref<GpImage> clone = object_->Clone();
    ASSERT_TRUE(clone) << "a success makes an object";
    EXPECT_EQ(clone->Handle(), nullptr);
    EXPECT_TRUE(object_->graphics());
    EXPECT_TRUE(object_->GetThumbnailImage(1, 1));
}

}  // namespace
}  // namespace vxgui
