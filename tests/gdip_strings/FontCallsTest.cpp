#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/FlatCalls.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpFontCollection.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {
namespace {

using Lines = std::vector<std::string>;

/// The flat calls that the wrappers of fonts, families and collections make.
class FontCalls : public testing::Test {
protected:
    Ref<GpFont> Made(float size = 12, gdiplus::Unit unit = gdiplus::UnitPoint) {
        Ref<GpFont> font = New<GpFont>();
        EXPECT_TRUE(font->Create("DejaVu Sans", size, 0, unit));
        calls_.Take();
        return font;
    }
    static Lines After(const Lines& lines, const Lines& more) {
        Lines all = lines;
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }

    // What a font does with a handle that it adopts.
    const Lines kAdopted = {"GdipGetFontStyle(*, *)",     "GdipGetFontUnit(*, *)",
                            "GdipGetFontSize(*, *)",      "GdipGetFamily(*, *)",
                            "GdipGetFamilyName(*, *, 0)", "GdipDeleteFontFamily(*)"};
    test::GdiplusSession session_;
    test::FlatCalls calls_;
};

TEST_F(FontCalls, CreateGoesThroughAFamilyAndReadsTheFontBack) {
    const Ref<GpFont> font = New<GpFont>();
    calls_.Take();
    ASSERT_TRUE(font->Create("DejaVu Sans", 9.5f));
    Lines expected = After(
        {"GdipCreateFontFamilyFromName(\"DejaVu Sans\", 0, *)", "GdipCreateFont(*, 9.5, 0, 3, *)"},
        kAdopted);
    expected.push_back("GdipDeleteFontFamily(*)");  // the temporary one
    EXPECT_EQ(calls_.Take(), expected);
}

TEST_F(FontCalls, AFamilyThatIsMissingEndsCreate) {
    const Ref<GpFont> font = New<GpFont>();
    calls_.Take();
    EXPECT_FALSE(font->Create("No Such Font", 9));
    EXPECT_EQ(calls_.Take(), Lines{"GdipCreateFontFamilyFromName(\"No Such Font\", 0, *)"});
}

TEST_F(FontCalls, TheOldFontEndsOnlyWhenTheNewOneIsThere) {
    const Ref<GpFont> font = Made();
    font->CreateFromFontFamily(nullptr, 9);
    EXPECT_EQ(calls_.Take(), Lines{"GdipCreateFont(0, 9, 0, 3, *)"});
    const Ref<GpFontFamily> family = font->FontFamily();
    calls_.Take();
    EXPECT_TRUE(font->CreateFromFontFamily(family->Handle(), 9, 2, gdiplus::UnitPixel));
    EXPECT_EQ(calls_.Take(),
              After({"GdipCreateFont(*, 9, 2, 2, *)", "GdipDeleteFont(*)"}, kAdopted));
}

TEST_F(FontCalls, SettingWhatItIsMakesNoCall) {
    const Ref<GpFont> font = Made();
    font->Bold(false);
    font->Italic(false);
    font->Underline(false);
    font->StrikeOut(false);
    font->Name("DejaVu Sans");
    font->SIZE(12);
    font->Style(0);
    font->Unit(gdiplus::UnitPoint);
    EXPECT_EQ(calls_.Take(), Lines{});
}

TEST_F(FontCalls, ANameIsComparedExactly) {
    const Ref<GpFont> font = Made();
    font->Name("DEJAVU SANS");
    EXPECT_EQ(calls_.TakeOf({"GdipCreateFont"}), Lines{"GdipCreateFont(*, 12, 0, 3, *)"});
    EXPECT_EQ(font->Name(), "DejaVu Sans");
}

TEST_F(FontCalls, EachSetterChangesItsOneArgument) {
    const Ref<GpFont> font = Made();
    font->Italic(true);
    font->SIZE(20);
    font->Style(5);
    font->Unit(gdiplus::UnitPixel);
    EXPECT_EQ(calls_.TakeOf({"GdipCreateFont"}),
              (Lines{"GdipCreateFont(*, 12, 2, 3, *)", "GdipCreateFont(*, 20, 2, 3, *)",
                     "GdipCreateFont(*, 20, 5, 3, *)", "GdipCreateFont(*, 20, 5, 2, *)"}));
}

TEST_F(FontCalls, ALogFontIsTakenOnAContextOfTheCallersOrOfItsOwn) {
    gdi::LOGFONTA record{-21, 0, 0, 0, 700, 0, 0, 0, 0, 0, 0, 0, 0, "DejaVu Sans"};
    const Ref<GpFont> font = New<GpFont>();
    const gdi::HDC dc = gdi::CreateCompatibleDC(nullptr);
    for (const gdi::HDC given : {gdi::HDC{}, dc}) {
        calls_.Take();
        EXPECT_TRUE(font->FromLogFontA(&record, given));
        EXPECT_EQ(calls_.Take().front(), "GdipCreateFontFromLogfontA(*, [-21 700 DejaVu Sans], *)");
    }
    gdi::DeleteDC(dc);
}

TEST_F(FontCalls, SetWeightReadsARecordAndMakesAFontOfIt) {
    const Ref<GpFont> font = Made();
    ASSERT_TRUE(font->SetWeight(650));
    Lines expected =
        After({"GdipCreateFromHDC(*, *)", "GdipGetLogFontA(*, *, *)",
               "GdipCreateFontFromLogfontA(*, [-16 650 DejaVu Sans], *)", "GdipDeleteFont(*)"},
              kAdopted);
    expected.push_back("GdipDeleteGraphics(*)");
    EXPECT_EQ(calls_.Take(), expected);
}

TEST_F(FontCalls, SetWeightEndsItsGraphicsWhateverFails) {
    const Ref<GpFont> font = Made();
    for (const char* name : {"GdipGetLogFontA", "GdipCreateFontFromLogfontA"}) {
        calls_.Answer(name, gdiplus::GenericError);
        EXPECT_FALSE(font->SetWeight(650));
        EXPECT_EQ(calls_.Take().back(), "GdipDeleteGraphics(*)");
        calls_.AnswerNothing();
    }
    calls_.Answer("GdipCreateFromHDC", gdiplus::OutOfMemory);
    EXPECT_FALSE(font->SetWeight(650));
    EXPECT_EQ(font->Status, gdiplus::OutOfMemory);
    EXPECT_EQ(calls_.Take(), Lines{"GdipCreateFromHDC(*, *)"});
}

TEST_F(FontCalls, SetWeightWithGraphicsLendsItsContext) {
    const Ref<GpFont> font = Made();
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    const gdi::HDC dc = gdi::CreateCompatibleDC(nullptr);
    graphics->FromHDC(dc);
    calls_.Take();
    ASSERT_TRUE(font->SetWeightWithGraphics(650, graphics));
    Lines expected =
        After({"GdipGetDC(*, *)", "GdipGetLogFontA(*, *, *)",
               "GdipCreateFontFromLogfontA(*, [-16 650 DejaVu Sans], *)", "GdipDeleteFont(*)"},
              kAdopted);
    expected.push_back("GdipReleaseDC(*, *)");
    EXPECT_EQ(calls_.Take(), expected);
    graphics->Dispose();
    gdi::DeleteDC(dc);
}

TEST_F(FontCalls, HeightsAreThoseOfTheGraphicsOrOfAResolution) {
    const Ref<GpFont> font = Made();
    const Ref<GpGraphics> graphics = New<GpGraphics>();
    graphics->FromHDC(gdi::GetDC(nullptr));
    calls_.Take();
    font->Height(graphics->Handle());
    font->Height(nullptr);
    font->HeightDPI(0);
    font->HeightDPI(120);
    font->HeightDPI(-1);
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipGetFontHeight(*, *, *)", "GdipGetFontHeightGivenDPI(*, 96, *)",
                     "GdipGetFontHeightGivenDPI(*, 96, *)", "GdipGetFontHeightGivenDPI(*, 120, *)",
                     "GdipGetFontHeightGivenDPI(*, -1, *)"}));
    calls_.Answer("GdipGetFontHeight", gdiplus::GenericError);
    EXPECT_EQ(font->Height(graphics->Handle()), -1);
    EXPECT_EQ(font->Status, gdiplus::GenericError);
}

TEST_F(FontCalls, APointSizeIsTheFieldInPointsAndTheHeightElsewhere) {
    const Ref<GpFont> points = Made(), pixels = Made(16, gdiplus::UnitPixel);
    EXPECT_EQ(points->PointSize(), 12);
    EXPECT_EQ(calls_.Take(), Lines{});
    EXPECT_EQ(pixels->PointSize(), pixels->HeightDPI(96) * 0.75f);
    calls_.Answer("GdipGetFontHeightGivenDPI", gdiplus::GenericError);
    EXPECT_EQ(pixels->PointSize(), 0.75f) << "a failure's -1 loses its sign";
}

TEST_F(FontCalls, ThePathEmIsSearchedInEighthsFromTheSize) {
    const Ref<GpFont> font = Made();  // 12 points are 16 pixels
    EXPECT_EQ(font->PathEmSize(), 16);
    const Lines lines = calls_.Take();
    const Lines start(lines.begin(), lines.begin() + 6);
    EXPECT_EQ(start, (Lines{"GdipCreateFontFamilyFromName(\"DejaVu Sans\", 0, *)",
                            "GdipGetFontHeightGivenDPI(*, 96, *)", "GdipCreateFont(*, 12, 0, 0, *)",
                            "GdipGetFontHeightGivenDPI(*, 96, *)", "GdipDeleteFont(*)",
                            "GdipCreateFont(*, 12.125, 0, 0, *)"}));
    const Lines end(lines.end() - 4, lines.end());
    EXPECT_EQ(end, (Lines{"GdipCreateFont(*, 16, 0, 0, *)", "GdipGetFontHeightGivenDPI(*, 96, *)",
                          "GdipDeleteFont(*)", "GdipDeleteFontFamily(*)"}));
    EXPECT_EQ(lines.size(), 2 + 33 * 3 + 1u);
    font->PathEmSize();
    EXPECT_EQ(calls_.Take(), Lines{}) << "it is known now";
    font->SIZE(24);
    EXPECT_EQ(font->PathEmSize(), 32) << "and forgotten with its font";
}

TEST_F(FontCalls, ThePathEmSearchEndsWhereItsBoundsAre) {
    EXPECT_EQ(Made(0.0625f)->PathEmSize(), 0.1875f) << "a quarter or less";
    EXPECT_EQ(calls_.TakeOf({"GdipCreateFont"}), Lines{"GdipCreateFont(*, 0.0625, 0, 0, *)"});
    EXPECT_EQ(Made(700)->PathEmSize(), 700.125f) << "600 or more";
    EXPECT_EQ(Made(599.875f)->PathEmSize(), 600);
}

TEST_F(FontCalls, AFailureEndsThePathEmSearchWithWhatItHasReached) {
    const Lines ends = {"GdipDeleteFont", "GdipDeleteFontFamily"};
    Ref<GpFont> font = Made();
    calls_.Answer("GdipCreateFontFamilyFromName", gdiplus::FontFamilyNotFound);
    EXPECT_EQ(font->PathEmSize(), 0);
    EXPECT_EQ(calls_.TakeOf(ends), Lines{});
    calls_.AnswerNothing();
    calls_.Answer("GdipGetFontHeightGivenDPI", gdiplus::GenericError);
    EXPECT_EQ(font->PathEmSize(), 0);
    EXPECT_EQ(calls_.TakeOf(ends), Lines{"GdipDeleteFontFamily(*)"});
    calls_.AnswerNothing();
    calls_.Answer("GdipCreateFont", gdiplus::GenericError);
    font->Status = gdiplus::Ok;
    EXPECT_EQ(font->PathEmSize(), 12) << "the size itself";
    EXPECT_EQ(calls_.TakeOf(ends), Lines{"GdipDeleteFontFamily(*)"});
    EXPECT_EQ(font->Status, gdiplus::GenericError) << "kept as any other";
}

TEST_F(FontCalls, AFamilyEndsBeforeTheNextIsLookedFor) {
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    calls_.Take();
    family->CreateFontFamily("DejaVu Sans");
    family->CreateGenericSerifFamily();
    family->CreateGenericSansSerifFamily();
    family->CreateGenericMonospaceFamily();
    family->CreateFontFamily("No Such Font");
    EXPECT_EQ(
        calls_.Take(),
        (Lines{"GdipCreateFontFamilyFromName(\"DejaVu Sans\", 0, *)", "GdipDeleteFontFamily(*)",
               "GdipGetGenericFontFamilySerif(*)", "GdipDeleteFontFamily(*)",
               "GdipGetGenericFontFamilySansSerif(*)", "GdipDeleteFontFamily(*)",
               "GdipGetGenericFontFamilyMonospace(*)", "GdipDeleteFontFamily(*)",
               "GdipCreateFontFamilyFromName(\"No Such Font\", 0, *)"}));
}

TEST_F(FontCalls, AFamilysMeasuresAreThoseOfItsStyle) {
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    family->CreateFontFamily("DejaVu Sans");
    calls_.Take();
    family->EmHeight();
    family->Ascent();
    family->Descent();
    family->LineSpacing();
    family->GetEmHeight(1);
    family->GetCellAscent(2);
    family->GetCellDescent(3);
    family->GetLineSpacing(1);
    family->IsStyleAvailable(2);
    EXPECT_EQ(calls_.Take(), (Lines{"GdipGetEmHeight(*, 0, *)", "GdipGetCellAscent(*, 0, *)",
                                    "GdipGetCellDescent(*, 0, *)", "GdipGetLineSpacing(*, 0, *)",
                                    "GdipGetEmHeight(*, 1, *)", "GdipGetCellAscent(*, 2, *)",
                                    "GdipGetCellDescent(*, 3, *)", "GdipGetLineSpacing(*, 1, *)",
                                    "GdipIsStyleAvailable(*, 2, *)"}));
}

gdiplus::GpStatus NameOf32Units(const gdiplus::GpFontFamily*, gdiplus::WCHAR* name,
                                gdiplus::LANGID) {
    std::fill_n(name, 32, u'x');
    return gdiplus::Ok;
}

TEST_F(FontCalls, AFamilysNameMayFillItsBuffer) {
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    using Target = decltype(&NameOf32Units);
    auto* place = decltype(flat::GdipGetFamilyName)::Place();
    static_cast<std::atomic<Target>*>(place)->store(&NameOf32Units);
    EXPECT_EQ(family->GetFamilyName(), std::string(32, 'x'));
}

TEST_F(FontCalls, AHandedOutFamilyIsDeletedByEveryDispose) {
    gdiplus::GpFontFamily* handle = nullptr;
    gdiplus::GdipCreateFontFamilyFromName(u"DejaVu Sans", nullptr, &handle);
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    calls_.Take();
    family->SetHandle(handle, false);
    family->Dispose();
    family->Dispose();
    EXPECT_EQ(calls_.Take(), Lines{"GdipDeleteFontFamily(*)"}) << "whatever it was told";
}

TEST_F(FontCalls, InstalledFamiliesAreCountedAndListed) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    calls_.Take();
    ASSERT_TRUE(fonts->GetInstalledFontCollection());
    const int32_t count = fonts->GetFamilyCount();
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipNewInstalledFontCollection(*)", "GdipGetFontCollectionFamilyCount(*, *)",
                     "GdipGetFontCollectionFamilyList(*, " + std::to_string(count) + ", *, *)"}));
    fonts->Dispose();
    EXPECT_EQ(calls_.Take(), Lines(static_cast<size_t>(count), "GdipDeleteFontFamily(*)"));
    calls_.Answer("GdipGetFontCollectionFamilyList", gdiplus::Ok);
    EXPECT_FALSE(fonts->GetInstalledFontCollection()) << "none was found";
    EXPECT_EQ(fonts->Status, gdiplus::Ok);
    calls_.AnswerNothing();
    calls_.Answer("GdipGetFontCollectionFamilyCount", gdiplus::GenericError);
    calls_.Take();
    EXPECT_FALSE(fonts->GetInstalledFontCollection());
    EXPECT_EQ(fonts->Status, gdiplus::GenericError);
    EXPECT_EQ(fonts->GetFamilyCount(), 0);
    EXPECT_EQ(calls_.TakeOf({"GdipGetFontCollectionFamilyList"}), Lines{});
}

TEST_F(FontCalls, APrivateCollectionIsTheInstalledOne) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    calls_.Take();
    EXPECT_FALSE(fonts->PrivateAddFontFile("a.ttf"));
    EXPECT_FALSE(fonts->PrivateAddMemoryFont("", 1));
    EXPECT_EQ(calls_.Take(), Lines{}) << "before it is private";
    ASSERT_TRUE(fonts->NewPrivateFontCollection());
    fonts->PrivateAddFontFile("a.ttf");
    fonts->PrivateAddMemoryFont("x", 1);
    fonts->Dispose();
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipNewInstalledFontCollection(*)", "GdipPrivateAddFontFile(*, \"a.ttf\")",
                     "GdipPrivateAddMemoryFont(*, *, 1)", "GdipDeletePrivateFontCollection(*)"}));
}

TEST_F(FontCalls, ACollectionStaysPrivateWhenItIsDisposed) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    fonts->NewPrivateFontCollection();
    fonts->Dispose();
    calls_.Take();
    EXPECT_FALSE(fonts->PrivateAddFontFile("a.ttf"));
    EXPECT_EQ(calls_.Take(), Lines{"GdipPrivateAddFontFile(0, \"a.ttf\")"});
    EXPECT_EQ(fonts->Status, gdiplus::InvalidParameter);
}

TEST_F(FontCalls, AFailedNewCollectionKeepsTheOldOne) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    ASSERT_TRUE(fonts->GetInstalledFontCollection());
    gdiplus::GpFontCollection* const handle = fonts->Handle();
    const int32_t count = fonts->GetFamilyCount();
    calls_.Answer("GdipNewInstalledFontCollection", gdiplus::OutOfMemory);
    EXPECT_FALSE(fonts->NewPrivateFontCollection());
    EXPECT_FALSE(fonts->GetInstalledFontCollection());
    EXPECT_EQ(fonts->Status, gdiplus::OutOfMemory);
    EXPECT_EQ(fonts->Handle(), handle);
    EXPECT_EQ(fonts->GetFamilyCount(), count);
    EXPECT_FALSE(fonts->PrivateAddFontFile("a.ttf"));
    EXPECT_EQ(fonts->Status, gdiplus::OutOfMemory) << "it isn't private";
}

}  // namespace
}  // namespace vxgui
