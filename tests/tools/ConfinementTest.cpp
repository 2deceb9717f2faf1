#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "generated/Places.h"
#include "tests/tools/ToolCall.h"
#include "vxgui/theme/SkinConfinement.h"

namespace vxgui::tool {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A skin that shows a picture from the folder above its own.
std::string SkinThatLooksOutside() {
    fs::create_directories(Folder() + "skin");
    fs::copy_file(VXGUI_SOURCE_DIR "/skins/aurora/panel.png", Folder() + "outside.png",
                  fs::copy_options::overwrite_existing);
    std::ofstream(Folder() + "skin/a.theme")
        << "[ThemeSet]\nThemes=1\n[Theme_01]\nFrames=1\nImage=../outside.png\n";
    return Folder() + "skin/a.theme";
}

TEST(ToolConfinement, ASkinIsKeptToItsFolderUnlessTheUserTrustsIt) {
    const std::string skin = SkinThatLooksOutside(), picture = Folder() + "out.png";
    const Result kept = Call({"gallery", skin, "-o", picture});
    EXPECT_EQ(kept.status, 1);
    EXPECT_THAT(kept.errors, HasSubstr("a.theme:5:1: error: image \"../outside.png\" lies outside "
                                       "the folder of the skin, which is not read"));
    EXPECT_EQ(Call({"--any-folder", "gallery", skin, "-o", picture}).status, 0);
    EXPECT_EQ(Call({"gallery", "--any-folder", skin, "-o", picture}).status, 0);
}

TEST(ToolConfinement, TheCheckWarns) {
    const Result result = Call({"check", SkinThatLooksOutside()});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("a.theme:5:1: warning: \"../outside.png\" lies outside"));
}

TEST(ToolConfinement, WhoeverCallsTheToolKeepsHisOwnChoice) {
    Call({"--help"});
    EXPECT_FALSE(AreSkinsConfined());
    ConfineSkins(true);
    Call({"--any-folder", "check", SkinThatLooksOutside()});
    EXPECT_TRUE(AreSkinsConfined());
    ConfineSkins(false);
}

}  // namespace
}  // namespace vxgui::tool
