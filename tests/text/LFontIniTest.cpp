#include <gmock/gmock.h>

#include "ActedDefineFile.h"
#include "TextTestSupport.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using test::ActedDefineFile;
using test::DefineFileOf;

Ref<LFont> FontOf(const String& lines) {
    const Ref<LFont> font = New<LFont>();
    font->FromIniFile(DefineFileOf(lines), "S");
    return font;
}

TEST(FontSection, IsReadInItsOrderWithItsDefaults) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    New<LFont>()->FromIniFile(file, "S");
    EXPECT_THAT(
        file->reads,
        testing::ElementsAre("text FontName ", "number size 0", "integer FontHeight 12",
                             "integer FontWidth 0", "integer FontAngle 0", "integer FontWeight 400",
                             "integer Italics 0", "integer Underline 0", "integer StrikeOut 0",
                             "integer CharSet 1", "integer OutPrecision 0",
                             "integer ClipPrecision 0", "integer AntiAlias 0", "integer Quality 0",
                             "integer PitchAndFamily 0", "integer DrawingStyle 0"));
}

TEST(FontSection, SizeAndAntiAliasSkipTheReadsBehindThem) {
    const Ref<ActedDefineFile> file = New<ActedDefineFile>();
    file->values = {{"size", "9"}, {"AntiAlias", "1"}};
    New<LFont>()->FromIniFile(file, "S");
    EXPECT_THAT(file->reads, testing::Not(testing::Contains("integer FontHeight 12")));
    EXPECT_THAT(file->reads, testing::Not(testing::Contains("integer FontWidth 0")));
    EXPECT_THAT(file->reads, testing::Not(testing::Contains("integer Quality 0")));
}

TEST(FontSection, WithoutKeysGivesTheDefaults) {
    const Ref<LFont> font = New<LFont>();
    font->Create("Face", -7, 2, 3, 4, 500, 5, 6, 7, 8, 9, 10, 11, 12);
    font->DrawingStyle = New<TextStyle>();
    font->FromIniFile(DefineFileOf(""), "S");
    EXPECT_TRUE(font->Equal(New<LFont>()));
    EXPECT_EQ(font->DrawingStyle, nullptr);
}

struct KeyRow {
    const char* line;
    bool (*taken)(const LFont&);
};
class FontKey : public testing::TestWithParam<KeyRow> {};
INSTANTIATE_TEST_SUITE_P(
    , FontKey,
    testing::Values(
        KeyRow{"FontName=DejaVu Sans",
               [](const LFont& f) { return f.Name == String("DejaVu Sans"); }},
        KeyRow{"size=9", [](const LFont& f) { return f.Height == -12 && f.Width == 0; }},
        KeyRow{"size=8.25", [](const LFont& f) { return f.Height == -11; }},
        KeyRow{"FontHeight=-20", [](const LFont& f) { return f.Height == -20; }},
        KeyRow{"FontWidth=7", [](const LFont& f) { return f.Width == 7; }},
        KeyRow{"FontAngle=450",
               [](const LFont& f) { return f.Escapement == 450 && f.Orientation == 450; }},
        KeyRow{"FontWeight=700", [](const LFont& f) { return f.Weight == 700; }},
        KeyRow{"Italics=1", [](const LFont& f) { return f.Italic == 1; }},
        KeyRow{"Italics=257", [](const LFont& f) { return f.Italic == 1; }},
        KeyRow{"Italics=-1", [](const LFont& f) { return f.Italic == 255; }},
        KeyRow{"Underline=1", [](const LFont& f) { return f.Underline == 1; }},
        KeyRow{"Underline=258", [](const LFont& f) { return f.Underline == 2; }},
        KeyRow{"StrikeOut=1", [](const LFont& f) { return f.StrikeOut == 1; }},
        KeyRow{"StrikeOut=256", [](const LFont& f) { return f.StrikeOut == 0; }},
        KeyRow{"CharSet=134", [](const LFont& f) { return f.CharSet == 134; }},
        KeyRow{"CharSet=300", [](const LFont& f) { return f.CharSet == 44; }},
        KeyRow{"OutPrecision=4", [](const LFont& f) { return f.OutPrecision == 4; }},
        KeyRow{"OutPrecision=260", [](const LFont& f) { return f.OutPrecision == 4; }},
        KeyRow{"ClipPrecision=2", [](const LFont& f) { return f.ClipPrecision == 2; }},
        KeyRow{"ClipPrecision=511", [](const LFont& f) { return f.ClipPrecision == 255; }},
        KeyRow{"AntiAlias=1", [](const LFont& f) { return f.Quality == ANTIALIASED_QUALITY; }},
        KeyRow{"AntiAlias=-3", [](const LFont& f) { return f.Quality == ANTIALIASED_QUALITY; }},
        KeyRow{"AntiAlias=1\nQuality=5", [](const LFont& f) { return f.Quality == 4; }},
        KeyRow{"AntiAlias=0\nQuality=5", [](const LFont& f) { return f.Quality == 5; }},
        KeyRow{"Quality=3", [](const LFont& f) { return f.Quality == 3; }},
        KeyRow{"Quality=259", [](const LFont& f) { return f.Quality == 3; }},
        KeyRow{"PitchAndFamily=34", [](const LFont& f) { return f.PitchAndFamily == 34; }},
        KeyRow{"PitchAndFamily=290", [](const LFont& f) { return f.PitchAndFamily == 34; }}));

TEST_P(FontKey, SetsItsField) { EXPECT_TRUE(GetParam().taken(*FontOf(GetParam().line))); }

TEST(FontSection, ASizeOverridesTheHeight) {
    EXPECT_EQ(FontOf("size=9\nFontHeight=30\nFontWidth=3")->Height, -12);
    EXPECT_EQ(FontOf("size=9\nFontHeight=30\nFontWidth=3")->Width, 0);
    EXPECT_EQ(FontOf("size=0\nFontHeight=30")->Height, 30);
}

TEST(FontSection, AnAntiAliasOfZeroReadsTheQuality) {
    EXPECT_EQ(FontOf("AntiAlias=1\nQuality=5")->Quality, 4);
}

TEST(FontSection, ADrawingStyleIsReadFromTheSameSection) {
    EXPECT_EQ(FontOf("DrawingStyle=0\nTextColor=255")->DrawingStyle, nullptr);
    EXPECT_EQ(FontOf("DrawingStyle=-1\nTextColor=255")->DrawingStyle, nullptr);
    const Ref<LFont> font = FontOf("DrawingStyle=1\nTextColor=255,0,0\nShadowX=3");
    ASSERT_NE(font->DrawingStyle, nullptr);
    EXPECT_EQ(font->DrawingStyle->TextColor, 255);
    EXPECT_EQ(font->DrawingStyle->TextStyle, 1);
    EXPECT_EQ(font->DrawingStyle->ShadowX, 3);
}

TEST(FontSection, DropsTheHandle) {
    const Ref<LFont> font = New<LFont>();
    font->Name = "DejaVu Sans";
    const gdi::HFONT handle = font->hFont();
    font->FromIniFile(DefineFileOf("FontName=DejaVu Sans"), "S");
    EXPECT_EQ(gdi::GetObjectA(handle, 0, nullptr), 0);
}

TEST(FontSection, OfNoFileRaises) {
    EXPECT_EQ(test::ErrorOf([] { New<LFont>()->FromIniFile(nullptr, "S"); }), 91);
}

}  // namespace
}  // namespace vxgui
