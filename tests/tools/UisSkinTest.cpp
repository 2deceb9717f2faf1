#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>

#include "generated/Places.h"
#include "tests/support/Golden.h"
#include "tests/tools/ToolCall.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

const std::string kBroken = VXGUI_SOURCE_DIR "/tests/data/broken/";

const std::string kPorcelain = VXGUI_SOURCE_DIR "/skins/porcelain/porcelain.uis";

Result Gallery(const std::string& skin) {
    return Call({"gallery", skin, "-o", Folder() + "uis.png"});
}

TEST(UisSkin, WhoseTaskbarIsNotThereIsRefused) {
    const Result result = Gallery(kBroken + "lost/lost.uis");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("lost.uis:7:1: error: the taskbar's file"));
    EXPECT_THAT(result.errors, HasSubstr("nowhere.xp"));
}

TEST(UisSkin, WhoseTaskbarLacksAnImageIsRefusedWithItsPlace) {
    const Result result = Gallery(kBroken + "uis/broken.uis");
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors,
                HasSubstr("broken.xp:29:1: error: image \"start.tga\" is not there"));
    EXPECT_THAT(result.errors, HasSubstr("broken.xp:86:1: error: neither a section"));
}

TEST(UisSkin, ShowsItsControlsItsPartsAndItsTaskbar) {
    const Result result = Gallery(kPorcelain);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.out, HasSubstr("44 items"));  // 11 controls and 33 parts
    const Result desktop = Call({"gallery", kPorcelain, "--desktop", "-o", Folder() + "d.png"});
    EXPECT_EQ(desktop.status, 0) << desktop.errors;
}

test::TestPicture Rendered(const std::string& item, const std::string& state) {
    const std::string path = Folder() + item + state + ".png";
    const Result result = Call({"render", kPorcelain, "--item", item, "--state", state, "--size",
                                "120x34", "--text", "Text", "-o", path});
    EXPECT_EQ(result.status, 0) << result.errors;
    test::TestPicture picture;
    EXPECT_TRUE(test::ReadPng(path, &picture));
    return picture;
}

TEST(UisSkin, WritesCaptionsInTheColoursOfThePalette) {
    // Ink on the white button, white on the pressed one's cobalt: by their red, which tells both.
    const auto count = [](const test::TestPicture& picture, uint32_t from, uint32_t to) {
        int found = 0;
        for (int y = 10; y < 24; ++y) {
            for (int x = 40; x < 80; ++x) {
                const uint32_t red = picture.At(x, y) >> 16 & 255;
                found += red >= from && red <= to;
            }
        }
        return found;
    };
    EXPECT_GT(count(Rendered("Button", "Normal"), 0, 120), 20);
    EXPECT_GT(count(Rendered("Button", "Pressed"), 150, 255), 20);
}

TEST(UisSkin, NamesItsItemsWhenAnotherIsAskedFor) {
    const Result result =
        Call({"render", kPorcelain, "--item", "Nothing", "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("Button, CheckBox"));
    EXPECT_THAT(result.errors, HasSubstr("TaskBandGroup.Toolbar"));
}

TEST(UisSkin, StyleThatNoModuleHasIsRefused) {
    for (const char* style : {"res:DefaultStyles:nothing", "res:Nowhere:blue", "res:blue"}) {
        const Result result = Gallery(style);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.errors, HasSubstr(std::string(style) + ": error: "));
    }
}

#ifdef VXGUI_STYLES_FOLDER

class DefaultStyle : public testing::TestWithParam<const char*> {
protected:
    const std::string reference = std::string("res:DefaultStyles:") + GetParam();
};
INSTANTIATE_TEST_SUITE_P(Each, DefaultStyle, testing::Values("blue", "homestead", "metallic"),
                         [](const auto& info) { return std::string(info.param); });

TEST_P(DefaultStyle, ShowsAllItsPartsInAGallery) {
    const Result result = Gallery(reference);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.out, HasSubstr("33 items"));
}

TEST_P(DefaultStyle, ShowsItsPartsTogether) {
    const std::string path = Folder() + "desktop.png";
    const Result result = Call({"gallery", reference, "--desktop", "-o", path});
    EXPECT_EQ(result.status, 0) << result.errors;
    test::TestPicture desktop;
    ASSERT_TRUE(test::ReadPng(path, &desktop));
    // The free end of the taskbar is the part by itself.
    ASSERT_EQ(Call({"render", reference, "--item", "Taskbar.TrayHorz", "--size", "150x34", "-o",
                    Folder() + "tray.png"})
                  .status,
              0);
    test::TestPicture tray;
    ASSERT_TRUE(test::ReadPng(Folder() + "tray.png", &tray));
    for (int y = 2; y < 34; ++y) EXPECT_EQ(desktop.At(930, 566 + y), tray.At(80, y)) << y;
}

TEST_P(DefaultStyle, IsFoundInAModuleOfTheCurrentFolder) {
    namespace fs = std::filesystem;
    const std::string folder = Folder();
    fs::copy_file(VXGUI_STYLES_FOLDER "/../share/vxgui/DefaultStyles.dll", folder + "Own.dll",
                  fs::copy_options::overwrite_existing);
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    const Result result = Call({"gallery", std::string("res:Own:") + GetParam(), "-o", "x.png"});
    fs::current_path(before);
    EXPECT_EQ(result.status, 0) << result.errors;
}

TEST_P(DefaultStyle, IsReadFromItsModuleByAnIndependentReader) {
    if (OutputOf("command -v wrestool").empty())
        GTEST_SKIP() << "wrestool, of the package icoutils, is not installed";
    const std::string folder = VXGUI_STYLES_FOLDER;
    const std::string module = folder + "/../share/vxgui/DefaultStyles.dll";
    for (const std::string ending : {".INI", "TaskBar.INI"}) {
        const std::string name = GetParam() + ending;
        std::string capitals = name;
        for (char& c : capitals) c = static_cast<char>(std::toupper(c));
        const ByteArray text = BytesOfFile(folder + "/TxtFiles/" + name);
        EXPECT_FALSE(text.empty());
        EXPECT_EQ(OutputOf("wrestool -x --raw -t TXTFILES -n " + capitals + " '" + module + "'"),
                  std::string(text.begin(), text.end()));
    }
}

#endif

TEST(Desktop, OfAThemeSetIsRefused) {
    const Result result = Call({"gallery", VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme",
                                "--desktop", "-o", Folder() + "x.png"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("a theme set has no taskbar"));
}

}  // namespace
}  // namespace vxgui::tool
