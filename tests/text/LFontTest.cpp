#include "vxgui/text/LFont.h"

#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

constexpr int32_t kOverflow = 6;

Ref<LFont> FilledFont() {
    Ref<LFont> font = New<LFont>();
    font->Create("Face", -20, 3, 450, 900, 700, 1, 2, 3, 134, 5, 6, 4, 34);
    return font;
}

TEST(LFont, ANewOneHasTheDocumentedValues) {
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
    EXPECT_EQ(font->Name, "");
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

TEST(LFont, CreateSetsEveryFieldInItsOrder) {
    const Ref<LFont> font = FilledFont();
    EXPECT_EQ(font->Name, "Face");
    EXPECT_EQ(font->Height, -20);
    EXPECT_EQ(font->Width, 3);
    EXPECT_EQ(font->Escapement, 450);
    EXPECT_EQ(font->Orientation, 900);
    EXPECT_EQ(font->Weight, 700);
    EXPECT_EQ(font->Italic, 1);
    EXPECT_EQ(font->Underline, 2);
    EXPECT_EQ(font->StrikeOut, 3);
    EXPECT_EQ(font->CharSet, 134);
    EXPECT_EQ(font->OutPrecision, 5);
    EXPECT_EQ(font->ClipPrecision, 6);
    EXPECT_EQ(font->Quality, 4);
    EXPECT_EQ(font->PitchAndFamily, 34);
}

TEST(LFont, CreateHasDefaultsOfItsOwnAndLeavesTheDrawingStyle) {
    const Ref<LFont> font = FilledFont();
    const Ref<TextStyle> style = New<TextStyle>();
    font->DrawingStyle = style;
    font->Create("Other");
    const Ref<LFont> expected = New<LFont>();
    expected->Name = "Other";
    expected->CharSet = 0;  // 1 in a new object
    EXPECT_TRUE(font->Equal(expected));
    EXPECT_EQ(font->DrawingStyle, style);
}

TEST(LFontEqual, IsTrueForItselfAndFalseForNone) {
    const Ref<LFont> font = FilledFont();
    EXPECT_TRUE(font->Equal(font));
    EXPECT_FALSE(font->Equal(nullptr));
}

TEST(LFontEqual, DoesNotCompareTheDrawingStyle) {
    const Ref<LFont> a = FilledFont(), b = FilledFont();
    a->DrawingStyle = New<TextStyle>();
    EXPECT_TRUE(a->Equal(b));
}

TEST(LFontEqual, ADifferenceInAnyOtherFieldCounts) {
    const std::function<void(LFont&)> changes[] = {
        [](LFont& f) { f.Name = "face"; },  // letter case counts
        [](LFont& f) { ++f.Height; },         [](LFont& f) { ++f.Width; },
        [](LFont& f) { ++f.Escapement; },     [](LFont& f) { ++f.Orientation; },
        [](LFont& f) { ++f.Weight; },         [](LFont& f) { ++f.Italic; },
        [](LFont& f) { ++f.Underline; },      [](LFont& f) { ++f.StrikeOut; },
        [](LFont& f) { ++f.CharSet; },        [](LFont& f) { ++f.OutPrecision; },
        [](LFont& f) { ++f.ClipPrecision; },  [](LFont& f) { ++f.Quality; },
        [](LFont& f) { ++f.PitchAndFamily; },
    };
    const Ref<LFont> font = FilledFont();
    for (size_t i = 0; i < std::size(changes); ++i) {
        const Ref<LFont> other = FilledFont();
        changes[i](*other);
        EXPECT_FALSE(font->Equal(other)) << i;
        EXPECT_FALSE(other->Equal(font)) << i;
    }
}

TEST(LFontClone, CopiesTheFieldsButNotTheDrawingStyle) {
    const Ref<LFont> font = FilledFont();
    font->DrawingStyle = New<TextStyle>();
    const Ref<LFont> copy = font->Clone();
    EXPECT_FALSE(copy == font);
    EXPECT_TRUE(copy->Equal(font));
    EXPECT_EQ(copy->DrawingStyle, nullptr);
}

/// Sets the screen's resolution for the length of a test.
class LFontSize : public ::testing::Test {
protected:
    ~LFontSize() override { gdi::SetScreenDpi(96); }

    Ref<LFont> font_ = New<LFont>();
};

TEST_F(LFontSize, IsTheHeightInPointsWithoutRounding) {
    const struct {
        int32_t height;
        float points;
    } cases[] = {{-12, 9}, {12, 9}, {-11, 8.25f}, {-1, 0.75f}, {0, 0}, {-100, 75}};
    for (const auto& c : cases) {
        font_->Height = c.height;
        EXPECT_EQ(font_->SIZE(), c.points) << c.height;
    }
}

TEST_F(LFontSize, SettingItGivesACharacterHeightRoundedHalfToEven) {
    const struct {
        float points;
        int32_t height;
    } cases[] = {{9, -12},     {8.25f, -11}, {0.375f, 0},  // half a pixel
                 {1.125f, -2}, {1.875f, -2}, {2.625f, -4}, {0, 0}, {-9, 12}};
    for (const auto& c : cases) {
        font_->Width = 7;
        font_->SIZE(c.points);
        EXPECT_EQ(font_->Height, c.height) << c.points;
        EXPECT_EQ(font_->Width, 0);
    }
}

TEST_F(LFontSize, GoesByTheResolutionOfTheMoment) {
    font_->SIZE(9);
    gdi::SetScreenDpi(144);
    EXPECT_EQ(font_->SIZE(), 6);
    font_->SIZE(9);
    EXPECT_EQ(font_->Height, -18);
}

TEST_F(LFontSize, BeyondAnyHeightRaisesTheOverflowError) {
    EXPECT_EQ(test::RaisedBy([&] { font_->SIZE(1e10f); }), kOverflow);
}

}  // namespace
}  // namespace vxgui
