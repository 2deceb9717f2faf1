#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/tools/SampleSurface.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

test::TestPicture Adjusted(const std::vector<std::string>& options) {
    const std::string path = Folder() + "adjusted.png";
    std::vector<std::string> arguments{"adjust", SamplePng("sample.png"), "-o", path};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Result result = Call(arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    test::TestPicture picture;
    EXPECT_TRUE(test::ReadPng(path, &picture));
    return picture;
}

test::TestPicture ByHls(float hue, float luminance, float saturation, bool colourize) {
    const auto surface = SurfaceWith(SamplePicture());
    surface->AdjustHLS(hue, luminance, saturation, colourize);
    return PictureOn(*surface);
}

TEST(Adjust, EachOptionReachesItsOwnPlace) {
    EXPECT_EQ(Adjusted({"--hue", "-120"}).pixels, ByHls(-120, 0, 0, false).pixels);
    EXPECT_EQ(Adjusted({"--saturation", "-40"}).pixels, ByHls(0, 0, -40, false).pixels);
    EXPECT_EQ(Adjusted({"--luminance", "30"}).pixels, ByHls(0, 30, 0, false).pixels);
    EXPECT_EQ(Adjusted({"--colourize"}).pixels, ByHls(0, 0, 0, true).pixels);
    EXPECT_EQ(
        Adjusted({"--colourize", "--hue", "35", "--saturation", "40", "--luminance", "-5"}).pixels,
        ByHls(35, -5, 40, true).pixels);
}

TEST(Adjust, RgbComesAfterTheOthersAndAlphaStays) {
    const auto surface = SurfaceWith(SamplePicture());
    surface->AdjustHLS(60, 0, 0, false);
    surface->AdjustRGB(-0.5f, 0.25f, 1);
    const test::TestPicture adjusted = Adjusted({"--rgb", "-0.5,0.25,1", "--hue", "60"});
    EXPECT_EQ(adjusted.pixels, PictureOn(*surface).pixels);
    const test::TestPicture sample = SamplePicture();
    for (size_t i = 0; i < sample.pixels.size(); ++i)
        EXPECT_EQ(adjusted.pixels[i] >> 24, sample.pixels[i] >> 24);
}

TEST(Adjust, APremultipliedSurfaceIsAdjustedStraightAndStaysPremultiplied) {
    test::TestPicture half{1, 1, {0x80FF0000}};
    const auto surface = SurfaceWith(half);
    surface->PreMultiplyAlpha();
    const std::string path = Folder() + "premultiplied.adib";
    const Result result = Call(
        {"adjust", WriteBytes("before.adib", Serialized(*surface)), "-o", path, "--hue", "120"});
    ASSERT_EQ(result.status, 0) << result.errors;
    const auto after = New<cAlphaDIBSection>();
    ASSERT_TRUE(after->FromByteArray(BytesOfFile(path)));
    EXPECT_EQ(after->Flags(), surface->Flags());
    EXPECT_EQ(static_cast<uint32_t>(after->GetPixel(0, 0)), 0x80008000u);
}

TEST(Adjust, ManyFilesGoToAFolder) {
    const std::string folder = Folder() + "adjusted";
    std::filesystem::remove_all(folder);
    const Result result = Call({"adjust", SamplePng("a.png"), SamplePng("b.png"), "-o", folder,
                                "--to", "png", "--luminance", "100"});
    ASSERT_EQ(result.status, 0) << result.errors;
    for (const char* name : {"/a.png", "/b.png"}) {
        test::TestPicture picture;
        ASSERT_TRUE(test::ReadPng(folder + name, &picture));
        EXPECT_EQ(picture.At(2, 0), SamplePicture().At(2, 0) | 0xFFFFFF);
    }
}

TEST(Adjust, WrongRangesAreNamed) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> wrong = {
        {{}, "nothing to adjust"},
        {{"--hue", "361"}, "--hue 361: -360 to 360 was expected"},
        {{"--hue", "nan"}, "--hue nan: -360 to 360"},
        {{"--saturation", "-101"}, "--saturation -101: -100 to 100"},
        {{"--saturation", "-1", "--colourize"}, "--saturation with --colourize -1: 0 to 100"},
        {{"--luminance", "100.5"}, "--luminance 100.5: -100 to 100"},
        {{"--rgb", "1,2,0"}, "--rgb green 2: -1 to 1"},
        {{"--rgb", "1,0"}, "R,G,B was expected"},
        {{"--rgb", "1,0,0,0"}, "R,G,B was expected"},
        {{"--rgb", "red"}, "R,G,B was expected"},
        {{"--hue", "much"}, "--hue"},
    };
    const std::string output = Folder() + "never.png";
    std::filesystem::remove(output);
    for (const auto& [options, reason] : wrong) {
        std::vector<std::string> arguments{"adjust", SamplePng("sample.png"), "-o", output};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Result result = Call(arguments);
        EXPECT_EQ(result.status, 2) << reason;
        EXPECT_THAT(result.errors, HasSubstr(reason));
    }
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST(Adjust, AMissingFileIsNamed) {
    const Result result =
        Call({"adjust", "/nowhere/x.png", "-o", Folder() + "x.png", "--hue", "1"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("/nowhere/x.png: error: can't be read"));
}

TEST(Adjust, WithoutAToolkitTheDialogFailsAndWritesNothing) {
    const std::string path = Folder() + "asked.png";
    const Result result = Call({"adjust", "--dialog", SamplePng("asked-in.png"), "-o", path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("asked-in.png: error: no form toolkit is there"));
    EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace vxgui::tool
