#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generated/Places.h"
#include "tests/support/Golden.h"
#include "tests/tools/ToolCall.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;

const std::string kSkin = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";

std::string Compiled() {
    const std::string path = Folder() + "aurora.vxs";
    const Result result = Call({"compile", kSkin, "-o", path});
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.out, HasSubstr("aurora.vxs: 14 items, "));
    return path;
}

TEST(ToolCompile, TheGalleryOfACompiledSkinIsThatOfItsDefineFile) {
    const std::string picture = Folder() + "gallery.png";
    const Result result = Call({"gallery", Compiled(), "-o", picture});
    ASSERT_EQ(result.status, 0) << result.errors;
    test::TestPicture gallery;
    ASSERT_TRUE(test::ReadPng(picture, &gallery));
    test::ExpectGolden("aurora-gallery", gallery);
}

TEST(ToolCompile, ItemsOfACompiledSkinKeepTheirNames) {
    const std::string skin = Compiled(), picture = Folder() + "tab.png";
    const Result result = Call({"render", skin, "--item", "Tab", "--size", "150x60", "--state",
                                "MouseOver", "-o", picture});
    ASSERT_EQ(result.status, 0) << result.errors;
    test::TestPicture tab;
    ASSERT_TRUE(test::ReadPng(picture, &tab));
    test::ExpectGolden("aurora-Tab", tab);
}

TEST(ToolCompile, InfoTellsWhatACompiledSkinHolds) {
    const Result result = Call({"info", Compiled()});
    ASSERT_EQ(result.status, 0) << result.errors;
    EXPECT_THAT(result.out,
                HasSubstr("compiled skin, 14 items, 3 fonts, 8 text styles, 15 pictures"));
    EXPECT_THAT(result.out, HasSubstr("  PushButton, image "));
    EXPECT_THAT(result.out, HasSubstr("of 6 frames\n"));
    EXPECT_THAT(result.out, HasSubstr("  CheckBox, glyph "));
    EXPECT_THAT(result.out, HasSubstr("of 1 frame\n"));
}

TEST(ToolCompile, ADamagedSkinIsRefusedByEveryCommand) {
    ByteArray bytes = BytesOfFile(Compiled());
    bytes[bytes.size() / 2] ^= 1;
    const std::string path = WriteBytes("damaged.vxs", bytes), out = Folder() + "x.png";
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"gallery", path, "-o", out},
             {"render", path, "--item", "Tab", "-o", out},
             {"info", path},
             {"compile", path, "-o", out},
         }) {
        const Result result = Call(arguments);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.errors, HasSubstr(path + ": error: damaged: its checksum"));
    }
}

TEST(ToolCompile, OnlyThemeSetsAreCompiled) {
    const Result result = Call({"compile", "res:DefaultStyles:blue", "-o", Folder() + "x.vxs"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("res:DefaultStyles:blue: error: no theme set"));
}

TEST(ToolCompile, AnOutputThatCantBeWrittenIsNamed) {
    const Result result = Call({"compile", kSkin, "-o", "/nowhere/x.vxs"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.errors, HasSubstr("/nowhere/x.vxs: error: can't be written"));
}

}  // namespace
}  // namespace vxgui::tool
