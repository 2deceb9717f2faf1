#include <gtest/gtest.h>

#include "tests/text/TextCanvas.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

using test::TextCanvas;
using test::TextRecorder;

constexpr const char* kCaption = "Some words of a caption";

Ref<ThemeItem> ItemWithStyle(int32_t shadowX = 0, int32_t shadowY = 0) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Sans", -15);
    item->Fonts()->AddItem(font, "Normal");
    const Ref<TextStyle> style = New<TextStyle>();
    style->ShadowX = shadowX;
    style->ShadowY = shadowY;
    item->TextStyles()->AddItem(style, "Normal");
    return item;
}

gdi::RECT Measured(const Ref<ThemeItem>& item, int32_t right, int32_t bottom, uint32_t flags) {
    TextCanvas canvas(10, 10);
    gdi::SelectObject(canvas.dc, item->GetStateFont(0)->hFont());
    gdi::RECT rect{0, 0, right, bottom};
    gdi::DrawTextA(canvas.dc, kCaption, -1, &rect, flags | gdi::DT_CALCRECT);
    return rect;
}

TEST(CaptionSize, CountsTheShadowInEveryDrawStyle) {
    const Ref<ThemeItem> item = ItemWithStyle(7, 4);
    TextCanvas canvas(10, 10);
    const gdi::RECT plain = Measured(item, 32767, 32767, gdi::DT_SINGLELINE);
    for (int32_t drawStyle = 0; drawStyle <= 6; ++drawStyle) {
        item->GetStateTextStyle(0)->TextStyle = drawStyle;
        int32_t width = -1, height = -1;
        EXPECT_EQ(
            item->GetTextWidthHeight(canvas.dc, kCaption, width, height, 0, 0, gdi::DT_SINGLELINE),
            0);
        EXPECT_EQ(width, plain.right + 7);
        EXPECT_EQ(height, plain.bottom + 4);
    }
}

TEST(CaptionSize, WrapsAtTheWidthThatIsGiven) {
    const Ref<ThemeItem> item = ItemWithStyle();
    TextCanvas canvas(10, 10);
    const gdi::RECT wrapped = Measured(item, 60, 32767, gdi::DT_WORDBREAK);
    int32_t width = 0, height = 0;
    item->GetTextWidthHeight(canvas.dc, kCaption, width, height, 60, 0, gdi::DT_WORDBREAK);
    EXPECT_EQ(width, wrapped.right);
    EXPECT_EQ(height, wrapped.bottom);
    EXPECT_EQ(item->TextHeight(canvas.dc, kCaption, gdi::DT_WORDBREAK, 60, 1), wrapped.bottom);
}

TEST(CaptionSize, IsThatOfTheFontAndStyleOfTheGivenState) {
    const Ref<ThemeItem> item = ItemWithStyle(7, 4);
    const Ref<LFont> large = New<LFont>();
    large->Create("DejaVu Sans", -40);
    item->StateFont(E_ItemStatePressed, large);
    const Ref<TextStyle> pressed = New<TextStyle>();
    pressed->ShadowX = 100;
    pressed->ShadowY = 200;
    item->StateTextStyle(E_ItemStatePressed, pressed);
    item->State(E_ItemStatePressed);  // which isn't asked
    TextCanvas canvas(10, 10);
    const auto measured = [&](const Ref<LFont>& font) {
        gdi::SelectObject(canvas.dc, font->hFont());
        gdi::RECT rect{0, 0, 32767, 32767};
        gdi::DrawTextA(canvas.dc, kCaption, -1, &rect, gdi::DT_SINGLELINE | gdi::DT_CALCRECT);
        return rect;
    };
    const gdi::RECT small = measured(item->GetStateFont(0)), wide = measured(large);
    const uint32_t flags = gdi::DT_SINGLELINE;
    EXPECT_EQ(item->TextWidth(canvas.dc, kCaption, flags), small.right + 7);
    EXPECT_EQ(item->TextHeight(canvas.dc, kCaption, flags), small.bottom + 4);
    EXPECT_EQ(item->TextWidth(canvas.dc, kCaption, flags, 0, 0, 2), wide.right + 100);
    EXPECT_EQ(item->TextHeight(canvas.dc, kCaption, flags, 0, 0, 2), wide.bottom + 200);
    int32_t width = 0, height = 0;
    item->GetTextWidthHeight(canvas.dc, kCaption, width, height, 0, 0, flags, 2);
    EXPECT_EQ(width, wide.right + 100);
    EXPECT_EQ(height, wide.bottom + 200);
}

TEST(CaptionSize, TheHeightHasNoLimit) {
    const Ref<ThemeItem> item = ItemWithStyle();
    TextCanvas canvas(10, 10);
    // What stands at the bottom is as high as the rectangle that it is measured in.
    const uint32_t flags = gdi::DT_SINGLELINE | gdi::DT_BOTTOM;
    int32_t width = 0, height = 0;
    item->GetTextWidthHeight(canvas.dc, kCaption, width, height, 0, 100, flags);
    EXPECT_EQ(height, Measured(item, 32767, 100, flags).bottom);
    EXPECT_EQ(height, 100);
    EXPECT_EQ(item->TextHeight(canvas.dc, kCaption, flags, 0, 100), 32767);
}

TEST(CaptionSize, TheWidthHasNoLimit) {
    const Ref<ThemeItem> item = ItemWithStyle();
    TextCanvas canvas(10, 10);
    const int32_t width = item->TextWidth(canvas.dc, kCaption, gdi::DT_WORDBREAK, 50);
    EXPECT_EQ(width, item->TextWidth(canvas.dc, kCaption, gdi::DT_WORDBREAK));
    EXPECT_EQ(width, Measured(item, 32767, 32767, gdi::DT_WORDBREAK).right);
    EXPECT_GT(width, 50);
}

TEST(CaptionSize, WorksOnTheScreenWithoutAContext) {
    const Ref<ThemeItem> item = ItemWithStyle(1, 1);
    TextCanvas canvas(10, 10);
    for (int i = 0; i < 2000; ++i) {
        ASSERT_EQ(item->TextWidth(nullptr, kCaption, gdi::DT_SINGLELINE),
                  item->TextWidth(canvas.dc, kCaption, gdi::DT_SINGLELINE));
    }
}

TEST(CaptionSize, TheContextKeepsItsFont) {
    const Ref<ThemeItem> item = ItemWithStyle();
    TextCanvas canvas(10, 10);
    item->TextWidth(canvas.dc, kCaption);
    EXPECT_EQ(gdi::GetCurrentObject(canvas.dc, gdi::OBJ_FONT), canvas.font->hFont());
}

TEST(Caption, StandsInsideTheContentMargins) {
    const Ref<ThemeItem> item = ItemWithStyle();
    item->SetContentMargin(3, 5, 7, 11);
    TextCanvas canvas(200, 60);
    const TextRecorder recorder;
    int32_t right = 180, bottom = 50;
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, -1, 10, 20, right, bottom);
    ASSERT_EQ(recorder.calls.size(), 1u);
    const gdi::RECT& rect = recorder.calls[0].rect;
    EXPECT_EQ(rect.left, 13);
    EXPECT_EQ(rect.top, 25);
    EXPECT_EQ(rect.right, 173);
    EXPECT_EQ(rect.bottom, 39);
    EXPECT_EQ(right, 173);
    EXPECT_EQ(bottom, 39);
}

TEST(Caption, TwiceWithTheSameVariablesIsDeflatedTwice) {
    const Ref<ThemeItem> item = ItemWithStyle();
    item->SetContentMargin(3, 5, 7, 11);
    TextCanvas canvas(200, 60);
    int32_t right = 180, bottom = 50;
    for (int i = 0; i < 2; ++i)
        item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, -1, 10, 20, right, bottom);
    EXPECT_EQ(right, 180 - 14);
    EXPECT_EQ(bottom, 50 - 22);
}

TEST(Caption, WithoutAnImageTheDefaultRectangleIsEmpty) {
    const Ref<ThemeItem> item = ItemWithStyle();
    item->SetContentMargin(3, 5, 7, 11);
    TextCanvas canvas(200, 60);
    const TextRecorder recorder;
    int32_t right = -1, bottom = -1;
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, -1, 30, 20, right, bottom);
    EXPECT_EQ(right, 30 - 7);
    EXPECT_EQ(bottom, 20 - 11);
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].rect.left, 33);
    EXPECT_EQ(recorder.calls[0].rect.top, 25);
    EXPECT_TRUE(canvas.IsBlank());
}

TEST(Caption, TheDefaultRectangleIsThatOfAFrame) {
    const Ref<ThemeItem> item = ItemWithStyle();
    const Ref<cAlphaDIBSection> strip = New<cAlphaDIBSection>();
    strip->Create(120, 24);
    item->SetImage(strip, 3, 0, Normal);
    TextCanvas canvas(200, 60);
    int32_t right = -1, bottom = -1;
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, -1, 10, 20, right, bottom);
    EXPECT_EQ(right, 10 + 40);
    EXPECT_EQ(bottom, 20 + 24);
}

TEST(Caption, OneEdgeMayBeLeftToItsDefault) {
    const Ref<ThemeItem> item = ItemWithStyle();
    item->SetContentMargin(3, 5, 7, 11);
    const Ref<cAlphaDIBSection> strip = New<cAlphaDIBSection>();
    strip->Create(120, 24);
    item->SetImage(strip, 3, 0, Normal);
    TextCanvas canvas(200, 60);
    int32_t right = -1, bottom = 50;
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, -1, 10, 20, right, bottom);
    EXPECT_EQ(right, 10 + 40 - 7);
    EXPECT_EQ(bottom, 50 - 11);
    right = 90, bottom = -1;
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, -1, 10, 20, right, bottom);
    EXPECT_EQ(right, 90 - 7);
    EXPECT_EQ(bottom, 20 + 24 - 11);
}

TEST(Caption, IsInTheFontOfItsState) {
    const Ref<ThemeItem> item = ItemWithStyle();
    const Ref<LFont> large = New<LFont>();
    large->Create("DejaVu Sans", -40);
    item->StateFont(E_ItemStatePressed, large);
    item->State(E_ItemStatePressed);
    const uint32_t flags = gdi::DT_SINGLELINE;
    for (const int32_t state : {-1, 2, 0}) {
        TextCanvas drawn(400, 60), expected(400, 60);
        int32_t right = 400, bottom = 60;
        item->DrawText(drawn.dc, kCaption, flags, state, 0, 0, right, bottom);
        Ref<LFont> font = item->StateFont(state == 0 ? E_ItemStateNormal : E_ItemStatePressed);
        item->GetStateTextStyle(0)->DrawText(expected.dc, kCaption, flags, font, 0, 0, 400, 60);
        EXPECT_FALSE(drawn.IsBlank());
        EXPECT_EQ(drawn.picture.pixels, expected.picture.pixels) << state;
    }
}

TEST(Caption, IsInTheStyleOfItsState) {
    const Ref<ThemeItem> item = ItemWithStyle();
    item->GetStateTextStyle(E_ItemStateNormal)->TextColor = 0x112233;
    const Ref<TextStyle> pressed = New<TextStyle>();
    pressed->TextColor = 0x445566;
    item->TextStyles()->AddItem(pressed, "Pressed");
    TextCanvas canvas(200, 60);
    const TextRecorder recorder;
    int32_t right = 180, bottom = 50;
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, E_ItemStatePressed, 0, 0, right,
                   bottom);
    item->State(E_ItemStatePressed);
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, -1, 0, 0, right, bottom);
    item->DrawText(canvas.dc, kCaption, gdi::DT_SINGLELINE, E_ItemStateNormal, 0, 0, right, bottom);
    ASSERT_EQ(recorder.calls.size(), 3u);
    EXPECT_EQ(recorder.calls[0].color, 0x445566u);
    EXPECT_EQ(recorder.calls[1].color, 0x445566u);
    EXPECT_EQ(recorder.calls[2].color, 0x112233u);
}

}  // namespace
}  // namespace vxgui
