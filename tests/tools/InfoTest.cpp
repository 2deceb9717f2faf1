#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/SampleSurface.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"

namespace vxgui::tool {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

std::string InfoOf(const std::string& path) {
    const Result result = Call({"info", path});
    EXPECT_EQ(result.status, 0) << result.errors;
    return result.out;
}

TEST(Info, PicturesAreToldByKindDepthAndAlpha) {
    const std::pair<const char*, const char*> pictures[] = {
        {"bmp-1.bmp", "BMP 1 no alpha"},
        {"bmp-24-core.bmp", "BMP 24 no alpha"},
        {"bmp-32-v4-alpha.bmp", "BMP 32 alpha"},
        {"png-grey-16.png", "PNG 16 no alpha"},
        {"png-rgb-8.png", "PNG 24 no alpha"},
        {"png-rgba-16.png", "PNG 64 alpha"},
        {"png-grey-alpha-8.png", "PNG 16 alpha"},
        {"jpeg-444.jpg", "JPEG 24 no alpha"},
        {"jpeg-progressive.jpg", "JPEG 24 no alpha"},
        {"jpeg-grey.jpg", "JPEG 8 no alpha"},
        {"jpeg-cmyk.jpg", "JPEG 32 no alpha"},
        {"gif-transparent.gif", "GIF * alpha"},
        {"tiff-rgb.tif", "TIFF 24 no alpha"},
        {"tiff-rgb-msb.tif", "TIFF 24 no alpha"},
        {"tiff-grey-16.tif", "TIFF 16 no alpha"},
        {"tiff-g4.tif", "TIFF 1 no alpha"},
        {"tiff-rgba.tif", "TIFF 32 alpha"},
        {"tga-24.tga", "TGA 24 no alpha"},
        {"tga-32.tga", "TGA 32 alpha"},
        {"tga-palette.tga", "TGA 8 no alpha"},
    };
    for (const auto& [name, expected] : pictures) {
        const std::string line = InfoOf(kImages + name);
        std::istringstream words(expected);
        std::string kind, depth, alpha;
        words >> kind >> depth;
        std::getline(words, alpha);
        EXPECT_THAT(line, HasSubstr(kImages + name + ": " + kind + ", ")) << name;
        if (depth != "*") {
            EXPECT_THAT(line, HasSubstr(", " + depth + " bits a pixel")) << name;
        }
        EXPECT_THAT(line, EndsWith("," + alpha + "\n")) << name;
    }
    EXPECT_THAT(InfoOf(SamplePng("sample.png")), HasSubstr(": PNG, 5x3, 32 bits a pixel, alpha\n"));
}

TEST(Info, ASurfaceIsToldWithItsHeader) {
    const auto surface = SurfaceWith(SamplePicture());
    surface->TransparentColor(0x563412);  // blue highest
    surface->PreMultiplyAlpha();
    surface->UseDrawDib(false);
    const ByteArray plain = Serialized(*surface, 7);
    const std::string path = WriteBytes("told.adib", plain);
    EXPECT_EQ(InfoOf(path), path +
                                ": serialized surface, 5x3, 32 bits a pixel, alpha\n"
                                "  version 2, flags 7, not compressed\n"
                                "  surface flags 0x80000002, UseMsImag32, premultiplied\n"
                                "  key colour #123456\n"
                                "  pixels 60 bytes, bottom row first\n");
    const ByteArray packed = core7::Compress(plain);
    EXPECT_THAT(InfoOf(WriteBytes("packed.adib", packed)),
                HasSubstr("compressed, " + std::to_string(packed.size()) + " bytes for 120\n"));
}

TEST(Info, ABagIsToldValueByValue) {
    auto bag = New<ole::PropertyBag>();
    bag->WriteProperty("Caption", "Button");
    bag->WriteProperty("Frames", -6);
    bag->WriteProperty("Visible", true);
    bag->WriteProperty("Half", 0.5f);
    bag->WriteProperty("Tenth", 0.1);
    bag->WriteProperty("Bytes", ByteArray{1, 2, 3});
    SurfaceWith(SamplePicture())->WriteProperties(bag, 0);
    const std::string path = WriteBytes("told.bag", bag->Contents());
    EXPECT_EQ(InfoOf(path), path +
                                ": property bag, 8 values\n"
                                "  Caption: text, 6 characters\n"
                                "  Frames: 32-bit integer, -6\n"
                                "  Visible: Boolean, true\n"
                                "  Half: float, 4 bytes\n"
                                "  Tenth: float, 8 bytes\n"
                                "  Bytes: byte array, 3 bytes\n"
                                "  cAlphaDIBSection_compressed: 32-bit integer, 0\n"
                                "  cAlphaDIBSection: byte array, 120 bytes\n"
                                "    serialized surface, 5x3, 32 bits a pixel, alpha\n"
                                "    version 2, flags 0, not compressed\n"
                                "    surface flags 0x00000003, UseDrawDib, UseMsImag32\n"
                                "    key colour #FF00FF\n"
                                "    pixels 60 bytes, bottom row first\n");
    EXPECT_THAT(InfoOf(WriteBytes("one.bag", BagWith(SurfaceWith(SamplePicture()), 1))),
                HasSubstr("    version 2, flags 1, compressed, "));
}

TEST(Info, BadFilesAreNamedAndTheOthersTold) {
    ByteArray cut = Serialized(*SurfaceWith(SamplePicture()));
    cut.pop_back();
    const std::string bad = WriteBytes("bad.adib", cut), good = SamplePng("good.png");
    const Result result = Call({"info", bad, "/nowhere/x.png", good});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, good + ": PNG, 5x3, 32 bits a pixel, alpha\n");
    EXPECT_THAT(result.errors, HasSubstr(bad + ": error: the serialized surface is damaged"));
    EXPECT_THAT(result.errors, HasSubstr("60 was expected, 59 found"));
    EXPECT_THAT(result.errors, HasSubstr("/nowhere/x.png: error: can't be read"));
}

TEST(Info, NoHeaderCutShortIsTakenForAPicture) {
    for (const char* name : {"png-rgba-8.png", "bmp-24.bmp", "gif-89.gif", "jpeg-444.jpg",
                             "tiff-rgb.tif", "tga-24.tga"}) {
        const ByteArray whole = BytesOfFile(kImages + name);
        for (size_t size = 0; size < 60; ++size) {
            const std::string path =
                WriteBytes(std::string("cut-") + name, {whole.begin(), whole.begin() + size});
            const Result result = Call({"info", path});
            EXPECT_EQ(result.status, 1) << name << " " << size;
            EXPECT_THAT(result.errors, HasSubstr(path + ": error: "));
        }
    }
}

TEST(Info, NothingToTellIsAWrongCommandLine) { EXPECT_EQ(Call({"info"}).status, 2); }

}  // namespace
}  // namespace vxgui::tool
