#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Ref<TextStyle> FilledStyle(int32_t drawStyle) {
    Ref<TextStyle> style = New<TextStyle>();
    style->Create(1, 2, 3, drawStyle, 50, 6, 70, 8, 9, 10, 11, 12);
    return style;
}

Ref<ole::PropertyBag> BagOf(const TextStyle& style) {
    Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    style.WriteProperties(bag);
    return bag;
}

TEST(TextStyleBag, ANewStyleWritesNothing) {
    EXPECT_THAT(BagOf(*New<TextStyle>())->Names(), IsEmpty());
}

TEST(TextStyleBag, EachFieldIsWrittenInItsOrder) {
    const Ref<ole::PropertyBag> bag = BagOf(*FilledStyle(5));
    EXPECT_THAT(bag->Names(),
                ElementsAre("TextColor", "TextContrast", "TextAlignHorz", "TextAlignVert",
                            "TextStyle", "FormatFlags", "ShadowColor", "ShadowThickness", "ShadowX",
                            "ShadowY", "ShadowOffsetX", "ShadowOffsetY"));
}

TEST(TextStyleBag, TheShadowHasDefaultsOfItsOwn) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->TextStyle = 1;
    EXPECT_THAT(BagOf(*style)->Names(), ElementsAre("TextStyle", "ShadowX", "ShadowY"));
    style->ShadowX = style->ShadowY = 1;
    EXPECT_THAT(BagOf(*style)->Names(), ElementsAre("TextStyle"));
}

TEST(TextStyleBag, WithoutADrawStyleNoShadowIsWritten) {
    for (const int32_t draw : {0, -1}) {
        const auto names = BagOf(*FilledStyle(draw))->Names();
        for (const String& name : names) EXPECT_NE(name.Left(6), "Shadow") << draw;
    }
}

TEST(TextStyleBag, WithoutADrawStyleNoShadowIsRead) {
    const Ref<ole::PropertyBag> bag = BagOf(*FilledStyle(5));
    bag->WriteProperty("TextStyle", 0);
    const Ref<TextStyle> style = New<TextStyle>();
    style->ReadProperties(bag);
    EXPECT_EQ(style->ShadowColor, 0);
    EXPECT_EQ(style->ShadowThickness, 4);
    EXPECT_EQ(style->ShadowX, 0);
    EXPECT_EQ(style->FormatFlags, 12);
}

TEST(TextStyleBag, ComesBackAsItWasWithoutAnyRange) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->ReadProperties(BagOf(*FilledStyle(99)));
    EXPECT_TRUE(style->Equal(FilledStyle(99)));
    EXPECT_EQ(style->TextContrast, 50);
}

TEST(TextStyleBag, AnEmptyBagGivesTheDefaultsAndLeavesTheShadow) {
    const Ref<TextStyle> style = FilledStyle(5), expected = New<TextStyle>();
    expected->Create(0, 0, 0, 0, 4, 6, 70, 8, 9, 10, 11, 0);
    style->ReadProperties(New<ole::PropertyBag>());
    EXPECT_TRUE(style->Equal(expected));
}

TEST(TextStyleBag, TheFlagsOfTheLastDrawingStayOutOfIt) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->DTFlags = DT_CENTER;
    EXPECT_THAT(BagOf(*style)->Names(), IsEmpty());
    style->ReadProperties(New<ole::PropertyBag>());
    EXPECT_EQ(style->DTFlags, uint32_t{DT_CENTER});
}

/// What a new style has taken from the bag of a full one when the value under `key` stopped it.
Ref<TextStyle> ReadUpTo(const char* key) {
    const Ref<ole::PropertyBag> bag = BagOf(*FilledStyle(5));
    bag->WriteProperty(key, "no number");
    const Ref<TextStyle> style = New<TextStyle>();
    EXPECT_EQ(test::RaisedBy([&] { style->ReadProperties(bag); }), 13) << key;
    return style;
}

TEST(TextStyleBag, TheFormatIsReadAheadOfTheDrawStyle) {
    EXPECT_THAT(BagOf(*ReadUpTo("FormatFlags"))->Names(),
                ElementsAre("TextColor", "TextContrast", "TextAlignHorz", "TextAlignVert"));
    EXPECT_THAT(
        BagOf(*ReadUpTo("TextStyle"))->Names(),
        ElementsAre("TextColor", "TextContrast", "TextAlignHorz", "TextAlignVert", "FormatFlags"));
}

TEST(TextStyleBag, TheShadowIsReadInItsOrder) {
    using Style = class TextStyle;
    const struct {
        const char* key;
        int32_t Style::*field;
        int32_t read;
    } rows[] = {{"ShadowColor", &Style::ShadowColor, 6},
                {"ShadowThickness", &Style::ShadowThickness, 70},
                {"ShadowX", &Style::ShadowX, 8},
                {"ShadowY", &Style::ShadowY, 9},
                {"ShadowOffsetX", &Style::ShadowOffsetX, 10},
                {"ShadowOffsetY", &Style::ShadowOffsetY, 11}};
    const Ref<TextStyle> unread = New<TextStyle>();
    for (const auto& broken : rows) {
        const Ref<TextStyle> style = ReadUpTo(broken.key);
        for (const auto& row : rows) {
            const int32_t expected = &row < &broken ? row.read : (*unread).*row.field;
            EXPECT_EQ((*style).*row.field, expected) << row.key << ", without " << broken.key;
        }
    }
}

TEST(TextStyleBag, NoBagRaisesObjectNotSet) {
    EXPECT_EQ(test::RaisedBy([] { New<TextStyle>()->ReadProperties(nullptr); }), 91);
    EXPECT_EQ(test::RaisedBy([] { New<TextStyle>()->WriteProperties(nullptr); }), 91);
}

}  // namespace
}  // namespace vxgui
