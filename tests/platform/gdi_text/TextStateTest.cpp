#include <gtest/gtest.h>

#include "Canvas.h"

namespace vxgui::gdi {
namespace {

TEST(TextState, AFreshContextHasThePublishedValues) {
    const HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(GetTextColor(dc), 0u);
    EXPECT_EQ(GetBkColor(dc), 0xFFFFFFu);
    EXPECT_EQ(GetBkMode(dc), OPAQUE);
    EXPECT_EQ(GetTextAlign(dc), TA_LEFT | TA_TOP);
    EXPECT_EQ(GetTextCharacterExtra(dc), 0);
    DeleteDC(dc);
}

TEST(TextState, SettersAnswerTheValueBefore) {
    const HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(SetTextColor(dc, 0x112233), 0u);
    EXPECT_EQ(SetTextColor(dc, 0), 0x112233u);
    EXPECT_EQ(SetBkColor(dc, 0x445566), 0xFFFFFFu);
    EXPECT_EQ(GetBkColor(dc), 0x445566u);
    EXPECT_EQ(SetBkMode(dc, TRANSPARENT), OPAQUE);
    EXPECT_EQ(GetBkMode(dc), TRANSPARENT);
    EXPECT_EQ(SetBkMode(dc, 7), 0);
    EXPECT_EQ(GetBkMode(dc), TRANSPARENT);
    EXPECT_EQ(SetTextAlign(dc, TA_CENTER), TA_LEFT);
    EXPECT_EQ(GetTextAlign(dc), TA_CENTER);
    EXPECT_EQ(SetTextCharacterExtra(dc, -3), 0);
    EXPECT_EQ(GetTextCharacterExtra(dc), -3);
    EXPECT_TRUE(SetTextJustification(dc, 5, 2));
    DeleteDC(dc);
}

TEST(TextState, WrongHandlesFail) {
    EXPECT_EQ(SetTextColor(nullptr, 1), CLR_INVALID);
    EXPECT_EQ(GetTextColor(nullptr), CLR_INVALID);
    EXPECT_EQ(SetBkColor(nullptr, 1), CLR_INVALID);
    EXPECT_EQ(GetBkColor(nullptr), CLR_INVALID);
    EXPECT_EQ(SetBkMode(nullptr, OPAQUE), 0);
    EXPECT_EQ(GetBkMode(nullptr), 0);
    EXPECT_EQ(SetTextAlign(nullptr, 0), GDI_ERROR);
    EXPECT_EQ(GetTextAlign(nullptr), GDI_ERROR);
    EXPECT_EQ(SetTextCharacterExtra(nullptr, 1), INT32_MIN);
    EXPECT_EQ(GetTextCharacterExtra(nullptr), INT32_MIN);
    EXPECT_FALSE(SetTextJustification(nullptr, 1, 1));
    RECT rect{};
    EXPECT_EQ(DrawTextA(nullptr, "a", 1, &rect, 0), 0);
    EXPECT_FALSE(ExtTextOutW(nullptr, 0, 0, 0, nullptr, u"a", 1, nullptr));
    EXPECT_FALSE(TextOutW(nullptr, 0, 0, u"a", 1));
    EXPECT_EQ(TabbedTextOutW(nullptr, 0, 0, u"a", 1, 0, nullptr, 0), 0);
    EXPECT_EQ(GetTabbedTextExtentW(nullptr, u"a", 1, 0, nullptr), 0u);
}

TEST(TextState, SavedStatesBringEverythingBack) {
    Canvas canvas(10, 10);
    SetTextColor(canvas, 0x123456);
    SetTextCharacterExtra(canvas, 4);
    const int wide = Extent(canvas, u"abc").cx;
    SaveDC(canvas);
    SetTextColor(canvas, 0);
    SetTextCharacterExtra(canvas, 0);
    SetTextJustification(canvas, 9, 1);
    RestoreDC(canvas, -1);
    EXPECT_EQ(GetTextColor(canvas), 0x123456u);
    EXPECT_EQ(Extent(canvas, u"abc").cx, wide);
}

}  // namespace
}  // namespace vxgui::gdi
