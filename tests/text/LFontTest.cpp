#include "vxgui/text/LFont.h"

#include <gtest/gtest.h>

#include "TextTestSupport.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

/// A font with no field at its default.
Ref<LFont> Unusual() {
    const Ref<LFont> font = New<LFont>();
    font->Create("Face", -7, 2, 3, 4, 500, 5, 6, 7, 8, 9, 10, 11, 12);
    return font;
}

TEST(LFont, ANewOneHasItsDefaults) {
    const Ref<LFont> font = New<LFont>();
    EXPECT_EQ(font->Height, 12);
    EXPECT_EQ(font->Width, 0);
    EXPECT_EQ(font->Escapement, 0);
    EXPECT_EQ(font->Orientation, 0);
    EXPECT_EQ(font->Weight, 400);
    EXPECT_EQ(font->Italic, 0);
    EXPECT_EQ(font->Underline, 0);
    EXPECT_EQ(font->StrikeOut, 0);
    EXPECT_EQ(font->CharSet, 1);
    EXPECT_EQ(font->OutPrecision, 0);
    EXPECT_EQ(font->ClipPrecision, 0);
    EXPECT_EQ(font->Quality, DEFAULT_QUALITY);
    EXPECT_EQ(font->PitchAndFamily, 0);
    EXPECT_TRUE(font->Name.empty());
    EXPECT_EQ(font->DrawingStyle, nullptr);
}

TEST(LFont, QualitiesHaveThePublishedValues) {
    EXPECT_EQ(DEFAULT_QUALITY, 0);
    EXPECT_EQ(DRAFT_QUALITY, 1);
    EXPECT_EQ(PROOF_QUALITY, 2);
    EXPECT_EQ(NONANTIALIASED_QUALITY, 3);
    EXPECT_EQ(ANTIALIASED_QUALITY, 4);
    EXPECT_EQ(CLEARTYPE_QUALITY, 5);
}

TEST(LFont, CreateSetsEveryField) {
    const Ref<LFont> font = Unusual();
    EXPECT_EQ(font->Name, String("Face"));
    EXPECT_EQ(font->Height, -7);
    EXPECT_EQ(font->Width, 2);
    EXPECT_EQ(font->Escapement, 3);
    EXPECT_EQ(font->Orientation, 4);
    EXPECT_EQ(font->Weight, 500);
    EXPECT_EQ(font->Italic, 5);
    EXPECT_EQ(font->Underline, 6);
    EXPECT_EQ(font->StrikeOut, 7);
    EXPECT_EQ(font->CharSet, 8);
    EXPECT_EQ(font->OutPrecision, 9);
    EXPECT_EQ(font->ClipPrecision, 10);
    EXPECT_EQ(font->Quality, 11);
    EXPECT_EQ(font->PitchAndFamily, 12);
}

TEST(LFont, CreateHasDefaultsOfItsOwn) {
    const Ref<LFont> font = Unusual();
    const Ref<TextStyle> style = New<TextStyle>();
    font->DrawingStyle = style;
    font->Create("Other");
    EXPECT_EQ(font->Name, String("Other"));
    EXPECT_EQ(font->Height, 12);
    EXPECT_EQ(font->Width, 0);
    EXPECT_EQ(font->Weight, 400);
    EXPECT_EQ(font->Italic, 0);
    EXPECT_EQ(font->CharSet, 0) << "a new object has 1";
    EXPECT_EQ(font->PitchAndFamily, 0);
    EXPECT_EQ(font->DrawingStyle, style) << "is left alone";
}

TEST(LFont, AHeightOfEitherSignReadsAsTheSameSize) {
    const Ref<LFont> font = New<LFont>();
    font->Height = 12;
    EXPECT_EQ(font->SIZE(), 9.0f);
    font->Height = -12;
    EXPECT_EQ(font->SIZE(), 9.0f);
    font->Height = 0;
    EXPECT_EQ(font->SIZE(), 0.0f);
}

TEST(LFont, ASizeIsNotRounded) {
    const Ref<LFont> font = New<LFont>();
    font->Height = -11;
    EXPECT_EQ(font->SIZE(), 8.25f);
    font->Height = -1;
    EXPECT_EQ(font->SIZE(), 0.75f);
}

TEST(LFont, ASizeMakesANegativeHeightAndNoWidth) {
    const Ref<LFont> font = New<LFont>();
    font->Width = 5;
    font->SIZE(9);
    EXPECT_EQ(font->Height, -12);
    EXPECT_EQ(font->Width, 0);
    font->SIZE(0);
    EXPECT_EQ(font->Height, 0);
    font->SIZE(-9);
    EXPECT_EQ(font->Height, 12);
}

TEST(LFont, ASizeRoundsHalvesToEven) {
    const Ref<LFont> font = New<LFont>();
    font->SIZE(1.875f);  // 2.5 pixels
    EXPECT_EQ(font->Height, -2);
    font->SIZE(2.625f);  // 3.5 pixels
    EXPECT_EQ(font->Height, -4);
}

TEST(LFont, ASizeThatNoHeightHoldsRaisesOverflow) {
    const Ref<LFont> font = New<LFont>();
    EXPECT_EQ(test::ErrorOf([&] { font->SIZE(3e9f); }), 6);
}

class ScreenOf144Dots : public testing::Test {
protected:
    ScreenOf144Dots() { gdi::SetScreenDpi(144); }
    ~ScreenOf144Dots() override { gdi::SetScreenDpi(96); }
};

TEST_F(ScreenOf144Dots, SizesFollowTheScreen) {
    const Ref<LFont> font = New<LFont>();
    font->SIZE(9);
    EXPECT_EQ(font->Height, -18);
    EXPECT_EQ(font->SIZE(), 9.0f);
}

TEST(LFont, EqualsItselfWhateverItsDrawingStyle) {
    const Ref<LFont> font = Unusual();
    EXPECT_TRUE(font->Equal(font));
    EXPECT_FALSE(font->Equal(nullptr));
    const Ref<LFont> other = Unusual();
    font->DrawingStyle = New<TextStyle>();
    other->DrawingStyle = New<TextStyle>();
    other->DrawingStyle->TextColor = 5;
    EXPECT_TRUE(font->Equal(other));
}

TEST(LFont, EqualComparesEveryField) {
    using Change = void (*)(LFont&);
    const Change changes[] = {
        [](LFont& f) { f.Name = "face"; },  // the case counts
        [](LFont& f) { ++f.Height; },        [](LFont& f) { ++f.Width; },
        [](LFont& f) { ++f.Escapement; },    [](LFont& f) { ++f.Orientation; },
        [](LFont& f) { ++f.Weight; },        [](LFont& f) { ++f.Italic; },
        [](LFont& f) { ++f.Underline; },     [](LFont& f) { ++f.StrikeOut; },
        [](LFont& f) { ++f.CharSet; },       [](LFont& f) { ++f.OutPrecision; },
        [](LFont& f) { ++f.ClipPrecision; }, [](LFont& f) { ++f.Quality; },
        [](LFont& f) { ++f.PitchAndFamily; }};
    for (const Change change : changes) {
        const Ref<LFont> other = Unusual();
        change(*other);
        EXPECT_FALSE(Unusual()->Equal(other));
    }
}

TEST(LFont, ACloneHasTheFieldsButNoDrawingStyleAndNoHandle) {
    const Ref<LFont> font = Unusual();
    font->DrawingStyle = New<TextStyle>();
    const gdi::HFONT handle = font->hFont();
    const Ref<LFont> clone = font->Clone();
    EXPECT_TRUE(clone->Equal(font));
    EXPECT_EQ(clone->DrawingStyle, nullptr);
    EXPECT_NE(clone->hFont(), handle);
}

}  // namespace
}  // namespace vxgui
