#include "tools/view/recolour/Recolour.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/view/SkinCopy.h"
#include "tools/view/recolour/RecolourBmp.h"
#include "tools/view/recolour/RecolouredSkin.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/theme/CompiledSkin.h"

namespace vxgui::view {
namespace {

using testing::HasSubstr;

constexpr Recolour kThird{120, 0, 0};

bool Same(ARGB a, ARGB b) {
    return a.Blue == b.Blue && a.Green == b.Green && a.Red == b.Red && a.Alpha == b.Alpha;
}

TEST(Recolour, TurnsRedIntoGreenByAThirdOfACircle) {
    ARGB pixel{0, 0, 200, 77};
    RecolourPixels({&pixel, 1}, kThird);
    EXPECT_TRUE(Same(pixel, {0, 200, 0, 77}));
    EXPECT_EQ(RecolouredRef(0x0000C8, kThird), 0x00C800);
}

TEST(Recolour, LeavesKeysAndMakesNone) {
    // Magenta is the key; what a third of a circle turns into magenta must not become it.
    ARGB pixels[] = {{255, 0, 255, 255}, {0, 255, 255, 255}};
    RecolourPixels(pixels, {-120, 0, 0}, {0xFF00FF});
    EXPECT_TRUE(Same(pixels[0], {255, 0, 255, 255}));
    EXPECT_EQ(RecolouredRef(0x00FFFF, {-120, 0, 0}), 0xFF00FF);
    EXPECT_TRUE(Same(pixels[1], {254, 0, 255, 255}));
}

TEST(Recolour, OfNothingChangesNothing) {
    ARGB pixel{12, 34, 56, 78};
    RecolourPixels({&pixel, 1}, {});
    EXPECT_TRUE(Same(pixel, {12, 34, 56, 78}));
}

ByteArray Bmp(uint16_t bits, uint32_t palette, size_t pixelBytes) {
    ByteArray file(54 + palette * 4 + pixelBytes);
    file[0] = 'B', file[1] = 'M';
    StoreLittle<uint32_t>(&file[10], 54 + palette * 4);
    StoreLittle<uint32_t>(&file[14], 40);
    StoreLittle<uint32_t>(&file[18], 1);
    StoreLittle<uint32_t>(&file[22], 2);
    StoreLittle<uint16_t>(&file[28], bits);
    return file;
}

TEST(RecolourBmp, ChangesPixelsOfTwentyFourBitsWhereTheyStand) {
    ByteArray file = Bmp(24, 0, 8);
    file[54 + 2] = 200;  // a red pixel, then one of padding that must stay
    file[54 + 3] = 99;
    file[54 + 4 + 2] = 200;  // the second row
    ASSERT_TRUE(RecolourBmp(file, kThird, {}));
    EXPECT_EQ(file[54 + 1], 200);
    EXPECT_EQ(file[54 + 2], 0);
    EXPECT_EQ(file[54 + 3], 99);
    EXPECT_EQ(file[54 + 4 + 1], 200);
}

TEST(RecolourBmp, KeepsTheFourthByte) {
    ByteArray file = Bmp(32, 0, 8);
    file[54 + 2] = 200;
    file[54 + 3] = 99;
    ASSERT_TRUE(RecolourBmp(file, kThird, {}));
    EXPECT_EQ(file[54 + 1], 200);
    EXPECT_EQ(file[54 + 3], 99);
}

TEST(RecolourBmp, ChangesAPaletteAndNotTheIndices) {
    ByteArray file = Bmp(8, 256, 8);
    file[54 + 4 * 7 + 2] = 200;
    file[54 + 4 * 256] = 7;
    ASSERT_TRUE(RecolourBmp(file, kThird, {}));
    EXPECT_EQ(file[54 + 4 * 7 + 1], 200);
    EXPECT_EQ(file[54 + 4 * 256], 7);
}

TEST(RecolourBmp, RefusesWhatItDoesNotKnowAndDamagedFiles) {
    ByteArray sixteen = Bmp(16, 0, 8);
    EXPECT_FALSE(RecolourBmp(sixteen, kThird, {}));
    for (size_t size = 0; size < 60; ++size) {
        ByteArray cut = Bmp(24, 0, 8);
        cut.resize(size);
        RecolourBmp(cut, kThird, {});
    }
    ByteArray beyond = Bmp(24, 0, 8);
    StoreLittle<uint32_t>(&beyond[10], 0xFFFFFFF0);
    EXPECT_FALSE(RecolourBmp(beyond, kThird, {}));
}

class EachSkin : public testing::TestWithParam<const char*> {
protected:
    const SkinCopy copy_{GetParam()};
    const std::unique_ptr<SkinOriginal> original_ = OriginalOf(copy_.Path());
};
INSTANTIATE_TEST_SUITE_P(Sample, EachSkin,
                         testing::Values("aurora/aurora.theme", "porcelain/porcelain.uis"),
                         [](const auto& info) {
                             const std::string path = info.param;
                             return path.substr(0, path.find('/'));
                         });

TEST_P(EachSkin, WrittenInItsOwnColoursIsTheSamePixelByPixel) {
    EXPECT_EQ(DifferenceOf(LoadSkin(copy_.Path()), LoadRecoloured(*original_, {})), "");
}

TEST_P(EachSkin, SavedInOtherColoursIsWhatWasShown) {
    const Recolour how{70, -20, 12};
    const Skin shown = LoadRecoloured(*original_, how);
    const std::string path = SaveRecoloured(*original_, how, copy_.Beside("new"));
    EXPECT_EQ(DifferenceOf(shown, LoadSkin(path)), "");
    EXPECT_NE(DifferenceOf(shown, LoadSkin(copy_.Path())), "");
}

TEST_P(EachSkin, IsRecolouredFromItsOwnPixelsEachTime) {
    const Skin once = LoadRecoloured(*original_, {50, 0, -10});
    LoadRecoloured(*original_, {-90, -100, 60});
    EXPECT_EQ(DifferenceOf(once, LoadRecoloured(*original_, {50, 0, -10})), "");
    EXPECT_EQ(DifferenceOf(LoadSkin(copy_.Path()), LoadRecoloured(*original_, {})), "");
}

TEST_P(EachSkin, IsNeverSavedOverWhatIsThere) {
    const std::string folder = std::filesystem::path(copy_.Path()).parent_path().string();
    const std::string before = copy_.Text();
    EXPECT_THROW(SaveRecoloured(*original_, kThird, folder), tool::ToolError);
    EXPECT_EQ(copy_.Text(), before);
}

TEST(SavedSkin, KeepsTheAuthorsTextButForItsColours) {
    const SkinCopy copy("aurora/aurora.theme");
    const auto original = OriginalOf(copy.Path());
    const std::string path = SaveRecoloured(*original, kThird, copy.Beside("new"));
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    EXPECT_THAT(text.str(), HasSubstr("; Aurora: a dark skin with northern lights."));
    EXPECT_THAT(text.str(), HasSubstr("TextColor=252,238,246"));  // 238,246,252 before
    EXPECT_THAT(text.str(), HasSubstr("TransColor=255,0,255"));
    EXPECT_THAT(text.str(), HasSubstr("Image=button.tga"));
}

TEST(SavedSkin, InTheUisDialectHasItsPaletteAndWallpaperRecoloured) {
    const SkinCopy copy("porcelain/porcelain.uis");
    const auto original = OriginalOf(copy.Path());
    const std::string path = SaveRecoloured(*original, kThird, copy.Beside("new"));
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    ASSERT_TRUE(file->OpenFile(path));
    EXPECT_EQ(file->GetString("Colour0", "Colour", "").Utf8(), "84 20 34");
    EXPECT_EQ(file->GetString("Colour5", "R", "").Utf8(), "8");
    EXPECT_EQ(file->GetString("Colours", "Highlight", "").Utf8(), "162,36,71");
    EXPECT_TRUE(std::filesystem::exists(copy.Beside("new/wallpaper.png")));
    EXPECT_TRUE(std::filesystem::exists(copy.Beside("new/taskbar.xp")));
}

// A picture that has to become a BMP, and one from another folder.
TEST(SavedSkin, NamesPicturesByTheirNewNames) {
    const test::TemporaryFolder folder;
    namespace fs = std::filesystem;
    fs::create_directories(folder.Path("skin").Utf8());
    fs::copy(VXGUI_SOURCE_DIR "/skins/aurora/header.bmp", folder.Path("head.bmp").Utf8());
    fs::copy(VXGUI_SOURCE_DIR "/tests/data/images/jpeg-420.jpg",
             folder.Path("skin/photo.jpg").Utf8());
    const String path = folder.Write("skin/a.theme",
                                     "[ThemeSet]\nThemes=2\n"
                                     "[Theme_01]\nImage=..\\head.bmp\nTransMode=0\nFrames=4\n"
                                     "[Theme_02]\nImage=photo.jpg\nTransMode=0\nFrames=1\n");
    const auto original = OriginalOf(path.Utf8());
    const std::string saved = SaveRecoloured(*original, {}, folder.Path("new").Utf8());
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    ASSERT_TRUE(file->OpenFile(saved));
    EXPECT_EQ(file->GetString("Theme_01", "Image", "").Utf8(), "head.bmp");
    EXPECT_EQ(file->GetString("Theme_02", "Image", "").Utf8(), "photo.jpg.bmp");
    EXPECT_EQ(DifferenceOf(LoadSkin(path), LoadSkin(saved)), "");
}

TEST(CompiledSkin, IsRecolouredAndSavedAsOneFile) {
    const SkinCopy copy("aurora/aurora.theme");
    const Skin skin = LoadSkin(copy.Path());
    const std::string path = copy.Beside("aurora.vxs");
    SaveCompiledSkin({skin.set, copy.Text()}, path);
    const auto original = OriginalOf(path);
    EXPECT_EQ(DifferenceOf(LoadSkin(path), LoadRecoloured(*original, {})), "");
    const Skin shown = LoadRecoloured(*original, kThird);
    const std::string saved = SaveRecoloured(*original, kThird, copy.Beside("new"));
    EXPECT_EQ(DifferenceOf(shown, LoadSkin(saved)), "");
    EXPECT_NE(DifferenceOf(shown, skin), "");
}

TEST(SavedSkin, MayBeNamedFromItsOwnFolder) {
    namespace fs = std::filesystem;
    const SkinCopy copy("aurora/aurora.theme");
    const fs::path before = fs::current_path();
    fs::current_path(fs::path(copy.Path()).parent_path());
    const auto original = OriginalOf("aurora.theme");
    const std::string saved = SaveRecoloured(*original, {}, "new");
    EXPECT_EQ(saved, "new/aurora.theme");
    EXPECT_EQ(DifferenceOf(LoadSkin("aurora.theme"), LoadSkin(saved)), "");
    fs::current_path(before);
}

#ifdef VXGUI_STYLES_FOLDER
TEST(StyleOfAModule, IsRecolouredAndSavedAsASkinInAFolder) {
    const test::TemporaryFolder folder;
    const std::string reference = "res:DefaultStyles:blue";
    const auto original = OriginalOf(reference);
    EXPECT_EQ(DifferenceOf(LoadSkin(reference), LoadRecoloured(*original, {})), "");
    const Skin shown = LoadRecoloured(*original, kThird);
    const std::string saved = SaveRecoloured(*original, kThird, folder.Path("new").Utf8());
    EXPECT_EQ(DifferenceOf(shown, LoadSkin(saved)), "");
    EXPECT_EQ(shown.items.size(), 33u);
}
#endif

TEST(StyleOfAModule, ThatIsNotThereIsRefused) {
    EXPECT_THROW(OriginalOf("res:Nowhere:blue"), tool::ToolError);
}

}  // namespace
}  // namespace vxgui::view
