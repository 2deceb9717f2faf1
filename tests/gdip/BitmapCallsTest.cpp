#include "tests/gdip/WrapperCalls.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpCachedBitmap.h"
#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {
namespace {

using test::Handle;

class BitmapCalls : public WrapperCalls<GpBitmap> {
protected:
    gdiplus::CGpEffect* const effect_ = Handle<gdiplus::CGpEffect>(2);
    gdiplus::IStream* const stream_ = Handle<gdiplus::IStream>(3);
};

TEST_F(BitmapCalls, OfLoading) {
    Are("GdipCreateBitmapFromFile('a', out); GdipDisposeImage(#1)",
        [](GpBitmap& b) { return b.FromFile("a"); });
    Are("GdipCreateBitmapFromFileICM('a', out); GdipDisposeImage(#1)",
        [](GpBitmap& b) { return b.FromFile("a", true); });
    Are("GdipCreateBitmapFromStream(#3, out); GdipDisposeImage(#1)",
        [&](GpBitmap& b) { return b.FromStream(stream_); });
    Are("GdipCreateBitmapFromStreamICM(#3, out); GdipDisposeImage(#1)",
        [&](GpBitmap& b) { return b.FromStream(stream_, true); });
}

TEST_F(BitmapCalls, OfMemoryManageColoursByDefault) {
    const ByteArray bytes(9);
    const auto name = [&] {
        const std::string calls = spy_.Taken();
        return calls.substr(0, calls.find('('));
    };
    Renew();
    object_->FromMemAddr(bytes.data(), 9);
    EXPECT_EQ(name(), "GdipCreateBitmapFromStreamICM");
    object_->FromByteArray(bytes);
    EXPECT_EQ(name(), "GdipCreateBitmapFromStreamICM");
    object_->FromMemAddr(bytes.data(), 9, false);
    EXPECT_EQ(name(), "GdipCreateBitmapFromStream");
    object_->FromByteArray(bytes, false);
    EXPECT_EQ(name(), "GdipCreateBitmapFromStream");
    EXPECT_EQ(object_->FromMemAddr(bytes.data(), 0), nullptr);
    EXPECT_EQ(object_->FromByteArray({}), nullptr);
    EXPECT_EQ(spy_.Taken(), "");
}

TEST_F(BitmapCalls, OfCreation) {
    const gdi::BITMAPINFO info{};
    BYTE pixel[4]{};
    Are("GdipCreateBitmapFromScan0(5, 6, 20, 2498570, out, out); GdipDisposeImage(#1)",
        [&](GpBitmap& b) { return b.FromScan0(5, 6, 20, gdiplus::PixelFormat32bppARGB, pixel); });
    Are("GdipCreateBitmapFromGraphics(5, 6, #7, out); GdipDisposeImage(#1)",
        [](GpBitmap& b) { return b.FromGraphics(5, 6, Handle<gdiplus::GpGraphics>(7)); });
    Are("GdipCreateBitmapFromDirectDrawSurface(#7, out); GdipDisposeImage(#1)",
        [](GpBitmap& b) { return b.FromDirectDrawSurface7(Handle<void>(7)); });
    Are("GdipCreateBitmapFromGdiDib(record, #7, out); GdipDisposeImage(#1)",
        [&](GpBitmap& b) { return b.FromGdiDib(&info, Handle<void>(7)); });
    Are("GdipCreateBitmapFromHBITMAP(#7, #8, out); GdipDisposeImage(#1)", [](GpBitmap& b) {
        return b.FromHBITMAP(Handle<std::remove_pointer_t<gdi::HBITMAP>>(7),
                             Handle<std::remove_pointer_t<gdi::HPALETTE>>(8));
    });
    Are("GdipCreateBitmapFromHICON(#7, out); GdipDisposeImage(#1)",
        [](GpBitmap& b) { return b.FromHICON(Handle<std::remove_pointer_t<gdi::HICON>>(7)); });
    Are("GdipCreateBitmapFromResource(#7, 'a', out); GdipDisposeImage(#1)", [](GpBitmap& b) {
        return b.FromResource(Handle<std::remove_pointer_t<kernel::HMODULE>>(7), "a");
    });
}

// What the second way is given is looked at before it answers.
gdi::BITMAPINFOHEADER gHeader;
gdiplus::Status gSecond;
gdiplus::GpStatus MadeOverADib(const gdi::BITMAPINFO* info, void* bits, gdiplus::GpBitmap** made) {
    gHeader = info->bmiHeader;
    if (gSecond == gdiplus::Ok) {
        static_cast<uint32_t*>(bits)[5 * 6] = 1;  // one more than there are pixels
        *made = Handle<gdiplus::GpBitmap>(8);
    }
    return gSecond;
}

class CreationCalls : public BitmapCalls {
protected:
    CreationCalls() {
        Renew();
        spy_.Answer(gdiplus::OutOfMemory);
        using Target = decltype(&MadeOverADib);
        auto* place = decltype(flat::GdipCreateBitmapFromGdiDib)::Place();
        static_cast<std::atomic<Target>*>(place)->store(&MadeOverADib);
    }
};

TEST_F(CreationCalls, GoOnWithADibWhereTheFirstFails) {
    gSecond = gdiplus::Ok;
    EXPECT_TRUE(object_->Create(5, 6, Handle<std::remove_pointer_t<gdi::HDC>>(7)));
    EXPECT_EQ(object_->Handle(), Handle<gdiplus::GpBitmap>(8));
    EXPECT_EQ(spy_.Taken(),
              "GdipCreateBitmapFromScan0(5, 6, 0, 2498570, 0, out); GdipDisposeImage(#1)");
    EXPECT_EQ(object_->Status, gdiplus::OutOfMemory) << "the first call did fail";
    EXPECT_EQ(gHeader.biSize, 40u);
    EXPECT_EQ(gHeader.biWidth, 5);
    EXPECT_EQ(gHeader.biHeight, 6);
    EXPECT_EQ(gHeader.biPlanes, 1);
    EXPECT_EQ(gHeader.biBitCount, 32);
    EXPECT_EQ(gHeader.biCompression, 0u);
    EXPECT_EQ(gHeader.biSizeImage, 5u * 6 * 4);
}

TEST_F(CreationCalls, KeepTheBitmapWhereBothFail) {
    gSecond = gdiplus::WrongState;
    EXPECT_FALSE(object_->Create(5, 6));
    EXPECT_EQ(object_->Handle(), Handle<gdiplus::GpBitmap>(1));
    EXPECT_EQ(object_->Status, gdiplus::WrongState);
}

TEST_F(BitmapCalls, OfCreationTakeTheFirstWayThatWorks) {
    Renew();
    EXPECT_TRUE(object_->Create(5, 6));
    EXPECT_EQ(spy_.Taken(),
              "GdipCreateBitmapFromScan0(5, 6, 0, 2498570, 0, out); GdipDisposeImage(#1)");
}

TEST_F(BitmapCalls, OfClones) {
    int32_t width = 6, height = 7;
    const auto clone = [&](GpBitmap& b) {
        return b.Clone(4, 5, width, height, gdiplus::PixelFormat24bppRGB);
    };
    Are("GdipCloneBitmapArea(4, 5, 6, 7, 137224, #1, out)", clone);
    Renew();
    spy_.Store(kStored);
    width = 0;
    height = -1;
    clone(*object_);
    EXPECT_EQ(spy_.Taken().find("GdipGetImageWidth(#1, out); GdipGetImageHeight(#1, out); "
                                "GdipCloneBitmapArea(4, 5, 3, 3, 137224, #1, out)"),
              0u);
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 3);
}

TEST_F(BitmapCalls, ForItsImageAreMadeOnce) {
    Renew();
    const Ref<GpImage> image = object_->Image();
    EXPECT_EQ(spy_.Taken(), "GdipCloneImage(#1, out)");
    EXPECT_EQ(object_->Image(), image);
    EXPECT_EQ(spy_.Taken(), "");
    auto* other = Handle<gdiplus::GpBitmap>(6);
    object_->SetHandle(other);
    EXPECT_EQ(object_->Image(), image);
    EXPECT_EQ(spy_.Taken(), "") << "with an image the handle is only forgotten";
}

TEST_F(BitmapCalls, OfDisposalSpareTheHandleWhereThereIsAnImage) {
    Renew();
    object_->Image();
    spy_.Taken();
    object_->Dispose();
    EXPECT_EQ(spy_.Taken(), "GdipDisposeImage(#9)") << "the image's own";
    EXPECT_EQ(object_->Handle(), nullptr);
    Renew();
    object_->Dispose();
    EXPECT_EQ(spy_.Taken(), "GdipDisposeImage(#1)");
    object_->Dispose();
    EXPECT_EQ(spy_.Taken(), "");
}

TEST_F(BitmapCalls, OfDeviceBitmaps) {
    Are("GdipCreateHBITMAPFromBitmap(#1, out, 7)", [](GpBitmap& b) { return b.GetHBITMAP(7); });
    Are("GdipCreateHICONFromBitmap(#1, out)", [](GpBitmap& b) { return b.GetHICON(); });
}

TEST_F(BitmapCalls, OfPixels) {
    Are("GdipGetImageWidth(#1, out)", [](GpBitmap& b) { return b.Width(); });
    Are("GdipGetImageHeight(#1, out)", [](GpBitmap& b) { return b.Height(); });
    Are("GdipBitmapGetPixel(#1, 5, 6, out)", [](GpBitmap& b) { return b.GetPixel(5, 6); });
    Are("GdipBitmapSetPixel(#1, 5, 6, 7)", [](GpBitmap& b) { return b.SetPixel(5, 6, 7); });
    Are("GdipBitmapSetResolution(#1, 5, 6.5)",
        [](GpBitmap& b) { return b.SetResolution(5, 6.5f); });
}

TEST_F(BitmapCalls, OfLocks) {
    gdiplus::BitmapData data{};
    Are("GdipBitmapLockBits(#1, {4 5 6 7}, 1, 137224, out)", [&](GpBitmap& b) {
        return b.LockBits2(data, 4, 5, 6, 7, 1, gdiplus::PixelFormat24bppRGB);
    });
    Are("GdipBitmapLockBits(#1, {4 5 6 7}, 3, 2498570, out)",
        [&](GpBitmap& b) { return b.LockBits2(data, 4, 5, 6, 7); });
    Are("GdipBitmapLockBits(#1, {4 5 6 7}, 3, 2498570, out)",
        [](GpBitmap& b) { b.LockBits(4, 5, 6, 7); });
    Are("GdipBitmapLockBits(#1, {4 5 6 7}, 1, 137224, out)",
        [](GpBitmap& b) { b.LockBits(4, 5, 6, 7, 1, gdiplus::PixelFormat24bppRGB); });
    Are("GdipBitmapUnlockBits(#1, out)", [&](GpBitmap& b) { return b.UnlockBits(data); });
    Renew();
    spy_.Store(kStored);
    object_->LockBits();
    EXPECT_EQ(spy_.Taken(),
              "GdipGetImageWidth(#1, out); GdipGetImageHeight(#1, out); "
              "GdipBitmapLockBits(#1, {0 0 3 3}, 3, 2498570, out)");
    EXPECT_TRUE(object_->GaussianBlur(8, 9, 4, 5, 0, -1));
    EXPECT_EQ(spy_.Taken(),
              "GdipGetImageWidth(#1, out); GdipGetImageHeight(#1, out); "
              "GdipBitmapLockBits(#1, {4 5 3 3}, 3, 2498570, out); "
              "GdipBitmapUnlockBits(#1, out)");
}

TEST_F(BitmapCalls, OfFormatsAndPalettes) {
    gdiplus::ColorPalette palette{};
    Are("GdipBitmapConvertFormat(#1, 137224, 2, 3, out, 4.5)", [&](GpBitmap& b) {
        return b.ConvertFormat(gdiplus::PixelFormat24bppRGB, gdiplus::DitherTypeOrdered4x4,
                               gdiplus::PaletteTypeFixedHalftone8, &palette, 4.5f);
    });
    Are("GdipInitializePalette(out, 3, 16, 1, #1)", [&](GpBitmap& b) {
        return b.InitializePalette(&palette, gdiplus::PaletteTypeFixedHalftone8, 16, true);
    });
}

TEST_F(BitmapCalls, ThatAnswerTheStatusHaveTheHandleInFront) {
    gdi::RECT area{};
    int32_t size = 0;
    UINT counts[4]{}, entries = 0;
    Are("GdipBitmapApplyEffect(#1, #2, out, 1, 0, out)",
        [&](GpBitmap& b) { return b.ApplyEffect(effect_, &area, true, nullptr, &size); });
    Are("GdipBitmapGetHistogram(#1, 5, 6, out, out, out, 0)", [&](GpBitmap& b) {
        return b.GetHistogram(gdiplus::HistogramFormatG, 6, counts, counts + 1, counts + 2,
                              nullptr);
    });
    Are("GdipBitmapGetHistogramSize(#1, 5, out)",
        [&](GpBitmap& b) { return b.GetHistogramSize(gdiplus::HistogramFormatG, &entries); });
    EXPECT_EQ(entries, unsigned{kStored});
}

TEST_F(BitmapCalls, OfAnEffectGiveNoCountOfBitmaps) {
    const auto source = Handle<gdiplus::GpBitmap>(6);
    gdi::RECT area{}, place{};
    int32_t size = 0;
    for (const gdiplus::Status answer : {gdiplus::Ok, gdiplus::WrongState}) {
        Renew();
        spy_.Answer(answer);
        EXPECT_EQ(object_->CreateApplyEffect(source, effect_, &area, &place, true, nullptr, &size),
                  answer);
        const bool ok = answer == gdiplus::Ok;
        EXPECT_EQ(spy_.Taken(),
                  std::string("GdipBitmapCreateApplyEffect(#6, #2, out, out, out, 1, 0, out)") +
                      (ok ? "; GdipDisposeImage(#1)" : ""));
        EXPECT_EQ(object_->Handle(), HandleOf(ok ? 9 : 1));
        EXPECT_EQ(object_->Status, answer) << "kept as well as answered";
    }
}

class CachedBitmapCalls : public WrapperCalls<GpCachedBitmap> {};

TEST_F(CachedBitmapCalls, TakeTheHandlesOfBoth) {
    const Ref<GpBitmap> bitmap = New<GpBitmap>();
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    auto* pixels = Handle<gdiplus::GpBitmap>(6);
    auto* target = Handle<gdiplus::GpGraphics>(7);
    bitmap->SetHandle(pixels);
    graphics->SetHandle(target);
    Are("GdipCreateCachedBitmap(#6, #7, out); GdipDeleteCachedBitmap(#1)",
        [&](GpCachedBitmap& c) { return c.Create(bitmap, graphics); });
    Are("GdipDrawCachedBitmap(#7, #1, 4, 5)",
        [&](GpCachedBitmap& c) { return c.DrawCachedBitmap(graphics, 4, 5); });
}

}  // namespace
}  // namespace vxgui
