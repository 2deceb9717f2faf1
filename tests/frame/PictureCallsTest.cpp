#include "tests/frame/FrameTest.h"
#include "tests/support/FlatCalls.h"
#include "tests/support/GdiplusSession.h"
#include "tests/support/Images.h"
#include "vxgui/base/Error.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/frame/modGdiplus.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;

/// A picture that can't be saved: it raises, or answers true with nothing.
class Unsavable : public ole::Picture {
public:
    explicit Unsavable(bool raises) : raises_(raises) {}
    gdi::HGDIOBJ Handle() const override { return nullptr; }
    int16_t Type() const override { return ole::kPictureNone; }
    int32_t Width() const override { return 0; }
    int32_t Height() const override { return 0; }
    void Render(gdi::HDC, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t, int32_t,
                int32_t) const override {}
    bool SaveAsFile(ByteArray*) const override {
        if (raises_) throw Error(ErrorNumber::OutOfMemory, "acted", "no memory");
        return true;
    }

private:
    bool raises_;
};

/// With the companions that this library brings.
class PictureCalls : public FrameTest {
protected:
    PictureCalls() { kernel::SetKernel(nullptr); }

    static ByteArray BytesOf(const std::string& file) {
        ByteArray bytes;
        core7::ReadWholeFile(test::ImagePath(file), &bytes);
        return bytes;
    }

    test::GdiplusSession session_;
};

TEST_F(PictureCalls, LoadFromEachSource) {
    const String path = test::ImagePath("bmp-24.bmp");
    const ByteArray bytes = BytesOf("bmp-24.bmp");
    const void* memory = bytes.data();
    const auto size = static_cast<int32_t>(bytes.size());
    ASSERT_GT(size, 0);
    VxGuiGlobal& global = Global();
    EXPECT_NE(global.LoadPicture2(path), nullptr);
    EXPECT_NE(global.LoadPictureFromFile(path), nullptr);
    EXPECT_NE(global.LoadPictureFromMemAddr(memory, size), nullptr);
    EXPECT_NE(global.LoadPictureFromByteArray(bytes), nullptr);
    EXPECT_NE(global.PictureFromMemAddr(memory, size, 1), nullptr);
    EXPECT_NE(global.PictureFromByteArray(bytes, 1), nullptr);
    EXPECT_NE(global.PictureFromFile(path, 1), nullptr);
}

TEST_F(PictureCalls, PassTheirOptionsOn) {
    const ByteArray bytes = BytesOf("bmp-24.bmp");
    const auto size = static_cast<int32_t>(bytes.size());
    VxGuiGlobal& global = Global();
    // It is no TGA, and attempt 4 is none.
    EXPECT_EQ(global.LoadPictureFromMemAddr(bytes.data(), size, true), nullptr);
    EXPECT_EQ(global.LoadPictureFromByteArray(bytes, true), nullptr);
    EXPECT_EQ(global.PictureFromMemAddr(bytes.data(), size, 4), nullptr);
    EXPECT_EQ(global.PictureFromByteArray(bytes, 4), nullptr);
    EXPECT_EQ(global.PictureFromFile(test::ImagePath("bmp-24.bmp"), 4), nullptr);
}

TEST_F(PictureCalls, AnswerNoneForAFileThatIsNotThere) {
    EXPECT_EQ(Global().LoadPicture2("/no/such/file.png"), nullptr);
    EXPECT_EQ(Global().LoadPictureFromFile("/no/such/file.png"), nullptr);
    EXPECT_EQ(Global().PictureFromFile("/no/such/file.png", 0x321), nullptr);
}

TEST_F(PictureCalls, TakeAHandleOverUnlessTold) {
    const gdi::HBITMAP bitmap = gdi::CreateBitmap(1, 1, 1, 32, nullptr);
    EXPECT_NE(Global().LoadPictureFromGdiHandle(bitmap, 1, false), nullptr);
    EXPECT_NE(Global().LoadPictureFromGdiHandle(bitmap), nullptr);
    EXPECT_EQ(Global().LoadPictureFromGdiHandle(bitmap), nullptr);  // it went with the picture
}

TEST_F(PictureCalls, GetTheBytesOfAPicture) {
    const Ref<ole::Picture> picture = Global().LoadPicture2(test::ImagePath("bmp-24.bmp"));
    ByteArray bytes, saved;
    EXPECT_TRUE(Global().GetPictureBits(picture, bytes));
    ASSERT_TRUE(picture->SaveAsFile(&saved));
    EXPECT_EQ(bytes, saved);
    EXPECT_EQ(bytes.at(0), 'B');
}

TEST_F(PictureCalls, GetNoBytesOfWhatHasNone) {
    ByteArray bytes = {1, 2, 3};
    EXPECT_FALSE(Global().GetPictureBits(nullptr, bytes));
    EXPECT_FALSE(Global().GetPictureBits(New<Unsavable>(false), bytes));
    EXPECT_THAT(bytes, ElementsAre(1, 2, 3));
}

TEST_F(PictureCalls, ReportAPictureThatCannotBeSaved) {
    Global();  // sets the apartment up with the real companions
    kernel::SetKernel(&kernel_);
    kernel::SetLastError(0);
    ByteArray bytes = {1, 2, 3};
    EXPECT_FALSE(Global().GetPictureBits(New<Unsavable>(true), bytes));
    EXPECT_THAT(bytes, ElementsAre(1, 2, 3));
    EXPECT_THAT(kernel_.calls,
                ElementsAre("message 在过程 gUtilities::Public Function GetPictureBits "
                            "发生意外的错误: \r\n错误代码:7 0x7\r\n错误描述:no memory"
                            "|VxGUI|10010"));
}

TEST_F(PictureCalls, GiveTheHostAnImageOfItsOwn) {
    gdiplus::GpImage* image = Global().GdipLoadImageFromFile(test::ImagePath("bmp-24.bmp"));
    ASSERT_NE(image, nullptr);
    UINT width = 0;
    EXPECT_EQ(flat::GdipGetImageWidth(image, &width), gdiplus::Ok);
    EXPECT_EQ(width, 13u);
    EXPECT_EQ(flat::GdipDisposeImage(image), gdiplus::Ok);
    EXPECT_EQ(Global().GdipLoadImageFromFile("/no/such/file.png"), nullptr);
}

/// An image of 13 by 11 pixels to be painted on a context of 20 by 20 black ones.
class PaintedImages : public PictureCalls {
protected:
    PaintedImages() {
        Global();  // starts what painting needs
        uint8_t* bits = nullptr;
        dib_ = gdi::CreateDib(20, 20, 32, &bits);
        dc_ = gdi::CreateCompatibleDC(nullptr);
        gdi::SelectObject(dc_, dib_);
        gdi::PatBlt(dc_, 0, 0, 20, 20, gdi::BLACKNESS);
        gdiplus::GpBitmap* bitmap = nullptr;
        flat::GdipCreateBitmapFromScan0(13, 11, 0, gdiplus::PixelFormat32bppARGB, nullptr, &bitmap);
        image_ = reinterpret_cast<gdiplus::GpImage*>(bitmap);
        gdiplus::GpGraphics* graphics = nullptr;
        flat::GdipGetImageGraphicsContext(image_, &graphics);
        flat::GdipGraphicsClear(graphics, 0xFFFFFFFF);
        flat::GdipDeleteGraphics(graphics);
    }
    ~PaintedImages() override {
        flat::GdipDisposeImage(image_);
        gdi::DeleteDC(dc_);
        gdi::DeleteObject(dib_);
    }
    COLORREF At(int x, int y) const { return gdi::GetPixel(dc_, x, y); }

    gdi::HBITMAP dib_ = nullptr;
    gdi::HDC dc_ = nullptr;
    gdiplus::GpImage* image_ = nullptr;
};

TEST_F(PaintedImages, HaveTheirOwnSizeByDefault) {
    EXPECT_EQ(Global().GdipPaintPicture(dc_, image_), -1);
    EXPECT_EQ(At(12, 10), 0xFFFFFFu);
    EXPECT_EQ(At(13, 10), 0u);
    EXPECT_EQ(At(12, 11), 0u);
}

TEST_F(PaintedImages, AreStretchedToTheTarget) {
    EXPECT_EQ(Global().GdipPaintPicture(dc_, image_, 2, 3, 4, 5, 1, 1, 2, 2), -1);
    EXPECT_EQ(At(1, 3), 0u);
    EXPECT_EQ(At(2, 3), 0xFFFFFFu);
    EXPECT_EQ(At(5, 7), 0xFFFFFFu);
    EXPECT_EQ(At(6, 7), 0u);
}

TEST_F(PaintedImages, ShineThroughByTheirAlphaAndIgnoreTheKey) {
    EXPECT_EQ(Global().GdipPaintPicture(dc_, image_, 0, 0, -1, -1, 0, 0, -1, -1, 128, 0xFFFFFF),
              -1);
    EXPECT_EQ(At(3, 3), 0x808080u);
}

TEST_F(PaintedImages, NeedNoAttributesAtFullAlpha) {
    UnbindAllStubs();
    EXPECT_EQ(Global().GdipPaintPicture(dc_, image_), -1);
    EXPECT_FALSE(flat::GdipCreateImageAttributes.IsBound());
    EXPECT_EQ(Global().GdipPaintPicture(dc_, image_, 0, 0, -1, -1, 0, 0, -1, -1, 254), -1);
    EXPECT_TRUE(flat::GdipCreateImageAttributes.IsBound());
}

TEST_F(PaintedImages, AreDrawnByTheseCalls) {
    const auto paint = [&](uint8_t alpha) {
        return Global().GdipPaintPicture(dc_, image_, 1, 2, -1, -1, 3, 4, -1, -1, alpha);
    };
    test::FlatCalls calls;
    EXPECT_EQ(paint(255), -1);
    // The source's size is the image's whatever its origin is, and the target's the same.
    EXPECT_THAT(calls.Take(),
                ElementsAre("GdipCreateFromHDC(*, *)", "GdipGetImageWidth(*, *)",
                            "GdipGetImageHeight(*, *)",
                            "GdipDrawImageRectRectI(*, *, 1, 2, 13, 11, 3, 4, 13, 11, 2, 0, 0, 0)",
                            "GdipDeleteGraphics(*)"));
    EXPECT_EQ(paint(254), -1);
    const std::vector<std::string> faded = calls.Take();
    EXPECT_THAT(faded, ::testing::Contains("GdipDrawImageRectRectI(*, *, 1, 2, 13, 11, 3, 4, 13, "
                                           "11, 2, *, 0, 0)"));
    EXPECT_THAT(faded, ::testing::Contains(
                           ::testing::StartsWith("GdipSetImageAttributesColorMatrix(*, 0, 1, ")));
    calls.Answer("GdipDrawImageRectRectI", gdiplus::GenericError);
    EXPECT_EQ(paint(255), 0);
    EXPECT_EQ(calls.Take().back(), "GdipDeleteGraphics(*)");
    calls.Answer("GdipCreateFromHDC", gdiplus::GenericError);
    EXPECT_EQ(paint(255), 0);
    EXPECT_THAT(calls.Take(), ElementsAre("GdipCreateFromHDC(*, *)"));
}

TEST_F(PaintedImages, AnswerFalseWithoutAContextOrAnImage) {
    EXPECT_EQ(Global().GdipPaintPicture(nullptr, image_), 0);
    EXPECT_EQ(Global().GdipPaintPicture(dc_, nullptr), 0);
}

}  // namespace
}  // namespace vxgui
