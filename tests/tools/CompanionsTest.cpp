#include <gmock/gmock.h>
#include <sys/wait.h>

#include <fstream>

#include "generated/Places.h"
#include "tests/tools/ToolCall.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

const std::string kAurora = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";
const std::string kNoFont = "vxgui: no font is installed, so that no text can be shown\n";

/// The tool as a program of its own, in a world where something is missing.
class MissingCompanions : public testing::Test {
protected:
    /// Runs a command line of the tool behind `prefix`, for example "env A=b".
    Result Run(const std::string& prefix, const std::string& arguments) const {
        const std::string out = Folder() + "out.txt", errors = Folder() + "errors.txt";
        const std::string line =
            prefix + " '" VXGUI_TOOL_FILE "' " + arguments + " > '" + out + "' 2> '" + errors + "'";
        const int status = std::system(line.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, TextOf(out), TextOf(errors)};
    }
    static std::string TextOf(const std::string& path) {
        const ByteArray bytes = BytesOfFile(path);
        return {bytes.begin(), bytes.end()};
    }
    static std::string Gallery(const std::string& name) {
        return "gallery '" + kAurora + "' -o '" + Folder() + name + "'";
    }
    static std::string Caption(const std::string& name) {
        return "render '" + kAurora + "' --item PushButton --size 120x34 --text Delete -o '" +
               Folder() + name + "'";
    }
    static std::string WithoutFonts() {
        std::ofstream(Folder() + "fonts.conf")
            << "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"urn:fontconfig:fonts.dtd\">"
               "<fontconfig><dir>/nowhere</dir></fontconfig>";
        return "env FONTCONFIG_FILE='" + Folder() + "fonts.conf'";
    }
    static std::string Plain() { return "env"; }
};

TEST_F(MissingCompanions, WithoutAFontAllButTextIsPaintedAndThatIsSaidOnce) {
    const Result check = Run(WithoutFonts(), "check '" + kAurora + "'");
    EXPECT_EQ(check.status, 0);
    EXPECT_THAT(check.errors, IsEmpty()) << "what needs no font says nothing";
    const std::string plain = "render '" + kAurora + "' --item PushButton --size 120x34 -o '";
    EXPECT_EQ(Run(WithoutFonts(), plain + Folder() + "without.png'").status, 0);
    EXPECT_EQ(Run(Plain(), plain + Folder() + "with.png'").status, 0);
    EXPECT_EQ(BytesOfFile(Folder() + "without.png"), BytesOfFile(Folder() + "with.png"));
    for (const std::string& line : {Gallery("a.png"), Caption("b.png")}) {
        const Result result = Run(WithoutFonts(), line);
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.errors, kNoFont);
    }
}

TEST_F(MissingCompanions, NoLocaleOrAnOddOneChangesNoPixel) {
    ASSERT_EQ(Run(Plain(), Gallery("expected.png")).status, 0);
    const ByteArray expected = BytesOfFile(Folder() + "expected.png");
    for (const std::string world :
         {"env -u LC_ALL -u LANG", "env LC_ALL=C", "env LC_ALL=xx_YY.odd", "env LC_ALL=de_DE.UTF-8",
          "env LC_ALL= LANG= LC_NUMERIC=fr_FR"}) {
        const Result result = Run(world, Gallery("a.png"));
        EXPECT_EQ(result.status, 0) << world;
        EXPECT_THAT(result.errors, IsEmpty()) << world;
        EXPECT_EQ(BytesOfFile(Folder() + "a.png"), expected) << world;
    }
}

TEST_F(MissingCompanions, AHomeThatCantBeReadChangesNothing) {
    std::filesystem::create_directories(Folder() + "home");
    std::filesystem::permissions(Folder() + "home", std::filesystem::perms(0));
    for (const std::string& home : {Folder() + "home", std::string("/nowhere"), std::string()}) {
        const std::string world = "env -u XDG_CACHE_HOME -u XDG_CONFIG_HOME HOME='" + home + "'";
        const Result result = Run(world, Caption("a.png"));
        EXPECT_EQ(result.status, 0) << home;
        EXPECT_THAT(result.errors, IsEmpty()) << home;
    }
    std::filesystem::permissions(Folder() + "home", std::filesystem::perms(0700));
}

TEST_F(MissingCompanions, WithoutADisplayTheDialogSaysSoOnceAndTheRestWorks) {
    const std::string world = "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM";
    const std::string picture =
        "adjust " VXGUI_SOURCE_DIR "/skins/aurora/panel.png -o '" + Folder();
    const Result dialog = Run(world, picture + "a.png' --dialog");
    EXPECT_NE(dialog.status, 0);
    EXPECT_EQ(std::count(dialog.errors.begin(), dialog.errors.end(), '\n'), 1) << dialog.errors;
    EXPECT_EQ(Run(world, picture + "b.png' --hue 90").status, 0);
}

}  // namespace
}  // namespace vxgui::tool
