#include <cstring>

#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_icons.h"

namespace vxgui::gdiplus {
namespace {

class DeviceBitmaps : public BitmapTest {
protected:
    GpBitmap* FromDib(const gdi::BITMAPINFO* info, void* bits) {
        GpBitmap* bitmap = nullptr;
        EXPECT_EQ(GdipCreateBitmapFromGdiDib(info, bits, &bitmap), Ok);
        return Keep(bitmap);
    }
    static PixelFormat FormatOf(GpBitmap* bitmap) {
        PixelFormat format = 0;
        GdipGetImagePixelFormat(AsImage(bitmap), &format);
        return format;
    }
};

TEST_F(DeviceBitmaps, ADibIsUsedInItsPlace) {
    ARGB bits[4] = {0x00000001, 0x00000002, 0x00000003, 0x00000004};
    gdi::BITMAPINFO info = gdi::DibInfo(2, 2);
    GpBitmap* bitmap = FromDib(&info, bits);
    EXPECT_EQ(FormatOf(bitmap), PixelFormat32bppRGB);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFF000003, 0xFF000004, 0xFF000001, 0xFF000002}));
    GdipBitmapSetPixel(bitmap, 0, 0, 0xFF123456);
    EXPECT_EQ(bits[2] & 0xFFFFFF, 0x123456u);
    info.bmiHeader.biHeight = -2;
    EXPECT_EQ(Pixels(FromDib(&info, bits))[0], 0xFF000001);
}

TEST_F(DeviceBitmaps, ADibHasItsColours) {
    struct {
        gdi::BITMAPINFO info;
        gdi::RGBQUAD more[3];
    } dib{};
    dib.info = gdi::DibInfo(2, 1, 4);
    dib.info.bmiHeader.biClrUsed = 3;
    dib.info.bmiColors[0] = {1, 2, 3, 0};
    dib.more[0] = {4, 5, 6, 0};
    dib.more[1] = {7, 8, 9, 0};
    uint8_t bits[4] = {0x21};
    GpBitmap* bitmap = FromDib(&dib.info, bits);
    EXPECT_EQ(FormatOf(bitmap), PixelFormat4bppIndexed);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFF090807, 0xFF060504}));
}

TEST_F(DeviceBitmaps, ADibOfEachDepthHasItsFormat) {
    struct {
        gdi::BITMAPINFO info;
        gdi::RGBQUAD more[255];
    } dib{};
    uint8_t bits[4] = {};
    const auto format = [&](WORD depth, const gdi::RGBQUAD& first = {}) {
        dib.info = gdi::DibInfo(1, 1, depth);
        if (first.rgbGreen) dib.info.bmiHeader.biCompression = gdi::BI_BITFIELDS;
        dib.info.bmiColors[0] = first;
        return FormatOf(FromDib(&dib.info, bits));
    };
    EXPECT_EQ(format(1), PixelFormat1bppIndexed);
    EXPECT_EQ(format(8), PixelFormat8bppIndexed);
    EXPECT_EQ(format(16), PixelFormat16bppRGB555);
    EXPECT_EQ(format(16, {0, 0xF8, 0, 0}), PixelFormat16bppRGB565);  // the red mask, 0xF800
    EXPECT_EQ(format(16, {0, 0x7C, 0, 0}), PixelFormat16bppRGB555);
    EXPECT_EQ(format(24), PixelFormat24bppRGB);
}

TEST_F(DeviceBitmaps, RefusesWhatIsNoDib) {
    uint8_t bits[64] = {};
    GpBitmap* bitmap = nullptr;
    gdi::BITMAPINFO info = gdi::DibInfo(2, 2);
    EXPECT_EQ(GdipCreateBitmapFromGdiDib(nullptr, bits, &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromGdiDib(&info, nullptr, &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromGdiDib(&info, bits, nullptr), InvalidParameter);
    for (const WORD depth : {WORD{0}, WORD{2}, WORD{64}}) {
        info.bmiHeader.biBitCount = depth;
        EXPECT_EQ(GdipCreateBitmapFromGdiDib(&info, bits, &bitmap), InvalidParameter);
    }
    info = gdi::DibInfo(2, 2);
    info.bmiHeader.biCompression = 1;
    EXPECT_EQ(GdipCreateBitmapFromGdiDib(&info, bits, &bitmap), InvalidParameter);
    info = gdi::DibInfo(0, 2);
    EXPECT_EQ(GdipCreateBitmapFromGdiDib(&info, bits, &bitmap), InvalidParameter);
}

TEST_F(DeviceBitmaps, ADeviceBitmapIsCopiedInItsDepth) {
    for (const WORD depth : {WORD{24}, WORD{32}}) {
        uint8_t* bits = nullptr;
        const gdi::HBITMAP dib = gdi::CreateDib(1, 2, depth, &bits);
        bits[0] = 9;
        GpBitmap* bitmap = nullptr;
        ASSERT_EQ(GdipCreateBitmapFromHBITMAP(dib, nullptr, &bitmap), Ok);
        Keep(bitmap);
        EXPECT_EQ(FormatOf(bitmap), depth == 24 ? PixelFormat24bppRGB : PixelFormat32bppRGB);
        bits[0] = 10;
        EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFF000000, 0xFF000009}));
        gdi::DeleteObject(dib);
    }
    const uint8_t mono[] = {0x40, 0};
    const gdi::HBITMAP device = gdi::CreateBitmap(2, 1, 1, 1, mono);
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromHBITMAP(device, nullptr, &bitmap), Ok);
    EXPECT_EQ(FormatOf(Keep(bitmap)), PixelFormat1bppIndexed);
    EXPECT_EQ(Pixels(bitmap), (std::vector<ARGB>{0xFF000000, 0xFFFFFFFF}));
    gdi::DeleteObject(device);
    EXPECT_EQ(GdipCreateBitmapFromHBITMAP(device, nullptr, &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromHBITMAP(nullptr, nullptr, &bitmap), InvalidParameter);
}

TEST_F(DeviceBitmaps, GoThereAndBackAsAnIcon) {
    const std::vector<ARGB> pixels{0xFF102030, 0x80405060, 0x00000000, 0xFFFFFFFF};
    GpBitmap* bitmap = Make(2, 2, PixelFormat32bppARGB, pixels);
    gdi::HICON icon = nullptr;
    ASSERT_EQ(GdipCreateHICONFromBitmap(bitmap, &icon), Ok);
    GpBitmap* back = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromHICON(icon, &back), Ok);
    EXPECT_EQ(Pixels(Keep(back)), pixels);
    gdi::DestroyIcon(icon);
    EXPECT_EQ(GdipCreateBitmapFromHICON(icon, &back), InvalidParameter);
    EXPECT_EQ(GdipCreateHICONFromBitmap(nullptr, &icon), InvalidParameter);
    EXPECT_EQ(GdipCreateHICONFromBitmap(bitmap, nullptr), InvalidParameter);
}

TEST_F(DeviceBitmaps, AnIconsMaskMakesClear) {
    const uint8_t mask[] = {0x40, 0};
    uint8_t* bits = nullptr;
    const gdi::HBITMAP colors = gdi::CreateDib(2, 1, 24, &bits);
    std::memset(bits, 0x77, 6);
    const gdi::HBITMAP masked = gdi::CreateBitmap(2, 1, 1, 1, mask);
    const gdi::ICONINFO info{1, 0, 0, masked, colors};
    const gdi::HICON icon = gdi::CreateIconIndirect(&info);
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromHICON(icon, &bitmap), Ok);
    EXPECT_EQ(Pixels(Keep(bitmap)), (std::vector<ARGB>{0xFF777777, 0}));
    gdi::DestroyIcon(icon);
    gdi::DeleteObject(masked);
    gdi::DeleteObject(colors);
}

TEST_F(DeviceBitmaps, ThereAreNoDrawingSurfacesOfAnotherKind) {
    GpBitmap* bitmap = nullptr;
    int surface = 0;
    const GpStatus status = GdipCreateBitmapFromDirectDrawSurface(&surface, &bitmap);
    EXPECT_EQ(status, NotImplemented);
    EXPECT_EQ(bitmap, nullptr);
    EXPECT_EQ(GdipCreateBitmapFromDirectDrawSurface(nullptr, &bitmap), InvalidParameter);
}

TEST_F(DeviceBitmaps, AGraphicsGivesItsResolution) {
    GpBitmap* target = Make(2, 2, PixelFormat32bppARGB);
    GdipBitmapSetResolution(target, 30, 40);
    GpGraphics* graphics = nullptr;
    ASSERT_EQ(GdipGetImageGraphicsContext(AsImage(target), &graphics), Ok);
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromGraphics(5, 4, graphics, &bitmap), Ok);
    REAL dpi = 0;
    GdipGetImageVerticalResolution(AsImage(Keep(bitmap)), &dpi);
    EXPECT_EQ(dpi, 40);
    EXPECT_EQ(FormatOf(bitmap), PixelFormat32bppPARGB);
    EXPECT_EQ(GdipCreateBitmapFromGraphics(0, 4, graphics, &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromGraphics(5, 4, nullptr, &bitmap), InvalidParameter);
    GdipDeleteGraphics(graphics);
}

TEST_F(DeviceBitmaps, AResourceIsFoundByNameAndNumber) {
    std::vector<uint8_t> dib(40 + 4);
    const gdi::BITMAPINFO info = gdi::DibInfo(1, 1, 24);
    std::memcpy(dib.data(), &info, 40);
    dib[40] = 0x33;
    const kernel::ResourceBlock block{dib.data(), dib.size()};
    const ByteArray file =
        kernel::WriteResourceModule({{"#2", "FACE", block}, {"#2", "#7", block}}, true);
    const test::TemporaryFolder folder;
    const String path =
        folder.Write("pictures.dll", {reinterpret_cast<const char*>(file.data()), file.size()});
    const kernel::HMODULE module = kernel::TheKernel().LoadLibraryA(path.Utf8().c_str());
    ASSERT_TRUE(module);
    GpBitmap* bitmap = nullptr;
    ASSERT_EQ(GdipCreateBitmapFromResource(module, u"face", &bitmap), Ok);
    EXPECT_EQ(Pixels(Keep(bitmap)), (std::vector<ARGB>{0xFF000033}));
    ASSERT_EQ(GdipCreateBitmapFromResource(module, reinterpret_cast<const WCHAR*>(7), &bitmap), Ok);
    EXPECT_EQ(Pixels(Keep(bitmap)), (std::vector<ARGB>{0xFF000033}));
    EXPECT_EQ(GdipCreateBitmapFromResource(module, u"none", &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromResource(module, nullptr, &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromResource(nullptr, u"face", &bitmap), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
