#include "tests/platform/gdiplus_bitmaps/BitmapFixture.h"
#include "tests/support/Images.h"

namespace vxgui::gdiplus {
namespace {

class Load : public BitmapTest {
protected:
    GpImage* FromFile(const std::string& file) {
        GpImage* image = nullptr;
        EXPECT_EQ(GdipLoadImageFromFile(String(test::ImagePath(file)).data(), &image), Ok) << file;
        Keep(reinterpret_cast<GpBitmap*>(image));
        return image;
    }
    static test::TestPicture PictureOf(GpImage* image) {
        UINT width = 0, height = 0;
        GdipGetImageWidth(image, &width);
        GdipGetImageHeight(image, &height);
        return {static_cast<int>(width), static_cast<int>(height),
                Pixels(reinterpret_cast<GpBitmap*>(image))};
    }
};

struct File {
    const char* name;
    PixelFormat format;
    const GUID& rawFormat;
    int tolerance = 0;
};

const File kFiles[] = {
    {"bmp-1.bmp", PixelFormat1bppIndexed, ImageFormatBMP},
    {"bmp-4.bmp", PixelFormat4bppIndexed, ImageFormatBMP},
    {"bmp-4-core.bmp", PixelFormat4bppIndexed, ImageFormatBMP},
    {"bmp-4-rle.bmp", PixelFormat4bppIndexed, ImageFormatBMP},
    {"bmp-8.bmp", PixelFormat8bppIndexed, ImageFormatBMP},
    {"bmp-8-rle.bmp", PixelFormat8bppIndexed, ImageFormatBMP},
    {"bmp-8-rle-jump.bmp", PixelFormat8bppIndexed, ImageFormatBMP},
    {"bmp-16-555.bmp", PixelFormat16bppRGB555, ImageFormatBMP, 1},
    {"bmp-16-565.bmp", PixelFormat16bppRGB565, ImageFormatBMP, 1},
    {"bmp-16-4444.bmp", PixelFormat32bppARGB, ImageFormatBMP},
    {"bmp-16-1555.bmp", PixelFormat32bppARGB, ImageFormatBMP, 1},
    {"bmp-24.bmp", PixelFormat24bppRGB, ImageFormatBMP},
    {"bmp-24-core.bmp", PixelFormat24bppRGB, ImageFormatBMP},
    {"bmp-24-topdown.bmp", PixelFormat24bppRGB, ImageFormatBMP},
    {"bmp-32-masks.bmp", PixelFormat32bppRGB, ImageFormatBMP, 1},
    {"bmp-32-v4-alpha.bmp", PixelFormat32bppARGB, ImageFormatBMP},
    {"bmp-32-v5-alpha.bmp", PixelFormat32bppARGB, ImageFormatBMP},
    {"gif-87.gif", PixelFormat8bppIndexed, ImageFormatGIF},
    {"gif-89.gif", PixelFormat8bppIndexed, ImageFormatGIF},
    {"gif-animated.gif", PixelFormat8bppIndexed, ImageFormatGIF},
    {"gif-interlaced.gif", PixelFormat8bppIndexed, ImageFormatGIF},
    {"gif-transparent.gif", PixelFormat8bppIndexed, ImageFormatGIF},
    {"ico-32.ico", PixelFormat32bppARGB, ImageFormatIcon},
    {"ico-4.ico", PixelFormat32bppARGB, ImageFormatIcon},
    {"ico-png.ico", PixelFormat32bppARGB, ImageFormatIcon},
    {"jpeg-420.jpg", PixelFormat24bppRGB, ImageFormatJPEG, 2},
    {"jpeg-444.jpg", PixelFormat24bppRGB, ImageFormatJPEG, 2},
    {"jpeg-cmyk.jpg", PixelFormat24bppRGB, ImageFormatJPEG, 2},
    {"jpeg-grey.jpg", PixelFormat8bppIndexed, ImageFormatJPEG, 2},
    {"jpeg-progressive.jpg", PixelFormat24bppRGB, ImageFormatJPEG, 2},
    {"png-grey-1.png", PixelFormat1bppIndexed, ImageFormatPNG},
    {"png-grey-2.png", PixelFormat4bppIndexed, ImageFormatPNG},
    {"png-grey-2-interlaced.png", PixelFormat4bppIndexed, ImageFormatPNG},
    {"png-grey-4.png", PixelFormat4bppIndexed, ImageFormatPNG},
    {"png-grey-8.png", PixelFormat8bppIndexed, ImageFormatPNG},
    {"png-grey-16.png", PixelFormat8bppIndexed, ImageFormatPNG},
    {"png-grey-key.png", PixelFormat8bppIndexed, ImageFormatPNG},
    {"png-grey-alpha-8.png", PixelFormat32bppARGB, ImageFormatPNG},
    {"png-grey-alpha-16.png", PixelFormat32bppARGB, ImageFormatPNG},
    {"png-palette-1.png", PixelFormat1bppIndexed, ImageFormatPNG},
    {"png-palette-2.png", PixelFormat4bppIndexed, ImageFormatPNG},
    {"png-palette-4.png", PixelFormat4bppIndexed, ImageFormatPNG},
    {"png-palette-8.png", PixelFormat8bppIndexed, ImageFormatPNG},
    {"png-palette-alpha.png", PixelFormat8bppIndexed, ImageFormatPNG},
    {"png-rgb-8.png", PixelFormat24bppRGB, ImageFormatPNG},
    {"png-rgb-16.png", PixelFormat24bppRGB, ImageFormatPNG},
    {"png-rgb-key.png", PixelFormat32bppARGB, ImageFormatPNG},
    {"png-rgba-8.png", PixelFormat32bppARGB, ImageFormatPNG},
    {"png-rgba-16.png", PixelFormat32bppARGB, ImageFormatPNG},
    {"png-rgba-8-interlaced.png", PixelFormat32bppARGB, ImageFormatPNG},
    {"tiff-g4.tif", PixelFormat1bppIndexed, ImageFormatTIFF},
    {"tiff-grey-16.tif", PixelFormat8bppIndexed, ImageFormatTIFF},
    {"tiff-palette.tif", PixelFormat8bppIndexed, ImageFormatTIFF},
    {"tiff-rgb.tif", PixelFormat24bppRGB, ImageFormatTIFF},
    {"tiff-rgb-lzw.tif", PixelFormat24bppRGB, ImageFormatTIFF},
    {"tiff-rgb-msb.tif", PixelFormat24bppRGB, ImageFormatTIFF},
    {"tiff-rgb-tiled.tif", PixelFormat24bppRGB, ImageFormatTIFF},
    {"tiff-rgba.tif", PixelFormat32bppARGB, ImageFormatTIFF},
    {"tiff-rgba-associated.tif", PixelFormat32bppARGB, ImageFormatTIFF, 1},
};

// Colours count only where something of them is seen.
test::TestPicture Seen(test::TestPicture picture) {
    for (uint32_t& pixel : picture.pixels) pixel = pixel >> 24 ? pixel : 0;
    return picture;
}

TEST_F(Load, KeepsThePixelsAndTheirFormat) {
    for (const File& file : kFiles) {
        GpImage* image = FromFile(file.name);
        PixelFormat format = 0;
        GdipGetImagePixelFormat(image, &format);
        EXPECT_EQ(format, file.format) << file.name;
        GUID raw{};
        GdipGetImageRawFormat(image, &raw);
        EXPECT_EQ(raw, file.rawFormat) << file.name;
        const test::TestPicture expected = Seen(test::ExpectedImage(file.name));
        const test::TestPicture actual = Seen(PictureOf(image));
        EXPECT_TRUE(test::ComparePictures(actual, expected, file.tolerance).Equal()) << file.name;
    }
}

// Nothing of a truncated or altered file leads out of it, neither by its pixels nor by what it says
// of itself.
TEST_F(Load, DamageEndsWithoutHarm) {
    for (const File& file : kFiles) {
        const std::vector<uint8_t> whole = test::ReadTestFile(std::string("images/") + file.name);
        for (size_t i = 0; i < whole.size(); i += 1 + whole.size() / 40) {
            std::vector<uint8_t> altered = whole;
            altered[i] ^= 0x80;
            for (const auto& bytes :
                 {std::vector<uint8_t>(whole.begin(), whole.begin() + static_cast<ptrdiff_t>(i)),
                  altered}) {
                GpImage* image = nullptr;
                const GpStatus status =
                    GdipLoadImageFromStream(ole::CreateStreamOnHGlobal(bytes).get(), &image);
                EXPECT_TRUE(status == Ok || status == OutOfMemory) << file.name;
                if (image) GdipDisposeImage(image);
            }
        }
    }
}

TEST_F(Load, TellsOfTheFileInFlags) {
    struct Case {
        const char* name;
        UINT space;
        bool alpha;
    };
    for (const Case& each : {Case{"jpeg-grey.jpg", ImageFlagsColorSpaceGRAY, false},
                             Case{"jpeg-444.jpg", ImageFlagsColorSpaceRGB, false},
                             Case{"png-rgba-8.png", ImageFlagsColorSpaceRGB, true},
                             Case{"gif-transparent.gif", ImageFlagsColorSpaceRGB, true},
                             Case{"png-palette-8.png", ImageFlagsColorSpaceRGB, false}}) {
        UINT flags = 0;
        EXPECT_EQ(GdipGetImageFlags(FromFile(each.name), &flags), Ok);
        const UINT always = ImageFlagsReadOnly | ImageFlagsHasRealPixelSize;
        EXPECT_EQ(flags & ~static_cast<UINT>(ImageFlagsHasRealDPI),
                  always | each.space | (each.alpha ? UINT{ImageFlagsHasAlpha} : 0u))
            << each.name;
    }
    UINT flags = 0;
    GdipGetImageFlags(FromFile("jpeg-cmyk.jpg"), &flags);
    EXPECT_TRUE(flags & (ImageFlagsColorSpaceCMYK | ImageFlagsColorSpaceYCCK));
}

TEST_F(Load, EveryWayGivesTheSame) {
    const String path = test::ImagePath("png-rgb-8.png");
    const Ref<ole::IStream> stream =
        ole::CreateStreamOnHGlobal(test::ReadTestFile("images/png-rgb-8.png"));
    const std::vector<ARGB> expected = test::ExpectedImage("png-rgb-8.png").pixels;
    GpImage* image = nullptr;
    const auto expectImage = [&](GpStatus status) {
        EXPECT_EQ(status, Ok);
        EXPECT_EQ(Pixels(Keep(reinterpret_cast<GpBitmap*>(image))), expected);
    };
    expectImage(GdipLoadImageFromFileICM(path.data(), &image));
    expectImage(GdipLoadImageFromStream(stream.get(), &image));
    expectImage(GdipLoadImageFromStreamICM(stream.get(), &image));
    GpBitmap* bitmap = nullptr;
    const auto expectBitmap = [&](GpStatus status) {
        EXPECT_EQ(status, Ok);
        EXPECT_EQ(Pixels(Keep(bitmap)), expected);
    };
    expectBitmap(GdipCreateBitmapFromFileICM(path.data(), &bitmap));
    expectBitmap(GdipCreateBitmapFromStreamICM(stream.get(), &bitmap));
}

TEST_F(Load, TellsWhyThereIsNone) {
    const String missing = test::ImagePath("none.png");
    const Ref<ole::IStream> empty = ole::CreateStreamOnHGlobal();
    GpImage* image = nullptr;
    EXPECT_EQ(GdipLoadImageFromFileICM(missing.data(), &image), FileNotFound);
    EXPECT_EQ(GdipLoadImageFromStream(empty.get(), &image), OutOfMemory);
    EXPECT_EQ(GdipLoadImageFromStream(nullptr, &image), InvalidParameter);
    EXPECT_EQ(GdipLoadImageFromStreamICM(nullptr, &image), InvalidParameter);
    GpBitmap* bitmap = nullptr;
    EXPECT_EQ(GdipCreateBitmapFromFileICM(missing.data(), &bitmap), InvalidParameter);
    EXPECT_EQ(GdipCreateBitmapFromStreamICM(empty.get(), &bitmap), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
