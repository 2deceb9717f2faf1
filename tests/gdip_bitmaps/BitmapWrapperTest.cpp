#include <gtest/gtest.h>

#include "tests/support/Bitmaps.h"
#include "tests/support/Errors.h"
#include "tests/support/GdiplusSession.h"
#include "tests/support/Images.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpCachedBitmap.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_icons.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

constexpr gdiplus::ARGB kRed = 0xFFFF0000, kBlue = 0xFF0000FF;

TEST(BitmapValues, AreThePublishedOnes) {
    using namespace gdiplus;
    const PixelFormat formats[] = {
        PixelFormat1bppIndexed,    PixelFormat4bppIndexed, PixelFormat8bppIndexed,
        PixelFormat16bppGrayScale, PixelFormat16bppRGB555, PixelFormat16bppRGB565,
        PixelFormat16bppARGB1555,  PixelFormat24bppRGB,    PixelFormat32bppRGB,
        PixelFormat32bppARGB,      PixelFormat32bppPARGB,  PixelFormat48bppRGB,
        PixelFormat64bppARGB,      PixelFormat64bppPARGB,  PixelFormat32bppCMYK};
    const int32_t bits[] = {1, 4, 8, 16, 16, 16, 16, 24, 32, 32, 32, 48, 64, 64, 32};
    for (int32_t i = 0; i < 15; ++i) {
        EXPECT_EQ(formats[i] & 0xFF, i + 1) << "they are counted through";
        EXPECT_EQ(formats[i] >> 8 & 0xFF, bits[i]);
    }
    EXPECT_EQ(PixelFormat32bppARGB, 2498570);
    EXPECT_EQ(PixelFormat32bppPARGB, 925707);
    EXPECT_EQ(PixelFormat24bppRGB, 137224);
    EXPECT_EQ(DitherTypeNone, 0);
    EXPECT_EQ(DitherTypeOrdered4x4, 2);
    EXPECT_EQ(DitherTypeDualSpiral8x8, 8);
    EXPECT_EQ(DitherTypeErrorDiffusion, 9);
    EXPECT_EQ(PaletteTypeCustom, 0);
    EXPECT_EQ(PaletteTypeOptimal, 1);
    EXPECT_EQ(PaletteTypeFixedHalftone8, 3);
    EXPECT_EQ(PaletteTypeFixedHalftone256, 9);
    EXPECT_EQ(HistogramFormatARGB, 0);
    EXPECT_EQ(HistogramFormatPARGB, 1);
    EXPECT_EQ(HistogramFormatGray, 3);
    EXPECT_EQ(HistogramFormatB, 4);
    EXPECT_EQ(HistogramFormatA, 7);
}

class BitmapWrapper : public testing::Test {
protected:
    static Ref<GpBitmap> Make(int32_t width = 3, int32_t height = 2) {
        Ref<GpBitmap> bitmap = New<GpBitmap>();
        EXPECT_TRUE(bitmap->Create(width, height));
        return bitmap;
    }

    test::GdiplusSession session_;
};

TEST_F(BitmapWrapper, IsCreatedWith32Bits) {
    const Ref<GpBitmap> bitmap = Make();
    EXPECT_EQ(bitmap->Width(), 3);
    EXPECT_EQ(bitmap->Height(), 2);
    EXPECT_EQ(bitmap->Image()->PixelFormat(), 2498570);
    EXPECT_EQ(bitmap->GetPixel(0, 0), 0u);
    EXPECT_TRUE(bitmap->SetPixel(2, 1, kRed));
    EXPECT_EQ(bitmap->GetPixel(2, 1), kRed);
}

TEST_F(BitmapWrapper, AFailedCreationKeepsWhatThereWas) {
    const Ref<GpBitmap> bitmap = Make();
    const auto* handle = bitmap->Handle();
    EXPECT_FALSE(bitmap->Create(0, 5));
    EXPECT_FALSE(bitmap->Create(1 << 20, 1 << 20));
    EXPECT_EQ(bitmap->FromFile("/none"), nullptr);
    EXPECT_FALSE(bitmap->FromScan0(1, 1, 0, 77, nullptr));
    EXPECT_EQ(bitmap->Handle(), handle);
    EXPECT_EQ(bitmap->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(bitmap->Width(), 3);
    EXPECT_EQ(bitmap->Status, gdiplus::InvalidParameter);
}

TEST_F(BitmapWrapper, ItsImageIsClonedOnce) {
    const Ref<GpBitmap> bitmap = Make();
    const Ref<GpImage> image = bitmap->Image();
    EXPECT_EQ(bitmap->Image(), image);
    EXPECT_NE(static_cast<void*>(image->Handle()), static_cast<void*>(bitmap->Handle()));
    gdiplus::GpBitmap* other = nullptr;
    ASSERT_EQ(
        gdiplus::GdipCreateBitmapFromScan0(9, 9, 0, gdiplus::PixelFormat24bppRGB, nullptr, &other),
        gdiplus::Ok);
    bitmap->SetHandle(other);
    EXPECT_EQ(bitmap->Handle(), other);
    EXPECT_EQ(bitmap->Image(), image);
    EXPECT_EQ(image->Width(), 3);
}

TEST_F(BitmapWrapper, WithAnImageItsHandleIsOnlyForgotten) {
    const Ref<GpBitmap> bitmap = Make();
    gdiplus::GpBitmap* handle = bitmap->Handle();
    const Ref<GpImage> image = bitmap->Image();
    bitmap->Dispose();
    EXPECT_EQ(bitmap->Handle(), nullptr);
    EXPECT_EQ(image->Width(), 3) << "who holds the image keeps it";
    UINT width = 0;
    auto* forgotten = reinterpret_cast<gdiplus::GpImage*>(handle);
    EXPECT_EQ(gdiplus::GdipGetImageWidth(forgotten, &width), gdiplus::Ok);
    gdiplus::GdipDisposeImage(forgotten);

    const Ref<GpBitmap> plain = Make();
    auto* deleted = reinterpret_cast<gdiplus::GpImage*>(plain->Handle());
    plain->Dispose();
    EXPECT_EQ(gdiplus::GdipGetImageWidth(deleted, &width), gdiplus::InvalidParameter);
}

TEST_F(BitmapWrapper, ACloneOfNoSizeIsTheWhole) {
    const Ref<GpBitmap> bitmap = Make();
    bitmap->SetPixel(1, 1, kBlue);
    int32_t width = 0, height = -1;
    const Ref<GpBitmap> clone = bitmap->Clone(0, 0, width, height, gdiplus::PixelFormat24bppRGB);
    EXPECT_EQ(width, 3);
    EXPECT_EQ(height, 2);
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->GetPixel(1, 1), kBlue);
    EXPECT_EQ(bitmap->Clone(2, 0, width, height, gdiplus::PixelFormat24bppRGB), nullptr);
    EXPECT_EQ(bitmap->Status, gdiplus::OutOfMemory);
}

TEST_F(BitmapWrapper, IsReadFromFilesStreamsAndMemory) {
    const ByteArray bytes = test::ReadTestFile("images/png-rgb-8.png");
    for (const bool managed : {false, true}) {
        const Ref<GpBitmap> bitmap = New<GpBitmap>();
        EXPECT_NE(bitmap->FromFile(test::ImagePath("png-rgb-8.png"), managed), nullptr);
        EXPECT_NE(bitmap->FromStream(ole::CreateStreamOnHGlobal(bytes).get(), managed), nullptr);
        EXPECT_NE(bitmap->FromMemAddr(bytes.data(), static_cast<int32_t>(bytes.size()), managed),
                  nullptr);
        const auto* handle = bitmap->FromByteArray(bytes, managed);
        EXPECT_EQ(bitmap->Handle(), handle);
        EXPECT_EQ(bitmap->Width(), 13);
        EXPECT_EQ(bitmap->FromByteArray({}), nullptr);
        EXPECT_EQ(bitmap->FromMemAddr(nullptr, 1), nullptr);
        EXPECT_EQ(bitmap->Width(), 13);
    }
}

TEST_F(BitmapWrapper, IsMadeOverMemoryDibsAndDeviceBitmaps) {
    const Ref<GpBitmap> bitmap = New<GpBitmap>();
    uint32_t memory[2] = {kRed, kBlue};
    ASSERT_TRUE(
        bitmap->FromScan0(2, 1, 8, gdiplus::PixelFormat32bppARGB, reinterpret_cast<BYTE*>(memory)));
    EXPECT_EQ(bitmap->GetPixel(1, 0), kBlue);
    const gdi::BITMAPINFO info = gdi::DibInfo(1, 2);
    ASSERT_TRUE(bitmap->FromGdiDib(&info, memory));
    EXPECT_EQ(bitmap->GetPixel(0, 0), kBlue);
    const gdi::HBITMAP device = bitmap->GetHBITMAP(0);
    ASSERT_TRUE(bitmap->FromHBITMAP(device));
    EXPECT_EQ(bitmap->GetPixel(0, 1), kRed);
    gdi::DeleteObject(device);
    const gdi::HICON icon = bitmap->GetHICON();
    ASSERT_TRUE(bitmap->FromHICON(icon));
    EXPECT_EQ(bitmap->GetPixel(0, 1), kRed);
    gdi::DestroyIcon(icon);
    EXPECT_FALSE(bitmap->FromDirectDrawSurface7(memory));
    EXPECT_EQ(bitmap->Status, gdiplus::NotImplemented);
    EXPECT_FALSE(bitmap->FromResource(nullptr, "face"));
}

TEST_F(BitmapWrapper, AGraphicsGivesItsResolution) {
    const Ref<GpBitmap> target = Make();
    target->SetResolution(30, 40);
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    ASSERT_TRUE(graphics->FromImage(reinterpret_cast<gdiplus::GpImage*>(target->Handle())));
    const Ref<GpBitmap> bitmap = New<GpBitmap>();
    ASSERT_TRUE(bitmap->FromGraphics(4, 4, graphics->Handle()));
    EXPECT_EQ(bitmap->Image()->HorizontalResolution(), 30);
    EXPECT_EQ(bitmap->Image()->VerticalResolution(), 40);
    EXPECT_FALSE(bitmap->FromGraphics(4, 4, nullptr));
    EXPECT_FALSE(bitmap->FromGraphics(0, 4, graphics->Handle()));
}

TEST_F(BitmapWrapper, AsAPictureItLiesOverTheBackground) {
    const Ref<GpBitmap> bitmap = Make(1, 1);
    const Ref<ole::Picture> picture = bitmap->Picture(0x00FF8040);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Type(), 1);
    EXPECT_EQ(test::PictureOf(static_cast<gdi::HBITMAP>(picture->Handle())).pixels[0], 0x00FF8040u);
    EXPECT_EQ(New<GpBitmap>()->Picture(0), nullptr);
}

TEST_F(BitmapWrapper, LocksItsWholeWhereNoSizeIsSaid) {
    const Ref<GpBitmap> bitmap = Make();
    gdiplus::BitmapData data = bitmap->LockBits();
    EXPECT_EQ(data.Width, 3u);
    EXPECT_EQ(data.Height, 2u);
    EXPECT_EQ(data.PixelFormat, 2498570);
    static_cast<uint32_t*>(data.Scan0)[4] = kRed;
    EXPECT_EQ(bitmap->LockBits().Scan0, nullptr) << "one at a time";
    EXPECT_EQ(bitmap->Status, gdiplus::WrongState);
    EXPECT_TRUE(bitmap->UnlockBits(data));
    EXPECT_EQ(bitmap->GetPixel(1, 1), kRed);
    gdiplus::BitmapData own{};
    ASSERT_TRUE(bitmap->LockBits2(own, 1, 1, 1, -5, 1, gdiplus::PixelFormat24bppRGB) == false)
        << "the bitmap's own height leaves it";
    ASSERT_TRUE(bitmap->LockBits2(own, 1, 0, 1, 2, 1, gdiplus::PixelFormat24bppRGB));
    EXPECT_EQ(static_cast<uint8_t*>(own.Scan0)[static_cast<size_t>(own.Stride) + 2], 255);
    EXPECT_TRUE(bitmap->UnlockBits(own));
    EXPECT_FALSE(bitmap->UnlockBits(own));
}

TEST_F(BitmapWrapper, ItsBlurMarksEdges) {
    const Ref<GpBitmap> bitmap = Make(5, 5);
    for (int32_t i = 0; i < 25; ++i) bitmap->SetPixel(i % 5, i / 5, 0xFF408020);
    EXPECT_TRUE(bitmap->GaussianBlur());
    EXPECT_EQ(bitmap->GetPixel(2, 2), 0u) << "a uniform picture has no edges inside";
    EXPECT_EQ(bitmap->GetPixel(0, 0), 0xFF408020);
    EXPECT_FALSE(New<GpBitmap>()->GaussianBlur());
}

TEST_F(BitmapWrapper, ConvertsAndCounts) {
    const Ref<GpBitmap> bitmap = Make();
    EXPECT_TRUE(bitmap->ConvertFormat(gdiplus::PixelFormat24bppRGB, gdiplus::DitherTypeNone,
                                      gdiplus::PaletteTypeCustom, nullptr, 0));
    EXPECT_FALSE(
        bitmap->ConvertFormat(1, gdiplus::DitherTypeNone, gdiplus::PaletteTypeCustom, nullptr, 0));
    uint32_t buffer[18] = {0, 16};
    auto* palette = reinterpret_cast<gdiplus::ColorPalette*>(buffer);
    EXPECT_TRUE(bitmap->InitializePalette(palette, gdiplus::PaletteTypeOptimal, 16, false));
    EXPECT_EQ(palette->Count, 1u);
    bitmap->Status = gdiplus::Ok;
    UINT entries = 0;
    EXPECT_EQ(bitmap->GetHistogramSize(gdiplus::HistogramFormatR, &entries), gdiplus::Ok);
    std::vector<UINT> counts(entries);
    EXPECT_EQ(bitmap->GetHistogram(gdiplus::HistogramFormatR, entries, counts.data(), nullptr,
                                   nullptr, nullptr),
              gdiplus::Ok);
    EXPECT_EQ(counts[0], 6u);
    EXPECT_EQ(bitmap->GetHistogram(gdiplus::HistogramFormatR, 5, counts.data(), nullptr, nullptr,
                                   nullptr),
              gdiplus::InvalidParameter);
    EXPECT_EQ(bitmap->Status, gdiplus::Ok) << "what answers a status doesn't keep it";
}

// The class id of the brightness and contrast effect.
constexpr gdiplus::GUID kBrightness = {
    0xD3A1DBE1, 0x8EC4, 0x4C17, {0x9F, 0x4C, 0xEA, 0x97, 0xAD, 0x1C, 0x34, 0x3D}};

TEST_F(BitmapWrapper, TakesEffects) {
    gdiplus::CGpEffect* effect = nullptr;
    ASSERT_EQ(gdiplus::GdipCreateEffect(kBrightness, &effect), gdiplus::Ok);
    const int32_t brighter[2] = {255, 0};
    ASSERT_EQ(gdiplus::GdipSetEffectParameters(effect, brighter, sizeof brighter), gdiplus::Ok);
    const Ref<GpBitmap> bitmap = Make();
    bitmap->SetPixel(0, 0, 0xFF404040);
    const Ref<GpBitmap> result = New<GpBitmap>();
    EXPECT_EQ(result->CreateApplyEffect(bitmap->Handle(), effect, nullptr, nullptr, false, nullptr,
                                        nullptr),
              gdiplus::Ok);
    EXPECT_EQ(result->GetPixel(0, 0), 0xFFFFFFFF);
    EXPECT_EQ(bitmap->GetPixel(0, 0), 0xFF404040);
    EXPECT_EQ(bitmap->ApplyEffect(effect, nullptr, false, nullptr, nullptr), gdiplus::Ok);
    EXPECT_EQ(bitmap->GetPixel(0, 0), 0xFFFFFFFF);
    const auto* handle = result->Handle();
    EXPECT_EQ(result->CreateApplyEffect(nullptr, effect, nullptr, nullptr, false, nullptr, nullptr),
              gdiplus::InvalidParameter);
    EXPECT_EQ(result->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(result->Handle(), handle);
    EXPECT_EQ(bitmap->ApplyEffect(nullptr, nullptr, false, nullptr, nullptr),
              gdiplus::InvalidParameter);
    EXPECT_EQ(bitmap->Status, gdiplus::Ok) << "a status that is answered isn't kept";
    gdiplus::GdipDeleteEffect(effect);
}

TEST_F(BitmapWrapper, ACachedOneIsDrawnAnywhere) {
    const Ref<GpBitmap> target = Make(4, 4), small = Make(1, 1);
    small->SetPixel(0, 0, kRed);
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    ASSERT_TRUE(graphics->FromImage(reinterpret_cast<gdiplus::GpImage*>(target->Handle())));
    const Ref<GpCachedBitmap> cached = New<GpCachedBitmap>();
    ASSERT_TRUE(cached->Create(small, graphics));
    EXPECT_TRUE(cached->DrawCachedBitmap(graphics, 2, 3));
    EXPECT_EQ(target->GetPixel(2, 3), kRed);
    cached->Dispose();
    EXPECT_EQ(cached->Handle(), nullptr);
    EXPECT_FALSE(cached->DrawCachedBitmap(graphics, 0, 0));
    EXPECT_FALSE(cached->Create(New<GpBitmap>(), graphics));
    EXPECT_EQ(cached->Status, gdiplus::InvalidParameter);
    EXPECT_THROW(cached->Create(nullptr, graphics), Error);
    EXPECT_THROW(cached->DrawCachedBitmap(nullptr, 0, 0), Error);
}

TEST_F(BitmapWrapper, IsTakenBySurfaces) {
    const Ref<GpBitmap> bitmap = Make();
    bitmap->SetPixel(0, 0, kRed);
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->FromGpBitmap(bitmap));
    EXPECT_EQ(static_cast<uint32_t>(surface->GetPixel(0, 1)), kRed) << "it stands on its head";
    EXPECT_FALSE(surface->FromGpBitmap(bitmap, 3, 0));
    EXPECT_THROW(surface->FromGpBitmap(nullptr), Error);
}

}  // namespace
}  // namespace vxgui
