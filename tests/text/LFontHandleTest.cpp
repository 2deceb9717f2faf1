#include <gtest/gtest.h>

#include <cstring>

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

gdi::LOGFONTA RecordOf(gdi::HGDIOBJ font) {
    gdi::LOGFONTA record{};
    EXPECT_EQ(gdi::GetObjectA(font, sizeof record, &record), 60);
    return record;
}

bool Exists(gdi::HGDIOBJ font) { return gdi::GetObjectA(font, 0, nullptr) != 0; }

const gdi::HGDIOBJ kStock = gdi::GetStockObject(gdi::DEFAULT_GUI_FONT);

TEST(FontHandle, WithoutANameIsTheStockFontAndSurvivesDispose) {
    const Ref<LFont> font = New<LFont>();
    EXPECT_EQ(font->hFont(), kStock);
    font->Dispose();
    EXPECT_TRUE(Exists(kStock));
    EXPECT_EQ(font->hFont(), kStock);
}

TEST(FontHandle, IsMadeOfAllFields) {
    const Ref<LFont> font = New<LFont>();
    font->Create("caf\u00E9", -7, 2, 3, 4, 500, 5, 6, 7, 8, 9, 10, 3, 12);
    const gdi::LOGFONTA record = RecordOf(font->hFont());
    EXPECT_STREQ(record.lfFaceName, "caf\xE9") << "in the ANSI code page";
    EXPECT_EQ(record.lfHeight, -7);
    EXPECT_EQ(record.lfWidth, 2);
    EXPECT_EQ(record.lfEscapement, 3);
    EXPECT_EQ(record.lfOrientation, 4);
    EXPECT_EQ(record.lfWeight, 500);
    EXPECT_EQ(record.lfItalic, 5);
    EXPECT_EQ(record.lfUnderline, 6);
    EXPECT_EQ(record.lfStrikeOut, 7);
    EXPECT_EQ(record.lfCharSet, 8);
    EXPECT_EQ(record.lfOutPrecision, 9);
    EXPECT_EQ(record.lfClipPrecision, 10);
    EXPECT_EQ(record.lfQuality, 3);
    EXPECT_EQ(record.lfPitchAndFamily, 12);
}

TEST(FontHandle, IsMadeOnceAndKeptWhenAFieldChanges) {
    const Ref<LFont> font = New<LFont>();
    font->Name = "DejaVu Sans";
    const gdi::HFONT handle = font->hFont();
    EXPECT_EQ(font->hFont(), handle);
    font->Weight = 700;
    EXPECT_EQ(font->hFont(), handle);
    EXPECT_EQ(RecordOf(font->hFont()).lfWeight, 400) << "drawn as before";
    font->Dispose();
    EXPECT_EQ(RecordOf(font->hFont()).lfWeight, 700);
}

TEST(FontHandle, StaysTheStockFontWhenANameComesLater) {
    const Ref<LFont> font = New<LFont>();
    EXPECT_EQ(font->hFont(), kStock);
    font->Name = "DejaVu Sans";
    EXPECT_EQ(font->hFont(), kStock);
    font->Dispose();
    EXPECT_NE(font->hFont(), kStock);
}

TEST(FontHandle, EndsWithDisposeAndMayBeDisposedTwice) {
    const Ref<LFont> font = New<LFont>();
    font->Name = "DejaVu Sans";
    const gdi::HFONT handle = font->hFont();
    font->Dispose();
    EXPECT_FALSE(Exists(handle));
    font->Dispose();
}

TEST(FontHandle, EndsWithTheFont) {
    Ref<LFont> font = New<LFont>();
    font->Name = "DejaVu Sans";
    const gdi::HFONT handle = font->hFont();
    font = nullptr;
    EXPECT_FALSE(Exists(handle));
}

TEST(FontHandle, IsDroppedByWhatSetsTheFontAnew) {
    using Change = void (*)(LFont&);
    const Change changes[] = {
        [](LFont& f) { f.Create("DejaVu Serif"); }, [](LFont& f) { f.SIZE(10); },
        [](LFont& f) { f.FromLogFont(gdi::LOGFONTA{}); }, [](LFont& f) { f.DefaultGuiFont(); },
        [](LFont& f) { f.FromStdFont(nullptr); }};
    for (const Change change : changes) {
        const Ref<LFont> font = New<LFont>();
        font->Name = "DejaVu Sans";
        const gdi::HFONT handle = font->hFont();
        change(*font);
        EXPECT_FALSE(Exists(handle));
    }
}

TEST(FontFromLogFont, TakesEveryField) {
    gdi::LOGFONTA record{-1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, "Face"};
    record.lfFaceName[6] = 'x';  // behind the end of the name
    const Ref<LFont> font = New<LFont>();
    font->DrawingStyle = New<TextStyle>();
    font->FromLogFont(record);
    EXPECT_EQ(font->Height, -1);
    EXPECT_EQ(font->Width, 2);
    EXPECT_EQ(font->Escapement, 3);
    EXPECT_EQ(font->Orientation, 4);
    EXPECT_EQ(font->Weight, 5);
    EXPECT_EQ(font->Italic, 6);
    EXPECT_EQ(font->Underline, 7);
    EXPECT_EQ(font->StrikeOut, 8);
    EXPECT_EQ(font->CharSet, 9);
    EXPECT_EQ(font->OutPrecision, 10);
    EXPECT_EQ(font->ClipPrecision, 11);
    EXPECT_EQ(font->Quality, 12);
    EXPECT_EQ(font->PitchAndFamily, 13);
    EXPECT_EQ(font->Name, String("Face"));
    EXPECT_NE(font->DrawingStyle, nullptr);
}

TEST(FontFromLogFont, ANameOfFullLengthNeedsNoZero) {
    gdi::LOGFONTA record{};
    std::memset(record.lfFaceName, 'n', sizeof record.lfFaceName);
    const Ref<LFont> font = New<LFont>();
    font->FromLogFont(record);
    EXPECT_EQ(font->Name, String(std::string(32, 'n')));
}

TEST(FontFromLogFont, TheNameComesFromTheAnsiCodePage) {
    gdi::LOGFONTA record{};
    std::strcpy(record.lfFaceName, "caf\xE9");
    const Ref<LFont> font = New<LFont>();
    font->FromLogFont(record);
    EXPECT_EQ(font->Name, String("caf\u00E9"));
}

TEST(DefaultGuiFont, IsTheStockFontWithAQualityAndAHandleOfItsOwn) {
    const Ref<LFont> font = New<LFont>();
    font->DefaultGuiFont(CLEARTYPE_QUALITY);
    EXPECT_EQ(font->Name, String("MS Shell Dlg"));
    EXPECT_EQ(font->Height, -11);
    EXPECT_EQ(font->Weight, 400);
    EXPECT_EQ(font->Quality, CLEARTYPE_QUALITY);
    EXPECT_NE(font->hFont(), kStock);
    EXPECT_EQ(RecordOf(font->hFont()).lfQuality, CLEARTYPE_QUALITY);
}

}  // namespace
}  // namespace vxgui
