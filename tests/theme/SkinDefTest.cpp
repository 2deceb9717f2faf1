#include "vxgui/theme/SkinDef.h"

#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/theme/SkinWorld.h"

namespace vxgui {
namespace {

class Skin : public testing::Test {
protected:
    /// Opens a skin of files with these texts.
    Ref<SkinDef> Open(const std::string& uis, const std::string& taskbar = "[Other]\nKey=Value\n") {
        world.AddFile("/skin/skin.uis", uis);
        world.AddFile("/skin/XPStuff.xp", taskbar);
        skin->SkinPath("/skin");
        skin->SkinName("Skin");
        skin->DefFile("skin.uis");
        skin->InitializeXPTaskbar();
        return skin;
    }

    test::SkinWorld world;
    Ref<SkinDef> skin = New<SkinDef>();
};

// Values.

TEST_F(Skin, ReadsItsTwoFilesByNamesInAnyCase) {
    Open("[A]\nKey=uis\nNumber=12\n", "[A]\nKey=taskbar\nNumber=13\n");
    EXPECT_EQ(skin->GetIniString("uis", "A", "Key", ""), "uis");
    EXPECT_EQ(skin->GetIniString("UIS", "A", "Key", ""), "uis");
    EXPECT_EQ(skin->GetIniString("xptaskbar", "A", "Key", ""), "taskbar");
    EXPECT_EQ(skin->GetIniString("XPTaskBar", "A", "None", "else"), "else");
    EXPECT_EQ(skin->GetIniString("Other", "A", "Key", "else"), "");
    EXPECT_EQ(skin->GetIniString("", "A", "Key", "else"), "");
    EXPECT_EQ(skin->GetIniValue("Uis", "A", "Number", 5), 12);
    EXPECT_EQ(skin->GetIniValue("XPTASKBAR", "A", "Number", 5), 13);
    EXPECT_EQ(skin->GetIniValue("UIS", "A", "None", -5), -5);
    EXPECT_EQ(skin->GetIniValue("Other", "A", "Number", 5), 0);
}

TEST_F(Skin, SystemColoursAreThreeNumbersDividedByBlanksOrCommas) {
    Open(
        "[Colours]\nBlanks=10 20 30\nCommas=10,20,30\nBoth=10, 20, 30\nTwo=10 20\nFour=1,2,3,4\n"
        "Large=300 255 70000\nText=a,b,c\nHalf=2.5 3.5 1\nNegative=-5,1,2\nWide=10  20 30\n");
    const std::pair<const char*, int32_t> kColours[] = {
        {"Blanks", 0x1E140A}, {"Commas", 0x1E140A}, {"Both", 0x1E140A},
        {"Two", 0},           {"Four", 0},          {"Large", 0xFFFFFF},
        {"Text", 0},          {"Half", 0x010402},   {"Negative", 0x020100},
        {"Wide", 0},          {"None", 0},
    };
    for (const auto& [name, colour] : kColours) EXPECT_EQ(skin->SysColour(name), colour) << name;
}

TEST_F(Skin, FontNumbersOfTheSystemAreKept) {
    Open(
        "[SystemFonts]\nSystemCaption=1\nSystemSmallCaption=2\nSystemMenu=3\nSystemStatus=4\n"
        "SystemMessage=5\n");
    const SkinDef::SystemFontNumbers& fonts = skin->SystemFonts();
    EXPECT_EQ(fonts.SystemCaption, 1);
    EXPECT_EQ(fonts.SystemSmallCaption, 2);
    EXPECT_EQ(fonts.SystemMenu, 3);
    EXPECT_EQ(fonts.SystemStatus, 4);
    EXPECT_EQ(fonts.SystemMessage, 5);
    EXPECT_EQ(fonts.SystemIcon, -1);
}

// Palette.

TEST_F(Skin, APaletteWithoutColoursRaisesAndOneWithColoursAnswersMinusOneOutside) {
    EXPECT_EQ(test::RaisedBy([&] { skin->Colour(0); }), 9);
    Open("[Colour0]\nColour=1 2 3\n");
    EXPECT_EQ(skin->Colour(0), 0x030201);
    EXPECT_EQ(skin->Colour(1), -1);
    EXPECT_EQ(skin->Colour(-1), -1);
}

TEST_F(Skin, ThePaletteEndsAtTheFirstSectionThatIsMissing) {
    Open(
        "[Colour0]\nColour=1 1 1\n[Colour1]\nColour=1 1 1\n[Colour2]\nR=7\n"
        "[Colour4]\nColour=4 4 4\n");
    EXPECT_EQ(skin->Colour(1), 0x010101);  // a colour may stand in it twice
    EXPECT_EQ(skin->Colour(2), 7);
    EXPECT_EQ(skin->Colour(3), -1);
    EXPECT_EQ(skin->Colour(4), -1);
}

TEST_F(Skin, APaletteEntryIsThreeNumbersInOneKeyOrInThree) {
    const std::pair<const char*, int32_t> kEntries[] = {
        {"Colour=10 20 30", 0x1E140A},  {"Colour=10    20  30", 0x1E140A},
        {"Colour=10 20", 0x00140A},     {"Colour=10", 0x00000A},
        {"Colour=300 0 0", 44},         {"Colour=x 20 y", 0x001400},
        {"Colour=1 2 3 4", 0x030201},   {"Colour=\" 1 2 3\"", 0x020100},
        {"R=10\nG=20\nB=30", 0x1E140A}, {"R=10", 0x00000A},
        {"R=x\nG=20\nB=256", 0x001400}, {"Colour=1 2 3\nR=9", 0x030201},
    };
    for (const auto& [keys, colour] : kEntries) {
        skin = New<SkinDef>();
        Open(std::string("[Colour0]\n") + keys + "\n");
        EXPECT_EQ(skin->Colour(0), colour) << keys;
    }
}

TEST_F(Skin, AddedColoursGetNumbersAndStandOnce) {
    EXPECT_EQ(skin->AddColour(5), 0);
    EXPECT_EQ(skin->AddColour(6), 1);
    EXPECT_EQ(skin->AddColour(5), 0);
    EXPECT_EQ(skin->Colour(1), 6);
}

// Fonts.

TEST_F(Skin, FontsAreNumberedByTheirSectionsUntilOneIsMissing) {
    Open(
        "[Font0]\nFontName=Zero\n[Font1]\nFontName=One\n[Font3]\nFontName=Three\n"
        "[SystemFont0]\nFontName=System\n[Fonts]\nFontName=More\n");
    ASSERT_NE(skin->Font(1), nullptr);
    EXPECT_EQ(skin->Font(0)->Name, "Zero");
    EXPECT_EQ(skin->Font(1)->Name, "One");
    EXPECT_EQ(skin->Font(2), nullptr);
    EXPECT_EQ(skin->Font(3), nullptr);
    EXPECT_EQ(skin->SystemFont(0)->Name, "System");
    EXPECT_EQ(skin->SystemFont(1), nullptr);
}

TEST_F(Skin, WithoutAPoolAskingForAFontMakesOne) {
    const Ref<LFont> font = skin->Font(4);
    EXPECT_NE(font, nullptr);
    EXPECT_EQ(skin->Font(4), font);
    EXPECT_EQ(skin->Font(5), nullptr);
}

TEST_F(Skin, AddFontStoresNothing) {
    EXPECT_EQ(skin->AddFont(New<LFont>()), 0);
    EXPECT_EQ(skin->Font(0), nullptr);  // the pool is there now, and empty
    EXPECT_EQ(skin->Font(1), nullptr);
}

// Items.

TEST_F(Skin, AnItemThatWasReadOnceIsTheSameTheSecondTime) {
    Open("", "[Other]\nFrameCount=4\n");
    const Ref<ThemeItem> item = skin->Item("Other");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->FrameCount(), 4);
    EXPECT_EQ(skin->Item("OTHER"), item);
}

TEST_F(Skin, AnItemThatIsSetIsFound) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    skin->Item("Own", item);
    EXPECT_EQ(skin->Item("Own"), item);
    EXPECT_EQ(skin->Item("Other"), nullptr);
    EXPECT_EQ(test::RaisedBy([&] { skin->Item("Own", item); }), 457);
}

TEST_F(Skin, ItsItemsResolveColoursAndFontsInIt) {
    Open("[Colour0]\nColour=1 2 3\n[Font0]\nFontName=Zero\n",
         "[Taskbar.Horz]\nNormalColour=0\nNormalFont=0\n");
    const Ref<ThemeItem> item = skin->Item("Taskbar.Horz");
    EXPECT_EQ(item->StateColour(E_ItemStateNormal), 0x030201);
    EXPECT_EQ(item->StateFont(E_ItemStateNormal)->Name, "Zero");
    skin = nullptr;
    EXPECT_EQ(item->StateColour(E_ItemStateNormal), 0x030201);
}

TEST_F(Skin, GoesAwayWithItsItems) {
    struct CountedItem : ThemeItem {
        explicit CountedItem(int& count) : count_(count) { ++count_; }
        ~CountedItem() override { --count_; }
        int& count_;
    };
    int count = 0;
    Open("", "[Taskbar.Horz]\nFrameCount=1\n");
    const Ref<ThemeOwner> owner = skin->Item("Taskbar.Horz")->Owner();
    ASSERT_NE(owner, nullptr);
    {
        const Ref<CountedItem> item = New<CountedItem>(count);
        item->Owner(owner);
        skin->Item("Counted", item);
    }
    EXPECT_EQ(count, 1);
    skin = nullptr;
    EXPECT_EQ(count, 0);
}

// Wallpaper.

TEST_F(Skin, HasItsWallpaperWhenTheFileIsThere) {
    Open("[Personality]\nWallpaper=pictures\\wall.bmp\n");
    EXPECT_FALSE(skin->HaveWallpaper());
    world.AddFile("/skin/pictures/wall.bmp");
    EXPECT_TRUE(skin->HaveWallpaper());
    EXPECT_TRUE(skin->SkinWallpaper());
    Open("");
    EXPECT_FALSE(skin->HaveWallpaper());
    world.AddFile("");  // the empty name goes through the same test
    EXPECT_TRUE(skin->HaveWallpaper());
}

TEST_F(Skin, ThatIsNotOpenAnswersEmpty) {
    EXPECT_EQ(skin->GetIniString("UIS", "A", "Key", "else"), "");
    EXPECT_EQ(skin->GetIniValue("UIS", "A", "Key", 5), 0);
    EXPECT_EQ(skin->SysColour("Blanks"), 0);
    EXPECT_FALSE(skin->HaveWallpaper());
    EXPECT_EQ(skin->Item("Taskbar.Horz"), nullptr);
}

}  // namespace
}  // namespace vxgui
