#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/tools/SampleSurface.h"
#include "vxgui/gdip/GpEffect.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

const test::TestPicture kPicture{
    3, 2, {0xFFE01020, 0xFF404040, 0xFFC0C0C0, 0xFF0000FF, 0x80FFFFFF, 0xFF102030}};

std::string PicturePath() {
    test::WritePng(Folder() + "in.png", kPicture);
    return Folder() + "in.png";
}

test::TestPicture Shown(const std::vector<std::string>& options) {
    const std::string path = Folder() + "out.png";
    std::vector<std::string> arguments{"effect", PicturePath(), "-o", path};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const Result result = Call(arguments);
    EXPECT_EQ(result.status, 0) << result.errors;
    test::TestPicture picture;
    EXPECT_TRUE(test::ReadPng(path, &picture));
    return picture;
}

// The effect itself on the same pixels.
template <class Params>
test::TestPicture By(GpEffectType type, const Params& params) {
    const Ref<GpEffect> effect = New<GpEffect>();
    effect->Create(type);
    EXPECT_EQ(effect->SetParameters(&params, sizeof params), gdiplus::Ok);
    test::TestPicture picture = kPicture;
    gdiplus::GpBitmap* bitmap = nullptr;
    gdiplus::GdipCreateBitmapFromScan0(3, 2, 12, gdiplus::PixelFormat32bppARGB,
                                       reinterpret_cast<BYTE*>(picture.pixels.data()), &bitmap);
    EXPECT_EQ(
        gdiplus::GdipBitmapApplyEffect(bitmap, effect->Handle(), nullptr, 0, nullptr, nullptr),
        gdiplus::Ok);
    gdiplus::GdipDisposeImage(reinterpret_cast<gdiplus::GpImage*>(bitmap));
    return picture;
}

TEST(Effect, EachOptionReachesItsOwnEffect) {
    EXPECT_EQ(Shown({"--blur", "1.5"}).pixels, By(GpEffectType::blur, BlurParams{1.5f, 0}).pixels);
    EXPECT_EQ(Shown({"--sharpen", "2,60.5"}).pixels,
              By(GpEffectType::sharpen, SharpenParams{2, 60.5f}).pixels);
    EXPECT_EQ(Shown({"--tint", "-60,30"}).pixels,
              By(GpEffectType::Tint, TintParams{-60, 30}).pixels);
    EXPECT_EQ(Shown({"--levels", "90,10,5"}).pixels,
              By(GpEffectType::Levels, LevelsParams{90, 10, 5}).pixels);
    EXPECT_EQ(Shown({"--brightness-contrast", "-20,30"}).pixels,
              By(GpEffectType::BrightnessContrast, BrightnessContrastParams{-20, 30}).pixels);
    EXPECT_EQ(
        Shown({"--hue-saturation-lightness", "90,-10,5"}).pixels,
        By(GpEffectType::HueSaturationLightness, HueSaturationLightnessParams{90, -10, 5}).pixels);
    EXPECT_EQ(Shown({"--colour-balance", "10,-20,30"}).pixels,
              By(GpEffectType::ColorBalance, ColorBalanceParams{10, -20, 30}).pixels);
    EXPECT_EQ(Shown({"--curve", "midtone,green,40"}).pixels,
              By(GpEffectType::ColorCurve, ColorCurveParams{AdjustMidtone, CurveChannelGreen, 40})
                  .pixels);
    EXPECT_EQ(Shown({"--red-eye", "0,0,2,1"}).pixels,
              By(GpEffectType::RedEyeCorrection, RedEyeCorrectionParams{1, {0, 0, 2, 1}}).pixels);
    EXPECT_NE(Shown({"--red-eye", "0,0,2,1"}).pixels, kPicture.pixels);
}

TEST(Effect, AMatrixIsGivenRowByRow) {
    const std::string swap = "0,0,1,0,0,0,1,0,0,0,1,0,0,0,0,0,0,0,1,0,0,0,0,0,1";
    EXPECT_EQ(Shown({"--colour-matrix", swap}).At(0, 0), 0xFF2010E0u);
}

TEST(Effect, ATableIsReadFromAFile) {
    std::string lines = "# inverted colours\n\n";
    for (int i = 0; i < 256; ++i) {
        const std::string inverse = std::to_string(255 - i);
        lines += inverse + "," + inverse + "," + inverse + "," + std::to_string(i) + "\n";
    }
    const std::string table = WriteBytes("table.txt", ByteArray(lines.begin(), lines.end()));
    EXPECT_EQ(Shown({"--colour-table", table}).At(0, 0), 0xFF1FEFDFu);
}

TEST(Effect, AWrongTableIsNamedWithItsLine) {
    const auto call = [](const std::string& text) {
        const std::string table = WriteBytes("table.txt", ByteArray(text.begin(), text.end()));
        return Call({"effect", PicturePath(), "-o", Folder() + "x.png", "--colour-table", table});
    };
    const Result broken = call("1,2,3,4\n1,2,3,256\n");
    EXPECT_EQ(broken.status, 1);
    EXPECT_THAT(broken.errors, HasSubstr("table.txt:2: error: R,G,B,A from 0 to 255"));
    const Result brief = call("1,2,3,4\n");
    EXPECT_THAT(brief.errors, HasSubstr("table.txt:1: error: 256 lines of R,G,B,A"));
    std::string lines;
    for (int i = 0; i < 257; ++i) lines += "1,2,3,4\n";
    EXPECT_THAT(call(lines).errors, HasSubstr("table.txt:257: error: 256 lines were expected"));
    const Result missing = Call({"effect", PicturePath(), "-o", Folder() + "x.png",
                                 "--colour-table", "/nowhere/table.txt"});
    EXPECT_THAT(missing.errors, HasSubstr("/nowhere/table.txt: error: can't be read"));
}

TEST(Effect, SeveralAreAppliedInTheOrderOfTheList) {
    // Inverting after the brightness leaves black where it is the other way round too late.
    const auto both =
        Shown({"--colour-matrix", "-1,0,0,0,0,0,-1,0,0,0,0,0,-1,0,0,0,0,0,1,0,1,1,1,0,1",
               "--brightness-contrast", "255,0"});
    EXPECT_EQ(both.At(0, 0), 0xFF000000u);
    const auto twice = Shown({"--red-eye", "0,0,1,1", "--red-eye", "1,0,1,1"});
    EXPECT_EQ(twice.At(0, 0), 0xFF181020u);
}

TEST(Effect, ManyFilesGoToAFolder) {
    const std::string folder = Folder() + "blurred";
    std::filesystem::remove_all(folder);
    const Result result = Call({"effect", SamplePng("a.png"), SamplePng("b.png"), "-o", folder,
                                "--to", "png", "--blur", "2"});
    ASSERT_EQ(result.status, 0) << result.errors;
    for (const char* name : {"/a.png", "/b.png"}) {
        EXPECT_TRUE(std::filesystem::exists(folder + name));
    }
}

TEST(Effect, WrongValuesAreNamedAndNothingIsWritten) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> wrong = {
        {{}, "nothing to do: an effect was expected"},
        {{"--blur", "256"}, "--blur 256: RADIUS was expected"},
        {{"--blur", "much"}, "--blur much: RADIUS was expected"},
        {{"--blur", "nan"}, "--blur nan: RADIUS was expected"},
        {{"--sharpen", "3"}, "--sharpen 3: RADIUS,AMOUNT was expected"},
        {{"--tint", "200,10"}, "--tint 200,10: HUE,AMOUNT was expected"},
        {{"--tint", "20.5,10"}, "--tint 20.5,10: HUE,AMOUNT was expected"},
        {{"--levels", "1,2"}, "--levels 1,2: HIGHLIGHT,MIDTONE,SHADOW was expected"},
        {{"--brightness-contrast", "1,101"}, "BRIGHTNESS,CONTRAST was expected"},
        {{"--hue-saturation-lightness", "0,0,"}, "HUE,SATURATION,LIGHTNESS was expected"},
        {{"--colour-balance", "0,0,101"}, "RED,GREEN,BLUE was expected"},
        {{"--colour-matrix", "1,2,3"}, "M11,M12,...,M55 was expected"},
        {{"--curve", "shine,all,3"}, "KIND,CHANNEL,VALUE was expected"},
        {{"--curve", "contrast,alpha,3"}, "KIND,CHANNEL,VALUE was expected"},
        {{"--curve", "contrast,all,101"}, "KIND,CHANNEL,VALUE was expected"},
        {{"--red-eye", "1,2,3"}, "X,Y,WIDTH,HEIGHT was expected"},
    };
    const std::string output = Folder() + "never.png";
    std::filesystem::remove(output);
    for (const auto& [options, reason] : wrong) {
        std::vector<std::string> arguments{"effect", PicturePath(), "-o", output};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const Result result = Call(arguments);
        EXPECT_EQ(result.status, 2) << reason;
        EXPECT_THAT(result.errors, HasSubstr(reason));
    }
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST(Effect, HelpShowsExamplesAndAllOptions) {
    const Result result = Call({"effect", "--help"});
    EXPECT_EQ(result.status, 0);
    for (const char* text :
         {"vxgui effect photo.jpg -o soft.png --blur 6", "--red-eye", "--levels",
          "--brightness-contrast", "--hue-saturation-lightness", "--colour-balance", "--tint",
          "--curve", "--colour-matrix", "--colour-table", "--blur", "--sharpen"}) {
        EXPECT_THAT(result.out, HasSubstr(text));
    }
}

}  // namespace
}  // namespace vxgui::tool
