#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/text/TextSupport.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

constexpr int32_t kObjectNotSet = 91;

/// The font that the lines of a section make of one whose every field had another value.
Ref<LFont> Read(const String& lines) {
    Ref<LFont> font = New<LFont>();
    font->Create("Old", 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99, 99);
    font->DrawingStyle = New<TextStyle>();
    font->FromIniFile(test::SectionOf(lines), "s");
    return font;
}

TEST(LFontFromIniFile, AnEmptySectionGivesTheDefaults) {
    const Ref<LFont> font = Read("");
    EXPECT_TRUE(font->Equal(New<LFont>()));  // character set 1, as in a new object
    EXPECT_EQ(font->DrawingStyle, nullptr);
}

TEST(LFontFromIniFile, EachKeyHasItsField) {
    const Ref<LFont> font = Read(
        "FontName=Face\nFontHeight=-20\nFontWidth=3\nFontAngle=450\nFontWeight=700\nItalics=1\n"
        "Underline=2\nStrikeOut=3\nCharSet=134\nOutPrecision=5\nClipPrecision=6\nQuality=2\n"
        "PitchAndFamily=34\n");
    const Ref<LFont> expected = New<LFont>();
    expected->Create("Face", -20, 3, 450, 450, 700, 1, 2, 3, 134, 5, 6, 2, 34);
    EXPECT_TRUE(font->Equal(expected));
}

TEST(LFontFromIniFile, TheKeysOfThePropertyBagMeanNothing) {
    const Ref<LFont> font = Read("Name=x\nHeight=5\nWidth=5\nEscapement=5\nWeight=5\nItalic=5\n");
    EXPECT_TRUE(font->Equal(New<LFont>()));
}

TEST(LFontFromIniFile, ASizeTakesTheHeightsPlace) {
    const Ref<LFont> font = Read("size=9\nFontHeight=30\nFontWidth=5\n");
    EXPECT_EQ(font->Height, -12);
    EXPECT_EQ(font->Width, 0);
    EXPECT_EQ(Read("size=8.25\n")->Height, -11);
}

TEST(LFontFromIniFile, ASizeOfNoughtDoesNot) {
    const Ref<LFont> font = Read("size=0\nFontHeight=30\nFontWidth=5\n");
    EXPECT_EQ(font->Height, 30);
    EXPECT_EQ(font->Width, 5);
}

TEST(LFontFromIniFile, AntiAliasWinsOverTheQuality) {
    EXPECT_EQ(Read("AntiAlias=1\nQuality=5\n")->Quality, 4);
    EXPECT_EQ(Read("AntiAlias=-1\n")->Quality, 4);
    EXPECT_EQ(Read("AntiAlias=0\nQuality=5\n")->Quality, 5);
}

TEST(LFontFromIniFile, ByteFieldsTakeTheLowEightBits) {
    EXPECT_EQ(Read("Italics=257\n")->Italic, 1);
    EXPECT_EQ(Read("CharSet=-1\n")->CharSet, 255);
    EXPECT_EQ(Read("Quality=260\n")->Quality, 4);
    EXPECT_EQ(Read("Underline=256\n")->Underline, 0);
}

TEST(LFontFromIniFile, ADrawingStyleIsReadFromTheSameSection) {
    const Ref<LFont> font = Read("DrawingStyle=1\nTextColor=1,2,3\n");
    ASSERT_NE(font->DrawingStyle, nullptr);
    EXPECT_EQ(font->DrawingStyle->TextColor, 0x030201);
    EXPECT_EQ(font->DrawingStyle->TextStyle, 1);
}

TEST(LFontFromIniFile, ADrawingStyleBelowOneIsNone) {
    for (const char* line : {"DrawingStyle=0", "DrawingStyle=-1", "DrawingStyle=x"}) {
        EXPECT_EQ(Read(line)->DrawingStyle, nullptr) << line;
    }
}

TEST(LFontFromIniFile, AMissingSectionIsAnEmptyOne) {
    const Ref<LFont> font = New<LFont>();
    font->Weight = 1;
    font->FromIniFile(test::SectionOf("FontWeight=700"), "other");
    EXPECT_EQ(font->Weight, 400);
}

TEST(LFontFromIniFile, TheSectionMayBeNamedByTheFontItself) {
    const Ref<LFont> font = New<LFont>();
    font->Name = "s";
    font->FromIniFile(test::SectionOf("FontName=Face\nFontWeight=700"), font->Name);
    EXPECT_EQ(font->Name, "Face");
    EXPECT_EQ(font->Weight, 700);
}

TEST(LFontFromIniFile, ThenTheDrawingStyleComesFromThatSectionToo) {
    const Ref<LFont> font = New<LFont>();
    font->Name = "s";
    font->FromIniFile(test::SectionOf("FontName=Face\nDrawingStyle=1\nTextColor=1,2,3"),
                      font->Name);
    ASSERT_NE(font->DrawingStyle, nullptr);
    EXPECT_EQ(font->DrawingStyle->TextColor, 0x030201);
}

TEST(LFontFromIniFile, NoFileRaisesObjectNotSet) {
    EXPECT_EQ(test::RaisedBy([] { New<LFont>()->FromIniFile(nullptr, "s"); }), kObjectNotSet);
}

}  // namespace
}  // namespace vxgui
