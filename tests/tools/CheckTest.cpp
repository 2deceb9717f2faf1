#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generated/Places.h"
#include "tests/tools/ToolCall.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

const std::string kBroken = VXGUI_SOURCE_DIR "/tests/data/broken/";

TEST(ToolCheck, ACleanSkinGivesStatusZero) {
    const Result result = Call({"check", VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "no problems\n");
    EXPECT_EQ(result.errors, "");
}

TEST(ToolCheck, ErrorsGiveStatusOne) {
    const Result result = Call({"check", kBroken + "lost/lost.uis"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("lost/lost.uis:7:1: error: \"nowhere.xp\" is not there"));
    EXPECT_EQ(result.errors, "1 error, 0 warnings\n");
}

TEST(ToolCheck, WarningsAloneGiveStatusZero) {
    std::ofstream(Folder() + "a.theme") << "[ThemeSet]\nThemes=1\nThem=1\n[Theme_01]\n";
    const Result result = Call({"check", Folder() + "a.theme"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("a.theme:3:1: warning: unknown key \"Them\""));
    EXPECT_THAT(result.out, HasSubstr("\n0 errors, 1 warning\n"));
}

TEST(ToolCheck, ALineIsToldOnceWhateverFilesAreGiven) {
    const std::string uis = kBroken + "uis/broken.uis", taskbar = kBroken + "uis/broken.xp";
    const Result one = Call({"check", uis}), both = Call({"check", uis, uis, taskbar});
    EXPECT_EQ(one.out, both.out);
    EXPECT_EQ(one.errors, both.errors);
}

TEST(ToolCheck, AMissingFileIsAnError) {
    const Result result = Call({"check", "/nowhere/x.theme"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.out, HasSubstr("/nowhere/x.theme:1:1: error: "));
}

}  // namespace
}  // namespace vxgui::tool
