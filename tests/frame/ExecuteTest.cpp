#include "tests/frame/FrameTest.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/theme/SkinPictures.h"
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

TEST_F(Command, LoadsItemsWithPicturesFontsAndStyles) {
    const test::TemporaryFolder folder;
    folder.Write("strip.tga", test::TgaBytes({200, 100, 50, 255}));
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    ASSERT_TRUE(
        file->LoadText("[ThemeSet]\nFonts=1\nTextStyles=1\nThemes=2\n[Font_01]\nFontHeight=-17\n"
                       "[TextStyle_01]\nTextColor=1,2,3\n[Theme_01]\nImage=strip.tga\nFrames=3\n"
                       "Fonts=1\nTextStyles=0,1\n"));
    EXPECT_EQ(Execute({"LoadThemeSet", set, file, folder.Path()}), Variant(0));
    const Ref<ThemeItem> item = set->Item("Theme_01");
    ASSERT_NE(item, nullptr);
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->ImageWidth(), 4);
    EXPECT_EQ(item->StateFont(E_ItemStateNormal)->Height, -17);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateMouseOver)->TextColor, 0x030201);
    EXPECT_EQ(set->ThemeItems()->Count(), 2);
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
    // The second item lists a font, in a file without fonts.
    ASSERT_TRUE(file->LoadText("[ThemeSet]\nTextStyles=1\nThemes=3\n[Theme_02]\nFonts=1\n"));
    EXPECT_TRUE(Execute({"LoadThemeSet", set, file, ""}).IsEmpty());
    EXPECT_EQ(set->TextStyles()->Count(), 1);  // what was read before it is kept
    EXPECT_NE(set->Item("Theme_01"), nullptr);
    EXPECT_EQ(set->Item("Theme_02"), nullptr);
    EXPECT_THAT(kernel_.calls, Not(Contains(::testing::StartsWith("message"))));
}

}  // namespace
}  // namespace vxgui
