#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/tools/SampleSurface.h"
#include "tools/vxgui/Progress.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;
using testing::Not;

void ExpectConverted(const std::string& from, const std::string& to) {
    const Result result = Call({"convert", from, "-o", to});
    ASSERT_EQ(result.status, 0) << result.errors;
}

test::TestPicture AsPng(const std::string& from) {
    const std::string path = Folder() + "as.png";
    std::filesystem::remove(path);
    ExpectConverted(from, path);
    test::TestPicture picture;
    EXPECT_TRUE(test::ReadPng(path, &picture)) << from;
    return picture;
}

void ExpectSame(const test::TestPicture& actual, const test::TestPicture& expected) {
    ASSERT_EQ(actual.width, expected.width);
    ASSERT_EQ(actual.height, expected.height);
    EXPECT_EQ(actual.pixels, expected.pixels);
}

void ExpectRefused(const std::string& path, const std::string& reason) {
    const std::string output = Folder() + "refused.png";
    std::filesystem::remove(output);
    const Result result = Call({"convert", path, "-o", output});
    EXPECT_EQ(result.status, 1) << path;
    EXPECT_THAT(result.errors, HasSubstr(path + ": error: "));
    EXPECT_THAT(result.errors, HasSubstr(reason));
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST(Convert, EveryFormComesBackPixelByPixel) {
    const std::string png = SamplePng("sample.png");
    for (const char* ending : {"png", "bmp", "tga", "adib", "TGA"}) {
        const std::string path = Folder() + "round." + ending;
        ExpectConverted(png, path);
        ExpectSame(AsPng(path), SamplePicture());
    }
}

TEST(Convert, EveryDecoderIsReached) {
    for (const char* name : {"bmp-8.bmp", "bmp-24-topdown.bmp", "bmp-32-v4-alpha.bmp", "bmp-4.bmp",
                             "gif-transparent.gif", "png-rgba-8.png", "png-palette-alpha.png",
                             "tiff-rgb.tif", "tiff-rgba.tif"}) {
        const test::TestPicture picture = AsPng(kImages + name);
        const ByteArray expected = BytesOfFile(kImages + name + ".bgra");
        ASSERT_EQ(picture.pixels.size() * 4, expected.size()) << name;
        for (size_t i = 0; i < picture.pixels.size(); ++i)
            ASSERT_EQ(picture.pixels[i], LoadLittle<uint32_t>(&expected[4 * i]))
                << name << " " << i;
    }
    EXPECT_GT(AsPng(kImages + "jpeg-444.jpg").width, 0);
    EXPECT_GT(AsPng(kImages + "tga-32-topdown-rle.tga").width, 0);
}

TEST(Convert, ABmpWithoutUseOfTheFourthByteIsOpaque) {
    test::TestPicture clear = SamplePicture();
    for (uint32_t& pixel : clear.pixels) pixel &= 0xFFFFFF;
    ByteArray bmp;
    SurfaceWith(clear)->SaveToByteArray(bmp);
    for (uint32_t& pixel : clear.pixels) pixel |= 0xFF000000;
    ExpectSame(AsPng(WriteBytes("clear.bmp", bmp)), clear);
}

TEST(Convert, TgaHasTheBottomRowFirstAndAFooter) {
    const std::string path = Folder() + "layout.tga";
    ExpectConverted(SamplePng("sample.png"), path);
    const ByteArray bytes = BytesOfFile(path);
    const test::TestPicture sample = SamplePicture();
    ASSERT_EQ(bytes.size(), 18u + 5 * 3 * 4 + 26);
    const ByteArray header(bytes.begin(), bytes.begin() + 18);
    EXPECT_EQ(header, (ByteArray{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 5, 0, 3, 0, 32, 8}));
    EXPECT_EQ(LoadLittle<uint32_t>(&bytes[18]), sample.At(0, 2));
    EXPECT_EQ(LoadLittle<uint32_t>(&bytes[18 + 2 * 20]), sample.At(0, 0));
    auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->CreateFromByteArray(bytes));  // known by its footer
    ExpectSame(PictureOn(*surface), sample);
}

TEST(Convert, TgaIsReadByAnotherProgram) {
    const std::string path = Folder() + "other.tga";
    ExpectConverted(SamplePng("sample.png"), path);
    // The one that the packages are for, whatever else is called so.
    if (std::system("/usr/bin/python3 -c 'import PIL.Image' >/dev/null 2>&1") != 0)
        GTEST_SKIP() << "needs the Python imaging library (Debian: python3-pil)";
    const std::string command =
        "/usr/bin/python3 -c \"import sys, PIL.Image; "
        "PIL.Image.open(sys.argv[1]).convert('RGBA').save(sys.argv[2])\" ";
    const std::string png = Folder() + "other.png";
    ASSERT_EQ(std::system((command + "'" + path + "' '" + png + "'").c_str()), 0);
    test::TestPicture picture;
    ASSERT_TRUE(test::ReadPng(png, &picture));
    ExpectSame(picture, SamplePicture());
}

TEST(Convert, ATgaWithAFooterNeedsNoName) {
    const std::string path = Folder() + "named.tga";
    ExpectConverted(SamplePng("sample.png"), path);
    ExpectSame(AsPng(WriteBytes("unnamed", BytesOfFile(path))), SamplePicture());
}

TEST(Convert, SurfacesComeFromBlocksAndBags) {
    const auto surface = SurfaceWith(SamplePicture());
    const ByteArray plain = Serialized(*surface);
    ExpectSame(AsPng(WriteBytes("plain.adib", plain)), SamplePicture());
    ExpectSame(AsPng(WriteBytes("packed.adib", core7::Compress(plain))), SamplePicture());
    ExpectSame(AsPng(WriteBytes("plain.bag", BagWith(surface, 0))), SamplePicture());
    ExpectSame(AsPng(WriteBytes("packed.bag", BagWith(surface, 1))), SamplePicture());
}

TEST(Convert, ASurfaceStaysAsItWasStored) {
    const auto surface = SurfaceWith(SamplePicture());
    surface->TransparentColor(0x123456);
    surface->PreMultiplyAlpha();
    const std::string path = Folder() + "kept.adib";
    ExpectConverted(WriteBytes("kept.bag", BagWith(surface, 1)), path);
    EXPECT_EQ(BytesOfFile(path), Serialized(*surface));
}

TEST(Convert, PremultipliedSurfacesBecomeStraight) {
    test::TestPicture every{256, 255, {}};
    for (uint32_t alpha = 1; alpha < 256; ++alpha) {
        for (uint32_t c = 0; c < 256; ++c)
            every.pixels.push_back(alpha << 24 | c << 16 | (255 - c) << 8 | c);
    }
    const auto surface = SurfaceWith(every);
    surface->PreMultiplyAlpha();
    const test::TestPicture multiplied = PictureOn(*surface);
    const auto again = SurfaceWith(AsPng(WriteBytes("multiplied.adib", Serialized(*surface))));
    for (int x = 0; x < 256; ++x)  // an opaque pixel is left exactly as it is
        EXPECT_EQ(static_cast<uint32_t>(again->GetPixel(x, 254)), every.At(x, 254));
    again->PreMultiplyAlpha();
    ExpectSame(PictureOn(*again), multiplied);
}

TEST(Convert, StoredSurfacesOfOtherShapesComeUpright) {
    ByteArray topDown = Serialized(*SurfaceWith(SamplePicture()));
    StoreLittle(&topDown[28], static_cast<uint32_t>(-3));
    test::TestPicture flipped = SamplePicture();
    for (int x = 0; x < 5; ++x) std::swap(flipped.At(x, 0), flipped.At(x, 2));
    ExpectSame(AsPng(WriteBytes("topdown.adib", topDown)), flipped);

    ByteArray rgb = Serialized(*SurfaceWith(SamplePicture()));
    StoreLittle(&rgb[34], uint16_t{24});
    StoreLittle(&rgb[40], uint32_t{16 * 3});
    rgb.resize(60 + 16 * 3);
    for (size_t i = 60; i < rgb.size(); ++i) rgb[i] = static_cast<uint8_t>(i);
    const test::TestPicture opaque = AsPng(WriteBytes("rgb.adib", rgb));
    EXPECT_EQ(opaque.At(0, 2), 0xFF000000u | 62 << 16 | 61 << 8 | 60);
    EXPECT_EQ(opaque.At(4, 0), 0xFF000000u | 106 << 16 | 105 << 8 | 104);
}

TEST(Convert, ManyFilesGoToAFolderThatIsMade) {
    const std::string folder = Folder() + "many/deep";
    std::filesystem::remove_all(Folder() + "many");
    const std::string a = SamplePng("a.png"), b = SamplePng("b.png");
    const Result result = Call({"convert", a, b, "-o", folder, "--to", ".TGA"});
    ASSERT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.out, HasSubstr(folder + "/a.tga: 5x3\n"));
    EXPECT_EQ(result.errors, "");  // no terminal, no progress
    ExpectSame(AsPng(folder + "/a.tga"), SamplePicture());
    ExpectSame(AsPng(folder + "/b.tga"), SamplePicture());
}

TEST(Convert, OneBadFileOfManyKeepsNoneOfTheOthersBack) {
    const std::string folder = Folder() + "some";
    std::filesystem::remove_all(folder);
    const std::string bad = WriteBytes("bad.png", {1, 2, 3}), good = SamplePng("good.png");
    const Result result =
        Call({"convert", bad, "/nowhere/c.png", good, "-o", folder, "--to", "bmp"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr(bad + ": error: no picture: BMP, PNG"));
    EXPECT_THAT(result.errors, HasSubstr("\n/nowhere/c.png: error: can't be read"));
    ExpectSame(AsPng(folder + "/good.bmp"), SamplePicture());
}

TEST(Convert, WrongCommandLinesGiveStatusTwoAndWriteNothing) {
    const std::string png = SamplePng("sample.png"), folder = Folder() + "wrong";
    std::filesystem::create_directories(Folder() + "other");
    const std::string twin = SamplePng("other/sample.png");
    std::filesystem::remove_all(folder);
    const std::vector<std::pair<std::vector<std::string>, std::string>> wrong = {
        {{"convert"}, "IN"},
        {{"convert", png}, "--output"},
        {{"convert", png, "-o", folder + ".jpg"}, "bmp, png, tga or adib was expected"},
        {{"convert", png, "-o", folder}, "bmp, png, tga or adib was expected"},
        {{"convert", png, "-o", folder, "--to", "gif"}, "--to gif: bmp, png, tga or adib"},
        {{"convert", png, twin, "-o", folder + ".png"}, "--to ENDING was expected"},
        {{"convert", png, twin, "-o", folder, "--to", "tga"}, "would both become"},
    };
    for (const auto& [arguments, reason] : wrong) {
        const Result result = Call(arguments);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_THAT(result.errors, HasSubstr(reason));
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}

TEST(Convert, AnOutputThatCantBeWrittenIsNamed) {
    const std::string png = SamplePng("sample.png");
    for (const char* ending : {"png", "bmp", "tga", "adib"}) {
        const Result result = Call({"convert", png, "-o", std::string("/nowhere/x.") + ending});
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.errors, HasSubstr(std::string("/nowhere/x.") + ending + ": error: "));
    }
    const Result folder = Call({"convert", png, "-o", png + "/x", "--to", "tga"});
    EXPECT_EQ(folder.status, 1);
    EXPECT_THAT(folder.errors, HasSubstr("the folder can't be made"));
}

TEST(Convert, EveryTruncatedPictureIsRefused) {
    for (const char* name : {"png-rgba-8.png", "bmp-24.bmp", "gif-89.gif", "tiff-rgb.tif",
                             "tga-24.tga", "tga-32-rle.tga", "jpeg-444.jpg"}) {
        ByteArray bytes = BytesOfFile(kImages + name);
        bytes.resize(bytes.size() / 2);
        ExpectRefused(WriteBytes(std::string("half-") + name, bytes), "can't be read");
    }
}

TEST(Convert, ATgaThatWouldComeOutClearIsRefused) {
    ByteArray packed(18 + 64);
    packed[12] = packed[14] = 4;
    packed[16] = 8;
    packed[2] = 11;
    ExpectRefused(WriteBytes("packed.tga", packed), "type 11");
    packed[2] = 3;
    packed.resize(18 + 15);
    ExpectRefused(WriteBytes("grey.tga", packed), "end early");
    ExpectRefused(WriteBytes("short.tga", {0, 0, 2}), "18 bytes");
    packed[2] = 77;
    ExpectRefused(WriteBytes("odd.tga", packed), "image type");
}

TEST(Convert, LyingSurfacesAreRefusedWithTheReason) {
    const ByteArray good = Serialized(*SurfaceWith(SamplePicture()));
    const auto lie = [&](const std::string& name, size_t at, uint32_t value,
                         const std::string& reason) {
        ByteArray bytes = good;
        StoreLittle(&bytes[at], value);
        ExpectRefused(WriteBytes(name + ".adib", bytes), reason);
    };
    lie("version", 4, 3, "version 2 was expected, 3 found");
    lie("header", 8, 24, "header size 20");
    lie("wide", 24, 30000, "an image size of");
    lie("huge", 28, 0x7FFFFFFF, "an image size of");
    lie("size", 40, 61, "61 was expected, 60 found");
    lie("small", 40, 59, "an image size of 60 was expected, 59 found");
    lie("empty", 24, 0, "is empty");
    lie("depth", 34, 77, "an image size of");
    ByteArray cut = good;
    cut.resize(59);
    ExpectRefused(WriteBytes("cut.adib", cut), "a header of 60 was expected, 59 found");
    ByteArray packed = core7::Compress(good);
    packed.resize(packed.size() - 3);
    ExpectRefused(WriteBytes("cutpacked.adib", packed), "can't be unpacked");
    ExpectRefused(WriteBytes("notone.adib", core7::Compress(BytesOfFile(SamplePng("s.png")))),
                  "the mark ADIB was expected");
    ExpectRefused(WriteBytes("none.adib", Serialized(*New<cAlphaDIBSection>())), "is empty");
}

TEST(Convert, BagsThatHoldNoSurfaceAreRefused) {
    auto bag = New<ole::PropertyBag>();
    bag->WriteProperty("Name", "Button");
    ExpectRefused(WriteBytes("nothing.bag", bag->Contents()), "holds no surface");
    bag->WriteProperty("cAlphaDIBSection", ByteArray{1, 2, 3});
    ExpectRefused(WriteBytes("nonsense.bag", bag->Contents()), "the mark ADIB was expected");
    ByteArray cut = BagWith(SurfaceWith(SamplePicture()), 1);
    cut.resize(cut.size() - 1);
    ExpectRefused(WriteBytes("cut.bag", cut), "no property bag: ");
}

TEST(Convert, WhatIsNoPictureIsRefused) {
    ExpectRefused(WriteBytes("empty.png", {}), "no picture");
    ExpectRefused(WriteBytes("text.png", {'h', 'e', 'l', 'l', 'o'}), "no picture");
    ExpectRefused(Folder() + "missing.png", "can't be read");
    ExpectRefused(kImages, "can't be read");
}

TEST(Progress, IsALineOnATerminalAndNothingElsewhere) {
    std::ostringstream live, silent;
    {
        Progress shown(live, 2, true), hidden(silent, 2, false);
        shown.Next("a.png");
        shown.Next("b.png");
        hidden.Next("a.png");
    }
    EXPECT_EQ(live.str(), "\r\x1b[K[1/2] a.png\r\x1b[K[2/2] b.png\r\x1b[K");
    EXPECT_EQ(silent.str(), "");
    EXPECT_FALSE(IsTerminal(live));
}

}  // namespace
}  // namespace vxgui::tool
