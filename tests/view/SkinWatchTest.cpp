#include "tools/view/SkinWatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generated/Places.h"
#include "tests/support/TemporaryFolder.h"

namespace vxgui::view {
namespace {

using std::chrono::milliseconds;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;

class Watch : public testing::Test {
protected:
    Watch() {
        define_ = folder_.Write("a.theme", "[ThemeSet]\n").Utf8();
        picture_ = folder_.Write("a.bmp", "bytes").Utf8();
        watch_.Watch({{define_}, {picture_, folder_.Path("later.bmp").Utf8()}});
    }
    SkinWatch::Change LookAfter(int milliseconds) {
        now_ += SkinWatch::Time(milliseconds);
        return watch_.Look(now_);
    }

    const test::TemporaryFolder folder_;
    std::string define_, picture_;
    SkinWatch watch_;
    SkinWatch::Time now_{100000};
};

TEST_F(Watch, TellsNothingOfFilesAtRest) {
    EXPECT_FALSE(LookAfter(0));
    EXPECT_FALSE(LookAfter(5000));
}

TEST_F(Watch, TellsAChangeOnceWhenItHasBeenQuiet) {
    folder_.Write("a.theme", "[ThemeSet]\nThemes=1\n");
    EXPECT_FALSE(LookAfter(10));
    EXPECT_FALSE(LookAfter(119));
    const SkinWatch::Change change = LookAfter(1);
    EXPECT_TRUE(change.defines);
    EXPECT_FALSE(change.pictures);
    EXPECT_FALSE(LookAfter(1000));
}

TEST_F(Watch, WaitsUntilTheWriterIsDone) {
    for (int i = 0; i < 8; ++i) {
        folder_.Write("a.bmp", std::string(static_cast<size_t>(10 + i), 'x'));
        EXPECT_FALSE(LookAfter(100)) << i;
    }
    EXPECT_TRUE(LookAfter(120).pictures);
}

TEST_F(Watch, DoesNotWaitForAWriterWithoutEnd) {
    bool told = false;
    for (int i = 0; i < 12 && !told; ++i) {
        folder_.Write("a.bmp", std::string(static_cast<size_t>(10 + i), 'x'));
        told = bool(LookAfter(100));
    }
    EXPECT_TRUE(told);
}

TEST_F(Watch, SeesFilesThatComeAndGo) {
    folder_.Write("later.bmp", "here");
    LookAfter(10);
    EXPECT_TRUE(LookAfter(200).pictures);
    std::filesystem::remove(define_);
    LookAfter(10);
    EXPECT_TRUE(LookAfter(200).defines);
}

TEST_F(Watch, SeesAFileThatAnEditorPutsInItsPlace) {
    const std::string other = folder_.Write("a.theme~", "[ThemeSet]\nThemes=2\n").Utf8();
    std::filesystem::rename(other, define_);
    LookAfter(10);
    EXPECT_TRUE(LookAfter(200).defines);
}

TEST_F(Watch, TellsBothKindsTogether) {
    folder_.Write("a.theme", "[ThemeSet]\nThemes=3\n");
    LookAfter(10);
    folder_.Write("a.bmp", "other bytes");
    LookAfter(100);
    const SkinWatch::Change change = LookAfter(120);
    EXPECT_TRUE(change.defines);
    EXPECT_TRUE(change.pictures);
}

TEST(SkinFiles, OfAThemeSetAreItsDefineFileAndItsPictures) {
    const SkinFiles files = FilesOfSkin(VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme");
    EXPECT_THAT(files.defines, ElementsAre(EndsWith("aurora.theme")));
    EXPECT_EQ(files.pictures.size(), 15u);
    EXPECT_THAT(files.pictures, Contains(EndsWith("aurora/arrow-mark.png")));
}

TEST(SkinFiles, OfAUisSkinAreBothDefineFilesAndThePicturesOfBoth) {
    const SkinFiles files = FilesOfSkin(VXGUI_SOURCE_DIR "/skins/porcelain/porcelain.uis");
    EXPECT_THAT(files.defines, ElementsAre(EndsWith("porcelain.uis"), EndsWith("taskbar.xp")));
    EXPECT_THAT(files.pictures, Contains(EndsWith("controls/Button.tga")));
    EXPECT_THAT(files.pictures, Contains(EndsWith("taskbar/StartButton.tga")));
    EXPECT_THAT(files.pictures, Contains(EndsWith("wallpaper.png")));
}

TEST(SkinFiles, HoldPicturesThatAreNotThereYet) {
    const test::TemporaryFolder folder;
    const String path = folder.Write("a.theme", "[ThemeSet]\n[Theme_01]\nImage=sub\\Later.bmp\n");
    EXPECT_THAT(FilesOfSkin(path.Utf8()).pictures, ElementsAre(EndsWith("/sub/Later.bmp")));
}

TEST(SkinFiles, OfWhatCantBeReadAreTheFileItself) {
    EXPECT_THAT(FilesOfSkin("/nowhere/a.theme").defines, ElementsAre("/nowhere/a.theme"));
}

}  // namespace
}  // namespace vxgui::view
