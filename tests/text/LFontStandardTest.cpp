#include <gtest/gtest.h>

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

Ref<LFont> Named() {
    const Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Serif", -16, 0, 0, 0, 400, 1, 1, 1, 134);
    return font;
}

TEST(StandardFont, HasTheFontsProperties) {
    const Ref<ole::StdFont> standard = Named()->StdFont();
    EXPECT_EQ(standard->Name(), String("DejaVu Serif"));
    EXPECT_EQ(standard->Charset(), 134);
    EXPECT_EQ(standard->Size(), 12.0);
    EXPECT_FALSE(standard->Bold());
    EXPECT_TRUE(standard->Italic());
    EXPECT_TRUE(standard->Underline());
    EXPECT_TRUE(standard->Strikethrough());
    EXPECT_EQ(standard->Weight(), 400);
}

TEST(StandardFont, IsBoldFrom600Up) {
    const Ref<LFont> font = Named();
    font->Weight = 599;
    EXPECT_EQ(font->StdFont()->Weight(), 599);
    font->Weight = 600;
    EXPECT_TRUE(font->StdFont()->Bold());
    EXPECT_EQ(font->StdFont()->Weight(), 600);
    // A weight that the object refuses leaves what bold made of it.
    font->Weight = 40000;
    EXPECT_EQ(font->StdFont()->Weight(), 700);
    font->Weight = -40000;
    EXPECT_EQ(font->StdFont()->Weight(), 400);
    EXPECT_FALSE(font->StdFont()->Bold());
}

TEST(StandardFont, SkipsAPropertyThatIsRefused) {
    const Ref<LFont> font = Named();
    font->Height = INT32_MIN;  // its size in points wraps below zero or not, never into an error
    font->Weight = 100000;
    const Ref<ole::StdFont> standard = font->StdFont();
    EXPECT_TRUE(standard->Strikethrough()) << "what follows is still set";
}

TEST(StandardFont, IsAnotherObjectEachTime) {
    const Ref<LFont> font = Named();
    const Ref<ole::StdFont> first = font->StdFont();
    EXPECT_FALSE(first == font->StdFont());
}

struct FollowRow {
    const char* name;
    void (*change)(ole::StdFont&);
    bool (*followed)(const LFont&);
};
class FollowedProperty : public testing::TestWithParam<FollowRow> {};
INSTANTIATE_TEST_SUITE_P(
    , FollowedProperty,
    testing::Values(FollowRow{"Name", [](ole::StdFont& s) { s.Name("Other"); },
                              [](const LFont& f) { return f.Name == String("Other"); }},
                    FollowRow{"CharSet", [](ole::StdFont& s) { s.Charset(128); },
                              [](const LFont& f) { return f.CharSet == 128; }},
                    FollowRow{"Size", [](ole::StdFont& s) { s.Size(9); },
                              [](const LFont& f) { return f.Height == -12; }},
                    FollowRow{"Bold", [](ole::StdFont& s) { s.Bold(true); },
                              [](const LFont& f) { return f.Weight == 600; }},
                    FollowRow{"Italic", [](ole::StdFont& s) { s.Italic(false); },
                              [](const LFont& f) { return f.Italic == 0; }},
                    FollowRow{"Underline", [](ole::StdFont& s) { s.Underline(false); },
                              [](const LFont& f) { return f.Underline == 0; }},
                    FollowRow{"Strikethrough", [](ole::StdFont& s) { s.Strikethrough(false); },
                              [](const LFont& f) { return f.StrikeOut == 0; }},
                    FollowRow{"Weight", [](ole::StdFont& s) { s.Weight(300); },
                              [](const LFont& f) { return f.Weight == 300; }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_P(FollowedProperty, IsTakenOverAndDropsTheHandle) {
    const Ref<LFont> font = Named();
    const Ref<ole::StdFont> standard = font->StdFont();
    const gdi::HFONT handle = font->hFont();
    GetParam().change(*standard);
    EXPECT_TRUE(GetParam().followed(*font));
    EXPECT_EQ(gdi::GetObjectA(handle, 0, nullptr), 0);
}

TEST(FollowedFont, FlagsBecomeOneAndBoldEndsAtRegular) {
    const Ref<LFont> font = New<LFont>();
    font->Weight = 700;
    const Ref<ole::StdFont> standard = font->StdFont();
    standard->Italic(true);
    standard->Underline(true);
    standard->Strikethrough(true);
    standard->Bold(false);
    EXPECT_EQ(font->Italic, 1);
    EXPECT_EQ(font->Underline, 1);
    EXPECT_EQ(font->StrikeOut, 1);
    EXPECT_EQ(font->Weight, 400);
}

TEST(FollowedFont, OnlyTheLatestIsFollowed) {
    const Ref<LFont> font = Named();
    const Ref<ole::StdFont> first = font->StdFont();
    const Ref<ole::StdFont> second = font->StdFont();
    first->Name("First");
    EXPECT_EQ(font->Name, String("DejaVu Serif"));
    second->Name("Second");
    EXPECT_EQ(font->Name, String("Second"));
}

TEST(FollowedFont, OutlivesTheFontThatFollowed) {
    Ref<LFont> font = Named();
    const Ref<ole::StdFont> standard = font->StdFont();
    font = nullptr;
    standard->Name("Alone");
    EXPECT_EQ(standard->Name(), String("Alone"));
}

TEST(FontFromStandardFont, TakesItsHandlesRecordAndTheQuality) {
    const Ref<ole::StdFont> standard = New<ole::StdFont>();
    standard->Name("DejaVu Serif");
    standard->Size(9);
    standard->Bold(true);
    standard->Italic(true);
    standard->Charset(134);
    const Ref<LFont> font = New<LFont>();
    font->FromStdFont(standard, ANTIALIASED_QUALITY);
    EXPECT_EQ(font->Name, String("DejaVu Serif"));
    EXPECT_EQ(font->Height, -12);
    EXPECT_EQ(font->Weight, 700);
    EXPECT_EQ(font->Italic, 1);
    EXPECT_EQ(font->CharSet, 134);
    EXPECT_EQ(font->Quality, ANTIALIASED_QUALITY);
}

TEST(FontFromStandardFont, NoneIsTheUserInterfaceFont) {
    const Ref<LFont> font = Named();
    font->FromStdFont(nullptr, NONANTIALIASED_QUALITY);
    EXPECT_EQ(font->Name, String("MS Shell Dlg"));
    EXPECT_EQ(font->Quality, NONANTIALIASED_QUALITY);
}

TEST(FontFromStandardFont, GoesThereAndBack) {
    const Ref<LFont> font = Named();
    const Ref<LFont> back = New<LFont>();
    back->FromStdFont(font->StdFont());
    EXPECT_TRUE(back->Equal(font));
}

}  // namespace
}  // namespace vxgui
