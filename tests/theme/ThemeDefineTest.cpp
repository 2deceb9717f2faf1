#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/text/ActedDefineFile.h"
#include "tests/theme/SkinPictures.h"
#include "vxgui/theme/ThemeSetFile.h"

namespace vxgui {
namespace {

using testing::ElementsAre;

class ThemeDefine : public testing::Test {
protected:
    ThemeDefine() { files.Write("strip.tga", test::TgaBytes({200, 100, 50, 127})); }

    Ref<ThemeSet> Load(const String& text) {
        const Ref<core7::DefineFile> file = core7::CreateDefineFile();
        EXPECT_TRUE(file->LoadText(text));
        ThemeSetFromDefine(set, file, folder);
        return set;
    }
    Ref<ThemeItem> LoadItem(const String& section) {
        return Load(
                   "[ThemeSet]\nFonts=3\nTextStyles=2\nThemes=1\n[Font_01]\nFontHeight=-11\n"
                   "[Font_03]\nFontHeight=-13\n[TextStyle_02]\nTextColor=1,2,3\n[Theme_01]\n" +
                   section)
            ->Item("Theme_01");
    }

    const test::TemporaryFolder files;
    const String folder = files.Path();
    Ref<ThemeSet> set = New<ThemeSet>();
};

TEST_F(ThemeDefine, ItemsAreKeyedByTheirSections) {
    Load("[ThemeSet]\nThemes=12\n");
    EXPECT_EQ(set->ThemeItems()->Count(), 12);
    EXPECT_NE(set->Item("Theme_01"), nullptr);
    EXPECT_NE(set->Item("Theme_12"), nullptr);
    EXPECT_EQ(set->Item("Theme_13"), nullptr);
    EXPECT_EQ(set->Fonts(), nullptr);
}

TEST_F(ThemeDefine, ACountOfNoughtLeavesTheEarlierPool) {
    set->AddFont(New<LFont>());
    const Ref<LFonts> fonts = set->Fonts();
    set->Item("Old", New<ThemeItem>());
    Load("[ThemeSet]\nFonts=0\nTextStyles=1\n");
    EXPECT_EQ(set->Fonts(), fonts);
    EXPECT_NE(set->Item("Old"), nullptr);
    EXPECT_EQ(set->TextStyles()->Count(), 1);
    Load("[ThemeSet]\nFonts=2\n");
    EXPECT_FALSE(set->Fonts() == fonts);
    EXPECT_EQ(set->Fonts()->Count(), 2);
}

TEST_F(ThemeDefine, ACountBelowNoughtEmptiesThePool) {
    set->AddFont(New<LFont>());
    set->Item("Old", New<ThemeItem>());
    Load("[ThemeSet]\nFonts=-1\nTextStyles=-1\nThemes=-1\n");
    EXPECT_EQ(set->Fonts()->Count(), 0);
    EXPECT_EQ(set->TextStyles()->Count(), 0);
    EXPECT_EQ(set->ThemeItems()->Count(), 0);
}

TEST_F(ThemeDefine, ACountBeyondAnyFileRaisesTheOverflowError) {
    for (const char* key : {"Fonts", "TextStyles", "Themes"}) {
        for (const char* count : {"100001", "2147483647"}) {
            const String text = String("[ThemeSet]\n") + key + "=" + count;
            EXPECT_EQ(test::RaisedBy([&] { Load(text); }), 6) << key;
        }
    }
    EXPECT_EQ(set->Fonts(), nullptr);
}

TEST_F(ThemeDefine, TheLoadAnswersNought) {
    EXPECT_EQ(ThemeSetFromDefine(set, core7::CreateDefineFile(), ""), 0);
}

TEST_F(ThemeDefine, SectionsThatAreMissingHaveTheirDefaults) {
    Load("[ThemeSet]\nFonts=1\nTextStyles=1\nThemes=1\n");
    EXPECT_TRUE(set->Fonts()->Item("Font_01")->Equal(New<LFont>()));
    EXPECT_TRUE(set->TextStyles()->Item("TextStyle_01")->Equal(New<TextStyle>()));
    EXPECT_EQ(set->Item("Theme_01")->Image(), nullptr);
}

TEST_F(ThemeDefine, FontNumbersDontReachFontsFromAFile) {
    Load("[ThemeSet]\nFonts=1\n");
    EXPECT_NE(set->Fonts()->Item("Font_01"), nullptr);
    EXPECT_EQ(set->Font(1), nullptr);
}

TEST_F(ThemeDefine, TheImageKeysAreReadInFull) {
    const Ref<ThemeItem> item = LoadItem(
        "Image=strip.tga\nFrames=3\nFrameVert=1\nTransMode=1\nImageAlpha=300\nTransColor=1,2,3\n"
        "ImageMargin=1,2,3,4\nImageTile=2,1,0,1,0\n");
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->Image()->Width(), 12);
    EXPECT_EQ(item->FrameCount(), 3);
    EXPECT_EQ(item->FrameVert(), -1);
    EXPECT_EQ(item->TransMode(), Trans);
    EXPECT_EQ(item->ImageAlpha(), 44);  // the low eight bits
    EXPECT_EQ(item->Image()->TransparentColor(), 0x030201);
    EXPECT_EQ(item->ImageMarginLeft(), 1);
    EXPECT_EQ(item->ImageMarginTop(), 2);
    EXPECT_EQ(item->ImageMarginRight(), 3);
    EXPECT_EQ(item->ImageMarginBottom(), 4);
    EXPECT_EQ(item->Tile(), 2);
    EXPECT_EQ(item->TileLeft(), -1);
    EXPECT_EQ(item->TileTop(), 0);
    EXPECT_EQ(item->TileRight(), -1);
    EXPECT_EQ(item->TileBottom(), 0);
}

TEST_F(ThemeDefine, AnEdgeIsTiledForAnyNumberButNought) {
    const Ref<ThemeItem> item = LoadItem("Image=strip.tga\nImageTile=2.5, 0.4, 0.0, -1, x\n");
    EXPECT_EQ(item->Tile(), 2);  // halves go to even
    EXPECT_EQ(item->TileLeft(), -1);
    EXPECT_EQ(item->TileTop(), 0);
    EXPECT_EQ(item->TileRight(), -1);
    EXPECT_EQ(item->TileBottom(), 0);
}

TEST_F(ThemeDefine, TheBackColourStandsForTheKeyUntilThatIsGiven) {
    const Ref<ThemeItem> item = LoadItem(
        "Image=strip.tga\nImageBackColor=1,2,3\nGlyphImage=strip.tga\n"
        "GlyphBackColor=4,5,6 ; dark\n");
    EXPECT_EQ(item->Image()->TransparentColor(), 0x030201);
    EXPECT_EQ(item->Glyph()->TransparentColor(), 0x060504);
}

TEST_F(ThemeDefine, AnImageWithoutAFrameCountHasNoFrames) {
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    file->LoadText("[Theme_01]\nImage=strip.tga\n");
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(5);
    item->FromThemeDefine(file, "Theme_01", set, folder);
    EXPECT_EQ(item->FrameCount(), 0);  // stored past the setter, which would keep the 5
}

TEST_F(ThemeDefine, AMissingGlyphLeavesTheEarlierOne) {
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    file->LoadText("[Theme_01]\nGlyphImage=none.tga\nGlyphAlign=5\nGlyphFrames=3\n");
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<cAlphaDIBSection> glyph = New<cAlphaDIBSection>();
    item->Glyph(glyph);
    item->GlyphFrames(2);
    item->FromThemeDefine(file, "Theme_01", set, folder);
    EXPECT_EQ(item->Glyph(), glyph);
    EXPECT_EQ(item->GlyphFrames(), 2);
    EXPECT_EQ(item->GlyphAlign(), 1);
}

TEST_F(ThemeDefine, WithoutATransModeTheImageIsPerPixelAndPremultiplied) {
    const Ref<ThemeItem> item = LoadItem("Image=strip.tga\nFrames=1\n");
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(item->ImageAlpha(), 255);
    EXPECT_EQ(static_cast<uint32_t>(item->Image()->GetPixel(0, 0)), 0x7F193264u);
}

TEST_F(ThemeDefine, PreMultiplyAlphaWorksInAnyMode) {
    const Ref<ThemeItem> plain = LoadItem("Image=strip.tga\nTransMode=0\n");
    EXPECT_EQ(static_cast<uint32_t>(plain->Image()->GetPixel(0, 0)), 0x7F3264C8u);
    const Ref<ThemeItem> item = LoadItem("Image=strip.tga\nTransMode=0\nPreMultiplyAlpha=1\n");
    EXPECT_EQ(static_cast<uint32_t>(item->Image()->GetPixel(0, 0)), 0x7F193264u);
}

TEST_F(ThemeDefine, AMissingImageLeavesTheItemWithoutOne) {
    const Ref<ThemeItem> item = LoadItem("Image=none.tga\nFrames=3\nImageMargin=9,9,9,9\n");
    EXPECT_EQ(item->Image(), nullptr);
    EXPECT_EQ(item->FrameCount(), 0);
    EXPECT_EQ(item->ImageMarginLeft(), 4);
}

TEST_F(ThemeDefine, TheGlyphKeysAreReadInFull) {
    const Ref<ThemeItem> item = LoadItem(
        "GlyphImage=strip.tga\nGlyphFrames=2\nGlyphFrameVert=1\nGlyphTransMode=1\nGlyphAlpha=99\n"
        "GlyphTransColor=3,2,1\nGlyphMargin=5,6,7,8\nGlyphAlign=4\n");
    ASSERT_NE(item->Glyph(), nullptr);
    EXPECT_EQ(item->GlyphFrames(), 2);
    EXPECT_EQ(item->GlyphFrameVert(), -1);
    EXPECT_EQ(item->GlyphTransMode(), Trans);
    EXPECT_EQ(item->GlyphAlpha(), 99);
    EXPECT_EQ(item->Glyph()->TransparentColor(), 0x010203);
    EXPECT_EQ(item->GlyphAlign(), 4);
    int32_t l, t, r, b;
    item->GetGlyphMargin(l, t, r, b);
    EXPECT_EQ(l * 1000 + t * 100 + r * 10 + b, 5678);
}

TEST_F(ThemeDefine, AGlyphTakesItsDefaults) {
    const Ref<ThemeItem> item = LoadItem("Image=strip.tga\nFrames=4\nGlyphImage=strip.tga\n");
    EXPECT_EQ(item->GlyphFrames(), 4);
    EXPECT_EQ(item->GlyphTransMode(), PerPixel);
    EXPECT_EQ(item->GlyphAlpha(), 255);
    EXPECT_EQ(item->GlyphAlign(), 0);
    EXPECT_EQ(static_cast<uint32_t>(item->Glyph()->GetPixel(0, 0)), 0x7F193264u);
    const Ref<ThemeItem> plain =
        LoadItem("GlyphImage=strip.tga\nGlyphTransMode=0\nGlyphPreMultiplyAlpha=1\n");
    EXPECT_EQ(static_cast<uint32_t>(plain->Glyph()->GetPixel(0, 0)), 0x7F193264u);
}

TEST_F(ThemeDefine, ContentMarginsAreFourParts) {
    const Ref<ThemeItem> item = LoadItem("ContentMargin=1, 2,3.5,4 and more,99\n");
    EXPECT_EQ(item->ContentLeft(), 1);
    EXPECT_EQ(item->ContentTop(), 2);
    EXPECT_EQ(item->ContentRight(), 4);  // halves go to even
    EXPECT_EQ(item->ContentBottom(), 4);
}

TEST_F(ThemeDefine, AListThatIsTooShortEndsTheLoadAndKeepsWhatWasRead) {
    for (const char* line :
         {"ContentMargin=1,2,3", "Image=strip.tga\nImageTile=1,0,0,0",
          "Image=strip.tga\nImageMargin=1", "GlyphImage=strip.tga\nGlyphMargin=1,2,3"}) {
        set = New<ThemeSet>();
        try {
            Load(String("[ThemeSet]\nFonts=1\nThemes=2\n[Theme_02]\n") + line + "\n");
            FAIL() << line;
        } catch (const Error& error) {
            EXPECT_EQ(error.Number(), 9);
        }
        EXPECT_EQ(set->Fonts()->Count(), 1);
        EXPECT_EQ(set->ThemeItems()->Count(), 1);
    }
}

TEST_F(ThemeDefine, TheNthFontBelongsToTheNthState) {
    const Ref<ThemeItem> item = LoadItem("Fonts=3,1\n");
    EXPECT_EQ(item->StateFont(E_ItemStateNormal), set->Fonts()->Item("Font_03"));
    EXPECT_EQ(item->StateFont(E_ItemStateMouseOver), set->Fonts()->Item("Font_01"));
    EXPECT_EQ(item->Fonts()->Count(), 2);
}

TEST_F(ThemeDefine, ANumberWithoutASectionAddsNothingForItsState) {
    const Ref<ThemeItem> item = LoadItem("TextStyles=9,2\n");
    EXPECT_EQ(item->StateTextStyle(E_ItemStateNormal), nullptr);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateMouseOver)->TextColor, 0x030201);
}

TEST_F(ThemeDefine, AListWithoutItsPoolEndsTheLoad) {
    try {
        Load("[ThemeSet]\nThemes=1\n[Theme_01]\nFonts=1\n");
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 91);
    }
}

TEST_F(ThemeDefine, AFrameOrderIsAListOfFrames) {
    const Ref<ThemeItem> item = LoadItem("FrameOrder=0,1,2\nGlyphFrameOrder=3,-1,x,2\n");
    EXPECT_EQ(item->FrameOrder(), -1);
    EXPECT_EQ(item->StateFrames(), (ByteArray{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(item->GlyphStateFrames(), (ByteArray{3, 255, 2, 2, 4, 5, 6, 7, 8}));
}

TEST_F(ThemeDefine, MoreFontsThanStatesHaveTheNamesOfNumbers) {
    const Ref<ThemeItem> item = LoadItem("Fonts=0,0,0,0,0,0,0,0,1,3\n");
    EXPECT_EQ(item->StateFont(E_ItemStateFocusMouseOver), set->Fonts()->Item("Font_01"));
    EXPECT_EQ(item->Fonts()->Item("State_#9"), set->Fonts()->Item("Font_03"));
    EXPECT_EQ(item->Fonts()->Count(), 2);
}

TEST_F(ThemeDefine, TheKeysAreReadInTheirOrderEachWithItsDefault) {
    const Ref<test::ActedDefineFile> file = New<test::ActedDefineFile>();
    file->values = {{"Image", "strip.tga"}, {"Frames", "7"}, {"GlyphImage", "strip.tga"}};
    New<ThemeItem>()->FromThemeDefine(file, "S", set, folder);
    EXPECT_THAT(file->reads,
                ElementsAre("text Image ", "text ImageBackColor ", "integer PreMultiplyAlpha 0",
                            "integer Frames 0", "integer FrameVert 0", "integer TransMode 2",
                            "integer ImageAlpha 255", "text TransColor ", "text ImageMargin ",
                            "text ImageTile ", "text GlyphImage ", "text GlyphBackColor ",
                            "integer GlyphPreMultiplyAlpha 0", "integer GlyphFrames 7",
                            "integer GlyphFrameVert 0", "integer GlyphTransMode 2",
                            "integer GlyphAlpha 255", "text GlyphTransColor ", "text GlyphMargin ",
                            "integer GlyphAlign ", "text ContentMargin ", "text FrameOrder ",
                            "text GlyphFrameOrder ", "text Fonts ", "text TextStyles ",
                            "text ImageScales ", "text GlyphScales "));
}

TEST_F(ThemeDefine, NoFileRaisesObjectNotSet) {
    const auto read = [&] { New<ThemeItem>()->FromThemeDefine(nullptr, "S", set, folder); };
    EXPECT_EQ(test::RaisedBy(read), 91);
}

TEST_F(ThemeDefine, ReadingAgainReplacesTheStatesCollections) {
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    file->LoadText("[Theme_01]\nContentMargin=1,1,1,1\n");
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(0, New<LFont>());
    item->FrameCount(5);
    item->FromThemeDefine(file, "Theme_01", set, folder);
    EXPECT_EQ(item->Fonts()->Count(), 0);
    EXPECT_EQ(item->FrameCount(), 5);
}

TEST_F(ThemeDefine, AFileIsLoadedWithThePicturesBesideIt) {
    const String path =
        files.Write("one.theme", "[ThemeSet]\nThemes=1\n[Theme_01]\nImage=strip.tga\n");
    EXPECT_NE(LoadThemeSetFile(path)->Item("Theme_01")->Image(), nullptr);
}

TEST_F(ThemeDefine, AFileThatIsWrongIsNamedWithItsLine) {
    const struct {
        const char* text;
        const char* place;
    } cases[] = {{"[ThemeSet]\nThemes=1\n[Theme_01]\nContentMargin=1\n", "/bad.theme:3:2"},
                 {"[ThemeSet]\nnonsense\n", "/bad.theme:2:1"}};
    for (const auto& c : cases) {
        const String path = files.Write("bad.theme", c.text);
        try {
            LoadThemeSetFile(path);
            FAIL() << c.text;
        } catch (const Error& error) {
            EXPECT_EQ(error.Source(), folder + c.place);
        }
    }
    EXPECT_THROW(LoadThemeSetFile(files.Path("nowhere.theme")), Error);
}

}  // namespace
}  // namespace vxgui
