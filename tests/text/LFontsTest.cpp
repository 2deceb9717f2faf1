#include "vxgui/text/LFonts.h"

#include <gtest/gtest.h>

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

Ref<LFont> FontOf(int32_t height) {
    const Ref<LFont> font = New<LFont>();
    font->Height = height;
    return font;
}

TEST(LFonts, AddMakesAFontOfItsArguments) {
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<LFont> font = fonts->Add("Face", "key", -7, 2, 3, 4, 500, 5, 6, 7, 8, 9, 10, 11, 12);
    const Ref<LFont> expected = New<LFont>();
    expected->Create("Face", -7, 2, 3, 4, 500, 5, 6, 7, 8, 9, 10, 11, 12);
    EXPECT_TRUE(font->Equal(expected));
    EXPECT_EQ(fonts->Item("key"), font);
    const Ref<LFont> plain = fonts->Add("Face");
    EXPECT_EQ(plain->Height, 12);
    EXPECT_EQ(plain->Weight, 400);
    EXPECT_EQ(plain->CharSet, 0);
    EXPECT_EQ(fonts->Item(2), plain);
}

TEST(LFonts, AddStdFontTakesAStandardFont) {
    const Ref<ole::StdFont> standard = New<ole::StdFont>();
    standard->Name("DejaVu Serif");
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<LFont> font = fonts->AddStdFont(standard, CLEARTYPE_QUALITY, "key");
    EXPECT_EQ(font->Name, String("DejaVu Serif"));
    EXPECT_EQ(font->Quality, CLEARTYPE_QUALITY);
    EXPECT_EQ(fonts->Item("key"), font);
    EXPECT_EQ(fonts->AddStdFont(nullptr, 0)->Name, String("MS Shell Dlg"));
}

TEST(LFonts, AddDefGuiFontAddsAFontWithoutAName) {
    const Ref<LFonts> fonts = New<LFonts>();
    const Ref<LFont> font = fonts->AddDefGuiFont("key");
    EXPECT_TRUE(font->Equal(New<LFont>()));
    EXPECT_EQ(font->hFont(), gdi::GetStockObject(gdi::DEFAULT_GUI_FONT));
    EXPECT_EQ(fonts->Item("key"), font);
}

TEST(LFonts, AddItemReplacesUnderAKeyThatExists) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->AddItem(FontOf(1), "a");
    fonts->AddItem(FontOf(2), "b");
    fonts->AddItem(FontOf(3), "A");
    EXPECT_EQ(fonts->Count(), 2);
    EXPECT_EQ(fonts->Item("a")->Height, 3);
    EXPECT_EQ(fonts->Item(1)->Height, 2);
    EXPECT_EQ(fonts->Item(2)->Height, 3) << "the new one is last";
}

TEST(LFonts, ItemsWithoutAKeyNeverReplace) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->AddItem(FontOf(1));
    fonts->AddItem(FontOf(2), "");
    EXPECT_EQ(fonts->Count(), 2);
    EXPECT_EQ(fonts->Item(2)->Height, 2);
}

TEST(LFonts, TheSameItemMayReplaceItself) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->AddItem(FontOf(1), "a");
    fonts->AddItem(fonts->Item("a"), "a");
    EXPECT_EQ(fonts->Count(), 1);
    EXPECT_EQ(fonts->Item("a")->Height, 1);
}

TEST(LFonts, WhatIsNotThereReadsAsNone) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->AddItem(FontOf(1), "a");
    EXPECT_EQ(fonts->Item("b"), nullptr);
    EXPECT_EQ(fonts->Item(""), nullptr);
    EXPECT_EQ(fonts->Item(0), nullptr);
    EXPECT_EQ(fonts->Item(2), nullptr);
    EXPECT_EQ(fonts->Item(-1), nullptr);
}

TEST(LFonts, RemoveIgnoresWhatIsNotThere) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->AddItem(FontOf(1), "a");
    fonts->AddItem(FontOf(2));
    fonts->Remove("b");
    fonts->Remove(0);
    fonts->Remove(3);
    EXPECT_EQ(fonts->Count(), 2);
    fonts->Remove("a");
    EXPECT_EQ(fonts->Item(1)->Height, 2);
    fonts->Remove(1);
    EXPECT_EQ(fonts->Count(), 0);
}

TEST(LFonts, AreWalkedInTheirOrder) {
    const Ref<LFonts> fonts = New<LFonts>();
    for (int32_t i = 1; i <= 3; ++i) fonts->AddItem(FontOf(i));
    std::vector<int32_t> heights;
    for (const Ref<LFont>& font : *fonts) heights.push_back(font->Height);
    EXPECT_EQ(heights, (std::vector<int32_t>{1, 2, 3}));
}

TEST(LFonts, ClearStartsAfresh) {
    const Ref<LFonts> fonts = New<LFonts>();
    fonts->AddItem(FontOf(1), "a");
    fonts->Clear();
    EXPECT_EQ(fonts->Count(), 0);
    EXPECT_EQ(fonts->Item("a"), nullptr);
    EXPECT_FALSE(fonts->begin() != fonts->end());
}

}  // namespace
}  // namespace vxgui
