#include "vxgui/text/LFonts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;

TEST(LFonts, AddMakesAFontOfItsArguments) {
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<LFont> font =
        fonts->Add("Face", "Normal", -20, 3, 450, 900, 700, 1, 2, 3, 134, 5, 6, 4, 34);
    const Ref<LFont> expected = New<LFont>();
    expected->Create("Face", -20, 3, 450, 900, 700, 1, 2, 3, 134, 5, 6, 4, 34);
    EXPECT_TRUE(font->Equal(expected));
    EXPECT_EQ(fonts->Item("Normal"), font);
    const Ref<LFont> plain = fonts->Add("Face");
    expected->Create("Face");
    EXPECT_TRUE(plain->Equal(expected));
    EXPECT_EQ(fonts->Item(2), plain);
}

TEST(LFonts, AddStdFontTakesTheFontAndTheQuality) {
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<ole::StdFont> standard = New<ole::StdFont>();
    standard->Name("DejaVu Sans");
    const Ref<LFont> font = fonts->AddStdFont(standard, CLEARTYPE_QUALITY, "Focus");
    EXPECT_EQ(font->Name, "DejaVu Sans");
    EXPECT_EQ(font->Quality, CLEARTYPE_QUALITY);
    EXPECT_EQ(fonts->Item("Focus"), font);
}

TEST(LFonts, AddDefGuiFontAddsANewFontAsItIs) {
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<LFont> font = fonts->AddDefGuiFont("Normal");
    EXPECT_TRUE(font->Equal(New<LFont>()));
    EXPECT_EQ(font->hFont(), gdi::GetStockObject(gdi::DEFAULT_GUI_FONT));
    EXPECT_EQ(fonts->Item("Normal"), font);
}

TEST(LFonts, AnExistingKeyIsReplacedAtTheEnd) {
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<LFont> first = fonts->Add("one", "a"), second = fonts->Add("two", "b");
    const Ref<LFont> replacing = New<LFont>();
    fonts->AddItem(replacing, "A");  // letter case does not matter
    EXPECT_EQ(fonts->Count(), 2);
    EXPECT_EQ(fonts->Item("a"), replacing);
    EXPECT_EQ(fonts->Item(1), second);
    EXPECT_EQ(fonts->Item(2), replacing);
}

TEST(LFonts, WithoutAKeyNothingIsReplaced) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->AddItem(New<LFont>());
    fonts->AddItem(New<LFont>(), "");
    EXPECT_EQ(fonts->Count(), 2);
}

TEST(LFonts, UnknownItemsReadAsNoneAndAreRemovedInSilence) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->Add("Face", "a");
    EXPECT_EQ(fonts->Item("b"), nullptr);
    EXPECT_EQ(fonts->Item(""), nullptr);
    for (const int32_t index : {0, 2, -1}) {
        EXPECT_EQ(fonts->Item(index), nullptr);
        fonts->Remove(index);
    }
    fonts->Remove("b");
    EXPECT_EQ(fonts->Count(), 1);
}

TEST(LFonts, RemoveTakesAnItemByIndexOrKey) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->Add("one", "a");
    fonts->Add("two", "b");
    fonts->Add("three", "c");
    fonts->Remove(1);
    EXPECT_EQ(fonts->Item("a"), nullptr);
    EXPECT_EQ(fonts->Item("c")->Name, "three");
    fonts->Remove("B");
    EXPECT_EQ(fonts->Count(), 1);
    EXPECT_EQ(fonts->Item(1)->Name, "three");
}

TEST(LFonts, AreWalkedInOrderAndCleared) {
    const Ref<LFonts> fonts = New<LFonts>();
    for (const char* name : {"one", "two", "three"}) fonts->Add(name, name);
    std::vector<String> names;
    for (const Ref<LFont>& font : *fonts) names.push_back(font->Name);
    EXPECT_THAT(names, ElementsAre("one", "two", "three"));
    fonts->Clear();
    EXPECT_EQ(fonts->Count(), 0);
    EXPECT_EQ(fonts->Item("one"), nullptr);
}

}  // namespace
}  // namespace vxgui
