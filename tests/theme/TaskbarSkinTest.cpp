#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/theme/SkinPictures.h"
#include "tests/theme/SkinWorld.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/StyleModule.h"

namespace vxgui {
namespace {

using testing::Contains;
using testing::Not;

const char* const kModule = "DefaultStyles.dll";

class TaskbarSkin : public testing::Test {
protected:
    void AddStyle(const std::string& style, const std::string& path = kModule) {
        world.AddModule(path, style, "[Style]\nName=" + style + "\n",
                        "[Style]\nName=taskbar of " + style + "\n");
    }
    /// Starts up and answers the style that is open, empty for a skin of files or for none.
    std::string Start(const String& defFile) {
        skin->DefFile(defFile);
        skin->InitializeXPTaskbar();
        return skin->GetIniString("UIS", "Style", "Name", "").Utf8();
    }
    /// Lays a skin of files down at /skin, with these two texts.
    void AddSkin(const std::string& uis, const std::string& taskbar) {
        world.AddFile("/skin/skin.uis", uis);
        if (!taskbar.empty()) world.AddFile("/skin/XPStuff.xp", taskbar);
        skin->SkinPath("/skin");
        skin->SkinName("Skin");
    }
    bool Uses(const String& file) {
        return skin->GetIniString(file, "Style", "Name", "none") != "";
    }

    test::SkinWorld world;
    Ref<SkinDef> skin = New<SkinDef>();
};

// The parts.

struct Part {
    const char* name;
    const char* image;
};

const Part kParts[33] = {
    {"MenuBackground", "MenuBackground.bmp"},
    {"MenuItem", "MenuItem.bmp"},
    {"StartPanel.UserPane", "StartPanelUserPane.bmp"},
    {"StartPanel.Menu", "StartPanelProgList.bmp"},
    {"StartPanel.MenuItem", "StartPanelProgListSeparator.tga"},
    {"StartPanel.ProgList", "StartPanelProgList.bmp"},
    {"StartPanel.ProgListSeparator", "StartPanelProgListSeparator.tga"},
    {"StartPanel.PlacesList", "StartPanelPlacesList.bmp"},
    {"StartPanel.PlacesListSeparator", "StartPanelPlacesListSeparator.tga"},
    {"StartPanel.MorePrograms", "StartPanelMoreProgramBack.bmp"},
    {"StartPanel.MoreProgramsArrow", "StartPanelMoreProgramsArrow.tga"},
    {"StartPanel.BottomBar", "StartPanelLogOff.bmp"},
    {"StartPanel.LogonButtons", "StartPanelLogoffButtons.tga"},
    {"StartMenu.LogonBackground", ""},
    {"StartMenu.ButtonBackground", "StartPanelItemBackground.tga"},
    {"Taskbar.StartButton", "TaskBarStartButton.bmp"},
    {"Taskbar.Horz", "TaskBarBackground.bmp"},
    {"Taskbar.QuickLaunch", "TaskbarQuickLaunch.bmp"},
    {"Taskbar.ButtonHorz", "TaskBandToolbarBtn.bmp"},
    {"Taskbar.RebarHorz", "TaskBarRebarGripper.bmp"},
    {"Taskbar.TrayHorz", "TrayNotifyHorizBack.bmp"},
    {"Taskbar.SizeHorz", "TaskBarSizingBar.bmp"},
    {"Taskbar.ButtonArrow", "TrayNotifyHorzArrow.tga"},
    {"Taskbar.Vert", "TaskBarBackgroundVert.bmp"},
    {"Taskbar.QuickLaunchVert", "TaskbarQuickLaunchV.bmp"},
    {"Taskbar.ButtonVert", "TaskBandToolbarBtnVert.bmp"},
    {"Taskbar.RebarVert", "TaskBarRebarGripperVert.bmp"},
    {"Taskbar.TrayVert", "TrayNotifyVertBack.bmp"},
    {"Taskbar.SizeVert", "TaskBarSizingBarVert.bmp"},
    {"Taskbar.ButtonArrowVert", "TrayNotifyVertArrow.tga"},
    {"Taskbar.FlashingButton", "TaskBarFlashingButton.bmp"},
    {"TaskBandGroup.Background", "TaskBandGroupBack.bmp"},
    {"TaskBandGroup.Toolbar", "TaskBandGroupMenuItem.bmp"},
};

TEST_F(TaskbarSkin, NamesItsPartsInOrder) {
    std::vector<String> names;
    int32_t last = 0;
    SkinDef::XPTaskbarItemNames(names, last);
    EXPECT_EQ(names.size(), 51u);
    ASSERT_EQ(last, 32);
    for (int32_t i = 0; i <= last; ++i) EXPECT_EQ(names[i], kParts[i].name);
    EXPECT_EQ(names[33], "");
}

TEST_F(TaskbarSkin, AsksForTheDefaultPictureOfEachPartInOrder) {
    AddStyle("blue");
    EXPECT_EQ(Start("res:DefaultStyles:blue"), "blue");
    std::vector<std::string> expected{"TxtFiles/blue.INI", "TxtFiles/blueTaskBar.INI"};
    for (const Part& part : kParts) expected.push_back(std::string("Image/") + part.image);
    EXPECT_EQ(world.asked, expected);
}

TEST_F(TaskbarSkin, ReadsTheTwoPartsOfMenusFromTheUisFileAndAllOthersFromTheTaskbars) {
    std::string uis, taskbar;
    for (const Part& part : kParts) {
        uis += std::string("[") + part.name + "]\nFrameCount=5\n";
        taskbar += std::string("[") + part.name + "]\nFrameCount=6\n";
    }
    AddSkin(uis, taskbar);
    Start("skin.uis");
    for (const Part& part : kParts) {
        const Ref<ThemeItem> item = skin->Item(part.name);
        ASSERT_NE(item, nullptr) << part.name;
        EXPECT_EQ(item->FrameCount(), std::string(part.name).starts_with("Menu") ? 5 : 6);
    }
}

// The choice of a style.

TEST_F(TaskbarSkin, WithoutADefineFileFollowsTheColourScheme) {
    struct Desktop {
        const char16_t* file;
        const char16_t* scheme;
        int32_t result;
        const char* style;
    };
    const Desktop kDesktops[] = {
        {u"C:\\Themes\\Luna\\Luna.msstyles", u"Metallic", 0, "metallic"},
        {u"C:\\Themes\\Luna\\LUNA.MSSTYLES", u"HomeStead", 0, "homestead"},
        {u"luna.msstyles", u"NormalColor", 0, "blue"},
        {u"luna.msstyles", u"metallic", 0, "blue"},  // schemes are compared exactly
        {u"Royale.msstyles", u"Metallic", 0, "blue"},
        {u"luna.msstyles", u"Metallic", uxtheme::E_FAIL, "blue"},
        {u"", u"", 0, "blue"},
    };
    for (const char* style : {"blue", "metallic", "homestead"}) AddStyle(style);
    for (const Desktop& desktop : kDesktops) {
        world.styleFile = desktop.file;
        world.scheme = desktop.scheme;
        world.styleResult = desktop.result;
        world.asked.clear();
        EXPECT_EQ(Start(""), desktop.style);
        EXPECT_EQ(skin->DefFile(), String("res:DefaultStyles:") + desktop.style);
        ASSERT_GE(world.asked.size(), 2u);
        EXPECT_EQ(world.asked[0], std::string("TxtFiles/") + desktop.style + ".INI");
        EXPECT_EQ(world.asked[1], std::string("TxtFiles/") + desktop.style + "TaskBar.INI");
    }
}

TEST_F(TaskbarSkin, ColourSchemeIsEmptyForAnyOtherStyle) {
    world.scheme = u"Metallic";
    EXPECT_EQ(CurrentColourSchemeName(), "Metallic");
    world.styleFile = u"Other.msstyles";
    EXPECT_EQ(CurrentColourSchemeName(), "");
}

TEST(ColourScheme, OfThisPlatformIsEmpty) { EXPECT_EQ(CurrentColourSchemeName(), ""); }

// A skin of files.

TEST_F(TaskbarSkin, OfFilesIsUsedWithItsNameAndPath) {
    AddStyle("blue");
    AddSkin("[Style]\nName=uis\n", "[Style]\nName=taskbar\n");
    EXPECT_EQ(Start("skin.uis"), "uis");
    EXPECT_EQ(skin->DefFile(), "/skin/skin.uis");
    EXPECT_EQ(skin->SkinName(), "Skin");
    EXPECT_EQ(skin->GetIniString("XPTaskBar", "Style", "Name", ""), "taskbar");
    EXPECT_TRUE(world.asked.empty());
}

TEST_F(TaskbarSkin, OfFilesMayNameItsTaskbarFile) {
    AddSkin("[Style]\nName=uis\n[XPTaskbar]\nFile=bar\\own.xp\n", "");
    world.AddFile("/skin/bar/own.xp", "[Style]\nName=own\n");
    EXPECT_EQ(Start("skin.uis"), "uis");
    EXPECT_EQ(skin->GetIniString("XPTaskBar", "Style", "Name", ""), "own");
}

TEST_F(TaskbarSkin, LooksForTheTaskbarFileBesideTheDefineFile) {
    AddSkin("", "");
    world.AddFile("/skin/sub/skin.uis", "[Style]\nName=uis\n");
    world.AddFile("/skin/sub/XPStuff.xp", "[Style]\nName=beside\n");
    EXPECT_EQ(Start("sub/skin.uis"), "uis");
    EXPECT_EQ(skin->GetIniString("XPTaskBar", "Style", "Name", ""), "beside");
}

TEST_F(TaskbarSkin, WithoutATaskbarFileFallsBackToTheBlueStyle) {
    AddStyle("blue");
    AddSkin("[Style]\nName=uis\n", "");
    EXPECT_EQ(Start("skin.uis"), "blue");
    EXPECT_EQ(skin->DefFile(), "res:DefaultStyles:blue");
    EXPECT_EQ(skin->SkinName(), "");
    EXPECT_EQ(skin->GetIniString("XPTaskBar", "Style", "Name", ""), "taskbar of blue");
}

TEST_F(TaskbarSkin, WithAnEmptyTaskbarFileFallsBackToTheBlueStyle) {
    AddStyle("blue");
    AddSkin("[Style]\nName=uis\n", "; nothing\n");
    EXPECT_EQ(Start("skin.uis"), "blue");
}

TEST_F(TaskbarSkin, WithAMissingPictureFallsBackToTheBlueStyle) {
    AddStyle("blue");
    AddSkin("[Style]\nName=uis\n", "[A]\nImage=a.bmp\n[B]\nImage=b.bmp\n");
    world.AddFile("/skin/a.bmp");
    EXPECT_EQ(Start("skin.uis"), "blue");
    EXPECT_EQ(skin->SkinName(), "");
}

TEST_F(TaskbarSkin, SectionsWithoutPicturesDontCountAgainstIt) {
    AddStyle("blue");
    AddSkin("[Style]\nName=uis\n", "[A]\nImage=a.bmp\n[B]\nKey=Value\n[C]\nImage=\n");
    world.AddFile("/skin/a.bmp", "no picture, but there");
    EXPECT_EQ(Start("skin.uis"), "uis");
    EXPECT_EQ(skin->SkinName(), "Skin");
}

TEST_F(TaskbarSkin, OfFilesIsAskedForItsTaskbarFileAndThenForEachPicture) {
    AddSkin("", "[A]\nImage=a.bmp\n[B]\nKey=Value\n[C]\nImage=sub\\c.bmp\n[D]\nImage=d.bmp\n");
    world.AddFile("/skin/a.bmp");
    Start("skin.uis");
    const std::vector<std::string> expected{"/skin/XPStuff.xp", "/skin/a.bmp", "/skin/sub/c.bmp"};
    ASSERT_GE(world.sought.size(), expected.size());
    world.sought.resize(expected.size());  // one missing picture ends the search
    EXPECT_EQ(world.sought, expected);
}

TEST_F(TaskbarSkin, ANamedTaskbarFileThatIsNotThereIsNotReplacedByTheUsualOne) {
    AddStyle("blue");
    AddSkin("[Style]\nName=uis\n[XPTaskbar]\nFile=own.xp\n", "[Style]\nName=usual\n");
    EXPECT_EQ(Start("skin.uis"), "blue");
    EXPECT_EQ(skin->GetIniString("XPTaskBar", "Style", "Name", ""), "taskbar of blue");
}

TEST_F(TaskbarSkin, PicturesBelongToTheSkinsFolderWhereverTheTaskbarFileLies) {
    AddStyle("blue");
    AddSkin("", "");
    world.AddFile("/skin/sub/skin.uis", "[Style]\nName=uis\n");
    world.AddFile("/skin/sub/XPStuff.xp", "[A]\nImage=a.bmp\n");
    world.AddFile("/skin/sub/a.bmp");
    EXPECT_EQ(Start("sub/skin.uis"), "blue");
    world.AddFile("/skin/a.bmp");
    skin->SkinName("Skin");
    EXPECT_EQ(Start("sub/skin.uis"), "uis");
}

TEST_F(TaskbarSkin, WithoutItsUisFileIsUsedWithATaskbarFileAlone) {
    world.AddFile("/skin/XPStuff.xp", "[Taskbar.Horz]\nFrameCount=3\n");
    skin->SkinPath("/skin");
    skin->SkinName("Skin");
    EXPECT_EQ(Start("none.uis"), "");
    EXPECT_EQ(skin->SkinName(), "Skin");
    EXPECT_EQ(skin->Item("Taskbar.Horz")->FrameCount(), 3);
    EXPECT_EQ(test::RaisedBy([&] { skin->Colour(0); }), 9);
}

// The name says that pictures come from the folder; without it they come from a module.
TEST_F(TaskbarSkin, OfFilesWithoutANameHasNoParts) {
    AddSkin("[Style]\nName=uis\n", "[Taskbar.Horz]\nFrameCount=3\n");
    skin->SkinName("");
    EXPECT_EQ(Start("skin.uis"), "uis");
    EXPECT_EQ(skin->Item("Taskbar.Horz"), nullptr);
    EXPECT_TRUE(world.kernel.calls.empty());
}

TEST_F(TaskbarSkin, PartsOfFilesHaveThePicturesOfTheFolder) {
    const test::TemporaryFolder folder;
    const String picture = folder.Write("TrayNotifyHorzArrow.tga", test::TgaBytes({9, 8, 7, 255}));
    world.AddFile(picture.Utf8());
    world.AddFile(folder.Path("skin.uis").Utf8(), "[Style]\nName=uis\n");
    world.AddFile(folder.Path("XPStuff.xp").Utf8(), "[Style]\nName=taskbar\n");
    skin->SkinPath(folder.Path());
    skin->SkinName("Skin");
    EXPECT_EQ(Start("skin.uis"), "uis");
    ASSERT_NE(skin->Item("Taskbar.ButtonArrow")->Image(), nullptr);
    EXPECT_EQ(skin->Item("Taskbar.ButtonArrow")->Image()->Width(), 12);
    EXPECT_EQ(skin->Item("Taskbar.Horz")->Image(), nullptr);
}

// The reference and its module.

TEST_F(TaskbarSkin, AReferenceEmptiesTheNameOfTheSkin) {
    AddStyle("red", "Own.dll");
    AddSkin("[Style]\nName=uis\n", "[Style]\nName=taskbar\n");
    EXPECT_EQ(Start("res:Own:red"), "red");
    EXPECT_EQ(skin->SkinName(), "");
    EXPECT_EQ(skin->DefFile(), "res:Own:red");
}

TEST_F(TaskbarSkin, PartsOfAStyleHaveTheModulesPictures) {
    AddStyle("blue");
    world.resources["Image/TrayNotifyHorzArrow.tga"] = test::TgaBytes({9, 8, 7, 255});
    Start("res:DefaultStyles:blue");
    const Ref<ThemeItem> arrow = skin->Item("Taskbar.ButtonArrow");
    ASSERT_NE(arrow->Image(), nullptr);
    EXPECT_EQ(arrow->Image()->Width(), 12);
    EXPECT_EQ(arrow->TransMode(), PerPixel);
    EXPECT_EQ(skin->Item("Taskbar.Horz")->Image(), nullptr);
}

TEST_F(TaskbarSkin, AStyleThatTheModuleLacksIsOpenedEmpty) {
    AddStyle("blue");
    EXPECT_EQ(Start("res:DefaultStyles:green"), "");
    EXPECT_EQ(skin->GetIniString("UIS", "Style", "Name", "open"), "open");
    EXPECT_EQ(skin->GetIniString("XPTaskBar", "Style", "Name", "open"), "open");
    for (const Part& part : kParts) EXPECT_NE(skin->Item(part.name), nullptr) << part.name;
}

TEST_F(TaskbarSkin, AModuleThatIsNowhereWasLookedForByNameInTheSkinsFolderAndInThePrograms) {
    core7::FileSystem& files = core7::ThePathService().TheFileSystem();
    const String folder = files.GetParentFolderName(kernel::TheKernel().GetProgramFileName());
    skin->SkinPath("/skin");
    Start("res:Own:red");
    ASSERT_GE(world.sought.size(), 4u);
    EXPECT_EQ(world.sought[0], "Own.dll");
    EXPECT_EQ(world.sought[1], "/skin/Own.dll");
    EXPECT_EQ(world.sought[2], files.BuildPath(folder, "Own.dll").Utf8());
    EXPECT_EQ(world.sought.back(), "Own.dll");
    EXPECT_TRUE(world.kernel.calls.empty());
}

TEST_F(TaskbarSkin, ABrokenReferenceLeavesNoSkinOpen) {
    AddStyle("blue");
    Start("res:DefaultStyles:blue");
    EXPECT_EQ(test::RaisedBy([&] { Start("res:blue"); }), 5);
    EXPECT_EQ(skin->GetIniString("UIS", "Style", "Name", "open"), "");
    EXPECT_EQ(skin->Item("Taskbar.Horz"), nullptr);
}

TEST_F(TaskbarSkin, ReferencesAreTakenApartAtTheirLastColon) {
    struct Example {
        const char* reference;
        const char* module;
        const char* style;
    };
    const Example kExamples[] = {
        {"res:DefaultStyles:blue", "DefaultStyles.dll", "blue"},
        {"res:DefaultStyles.dll:metallic", "DefaultStyles.dll", "metallic"},
        {"res:Own.styles:red", "Own.styles", "red"},
        {"res:C:/skins/Own:red", "C:/skins/Own.dll", "red"},
        {"res::red", "DefaultStyles.dll", "red"},
        {"res:Own:", "Own.dll", "blue"},
        {"res::", "DefaultStyles.dll", "blue"},
        {"res:", "DefaultStyles.dll", "blue"},
    };
    for (const Example& example : kExamples) {
        const StyleReference parsed = ParseStyleReference(example.reference);
        EXPECT_EQ(parsed.module, example.module) << example.reference;
        EXPECT_EQ(parsed.style, example.style) << example.reference;
    }
    EXPECT_EQ(test::RaisedBy([] { ParseStyleReference("res:blue"); }), 5);
}

TEST_F(TaskbarSkin, AReferenceWithoutAColonRaises) {
    EXPECT_EQ(test::RaisedBy([&] { Start("res:blue"); }), 5);
}

TEST_F(TaskbarSkin, ReferencesBeginWithTheirPrefixExactly) {
    EXPECT_TRUE(IsStyleReference("res:"));
    EXPECT_FALSE(IsStyleReference("RES:DefaultStyles:blue"));
    EXPECT_FALSE(IsStyleReference("res"));
}

TEST_F(TaskbarSkin, TheModuleIsLookedForInTheSkinsFolderAndInThePrograms) {
    const String program = kernel::TheKernel().GetProgramFileName();
    const std::string folder =
        core7::ThePathService().TheFileSystem().GetParentFolderName(program).Utf8();
    skin->SkinPath("/skin");
    AddStyle("blue", folder + "/DefaultStyles.dll");
    EXPECT_EQ(Start("res:DefaultStyles:blue"), "blue");
    EXPECT_THAT(world.kernel.calls, Contains("load " + folder + "/DefaultStyles.dll"));
    world.kernel.calls.clear();
    AddStyle("blue", "/skin/DefaultStyles.dll");
    EXPECT_EQ(Start("res:DefaultStyles:blue"), "blue");
    EXPECT_THAT(world.kernel.calls, Contains("load /skin/DefaultStyles.dll"));
    world.kernel.calls.clear();
    AddStyle("blue");
    EXPECT_EQ(Start("res:DefaultStyles:blue"), "blue");
    EXPECT_THAT(world.kernel.calls, Contains("load DefaultStyles.dll"));
    EXPECT_THAT(world.kernel.calls, Not(Contains("load /skin/DefaultStyles.dll")));
}

TEST_F(TaskbarSkin, TheModuleIsLookedForLastWithTheLibrarysOwnData) {
    for (const char* folder : {"../../share/vxgui", "../share/vxgui", "share/vxgui"}) {
        const std::string path = std::string("/opt/host/") + folder + "/" + kModule;
        AddStyle("blue", path);
        EXPECT_EQ(Start("res:DefaultStyles:blue"), "blue");
        EXPECT_THAT(world.kernel.calls, Contains("load " + path));
    }
    AddStyle("blue", "/skin/DefaultStyles.dll");
    skin->SkinPath("/skin");
    EXPECT_EQ(FindStyleModule(kModule, "/skin"), "/skin/DefaultStyles.dll");
}

TEST_F(TaskbarSkin, WithoutAModuleStaysUsableAndEmpty) {
    AddSkin("[Style]\nName=uis\n", "");
    EXPECT_EQ(Start("skin.uis"), "");
    EXPECT_EQ(skin->SkinName(), "");
    EXPECT_EQ(skin->Item("Taskbar.Horz"), nullptr);
    EXPECT_FALSE(skin->HaveWallpaper());
    EXPECT_EQ(skin->GetIniString("UIS", "Style", "Name", ""), "");
    EXPECT_TRUE(world.kernel.calls.empty());
}

TEST_F(TaskbarSkin, AFileThatIsNoModuleIsAsGoodAsNone) {
    world.AddFile(kModule);
    EXPECT_EQ(Start("res:DefaultStyles:blue"), "");
    EXPECT_EQ(skin->Item("Taskbar.Horz"), nullptr);
}

TEST_F(TaskbarSkin, WhatAnEarlierStartUpFoundDoesNotOutliveIt) {
    AddStyle("blue");
    EXPECT_EQ(Start("res:DefaultStyles:blue"), "blue");
    EXPECT_NE(skin->Item("Taskbar.Horz"), nullptr);
    EXPECT_EQ(Start("res:Other:blue"), "");
    EXPECT_EQ(skin->Item("Taskbar.Horz"), nullptr);
}

// The module is loaded for its texts, for all parts, and again for each later item; every load is
// undone.
TEST_F(TaskbarSkin, LoadsTheModuleForAsLongAsItIsRead) {
    AddStyle("blue");
    Start("res:DefaultStyles:blue");
    const std::vector<std::string> once{"load DefaultStyles.dll", "free DefaultStyles.dll"};
    std::vector<std::string> expected = once;
    expected.insert(expected.end(), once.begin(), once.end());
    EXPECT_EQ(world.kernel.calls, expected);
    EXPECT_NE(skin->Item("Later"), nullptr);
    expected.insert(expected.end(), once.begin(), once.end());
    EXPECT_EQ(world.kernel.calls, expected);
    EXPECT_NE(skin->Item("Later"), nullptr);
    EXPECT_EQ(world.kernel.calls, expected);
}

}  // namespace
}  // namespace vxgui
