#include "generated/Places.h"
#include "tests/memory/EveryFailure.h"
#include "vxgui/platform/core7.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/ThemeSetFile.h"

namespace vxgui::test {
namespace {

const char* const kAurora = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";

void DoNothing() {}

TEST(LoadingWithoutMemory, AThemeSetIsLoadedOrRaises) {
    const String path = kAurora;
    FailEverywhere([&] { LoadThemeSetFile(path); }, DoNothing);
    EXPECT_NE(LoadThemeSetFile(kAurora)->Item("Theme_01")->Image(), nullptr);
}

TEST(LoadingWithoutMemory, ACompiledSkinIsReadOrRaises) {
    const ByteArray file = BytesOfCompiledSkin({LoadThemeSetFile(kAurora), {}});
    FailEverywhere([&] { CompiledSkinFrom(file); }, DoNothing);
}

TEST(LoadingWithoutMemory, ACompiledSkinIsWrittenOrRaises) {
    const Ref<ThemeSet> set = LoadThemeSetFile(kAurora);
    const ByteArray expected = BytesOfCompiledSkin({set, {}});
    FailEverywhere([&] { BytesOfCompiledSkin({set, {}}); }, DoNothing);
    EXPECT_EQ(BytesOfCompiledSkin({set, {}}), expected);
}

TEST(LoadingWithoutMemory, ATaskbarSkinStartsUpWholeOrNotAtAll) {
    const Ref<SkinDef> skin = New<SkinDef>();
    const String part = "Taskbar.StartButton";
    skin->SkinPath(VXGUI_SOURCE_DIR "/skins/porcelain");
    // A skin that could not be started up gives way to a built-in style, names and all. What that
    // leaves for good, such as a longer palette, is there before anything is counted.
    skin->InitializeXPTaskbar();
    const auto open = [&] {
        skin->SkinName("Porcelain");
        skin->DefFile("porcelain.uis");
    };
    open();
    FailEverywhere(
        [&] {
            skin->InitializeXPTaskbar();
            skin->Item(part);
        },
        [&] {
            open();
            skin->InitializeXPTaskbar();
            EXPECT_NE(skin->Item(part)->Image(), nullptr);
        });
}

}  // namespace
}  // namespace vxgui::test
