#include "vxgui/theme/StripScales.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/theme/SkinPictures.h"
#include "vxgui/theme/CompiledSkin.h"

namespace vxgui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(NameAtScale, CarriesTheScaleBeforeItsEnding) {
    EXPECT_EQ(NameAtScale("button.png", 2), String("button@2x.png"));
    EXPECT_EQ(NameAtScale("controls/Button.tga", 1.5), String("controls/Button@1.5x.tga"));
    EXPECT_EQ(NameAtScale("a.b\\button", 1.25), String("a.b\\button@1.25x"));
    EXPECT_EQ(NameAtScale("button.png", 0.25), String("button@0.25x.png"));
    EXPECT_EQ(NameAtScale("button.png", 1.0 / 3), String("button@0.333x.png"));
}

TEST(ScalesIn, LeavesOutWhatCantBeAScale) {
    EXPECT_THAT(ScalesIn("1.5, 2,3"), ElementsAre(1.5, 2, 3));
    EXPECT_THAT(ScalesIn("1,0,17,-2,x,.25"), ElementsAre(0.25));
    EXPECT_THAT(ScalesIn(""), IsEmpty());
}

/// A folder with strips of 12 x 4 pixels, for scale 1 and for two others.
class StripFiles : public testing::Test {
protected:
    StripFiles() {
        files.Write("strip.tga", test::TgaBytes({10, 10, 10, 255}));
        files.Write("strip@2x.tga", test::TgaBytes({20, 20, 20, 255}));
        files.Write("strip@1.5x.tga", test::TgaBytes({15, 15, 15, 255}));
    }
    Ref<ThemeSet> Load(const String& item) {
        const Ref<core7::DefineFile> file = core7::CreateDefineFile();
        EXPECT_TRUE(file->LoadText("[ThemeSet]\nThemes=1\n[Theme_01]\n" + item));
        const Ref<ThemeSet> set = New<ThemeSet>();
        ThemeSetFromDefine(set, file, files.Path());
        return set;
    }
    Ref<ThemeItem> LoadUis(const String& text) {
        const Ref<core7::DefineFile> file = core7::CreateDefineFile();
        EXPECT_TRUE(file->LoadText("[Item]\n" + text));
        const Ref<ThemeItem> item = New<ThemeItem>();
        EXPECT_TRUE(item->FromUis(file, files.Path(), "Item", ""));
        return item;
    }
    static std::vector<double> ScalesOf(const std::vector<StripAtScale>& strips) {
        std::vector<double> scales;
        for (const StripAtScale& at : strips) {
            scales.push_back(at.scale);
            EXPECT_EQ(at.strip->GetPixel(0, 0) & 255, at.scale * 10);
        }
        return scales;
    }

    test::TemporaryFolder files;
};

TEST_F(StripFiles, AreReadForTheScalesThatADefineFileLists) {
    const Ref<ThemeItem> item =
        Load(
            "Image=strip.tga\nFrames=3\nImageScales=2,1.5,3\nGlyphImage=strip.tga\n"
            "GlyphScales=2\n")
            ->Item(1);
    EXPECT_THAT(ScalesOf(item->ImageStrips()), ElementsAre(1.5, 2));
    EXPECT_THAT(ScalesOf(item->GlyphStrips()), ElementsAre(2));
    EXPECT_THAT(Load("Image=strip.tga\nFrames=3")->Item(1)->ImageStrips(), IsEmpty());
}

TEST_F(StripFiles, AreReadForTheScalesThatAUisFileLists) {
    const Ref<ThemeItem> item = LoadUis(
        "Image=strip.tga\nFrameCount=3\nImageScales=1.5,2,4\nGlyphImage=strip.tga\n"
        "GlyphScales=1.5\n");
    EXPECT_THAT(ScalesOf(item->ImageStrips()), ElementsAre(1.5, 2));
    EXPECT_THAT(ScalesOf(item->GlyphStrips()), ElementsAre(1.5));
    EXPECT_THAT(LoadUis("Image=strip.tga\nFrameCount=3")->ImageStrips(), IsEmpty());
}

TEST_F(StripFiles, StayInACompiledSkin) {
    const CompiledSkin skin{
        Load("Image=strip.tga\nFrames=3\nImageScales=2,1.5\nGlyphImage=strip.tga\nGlyphScales=2"),
        {}};
    const CompiledSkin read = CompiledSkinFrom(BytesOfCompiledSkin(skin));
    const Ref<ThemeItem> item = read.set->Item(1);
    EXPECT_THAT(ScalesOf(item->ImageStrips()), ElementsAre(1.5, 2));
    EXPECT_THAT(ScalesOf(item->GlyphStrips()), ElementsAre(2));
    // The glyph's is the same picture and stored once.
    EXPECT_EQ(item->GlyphStrips()[0].strip, item->ImageStrips()[1].strip);
}

}  // namespace
}  // namespace vxgui
