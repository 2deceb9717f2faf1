#include <gtest/gtest.h>

#include <cstring>

#include "tests/text/TextSupport.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using test::IsAlive;

TEST(LFontStdFont, HasThePropertiesOfTheFont) {
    const Ref<LFont> font = New<LFont>();
    font->Create("Face", -12, 0, 0, 0, 650, 1, 7, 9, 134);
    const Ref<ole::StdFont> standard = font->StdFont();
    EXPECT_EQ(standard->Name(), "Face");
    EXPECT_EQ(standard->Charset(), 134);
    EXPECT_EQ(standard->Size(), 9);
    EXPECT_TRUE(standard->Bold());
    EXPECT_TRUE(standard->Italic());
    EXPECT_TRUE(standard->Underline());
    EXPECT_TRUE(standard->Strikethrough());
    EXPECT_EQ(standard->Weight(), 650);
}

TEST(LFontStdFont, IsBoldFromWeight600) {
    const Ref<LFont> font = New<LFont>();
    font->Weight = 600;
    EXPECT_TRUE(font->StdFont()->Bold());
    font->Weight = 599;
    EXPECT_FALSE(font->StdFont()->Bold());
    EXPECT_EQ(font->StdFont()->Weight(), 599);
}

TEST(LFontStdFont, SkipsWhatTheNewObjectRefuses) {
    const Ref<LFont> font = New<LFont>();
    font->Create("Face", 2000000000, 0, 0, 0, 70000, 1);
    const Ref<ole::StdFont> standard = font->StdFont();
    EXPECT_EQ(standard->Name(), "Face");
    EXPECT_TRUE(standard->Italic());
    EXPECT_EQ(standard->Weight(), 700);  // what being bold has made of it
}

TEST(LFontStdFont, IsAnotherObjectAtEachCall) {
    const Ref<LFont> font = New<LFont>();
    EXPECT_FALSE(font->StdFont() == font->StdFont());
}

struct ChangeCase {
    const char* name;
    std::function<void(ole::StdFont&)> change;
    std::function<void(LFont&)> expected;
};

TEST(LFontFollowing, TakesEachPropertyByItsName) {
    const ChangeCase cases[] = {
        {"Name", [](auto& s) { s.Name("Other"); }, [](auto& f) { f.Name = "Other"; }},
        {"CharSet", [](auto& s) { s.Charset(134); }, [](auto& f) { f.CharSet = 134; }},
        {"Size", [](auto& s) { s.Size(12); },
         [](auto& f) {
             f.Height = -16;
             f.Width = 0;
         }},
        {"Bold", [](auto& s) { s.Bold(true); }, [](auto& f) { f.Weight = 600; }},
        {"Italic", [](auto& s) { s.Italic(true); }, [](auto& f) { f.Italic = 1; }},
        {"Underline", [](auto& s) { s.Underline(true); }, [](auto& f) { f.Underline = 1; }},
        {"Strikethrough", [](auto& s) { s.Strikethrough(true); }, [](auto& f) { f.StrikeOut = 1; }},
        {"Weight", [](auto& s) { s.Weight(300); }, [](auto& f) { f.Weight = 300; }},
    };
    for (const ChangeCase& c : cases) {
        const Ref<LFont> font = New<LFont>();
        font->Create("Face", -12, 5);
        const Ref<LFont> expected = font->Clone();
        c.change(*font->StdFont());
        c.expected(*expected);
        EXPECT_TRUE(font->Equal(expected)) << c.name;
    }
}

TEST(LFontFollowing, NoLongerBoldIsTheRegularWeight) {
    const Ref<LFont> font = New<LFont>();
    font->Weight = 900;
    const Ref<ole::StdFont> standard = font->StdFont();
    standard->Bold(false);
    EXPECT_EQ(font->Weight, 400);
}

TEST(LFontFollowing, DropsTheHandle) {
    const Ref<LFont> font = New<LFont>();
    font->Name = "DejaVu Sans";
    const gdi::HFONT handle = font->hFont();
    font->StdFont()->Italic(true);
    EXPECT_FALSE(IsAlive(handle));
}

TEST(LFontFollowing, OnlyTheLatestIsWatched) {
    const Ref<LFont> font = New<LFont>();
    const Ref<ole::StdFont> first = font->StdFont(), second = font->StdFont();
    first->Weight(100);
    EXPECT_EQ(font->Weight, 400);
    second->Weight(200);
    EXPECT_EQ(font->Weight, 200);
}

TEST(LFontFollowing, EndsWithTheFont) {
    Ref<LFont> font = New<LFont>();
    const Ref<ole::StdFont> standard = font->StdFont();
    font = nullptr;
    standard->Weight(100);
    EXPECT_EQ(standard->Weight(), 100);
}

gdi::LOGFONTA FilledRecord() {
    gdi::LOGFONTA record{-20, 3, 450, 900, 700, 1, 2, 3, 134, 5, 6, 4, 34, {}};
    std::memset(record.lfFaceName, 'x', sizeof record.lfFaceName);
    return record;
}

TEST(LFontFromLogFont, TakesEachNumberAndTheName) {
    gdi::LOGFONTA record = FilledRecord();
    std::memcpy(record.lfFaceName, "F\xE9\0more", 7);
    const Ref<LFont> font = New<LFont>(), expected = New<LFont>();
    const Ref<TextStyle> style = New<TextStyle>();
    font->DrawingStyle = style;
    font->FromLogFont(record);
    expected->Create(u"F\u00E9", -20, 3, 450, 900, 700, 1, 2, 3, 134, 5, 6, 4, 34);
    EXPECT_TRUE(font->Equal(expected));
    EXPECT_EQ(font->DrawingStyle, style);
}

TEST(LFontFromLogFont, ANameMayFillItsPlaceWithoutAnEnd) {
    const Ref<LFont> font = New<LFont>();
    font->FromLogFont(FilledRecord());
    EXPECT_EQ(font->Name, String(std::string(32, 'x')));
}

TEST(LFontFromStdFont, TakesItsHandlesRecordWithTheQualityAskedFor) {
    const Ref<ole::StdFont> standard = New<ole::StdFont>();
    standard->Name("DejaVu Sans");
    standard->Size(9);
    standard->Weight(700);
    standard->Italic(true);
    standard->Charset(1);
    const Ref<LFont> font = New<LFont>();
    font->FromStdFont(standard, CLEARTYPE_QUALITY);
    EXPECT_EQ(font->Name, "DejaVu Sans");
    EXPECT_EQ(font->Height, -12);
    EXPECT_EQ(font->Weight, 700);
    EXPECT_EQ(font->Italic, 1);
    EXPECT_EQ(font->CharSet, 1);
    EXPECT_EQ(font->Quality, CLEARTYPE_QUALITY);
    font->FromStdFont(standard);
    EXPECT_EQ(font->Quality, DEFAULT_QUALITY);
}

void ExpectGuiFont(const LFont& font, uint8_t quality) {
    const auto stock = static_cast<gdi::HFONT>(gdi::GetStockObject(gdi::DEFAULT_GUI_FONT));
    const gdi::LOGFONTA record = test::RecordOf(stock);
    EXPECT_EQ(font.Name, record.lfFaceName);
    EXPECT_EQ(font.Height, record.lfHeight);
    EXPECT_EQ(font.Weight, record.lfWeight);
    EXPECT_EQ(font.PitchAndFamily, record.lfPitchAndFamily);
    EXPECT_EQ(font.Quality, quality);
}

TEST(LFontFromStdFont, NoneIsThePlatformsFont) {
    const Ref<LFont> font = New<LFont>();
    font->FromStdFont(nullptr, ANTIALIASED_QUALITY);
    ExpectGuiFont(*font, ANTIALIASED_QUALITY);
}

TEST(LFontDefaultGuiFont, TakesTheStockFontsValuesAndMakesAHandleOfItsOwn) {
    const Ref<LFont> font = New<LFont>();
    font->DefaultGuiFont(PROOF_QUALITY);
    ExpectGuiFont(*font, PROOF_QUALITY);
    EXPECT_FALSE(font->Name.empty());
    EXPECT_NE(font->hFont(), gdi::GetStockObject(gdi::DEFAULT_GUI_FONT));
}

}  // namespace
}  // namespace vxgui
