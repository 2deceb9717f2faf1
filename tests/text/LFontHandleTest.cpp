#include <gtest/gtest.h>

#include "tests/text/TextSupport.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using test::IsAlive;
using test::RecordOf;

const gdi::HGDIOBJ kGuiFont = gdi::GetStockObject(gdi::DEFAULT_GUI_FONT);

Ref<LFont> NamedFont() {
    Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Sans", -20);
    return font;
}

TEST(LFontHandle, IsMadeOfTheFields) {
    const Ref<LFont> font = New<LFont>();
    font->Create(u"F\u00E9", -20, 3, 450, 900, 700, 1, 2, 3, 134, 5, 6, 4, 34);
    const gdi::LOGFONTA record = RecordOf(font->hFont());
    EXPECT_EQ(record.lfHeight, -20);
    EXPECT_EQ(record.lfWidth, 3);
    EXPECT_EQ(record.lfEscapement, 450);
    EXPECT_EQ(record.lfOrientation, 900);
    EXPECT_EQ(record.lfWeight, 700);
    EXPECT_EQ(record.lfItalic, 1);
    EXPECT_EQ(record.lfUnderline, 2);
    EXPECT_EQ(record.lfStrikeOut, 3);
    EXPECT_EQ(record.lfCharSet, 134);
    EXPECT_EQ(record.lfOutPrecision, 5);
    EXPECT_EQ(record.lfClipPrecision, 6);
    EXPECT_EQ(record.lfQuality, 4);
    EXPECT_EQ(record.lfPitchAndFamily, 34);
    EXPECT_STREQ(record.lfFaceName, "F\xE9");  // in the ANSI code page
}

TEST(LFontHandle, WithoutANameIsTheStockFontWhichDisposeLeaves) {
    const Ref<LFont> font = New<LFont>();
    EXPECT_EQ(font->hFont(), kGuiFont);
    font->Dispose();
    EXPECT_TRUE(IsAlive(static_cast<gdi::HFONT>(kGuiFont)));
}

TEST(LFontHandle, IsKeptWhateverTheFieldsBecome) {
    const Ref<LFont> font = NamedFont();
    const gdi::HFONT handle = font->hFont();
    font->Weight = 700;
    font->Name = "Other";
    EXPECT_EQ(font->hFont(), handle);
    EXPECT_EQ(RecordOf(font->hFont()).lfWeight, 400);
    font->Dispose();
    EXPECT_EQ(RecordOf(font->hFont()).lfWeight, 700);
}

TEST(LFontHandle, OfAFontThatWasNamelessGivesWayAfterDispose) {
    const Ref<LFont> font = New<LFont>();
    font->hFont();
    font->Name = "DejaVu Sans";
    EXPECT_EQ(font->hFont(), kGuiFont);
    font->Dispose();
    const gdi::HFONT own = font->hFont();
    EXPECT_NE(own, kGuiFont);
    font->Dispose();
    EXPECT_FALSE(IsAlive(own));  // the handle before was the stock one, this one isn't
}

TEST(LFontHandle, DisposeEndsItAndMayBeCalledAgain) {
    const Ref<LFont> font = NamedFont();
    const gdi::HFONT handle = font->hFont();
    font->Dispose();
    EXPECT_FALSE(IsAlive(handle));
    font->Dispose();
    EXPECT_TRUE(IsAlive(font->hFont()));
}

TEST(LFontHandle, EndsWithTheObject) {
    Ref<LFont> font = NamedFont();
    const gdi::HFONT handle = font->hFont();
    font = nullptr;
    EXPECT_FALSE(IsAlive(handle));
}

TEST(LFontHandle, IsNotSharedWithAClone) {
    const Ref<LFont> font = NamedFont();
    font->hFont();
    EXPECT_NE(font->Clone()->hFont(), font->hFont());
}

TEST(LFontHandle, IsTheStockFontWhenNoneCanBeMade) {
    std::vector<gdi::HBRUSH> brushes;  // until the system has no more handles
    while (const gdi::HBRUSH brush = gdi::CreateSolidBrush(0)) brushes.push_back(brush);
    const Ref<LFont> font = NamedFont();
    EXPECT_EQ(font->hFont(), kGuiFont);
    for (const gdi::HBRUSH brush : brushes) gdi::DeleteObject(brush);
    EXPECT_EQ(font->hFont(), kGuiFont);
    font->Dispose();
    EXPECT_NE(font->hFont(), kGuiFont);
}

TEST(LFontHandle, IsDroppedByWhatSetsTheFontAnew) {
    const std::function<void(LFont&)> setters[] = {
        [](LFont& f) { f.Create("Other"); },
        [](LFont& f) { f.FromIniFile(test::SectionOf(""), "s"); },
        [](LFont& f) { f.FromLogFont({}); },
        [](LFont& f) { f.FromStdFont(nullptr); },
        [](LFont& f) { f.DefaultGuiFont(); },
        [](LFont& f) { f.SIZE(9); },
    };
    for (size_t i = 0; i < std::size(setters); ++i) {
        const Ref<LFont> font = NamedFont();
        const gdi::HFONT handle = font->hFont();
        setters[i](*font);
        EXPECT_FALSE(IsAlive(handle)) << i;
    }
}

TEST(LFontHandle, StaysInForceWhenPropertiesAreRead) {
    const Ref<LFont> font = NamedFont();
    const gdi::HFONT handle = font->hFont();
    font->ReadProperties(New<ole::PropertyBag>());
    EXPECT_EQ(font->Name, "");
    EXPECT_EQ(font->hFont(), handle);
    EXPECT_TRUE(IsAlive(handle));
}

}  // namespace
}  // namespace vxgui
