#include "tests/frame/FrameTest.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {
namespace {

using ::testing::Contains;
using ::testing::Not;

class Command : public FrameTest {
protected:
    Command() { AddHelper(); }
};

Variant Execute(const VariantArray& P) { return Global().Execute(P); }

TEST_F(Command, LoadsAThemeSet) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    ASSERT_TRUE(file->LoadText("[ThemeSet]\nFonts=2\n[Font_01]\nFaceName=Sans\n[Font_02]\n"));
    EXPECT_EQ(Execute({"LoadThemeSet", set, file, ""}), Variant(0));
    ASSERT_NE(set->Fonts(), nullptr);
    EXPECT_EQ(set->Fonts()->Count(), 2);
}

TEST_F(Command, KnowsNoOtherCommand) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    for (const char* command : {"", "loadthemeset", "LOADTHEMESET", "LoadThemeSet ", "Load"}) {
        EXPECT_TRUE(Execute({command, set, file, ""}).IsEmpty()) << command;
    }
}

TEST_F(Command, IgnoresOperandsOfTheWrongKind) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    const VariantArray kCommands[] = {
        {},
        {Variant()},
        {7},
        {"LoadThemeSet"},
        {"LoadThemeSet", set, file},
        {"LoadThemeSet", "set", file, ""},
        {"LoadThemeSet", file, set, ""},
        {"LoadThemeSet", set, Ref<core7::DefineFile>(), ""},
        {"LoadThemeSet", set, file, 1.5},
    };
    for (const VariantArray& command : kCommands) EXPECT_TRUE(Execute(command).IsEmpty());
    EXPECT_THAT(kernel_.calls, Not(Contains(::testing::StartsWith("message"))));
}

TEST_F(Command, IgnoresAFailureOfTheLoad) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    // An item that lists a font, in a file without fonts.
    ASSERT_TRUE(file->LoadText("[ThemeSet]\nThemes=1\n[Theme_01]\nFonts=1\n"));
    EXPECT_TRUE(Execute({"LoadThemeSet", set, file, ""}).IsEmpty());
    EXPECT_THAT(kernel_.calls, Not(Contains(::testing::StartsWith("message"))));
}

}  // namespace
}  // namespace vxgui
