#include <gtest/gtest.h>

#include "TextTestSupport.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui {
namespace {

Ref<TextStyle> Unusual() {
    const Ref<TextStyle> style = New<TextStyle>();
    style->Create(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12);
    style->DTFlags = 13;
    return style;
}

Ref<ole::PropertyBag> BagOf(const Ref<TextStyle>& style) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    style->WriteProperties(bag);
    return bag;
}

TEST(StyleBag, HoldsItsKeysInTheirOrder) {
    EXPECT_EQ(BagOf(Unusual())->Names(),
              (std::vector<String>{"TextColor", "TextContrast", "TextAlignHorz", "TextAlignVert",
                                   "TextStyle", "FormatFlags", "ShadowColor", "ShadowThickness",
                                   "ShadowX", "ShadowY", "ShadowOffsetX", "ShadowOffsetY"}));
}

TEST(StyleBag, LeavesDefaultsOut) {
    EXPECT_TRUE(BagOf(New<TextStyle>())->Names().empty());
    const Ref<TextStyle> style = New<TextStyle>();
    style->TextStyle = 1;
    style->ShadowX = style->ShadowY = 1;
    EXPECT_EQ(BagOf(style)->Names(), (std::vector<String>{"TextStyle"}));
    style->ShadowX = 0;
    EXPECT_TRUE(BagOf(style)->Has("ShadowX")) << "1 is the default here";
}

TEST(StyleBag, WithoutADrawStyleHoldsNoShadow) {
    for (const int32_t drawStyle : {0, -1}) {
        const Ref<TextStyle> style = Unusual();
        style->TextStyle = drawStyle;
        EXPECT_FALSE(BagOf(style)->Has("ShadowColor"));
        EXPECT_FALSE(BagOf(style)->Has("ShadowThickness"));
        EXPECT_FALSE(BagOf(style)->Has("ShadowX"));
        EXPECT_FALSE(BagOf(style)->Has("ShadowOffsetY"));
        EXPECT_TRUE(BagOf(style)->Has("FormatFlags"));
    }
}

TEST(StyleBag, WithoutADrawStyleReadsNoShadow) {
    const Ref<ole::PropertyBag> bag = BagOf(Unusual());
    bag->WriteProperty("TextStyle", 0);
    const Ref<TextStyle> style = New<TextStyle>();
    style->ShadowX = 77;
    style->ReadProperties(bag);
    EXPECT_EQ(style->TextColor, 1);
    EXPECT_EQ(style->ShadowX, 77);
    EXPECT_EQ(style->ShadowColor, 0);
}

struct BagRow {
    const char* key;
    int32_t TextStyle::*field;
    int32_t fallback;
};
class StyleBagKey : public testing::TestWithParam<BagRow> {};
INSTANTIATE_TEST_SUITE_P(, StyleBagKey,
                         testing::Values(BagRow{"TextColor", &TextStyle::TextColor, 0},
                                         BagRow{"TextContrast", &TextStyle::TextContrast, 4},
                                         BagRow{"TextAlignHorz", &TextStyle::TextAlignHorz, 0},
                                         BagRow{"TextAlignVert", &TextStyle::TextAlignVert, 0},
                                         BagRow{"FormatFlags", &TextStyle::FormatFlags, 0},
                                         BagRow{"ShadowColor", &TextStyle::ShadowColor, 0},
                                         BagRow{"ShadowThickness", &TextStyle::ShadowThickness, 4},
                                         BagRow{"ShadowX", &TextStyle::ShadowX, 1},
                                         BagRow{"ShadowY", &TextStyle::ShadowY, 1},
                                         BagRow{"ShadowOffsetX", &TextStyle::ShadowOffsetX, 0},
                                         BagRow{"ShadowOffsetY", &TextStyle::ShadowOffsetY, 0}),
                         [](const auto& info) { return std::string(info.param.key); });

TEST_P(StyleBagKey, IsReadWithItsDefaultAndUnchecked) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    bag->WriteProperty("TextStyle", 99);
    const Ref<TextStyle> style = Unusual();
    style->ReadProperties(bag);
    EXPECT_EQ((*style).*GetParam().field, GetParam().fallback);
    EXPECT_EQ(style->TextStyle, 99);
    bag->WriteProperty(GetParam().key, -12345);
    style->ReadProperties(bag);
    EXPECT_EQ((*style).*GetParam().field, -12345);
}

TEST(StyleBag, GoesThereAndBackThroughItsBytes) {
    const Ref<ole::PropertyBag> copy = New<ole::PropertyBag>();
    copy->Contents(BagOf(Unusual())->Contents());
    const Ref<TextStyle> style = New<TextStyle>();
    style->ReadProperties(copy);
    EXPECT_TRUE(style->Equal(Unusual()));
    EXPECT_EQ(style->DTFlags, 0u) << "isn't kept";
}

TEST(StyleBag, OfNoneRaises) {
    EXPECT_EQ(test::ErrorOf([] { New<TextStyle>()->ReadProperties(nullptr); }), 91);
    EXPECT_EQ(test::ErrorOf([] { New<TextStyle>()->WriteProperties(nullptr); }), 91);
}

}  // namespace
}  // namespace vxgui
