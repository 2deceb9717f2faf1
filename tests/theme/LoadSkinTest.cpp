#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "generated/Places.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ItemLook.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string kSkins = VXGUI_SOURCE_DIR "/skins/";
const std::string kBroken = VXGUI_SOURCE_DIR "/tests/data/broken/";

std::string ErrorOf(const String& path) {
    try {
        LoadSkin(path);
    } catch (const SkinError& error) {
        return error.what();
    }
    return {};
}

TEST(LoadSkin, TakesAThemeSetWithTheNamesOfItsAuthor) {
    const Skin skin = LoadSkin(kSkins + "aurora/aurora.theme");
    ASSERT_TRUE(skin.set);
    EXPECT_FALSE(skin.desktop);
    ASSERT_EQ(skin.items.size(), 14u);
    EXPECT_EQ(skin.items[0].section, "Theme_01");
    EXPECT_EQ(skin.items[0].name, "PushButton");
}

TEST(LoadSkin, TakesAUisSkinWithItsControlsAndItsDesktop) {
    const Skin skin = LoadSkin(kSkins + "porcelain/porcelain.uis");
    ASSERT_TRUE(skin.desktop);
    EXPECT_FALSE(skin.set);
    EXPECT_EQ(skin.items.size(), 44u);
}

TEST(LoadSkin, TakesACompiledSkinWithTheSameItems) {
    const Skin skin = LoadSkin(kSkins + "aurora/aurora.theme");
    const Skin compiled = SkinOfCompiled(
        BytesOfCompiledSkin({skin.set, "[Theme_01]\nName=PushButton\n"}), "aurora.vxs");
    ASSERT_EQ(compiled.items.size(), skin.items.size());
    EXPECT_EQ(compiled.items[0].name, "PushButton");
    EXPECT_TRUE(compiled.items[1].name.EqualsNoCase("Theme_02"));  // its key
    EXPECT_TRUE(compiled.items[0].item->Image());
}

#ifdef VXGUI_STYLES_FOLDER
TEST(LoadSkin, TakesAStyleOfAModule) {
    const Skin skin = LoadSkin("res:DefaultStyles:metallic");
    ASSERT_TRUE(skin.desktop);
    EXPECT_EQ(skin.items.size(), 33u);
}
#endif

TEST(LoadSkin, NamesFileLineAndCureOfEachThingThatIsWrong) {
    const std::string uis = ErrorOf(kBroken + "uis/broken.uis");
    EXPECT_THAT(uis, HasSubstr("broken.xp:29:1: error: image \"start.tga\" is not there"));
    EXPECT_THAT(uis, HasSubstr("a file in the folder of the skin was expected"));
    EXPECT_THAT(uis, HasSubstr("\n"));
    EXPECT_EQ(ErrorOf("/nowhere.theme"),
              "/nowhere.theme: error: is not there; the define file of a theme set, a compiled "
              "skin, the UIS file of a skin or res:MODULE:STYLE was expected");
    EXPECT_THAT(ErrorOf("res:Nowhere:blue"), StartsWith("res:Nowhere:blue: error: no such style"));
    EXPECT_THAT(ErrorOf(kSkins + "porcelain/taskbar.xp"), HasSubstr("no section [ThemeSet]"));
}

TEST(LoadSkin, RefusesADamagedCompiledSkinByItsName) {
    const Skin skin = LoadSkin(kSkins + "aurora/aurora.theme");
    ByteArray bytes = BytesOfCompiledSkin({skin.set, ""});
    bytes.resize(bytes.size() / 2);
    try {
        SkinOfCompiled(bytes, "half.vxs");
        FAIL() << "half a file was taken";
    } catch (const SkinError& error) {
        EXPECT_THAT(error.what(), StartsWith("half.vxs: error: "));
    }
}

TEST(FindItem, GoesBySectionOrNameInAnyCaseAndElseListsTheNames) {
    const Skin skin = LoadSkin(kSkins + "aurora/aurora.theme");
    EXPECT_EQ(FindItem(skin, "pushbutton"), skin.items[0].item);
    EXPECT_EQ(FindItem(skin, "THEME_01"), skin.items[0].item);
    try {
        FindItem(skin, "Nothing");
        FAIL() << "an item that isn't there was found";
    } catch (const SkinError& error) {
        EXPECT_THAT(error.what(), HasSubstr("no item \"Nothing\"; the items are PushButton, "));
    }
}

TEST(ItemLook, IsTheSizeOfOneFrameAndTheStatesThatHaveOne) {
    const Skin skin = LoadSkin(kSkins + "aurora/aurora.theme");
    ThemeItem& button = *skin.items[0].item;
    EXPECT_EQ(OwnSize(button).cx, button.ImageWidth());
    EXPECT_EQ(OwnSize(button).cy, button.ImageHeight());
    EXPECT_TRUE(ShowsInState(button, E_ItemStatePressed));
    EXPECT_FALSE(ShowsInState(button, E_ItemStateGroup));  // -1 in its FrameOrder
    EXPECT_EQ(OwnSize(*New<ThemeItem>()).cx, 64);
}

}  // namespace
}  // namespace vxgui
