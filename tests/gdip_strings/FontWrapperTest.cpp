#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/Errors.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/text/LFont.h"

namespace vxgui {
namespace {

class FontWrapper : public testing::Test {
protected:
    Ref<GpFont> Make(float size = 12, int32_t style = 0, gdiplus::Unit unit = gdiplus::UnitPoint) {
        Ref<GpFont> font = New<GpFont>();
        EXPECT_TRUE(font->Create("DejaVu Sans", size, style, unit));
        return font;
    }

    test::GdiplusSession session_;
};

TEST_F(FontWrapper, ANewOneIsEmpty) {
    const Ref<GpFont> font = New<GpFont>();
    EXPECT_EQ(font->Handle(), nullptr);
    EXPECT_EQ(font->Name(), "");
    EXPECT_EQ(font->SIZE(), 0);
    EXPECT_EQ(font->Unit(), gdiplus::UnitWorld);
    EXPECT_EQ(font->Style(), 0);
    EXPECT_EQ(font->HeightDPI(96), -1) << "a failure";
    EXPECT_EQ(font->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(font->Clone(), nullptr);
    EXPECT_EQ(font->FontFamily()->Handle(), nullptr);
}

TEST_F(FontWrapper, CreateTakesPointsByDefault) {
    const Ref<GpFont> font = New<GpFont>();
    ASSERT_TRUE(font->Create("dejavu sans", 9));
    EXPECT_EQ(font->Name(), "DejaVu Sans") << "the family's own name";
    EXPECT_EQ(font->SIZE(), 9);
    EXPECT_EQ(font->Unit(), gdiplus::UnitPoint);
    EXPECT_EQ(font->Style(), 0);
    EXPECT_EQ(font->PointSize(), 9);
}

TEST_F(FontWrapper, AFailedCreationKeepsTheOldFont) {
    const Ref<GpFont> font = Make();
    gdiplus::GpFont* const handle = font->Handle();
    EXPECT_FALSE(font->Create("No Such Font", 9));
    EXPECT_EQ(font->Status, gdiplus::FontFamilyNotFound);
    EXPECT_FALSE(font->Create("DejaVu Sans", -1));
    EXPECT_EQ(font->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(font->Handle(), handle);
    EXPECT_EQ(font->SIZE(), 12);
    EXPECT_TRUE(font->Create("DejaVu Sans", 9));
    EXPECT_EQ(font->Status, gdiplus::InvalidParameter) << "a success doesn't clear it";
}

TEST_F(FontWrapper, StylePropertiesAreBits) {
    struct Row {
        int32_t bit;
        bool (GpFont::*get)() const;
        void (GpFont::*set)(bool);
    };
    const Row rows[] = {{1, &GpFont::Bold, &GpFont::Bold},
                        {2, &GpFont::Italic, &GpFont::Italic},
                        {4, &GpFont::Underline, &GpFont::Underline},
                        {8, &GpFont::StrikeOut, &GpFont::StrikeOut}};
    for (const Row& row : rows) {
        const Ref<GpFont> font = Make();
        EXPECT_FALSE((*font.*row.get)());
        gdiplus::GpFont* const handle = font->Handle();
        (*font.*row.set)(true);
        EXPECT_TRUE((*font.*row.get)());
        EXPECT_EQ(font->Style(), row.bit);
        EXPECT_NE(font->Handle(), handle) << "the font is made anew";
        (*font.*row.set)(false);
        EXPECT_EQ(font->Style(), 0);
    }
}

TEST_F(FontWrapper, SettingWhatItIsMakesNoFont) {
    const Ref<GpFont> font = Make(12, 1);
    gdiplus::GpFont* const handle = font->Handle();
    font->Bold(true);
    font->Name("DejaVu Sans");
    font->SIZE(12);
    font->Style(1);
    font->Unit(gdiplus::UnitPoint);
    EXPECT_EQ(font->Handle(), handle);
}

TEST_F(FontWrapper, SettingAnotherValueMakesTheFontAnew) {
    const Ref<GpFont> font = Make();
    font->Name("DejaVu Serif");
    EXPECT_EQ(font->FontFamily()->GetFamilyName(), "DejaVu Serif");
    font->SIZE(20);
    font->Unit(gdiplus::UnitPixel);
    font->Style(3);
    EXPECT_EQ(font->Name(), "DejaVu Serif");
    EXPECT_EQ(font->SIZE(), 20);
    EXPECT_EQ(font->Unit(), gdiplus::UnitPixel);
    EXPECT_EQ(font->Style(), 3);
    EXPECT_NEAR(font->HeightDPI(300), 20.0 * 2384 / 2048, 1e-4);
}

TEST_F(FontWrapper, AFailedChangeLeavesTheStyleBitAndTheOldFont) {
    const Ref<GpFont> font = Make();
    font->Name("No Such Font");
    EXPECT_EQ(font->Name(), "DejaVu Sans");
    // The family of a font from a record can vanish; here its name can't be found any more.
    const Ref<ole::StdFont> missing = New<ole::StdFont>();
    missing->Name("No Such Font");
    EXPECT_FALSE(font->FromStdFont(missing));
    EXPECT_EQ(font->Name(), "No Such Font") << "the fields are written first";
    gdiplus::GpFont* const handle = font->Handle();
    font->Bold(true);
    EXPECT_TRUE(font->Bold());
    EXPECT_EQ(font->Handle(), handle);
}

TEST_F(FontWrapper, ClonesHaveTheirOwnHandle) {
    const Ref<GpFont> font = Make(10, 5);
    const Ref<GpFont> clone = font->Clone();
    ASSERT_TRUE(clone);
    EXPECT_NE(clone->Handle(), font->Handle());
    font->Dispose();
    EXPECT_EQ(clone->Name(), "DejaVu Sans");
    EXPECT_EQ(clone->Style(), 5);
    EXPECT_EQ(clone->SIZE(), 10);
    EXPECT_GT(clone->HeightDPI(96), 0);
}

TEST_F(FontWrapper, SettingItsOwnHandleDisposesItFirst) {
    const Ref<GpFont> font = Make();
    gdiplus::GpFont* own = font->Handle();
    font->SetHandle(own);
    EXPECT_EQ(font->Handle(), own);
    EXPECT_EQ(font->HeightDPI(96), -1) << "the handle is dead";
}

TEST_F(FontWrapper, StandardFontsGoInAndOut) {
    const Ref<ole::StdFont> standard = New<ole::StdFont>();
    standard->Name("DejaVu Sans");
    standard->Size(15);
    standard->Bold(true);
    standard->Strikethrough(true);
    const Ref<GpFont> font = New<GpFont>();
    ASSERT_TRUE(font->FromStdFont(standard));
    EXPECT_EQ(font->Style(), 9);
    EXPECT_EQ(font->Unit(), gdiplus::UnitPoint);
    EXPECT_EQ(font->SIZE(), 15);
    const Ref<ole::StdFont> back = font->StdFont();
    EXPECT_EQ(back->Name(), "DejaVu Sans");
    EXPECT_EQ(back->Size(), 15);
    EXPECT_TRUE(back->Bold());
    EXPECT_FALSE(back->Italic());
    EXPECT_FALSE(back->Underline());
    EXPECT_TRUE(back->Strikethrough());
    EXPECT_EQ(test::RaisedBy([&] { font->FromStdFont(nullptr); }), 91);
}

TEST_F(FontWrapper, PointSizeOfOtherUnitsIsTheHeightOnTheScreen) {
    const Ref<GpFont> font = Make(16, 0, gdiplus::UnitPixel);
    EXPECT_NEAR(font->PointSize(), 16.0 * 2384 / 2048 * 72 / 96, 1e-4);
    EXPECT_EQ(font->HeightDPI(0), font->HeightDPI(96));
    EXPECT_EQ(font->Height(nullptr), font->HeightDPI(96));
    EXPECT_NEAR(Make(12)->HeightDPI(0), 16.0 * 2384 / 2048, 1e-4);
}

TEST_F(FontWrapper, ItsHandleForTheDrawingInterfaceCanBeSelected) {
    const Ref<GpFont> font = Make(12, 2);
    gdi::LOGFONTA record{};
    ASSERT_NE(gdi::GetObjectA(font->hFont(), sizeof record, &record), 0);
    EXPECT_STREQ(record.lfFaceName, "DejaVu Sans");
    EXPECT_EQ(record.lfHeight, -16);
    EXPECT_NE(record.lfItalic, 0);
}

TEST_F(FontWrapper, LogFontsAreInWorldUnits) {
    gdi::LOGFONTA record{};
    record.lfHeight = -21;
    record.lfUnderline = 1;
    strcpy(record.lfFaceName, "DejaVu Sans Mono");
    const Ref<GpFont> font = New<GpFont>();
    ASSERT_TRUE(font->FromLogFontA(&record));
    EXPECT_EQ(font->Name(), "DejaVu Sans Mono");
    EXPECT_EQ(font->SIZE(), 21);
    EXPECT_EQ(font->Unit(), gdiplus::UnitWorld);
    EXPECT_EQ(font->Style(), 4);
    EXPECT_FALSE(font->FromLogFontA(nullptr));
    EXPECT_FALSE(font->FromHDC(nullptr));
    EXPECT_EQ(font->SIZE(), 21) << "a failure keeps it";
}

TEST_F(FontWrapper, SetWeightGoesThroughALogFont) {
    const Ref<GpFont> font = Make(12);
    ASSERT_TRUE(font->SetWeight(700));
    EXPECT_TRUE(font->Bold());
    EXPECT_EQ(font->Unit(), gdiplus::UnitWorld);
    EXPECT_EQ(font->SIZE(), 16) << "pixels now";
    ASSERT_TRUE(font->SetWeight(400));
    EXPECT_FALSE(font->Bold());
    EXPECT_FALSE(New<GpFont>()->SetWeight(700));
}

TEST_F(FontWrapper, LogFontsAreReadOnAContext) {
    gdi::LOGFONTA record{};
    EXPECT_TRUE(Make(12, 1)->GetLogFontOf(&record, nullptr));
    EXPECT_EQ(record.lfHeight, -16);
    EXPECT_EQ(record.lfWeight, 700);
    EXPECT_FALSE(New<GpFont>()->GetLogFontOf(&record, nullptr));
}

TEST_F(FontWrapper, ThePathEmHasTheSameHeightAt96DotsAnInch) {
    EXPECT_EQ(Make(12)->PathEmSize(), 16) << "12 points";
    EXPECT_EQ(Make(9)->PathEmSize(), 12);
    EXPECT_EQ(Make(20, 0, gdiplus::UnitPixel)->PathEmSize(), 20);
}

TEST_F(FontWrapper, ThePathEmSearchEndsAt600) {
    // 13.3 points are 17.733 pixels, which no step of an eighth from 13.3 meets.
    EXPECT_NEAR(Make(13.3f)->PathEmSize(), 600, 0.125);
    EXPECT_EQ(New<GpFont>()->PathEmSize(), 0) << "no family";
}

TEST_F(FontWrapper, ALogicalFontAnswersItsTwin) {
    const Ref<LFont> logical = New<LFont>();
    logical->Create("DejaVu Serif", -16);
    logical->Weight = 700;
    const Ref<GpFont> twin = logical->GpFont();
    ASSERT_TRUE(twin);
    EXPECT_EQ(twin->Name(), "DejaVu Serif");
    EXPECT_EQ(twin->SIZE(), 12);
    EXPECT_TRUE(twin->Bold());
    logical->Height = -32;
    EXPECT_EQ(logical->GpFont(), twin) << "kept whatever the fields say";
    logical->Dispose();
    EXPECT_NE(logical->GpFont(), twin);
    EXPECT_EQ(logical->GpFont()->SIZE(), 24);
}

TEST_F(FontWrapper, ATwinTakesTheWatchOverFromAStandardFont) {
    const Ref<LFont> logical = New<LFont>();
    logical->Create("DejaVu Serif", -16);
    const Ref<ole::StdFont> standard = logical->StdFont();
    const Ref<GpFont> twin = logical->GpFont();
    standard->Bold(true);
    EXPECT_EQ(logical->Weight, 400) << "the twin was made of a later one";
    EXPECT_EQ(logical->GpFont(), twin);
}

TEST_F(FontWrapper, ALogicalFontOfNoFamilyAnswersAnEmptyTwin) {
    const Ref<LFont> logical = New<LFont>();
    logical->Create("No Such Font", -16);
    const Ref<GpFont> twin = logical->GpFont();
    ASSERT_TRUE(twin);
    EXPECT_EQ(twin->Handle(), nullptr);
}

}  // namespace
}  // namespace vxgui
