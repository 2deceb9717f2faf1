// gcc 12 sees values in the library's regular expressions that might not be set, under sanitizers.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>

#include "generated/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/lint/CheckSkin.h"
#include "vxgui/theme/lint/PictureShelf.h"

namespace vxgui::lint {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A folder with pictures of 40 x 10 pixels, as strips of four frames, to write skins into.
class LintFolder {
public:
    LintFolder() {
        for (const char* name : {"strip.bmp", "glyph.bmp"}) WritePicture(name, 40, 10);
    }
    void WritePicture(const std::string& name, int32_t width, int32_t height) const {
        const Ref<cAlphaDIBSection> picture = New<cAlphaDIBSection>();
        picture->Create(width, height);
        folder.Write(name, "");
        picture->SavePicture(folder.Path(name));
    }
    /// Findings without the folder, as they are printed.
    std::vector<std::string> Check(const std::string& name) const {
        std::vector<std::string> lines;
        const std::string start = folder.Path().Utf8() + "/";
        for (const Finding& finding : CheckSkin(folder.Path(name))) {
            const std::string line = Describe(finding).Utf8();
            EXPECT_EQ(line.find(start), 0u) << line;
            lines.push_back(line.substr(start.size()));
        }
        return lines;
    }
    std::vector<std::string> CheckText(const std::string& name, const std::string& text) const {
        folder.Write(name, text);
        return Check(name);
    }

    test::TemporaryFolder folder;
};

/// Lines that use both pictures, so that nothing else is told.
const std::string kClean = "[ThemeSet]\nThemes=1\n[Theme_01]\nImage=strip.bmp\nFrames=4\n";
const std::string kGlyph = "GlyphImage=glyph.bmp\nGlyphFrames=4\n";

struct Case {
    std::string lines;
    std::string finding;  ///< the one that is expected; empty for none
};

/// Checks a clean skin with more lines, and expects the one finding.
void ExpectFinding(const LintFolder& skins, const std::string& name, const std::string& before,
                   const Case& each) {
    const auto lines = skins.CheckText(name, before + each.lines);
    if (each.finding.empty()) {
        EXPECT_THAT(lines, IsEmpty()) << each.lines;
    } else {
        EXPECT_THAT(lines, ElementsAre(HasSubstr(name + each.finding))) << each.lines;
    }
}

TEST(LintThemeSet, ValuesOfItems) {
    const LintFolder skins;
    const Case cases[] = {
        {"", ""},
        {"TransMode=2 ; the default\n", ""},
        {"TransMode=3\n",
         ":8:1: warning: TransMode: \"3\" is out of range: TransMode takes 0 to 2"},
        {"ImageAlpha=256\n", ":8:1: warning: ImageAlpha: \"256\" is out of range"},
        {"ImageAlpha=-1\n", ":8:1: warning: ImageAlpha: \"-1\" is below 0"},
        {"GlyphAlign=four\n", ":8:1: warning: GlyphAlign: \"four\" is no number; 0 is read"},
        {"GlyphAlign=4px\n", ":8:1: warning: GlyphAlign: \"4px\" is no number; 4 is read"},
        {"GlyphAlign=\n", ":8:1: warning: GlyphAlign: a number is missing; 0 is read"},
        {"GlyphAlign=4,4\n", ":8:1: warning: GlyphAlign: one number is expected"},
        {"  GlyphPreMultiplyAlpha=2\n",
         ":8:3: warning: GlyphPreMultiplyAlpha: \"2\" is neither 0 nor 1"},
        {"ImageMargin=1,1,1\n", ":8:1: error: ImageMargin: the list is too short"},
        {"ImageMargin=1,1,1,1,1\n", ":8:1: warning: ImageMargin: the list has 5 parts"},
        {"ImageMargin=1,-1,1,1\n", ":8:1: warning: ImageMargin: \"-1\" is below 0"},
        {"GlyphMargin=1,-1,1,1\n", ""},
        {"ImageMargin=\n", ""},
        {"ImageTile=0,0,0,0\n", ":8:1: error: ImageTile: the list is too short"},
        {"ImageTile=5,0,0,0,0\n", ":8:1: warning: ImageTile: \"5\" is out of range: the centre"},
        {"ImageTile=4,0,7,0,0\n", ":8:1: warning: ImageTile: \"7\" is neither 0 nor 1"},
        {"FrameOrder=0,1,2,3,0,0,0,0,0,0\n", ":8:1: warning: FrameOrder: there are nine states"},
        {"FrameOrder=0,1,2,x\n", ":8:1: warning: FrameOrder: \"x\" is no number"},
        {"FrameOrder=0,1,2,3,300\n", ":8:1: warning: FrameOrder: \"300\" is out of range"},
        {"FrameOrder=0,1,2,3,255.7\n", ":8:1: warning: FrameOrder: \"255.7\" is out of range"},
        {"ImageScales=\n", ""},
        {"ImageScales=x\n", ":8:1: warning: ImageScales: \"x\" is no scale"},
        {"ImageScales=1\n", ":8:1: warning: ImageScales: \"1\" is no scale"},
        {"GlyphScales=17\n", ":8:1: warning: GlyphScales: \"17\" is no scale"},
        {"ImageBackColor=1,2\n", ":8:1: warning: ImageBackColor: a colour has three parts"},
        {"ImageBackColor=1,2,3,4,5\n", ":8:1: warning: ImageBackColor: a colour has three parts"},
        {"ImageBackColor=1,2,256\n", ":8:1: warning: ImageBackColor: \"256\" is out of range"},
        {"ImageBackColor=1,2,3,128\n", ":8:1: error: ImageBackColor: an alpha of 128"},
        {"ImageBackColor=0xFF00FF ; magenta\n", ""},
        {"ImageBackColor=&hFF\n", ""},
        {"ImageBackColor=red\n", ":8:1: warning: ImageBackColor: \"red\" is no colour"},
        {"ContentMargin=5,5,5,5\n", ":8:1: warning: at the size of one frame, 10x10, the content"},
        {"ContentMargin=50,4,50,5\n", ""},
        {"ContentMargin=4,50,5,50\n", ""},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", kClean + kGlyph, each);
}

TEST(LintThemeSet, KeysAndLines) {
    const LintFolder skins;
    const Case cases[] = {
        {"FrameOrdr=0,1,2,3\n",
         ":8:1: warning: unknown key \"FrameOrdr\"; did you mean \"FrameOrder\"?"},
        {"PartWidth=3\n",
         ":8:1: warning: unknown key \"PartWidth\"; it is one of the other dialect"},
        {"Sparkle=1\n", ":8:1: warning: unknown key \"Sparkle\""},
        {"Image=other.bmp\n", ":8:1: error: the key stands already in line 4, which counts"},
        {"no sense\n", ":8:1: error: neither a section, a key with a value nor a comment"},
        {"[Theme_02]\n",
         ":8:2: warning: [Theme_02] is never read, since Themes of [ThemeSet] is 1"},
        {"[Theme_1]\n",
         ":8:2: warning: nothing reads the section [Theme_1]; did you mean [Theme_01]?"},
        {"[Theme_00]\n", ":8:2: warning: nothing reads the section [Theme_00]"},
        {"[Tehme2]\n",
         ":8:2: warning: nothing reads the section [Tehme2]; did you mean [Theme_02]?"},
        {"[Remarks]\n", ":8:2: warning: nothing reads the section [Remarks]"},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", kClean + kGlyph, each);
}

TEST(LintThemeSet, Pictures) {
    const LintFolder skins;
    skins.folder.Write("words.bmp", "words");
    const std::string start = "[ThemeSet]\nThemes=2\n[Theme_01]\nImage=strip.bmp\nFrames=4\n" +
                              kGlyph + "[Theme_02]\n; Image=words.bmp\n";
    const std::string words = "words.bmp:1:1: warning: no item uses this image";
    const auto check = [&](const std::string& lines) {
        return skins.CheckText("a.theme", start + lines);
    };
    EXPECT_THAT(check(""), ElementsAre(words));
    EXPECT_THAT(check("Image=none.png\nFrames=1\n"),
                ElementsAre("a.theme:10:1: error: \"none.png\" is not there", words));
    EXPECT_THAT(check("GlyphImage=words.bmp\nGlyphFrames=1\n"),
                ElementsAre(HasSubstr("a.theme:10:1: error: \"words.bmp\" is no picture")));
    EXPECT_THAT(
        check("Image=Strip.BMP\nFrames=4\n"),
        ElementsAre(HasSubstr("a.theme:10:1: warning: the file's name is \"strip.bmp\""), words));
    EXPECT_THAT(
        check("Frames=1\n"),
        ElementsAre("a.theme:10:1: warning: Frames has no effect, since no Image is named", words));
    EXPECT_THAT(
        check("GlyphAlign=1\n"),
        ElementsAre("a.theme:10:1: warning: GlyphAlign has no effect, since no GlyphImage is named",
                    words));
}

TEST(LintThemeSet, StripsForOtherScales) {
    const LintFolder skins;
    skins.WritePicture("strip@2x.bmp", 80, 20);
    skins.WritePicture("strip@1.5x.bmp", 60, 15);
    skins.WritePicture("strip@1.25x.bmp", 52, 13);  // 12.5, rounded
    const std::string lines = kClean + kGlyph;
    EXPECT_THAT(skins.CheckText("a.theme", lines + "ImageScales=1.25,1.5,2\n"), IsEmpty());
    EXPECT_THAT(skins.CheckText("a.theme", lines + "ImageScales=1.25,1.5,2\nGlyphScales=3\n"),
                ElementsAre("a.theme:9:1: error: \"glyph@3x.bmp\" is not there"));
    skins.WritePicture("glyph@3x.bmp", 40, 30);
    EXPECT_THAT(skins.CheckText("a.theme", lines + "ImageScales=1.25,1.5,2\nGlyphScales=3\n"),
                ElementsAre("a.theme:9:1: warning: \"glyph@3x.bmp\" has frames of 10x30, which are "
                            "stretched to the 30x30 of their scale"));
    skins.folder.Write("glyph@3x.bmp", "words");
    EXPECT_THAT(skins.CheckText("a.theme", lines + "ImageScales=1.25,1.5,2\nGlyphScales=3\n"),
                ElementsAre(HasSubstr("a.theme:9:1: error: \"glyph@3x.bmp\" is no picture")));
}

TEST(LintThemeSet, UnusedPicturesAreLookedForWhereUsedOnesLie) {
    const LintFolder skins;
    skins.WritePicture("art/used.bmp", 8, 8);
    skins.WritePicture("art/spare.bmp", 8, 8);
    skins.WritePicture("elsewhere/spare.bmp", 8, 8);
    EXPECT_THAT(skins.CheckText("a.theme", kClean + "GlyphImage=art\\used.bmp\nGlyphFrames=1\n"),
                ElementsAre(HasSubstr("art/spare.bmp:1:1: warning: no item uses this image"),
                            HasSubstr("glyph.bmp:1:1: warning: no item uses this image")));
    // What another skin of the folder uses isn't spare.
    skins.folder.Write("b.theme", "[ThemeSet]\nThemes=1\n[Theme_01]\nImage=glyph.bmp\n");
    EXPECT_THAT(skins.Check("a.theme"), ElementsAre(HasSubstr("art/spare.bmp")));
}

TEST(LintThemeSet, Frames) {
    const LintFolder skins;
    const std::string start = "[ThemeSet]\nThemes=1\n[Theme_01]\n" + kGlyph + "Image=strip.bmp\n";
    const Case cases[] = {
        {"", ":6:1: error: the strip never shows, since Frames is not given"},
        {"Frames=0\n", ":7:1: error: the strip never shows, since Frames is below 1"},
        {"Frames=-2\n", ":7:1: error: the strip never shows, since Frames is below 1"},
        {"Frames=41\n", ":7:1: error: the strip of 40 pixels can't hold 41 frames"},
        {"Frames=11\nFrameVert=1\n", ":7:1: error: the strip of 10 pixels can't hold 11 frames"},
        {"Frames=3\n",
         ":7:1: warning: the strip of 40 pixels doesn't divide by 3; the last 1 pixel "},
        {"Frames=5\nFrameVert=1\n", ""},
        {"Frames=10\n", ":7:1: warning: frames 8 and 9 of the strip show in no state"},
        {"Frames=20\n", ":7:1: warning: frames 8 to 19 of the strip show in no state"},
        {"Frames=4\nFrameOrder=0,1,2,3,4\n",
         ":8:1: error: the strip has the frames 0 to 3; a state"},
        {"Frames=4\nFrameOrder=0,1,1,1,1,1,1,1,1\n",
         ":8:1: warning: frames 2 and 3 of the strip show in no state"},
        {"Frames=4\nFrameOrder=0,1,1,3,1,1,1,1,1\n", ":8:1: warning: frame 2 of the strip show"},
        {"Frames=5\nFrameOrder=0,0,2,0,0,0,0,0,0\n",
         ":8:1: warning: frames 1, 3 and 4 of the strip"},
        {"Frames=1\nFrameOrder=-1,-1,-1,-1,-1,-1,-1,-1,-1\n",
         ":8:1: warning: no state ever shows the strip"},
        {"Frames=4\nFrameOrder=0,1,2,3,-1,255\n", ""},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", start, each);
}

TEST(LintThemeSet, GlyphFrames) {
    const LintFolder skins;
    const std::string start = kClean + "GlyphImage=glyph.bmp\n";
    const Case cases[] = {
        {"", ""},  // as many as the image has
        {"GlyphFrames=0\n",
         ":7:1: error: the glyph's strip never shows, since GlyphFrames is below 1"},
        {"GlyphFrames=41\n", ":7:1: error: the glyph's strip of 40 pixels can't hold 41 frames"},
        {"GlyphFrames=10\nGlyphFrameVert=1\n",
         ":7:1: warning: frames 8 and 9 of the glyph's strip show in no state"},
        {"GlyphFrames=2\nGlyphFrameOrder=0,1,0,2\n",
         ":8:1: error: the glyph's strip has the frames 0 to 1"},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", start, each);
}

TEST(LintThemeSet, Margins) {
    const LintFolder skins;
    const Case cases[] = {
        {"ImageMargin=5,5,5,5\n", ""},
        {"ImageMargin=6,0,5,0\n",
         ":8:1: error: a frame is 10 wide, and left and right margin together take 11"},
        {"ImageMargin=0,6,0,5\n",
         ":8:1: error: a frame is 10 high, and top and bottom margin together take 11"},
        {"ImageMargin=0,0,11,0\n",
         ":8:1: error: a frame is 10 wide, and the right margin alone takes 11"},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", kClean + kGlyph, each);
}

TEST(LintThemeSet, KeyColours) {
    const LintFolder skins;
    const Case cases[] = {
        {"TransMode=1\nTransColor=255,0,255\n", ""},
        {"TransColor=255,0,255\n",
         ":8:1: warning: TransColor has no effect, since TransMode isn't 1"},
        {"TransMode=1\nImageAlpha=252\n",
         ":9:1: warning: with an alpha from 1 to 252 the key colour"},
        {"TransMode=1\nImageAlpha=253\n", ""},
        {"GlyphTransColor=1,2,3\n", ":8:1: warning: GlyphTransColor has no effect"},
        {"GlyphTransMode=1\nGlyphTransColor=1,2,3\n", ""},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", kClean + kGlyph, each);
}

TEST(LintThemeSet, Pools) {
    const LintFolder skins;
    const std::string items = "[Theme_01]\nImage=strip.bmp\nFrames=4\n" + kGlyph;
    const std::string one =
        "[ThemeSet]\nThemes=1\nFonts=1\nTextStyles=1\n[Font_01]\nFontName=Sans\n"
        "[TextStyle_01]\nTextColor=0\n" +
        items;
    const Case cases[] = {
        {"Fonts=1,0,-1\nTextStyles=1\n", ""},
        {"Fonts=1,2\nTextStyles=1\n", ":14:1: warning: there is no [Font_02]"},
        {"Fonts=1\nTextStyles=3,1\n", ":15:1: warning: there is no [TextStyle_03]"},
        {"TextStyles=1\n", ":5:2: warning: no item uses [Font_01]"},
        {"Fonts=1\n", ":7:2: warning: no item uses [TextStyle_01]"},
        {"Fonts=1,a\nTextStyles=1\n", ":14:1: warning: Fonts: \"a\" is no number"},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", one, each);
    const std::string none = "[ThemeSet]\nThemes=1\n" + items;
    ExpectFinding(skins, "a.theme", none,
                  {"Fonts=1\n", ":8:1: error: loading ends here, since Fonts of [ThemeSet] is 0"});
}

TEST(LintThemeSet, Counts) {
    const LintFolder skins;
    const auto check = [&](const std::string& text) {
        return skins.CheckText("a.theme",
                               text + "[Theme_01]\nImage=strip.bmp\nFrames=4\n" + kGlyph);
    };
    EXPECT_THAT(
        check("[ThemeSet]\nThemes=3\n"),
        ElementsAre("a.theme:2:1: warning: Themes is 3, but [Theme_02], [Theme_03] are not there"));
    EXPECT_THAT(
        check("[ThemeSet]\nThemes=99\n"),
        ElementsAre(
            "a.theme:2:1: warning: Themes is 99, but [Theme_02], [Theme_03], [Theme_04] and "
            "more are not there"));
    EXPECT_THAT(check("[ThemeSet]\nThemes=1\nFonts=1\n"),
                ElementsAre("a.theme:3:1: warning: Fonts is 1, but [Font_01] is not there"));
    EXPECT_THAT(check("[ThemeSet]\nThemes=100001\n"),
                testing::Contains(HasSubstr("a.theme:2:1: error: Themes is above 100000")));
    EXPECT_THAT(check("[ThemeSet]\n"),
                testing::Contains(HasSubstr("a.theme:1:2: error: no items")));
    EXPECT_THAT(check("Loose=1\n[ThemeSet]\nThemes=1\n"),
                ElementsAre(HasSubstr("a.theme:1:1: warning: the key \"Loose\" stands before")));
}

TEST(LintFonts, AndStyles) {
    const LintFolder skins;
    const std::string start =
        "[ThemeSet]\nThemes=1\nFonts=1\nTextStyles=1\n[Theme_01]\nFonts=1\n"
        "TextStyles=1\nImage=strip.bmp\nFrames=4\n" +
        kGlyph;
    const std::string font = "[TextStyle_01]\n[Font_01]\n";
    const Case cases[] = {
        {font + "FontWeight=1001\n", ":14:1: warning: FontWeight: \"1001\" is out of range"},
        {font + "size=9.5\nItalics=1\n", ""},
        {font + "ShadowX=1\n", ":14:1: warning: ShadowX has no effect, since DrawingStyle is 0"},
        {font + "DrawingStyle=1\nShadowX=1\n", ""},
        {font + "FontNmae=a\n",
         ":14:1: warning: unknown key \"FontNmae\"; did you mean \"FontName\"?"},
        {"[Font_01]\n[TextStyle_01]\nShadow=1\n",
         ":14:1: warning: Shadow has no effect, since DrawStyle is 0 or not given"},
        {"[Font_01]\n[TextStyle_01]\nDrawStyle=1\nShadow=1,2\n", ""},
        {"[Font_01]\n[TextStyle_01]\nDrawStyle=1\nShadow=1, 2\n",
         ":15:1: warning: Shadow: \"1, 2\" is not"},
        {"[Font_01]\n[TextStyle_01]\nTextColor=1,2,3,128\nDrawStyle=1\nShadow=1\n",
         ":14:1: error: TextColor: an alpha of 128"},
    };
    for (const Case& each : cases) ExpectFinding(skins, "a.theme", start, each);
}

const std::string kUis =
    "[Personality]\nSkinName=any\n[Colour0]\nColour=1 2 3\n[Font0]\nFontName=Sans\n";
const std::string kTaskbar =
    "[Taskbar.Horz]\nImage=strip.bmp\nFrameCount=4\nTextFont=0\n"
    "GlyphImage=glyph.bmp\n";

TEST(LintUis, TheUisFile) {
    const LintFolder skins;
    skins.folder.Write("XPStuff.xp", kTaskbar);
    const Case cases[] = {
        {"", ""},
        {"[Colour1]\nR=1\nG=2\n", ""},
        {"[Colour1]\nR=1000\n", ":8:1: warning: R: \"1000\" is out of range"},
        {"[Colour1]\nColour=1 2\n", ":8:1: warning: Colour: a colour has three parts"},
        {"[Colour1]\nColour=1   2 3\n", ""},
        {"[Colour2]\nColour=1 2 3\n",
         ":7:2: warning: [Colour2] is never read, since there is no [Colour1]"},
        {"[Colour1]\n",
         ":7:2: warning: [Colour1] is never read, since [Colour1] has no Colour or R"},
        {"[Colours]\nMenu=1,2,3\nWindow=1 2 3\n", ""},
        {"[Colours]\nMenu=1 2  3\n", ":8:1: warning: Menu: a system colour has three parts"},
        {"[Colours]\nMenu=1,2,256\n", ":8:1: warning: Menu: \"256\" is out of range"},
        {"[Font1]\nFontName=Sans\n", ":7:2: warning: nothing uses [Font1]"},
        {"[Font1]\nsize=9\n",
         ":7:2: warning: [Font1] is never read, since [Font1] has no FontName"},
        {"[SystemFont0]\nFontName=Sans\n[SystemFonts]\nSystemMenu=0\n", ""},
        {"[SystemFonts]\nSystemMenu=0\n", ":8:1: warning: SystemMenu: there is no [SystemFont0]"},
        {"[SystemFonts]\nSystemMneu=0\n", ":8:1: warning: unknown key \"SystemMneu\""},
        {"[Fonts]\nFontNam=Sans\n", ":8:1: warning: unknown key \"FontNam\""},
        {"[Taskbar.Vert]\n", ":7:2: warning: [Taskbar.Vert] is read from the taskbar's file"},
        {"[MenuItm]\n", ":7:2: warning: [MenuItm] is no part; did you mean [MenuItem]?"},
        {"[Others]\nKey=value\n", ""},
        {"[Button]\nImage=strip.bmp\nFrameCount=4\nNormalColour=0\n", ""},
        {"[Button]\nImage=strip.bmp\nFrameCount=4\nNormalColour=1\n",
         ":10:1: warning: NormalColour: there is no [Colour1]"},
        {"[Button]\nImage=strip.bmp\nFrameCount=4\nNormalFont=1\n",
         ":10:1: warning: NormalFont: there is no [Font1]"},
        {"[Button]\nImage=none.bmp\n", ":8:1: error: \"none.bmp\" is not there"},
        {"[XPTaskbar]\nFile=none.xp\n",
         ":8:1: error: \"none.xp\" is not there; without a taskbar file"},
    };
    for (const Case& each : cases) {
        const auto lines = skins.CheckText("a.uis", kUis + each.lines);
        EXPECT_EQ(lines.size(), each.finding.empty() ? 0u : 1u)
            << each.lines << testing::PrintToString(lines);
        if (!each.finding.empty()) {
            EXPECT_THAT(lines, testing::Contains(HasSubstr("a.uis" + each.finding))) << each.lines;
        }
    }
}

TEST(LintUis, ATaskbarFileMustBeThereAndHaveSections) {
    const LintFolder skins;
    EXPECT_THAT(skins.CheckText("a.uis", kUis),
                testing::Contains(HasSubstr("a.uis:1:1: error: \"XPStuff.xp\" is not there")));
    skins.folder.Write("XPStuff.xp", "; nothing\n");
    EXPECT_THAT(skins.Check("a.uis"),
                testing::Contains("XPStuff.xp:1:1: error: no sections; a taskbar "
                                  "skin without them isn't used"));
}

TEST(LintUis, TheTaskbarFile) {
    const LintFolder skins;
    skins.folder.Write("a.uis", kUis);
    const std::string start = kTaskbar + "[Taskbar.Vert]\n";
    const std::string strip = "Image=strip.bmp\nFrameCount=4\n";
    const Case cases[] = {
        {strip, ""},
        {"FrameCount=4\n",
         ":6:2: error: no Image is named, and \"TaskBarBackgroundVert.bmp\" is not"},
        {"Image=none.bmp\n", ":7:1: error: \"none.bmp\" is not there; with one image missing"},
        {strip + "Tile=5\n", ":9:1: warning: Tile: \"5\" is out of range"},
        {strip + "TileTop=2\n", ":9:1: warning: TileTop: \"2\" is neither 0 nor 1"},
        {strip + "LeftWidth=6\nRightWidth=5\n",
         ":9:1: error: a frame is 10 wide, and left and right"},
        {strip + "RightWidth=11\n", ":9:1: error: a frame is 10 wide, and the right margin alone"},
        {strip + "ContentTop=10\nContentRight=10\n", ":10:1: warning: at the size of one frame"},
        {strip + "Trans=1\nAlpha=128\n",
         ":10:1: warning: with an alpha from 1 to 252 the key colour"},
        {strip + "Trans=1\nAlpha=128\nPerPixel=1\n", ""},
        {strip + "Trans=1\nPerPixel=1\n", ":10:1: warning: PerPixel has no effect with Trans"},
        {strip + "AnimTimerRate=20\nMouseOverStopFrame=3\n", ""},
        {strip + "MouseOverStopFrame=4\n",
         ":9:1: warning: MouseOverStopFrame: the strip has the frames 0 to 3"},
        {"Image=strip.bmp\nFrameCount=1\nAnimTimerRate=20\n",
         ":9:1: warning: AnimTimerRate is not read for an item of one frame"},
        {strip + "GlyphImage=glyph.bmp\nGlyphFrames=0\n", ""},  // as many as the image has
        {strip + "GlyphHorzAlign=1\n", ":9:1: warning: GlyphHorzAlign has no effect"},
        {strip + "Frames=1\n",
         ":9:1: warning: unknown key \"Frames\"; it is one of the other dialect"},
        {strip + "[MenuItem]\n",
         ":9:2: warning: [MenuItem] is read from the UIS file, not from here"},
        {strip + "[Taskbar.Hroz]\nImage=strip.bmp\nFrameCount=4\n",
         ":9:2: warning: [Taskbar.Hroz] is no part; did you mean [Taskbar.Horz]?"},
        {strip + "[Remarks]\n", ":9:2: warning: nothing reads the section [Remarks]"},
        {strip + "[StartMenu.LogonBackground]\nFrameCount=4\n",
         ":10:1: warning: FrameCount has no effect, since no Image is named"},
    };
    for (const Case& each : cases) {
        skins.folder.Write("XPStuff.xp", start + each.lines);
        const auto lines = skins.Check("a.uis");
        if (each.finding.empty()) {
            EXPECT_THAT(lines, IsEmpty()) << each.lines;
        } else {
            EXPECT_THAT(lines, ElementsAre(HasSubstr("XPStuff.xp" + each.finding))) << each.lines;
        }
    }
}

TEST(LintUis, ATaskbarFileAloneIsCheckedWithoutItsColoursAndFonts) {
    const LintFolder skins;
    EXPECT_THAT(skins.CheckText("bar.xp", kTaskbar + "TextColour=99\n"), IsEmpty());
    EXPECT_THAT(skins.CheckText("bar.xp", kTaskbar + "FrameCuont=99\n"),
                ElementsAre(HasSubstr("bar.xp:6:1: warning: unknown key")));
}

TEST(LintUis, TheWallpaperMustBeThereAndIsNoSparePicture) {
    const LintFolder skins;
    skins.WritePicture("wall.bmp", 4, 4);
    skins.folder.Write("XPStuff.xp", kTaskbar);
    EXPECT_THAT(skins.CheckText("a.uis", kUis + "[Personality]\nWallpaper=wall.bmp\n"), IsEmpty());
    EXPECT_THAT(skins.CheckText("a.uis", kUis + "[Personality]\nWallpaper=none.bmp\n"),
                ElementsAre("a.uis:8:1: error: \"none.bmp\" is not there",
                            "wall.bmp:1:1: warning: no item uses this image"));
    EXPECT_THAT(skins.CheckText("a.uis", kUis + "[Personality]\nWalpaper=wall.bmp\n"),
                testing::Contains(HasSubstr("a.uis:8:1: warning: unknown key \"Walpaper\"")));
}

TEST(Lint, WhatIsNoSkinIsRefused) {
    const LintFolder skins;
    EXPECT_THAT(skins.CheckText("a.txt", "[Other]\n"),
                ElementsAre(HasSubstr("a.txt:1:1: error: no section [ThemeSet]")));
    EXPECT_EQ(skins.Check("none.theme").size(), 1u);
    EXPECT_THAT(skins.CheckText("a.vxs", "VXSK"),
                ElementsAre(HasSubstr("a.vxs:1:1: error: cut off within its header")));
    SaveCompiledSkin({New<ThemeSet>(), {}}, skins.folder.Path("b.vxs"));
    EXPECT_THAT(skins.Check("b.vxs"), IsEmpty());
}

TEST(Lint, PicturesAreLookedAtOnceByWhoChecksAgain) {
    const LintFolder skins;
    skins.folder.Write("a.theme", kClean + kGlyph);
    PictureShelf shelf;
    EXPECT_THAT(CheckSkin(skins.folder.Path("a.theme"), shelf), IsEmpty());
    std::filesystem::remove(skins.folder.Path("strip.bmp").Utf8());
    EXPECT_THAT(CheckSkin(skins.folder.Path("a.theme"), shelf), IsEmpty());
}

TEST(Lint, TheSampleSkinsAreClean) {
    for (const char* skin : {"aurora/aurora.theme", "porcelain/porcelain.uis"}) {
        for (const Finding& finding : CheckSkin(String(VXGUI_SOURCE_DIR "/skins/") + skin))
            ADD_FAILURE() << Describe(finding).Utf8();
    }
}

/// The faults that the broken skins' own list names, as "file:line severity".
std::multiset<std::string> PlantedFaults(const std::string& folder) {
    std::multiset<std::string> faults;
    std::ifstream readme(folder + "/README.md");
    const std::regex row(R"(^\| (\S+?)(:\d+)? \| (error|warning) \|.*)");
    for (std::string line; std::getline(readme, line);) {
        std::smatch match;
        if (!std::regex_match(line, match, row)) continue;
        const std::string place = match[2].matched ? match[2].str() : ":1";
        faults.insert(match[1].str() + place + " " + match[3].str());
    }
    return faults;
}

TEST(Lint, FindsEachPlantedFaultOfTheBrokenSkinsAndNothingElse) {
    const std::string folder = VXGUI_SOURCE_DIR "/tests/data/broken";
    std::multiset<std::string> found;
    for (const char* skin : {"theme/broken.theme", "uis/broken.uis", "lost/lost.uis"}) {
        for (const Finding& finding : CheckSkin(folder + "/" + skin)) {
            const std::string path = finding.path.Utf8().substr(folder.size() + 1);
            found.insert(path + ":" + std::to_string(finding.line) +
                         (finding.severity == Severity::Error ? " error" : " warning"));
        }
    }
    const std::multiset<std::string> planted = PlantedFaults(folder);
    EXPECT_GT(planted.size(), 100u);
    for (const std::string& fault : planted)
        EXPECT_EQ(found.count(fault), planted.count(fault)) << fault;
    for (const std::string& fault : found)
        EXPECT_EQ(planted.count(fault), found.count(fault)) << fault;
}

}  // namespace
}  // namespace vxgui::lint
