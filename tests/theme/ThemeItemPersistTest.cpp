#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/theme/StoredItems.h"

namespace vxgui {
namespace {

using test::BagOf;
using test::FontOf;
using test::IntegerIn;
using test::RaisedBy;
using test::StyleOf;
using test::SurfaceOf;
using testing::ElementsAre;
using testing::IsEmpty;

Ref<ole::PropertyBag> Written(const Ref<ThemeItem>& item) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    item->WriteProperties(bag);
    return bag;
}

Ref<ThemeItem> ReadFrom(const Ref<ole::PropertyBag>& bag) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->ReadProperties(bag);
    return item;
}

/// A bag of that version with these entries.
Ref<ole::PropertyBag> Bag(int32_t version,
                          const std::vector<std::pair<const char*, Variant>>& entries = {}) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    bag->WriteProperty("Version", version);
    for (const auto& [key, value] : entries) bag->WriteProperty(key, value);
    return bag;
}

std::vector<std::string> NamesIn(const Ref<ole::PropertyBag>& bag) {
    std::vector<std::string> names;
    for (const String& name : bag->Names()) names.push_back(name.Utf8());
    return names;
}

// Every property that is a number, with its key.

struct NumberKey {
    const char* key;
    int32_t fallback;  ///< in reading and in writing
    int32_t (*get)(ThemeItem&);
    void (*set)(ThemeItem&, int32_t);
};

#define VX_NUMBER(key, fallback, property)                                                    \
    {                                                                                         \
        key, fallback, [](ThemeItem& item) { return static_cast<int32_t>(item.property()); }, \
            [](ThemeItem& item, int32_t v) {                                                  \
                item.property(static_cast<decltype(item.property())>(v));                     \
            }                                                                                 \
    }
#define VX_SIDE(key, property, side)                                  \
    {                                                                 \
        key, 0,                                                       \
            [](ThemeItem& item) {                                     \
                Margin m;                                             \
                item.Get##property(m.left, m.top, m.right, m.bottom); \
                return m.side;                                        \
            },                                                        \
            [](ThemeItem& item, int32_t v) {                          \
                Margin m;                                             \
                item.Get##property(m.left, m.top, m.right, m.bottom); \
                m.side = v;                                           \
                item.Set##property(m.left, m.top, m.right, m.bottom); \
            }                                                         \
    }
#define VX_SIDES(property)                                                              \
    VX_SIDE(#property "Left", property, left), VX_SIDE(#property "Top", property, top), \
        VX_SIDE(#property "Right", property, right), VX_SIDE(#property "Bottom", property, bottom)

const NumberKey kNumbers[] = {
    VX_NUMBER("ImageMarginLeft", 0, ImageMarginLeft),
    VX_NUMBER("ImageMarginTop", 0, ImageMarginTop),
    VX_NUMBER("ImageMarginRight", 0, ImageMarginRight),
    VX_NUMBER("ImageMarginBottom", 0, ImageMarginBottom),
    VX_SIDES(GlyphMargin),
    VX_NUMBER("ContentMarginLeft", 0, ContentLeft),
    VX_NUMBER("ContentMarginTop", 0, ContentTop),
    VX_NUMBER("ContentMarginRight", 0, ContentRight),
    VX_NUMBER("ContentMarginBottom", 0, ContentBottom),
    VX_SIDES(IconMargin),
    VX_NUMBER("BackgroundEffect", 0, BackgroundEffect),
    VX_NUMBER("ImageFlags", 0, ImageFlags),
    VX_NUMBER("ImageAlpha", 255, ImageAlpha),
    VX_NUMBER("FrameCount", 0, FrameCount),
    VX_NUMBER("GlyphAlpha", 255, GlyphAlpha),
    VX_NUMBER("GlyphAlign", 1, GlyphAlign),
    VX_NUMBER("IconAlign", 1, IconAlign),
    VX_NUMBER("IconTransMode", 2, IconTransMode),
    VX_NUMBER("IconWidth", 0, IconWidth),
};

TEST(ItemKeys, CarryTheirProperties) {
    for (const NumberKey& number : kNumbers) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        number.set(*item, 7);
        EXPECT_EQ(IntegerIn(Written(item), number.key), 7) << number.key;
        EXPECT_EQ(number.get(*ReadFrom(Written(item))), 7) << number.key;
        EXPECT_EQ(number.get(*ReadFrom(Bag(2, {{number.key, 9}}))), 9) << number.key;
    }
}

TEST(ItemKeys, HaveTheirDefaults) {
    for (const NumberKey& number : kNumbers) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        number.set(*item, number.fallback);
        EXPECT_FALSE(Written(item)->Has(number.key)) << number.key;
        number.set(*item, 7);
        item->ReadProperties(Bag(2));
        EXPECT_EQ(number.get(*item), number.fallback) << number.key;
    }
}

TEST(ItemKeys, OfAlphasKeepTheLowEightBits) {
    const Ref<ThemeItem> item = ReadFrom(Bag(2, {{"ImageAlpha", 300}, {"GlyphAlpha", -1}}));
    EXPECT_EQ(item->ImageAlpha(), 44);
    EXPECT_EQ(item->GlyphAlpha(), 255);
}

TEST(ItemKeys, OfTheFlagsHoldTheWholeWord) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->ImageFlags(0xFFFFFFFF);
    EXPECT_EQ(IntegerIn(Written(item), "ImageFlags"), -1);
    EXPECT_EQ(ReadFrom(Written(item))->ImageFlags(), 0xFFFFFFFFu);
}

// Writing.

TEST(ItemWriting, OfANewItemStoresWhatDiffersFromTheDefaults) {
    const Ref<ole::PropertyBag> bag = Written(New<ThemeItem>());
    EXPECT_THAT(NamesIn(bag), ElementsAre("Version", "ImageMarginLeft", "ImageMarginTop",
                                          "ImageMarginRight", "ImageMarginBottom", "FrameOrder",
                                          "GlyphFrameOrder", "IconAlign", "IconTransMode"));
    EXPECT_EQ(IntegerIn(bag, "Version"), 2);
    EXPECT_EQ(IntegerIn(bag, "ImageMarginLeft"), 4);
    EXPECT_EQ(IntegerIn(bag, "ImageMarginBottom"), 4);
    EXPECT_EQ(IntegerIn(bag, "FrameOrder"), 1);
    EXPECT_EQ(IntegerIn(bag, "GlyphFrameOrder"), 1);
    EXPECT_EQ(IntegerIn(bag, "IconAlign"), 0);
    EXPECT_EQ(IntegerIn(bag, "IconTransMode"), 0);
}

TEST(ItemWriting, OfANewItemReadsBackAsANewItem) {
    const Ref<ThemeItem> fresh = New<ThemeItem>(), item = ReadFrom(Written(New<ThemeItem>()));
    for (const NumberKey& number : kNumbers) {
        EXPECT_EQ(number.get(*item), number.get(*fresh)) << number.key;
    }
    EXPECT_EQ(item->FrameOrder(), 1);
    EXPECT_EQ(item->StateFrames(), fresh->StateFrames());
    EXPECT_EQ(item->GlyphStateFrames(), fresh->GlyphStateFrames());
    EXPECT_EQ(item->IconHeight(), 0);
    EXPECT_EQ(item->GlyphFrames(), 0);
    EXPECT_EQ(item->Image(), nullptr);
    EXPECT_EQ(item->Glyph(), nullptr);
}

TEST(ItemWriting, StoresItsKeysInTheirOrder) {
    const Ref<ThemeItem> item = test::FullItem();
    std::vector<std::string> expected{"ImageBag", "Version"};
    for (const char* margin : {"ImageMargin", "GlyphMargin", "ContentMargin", "IconMargin"}) {
        for (const char* side : {"Left", "Top", "Right", "Bottom"}) {
            expected.push_back(std::string(margin) + side);
        }
    }
    for (const char* key :
         {"BackgroundEffect", "ImageFlags", "ImageAlpha", "FrameCount", "FrameOrder", "FrameIndex",
          "GlyphBag", "GlyphFrameOrder", "GlyphFrameIndex", "GlyphFrames", "GlyphAlpha",
          "GlyphAlign", "IconAlign", "IconTransMode", "IconWidth", "IconHeight"}) {
        expected.push_back(key);
    }
    for (const char* state : {"Normal", "MouseOver", "Pressed", "Disabled", "Default", "Focus",
                              "FocusPressed", "Group"}) {
        expected.push_back(std::string("Font") + state);
        expected.push_back(std::string("TextStyle") + state);
    }
    EXPECT_EQ(NamesIn(Written(item)), expected);
}

TEST(ItemWriting, OfAFullItemReadsBackWhole) {
    const Ref<ThemeItem> item = test::FullItem(), copy = ReadFrom(Written(item));
    for (const NumberKey& number : kNumbers) {
        EXPECT_EQ(number.get(*copy), number.get(*item)) << number.key;
    }
    EXPECT_EQ(copy->FrameOrder(), -1);
    EXPECT_EQ(copy->StateFrames(), item->StateFrames());
    EXPECT_EQ(copy->GlyphStateFrames(), item->GlyphStateFrames());
    EXPECT_EQ(copy->GlyphFrames(), 3);
    EXPECT_TRUE(copy->Image()->Equal(item->Image()));
    EXPECT_TRUE(copy->Glyph()->Equal(item->Glyph()));
    EXPECT_FALSE(copy->Image() == item->Image());
    for (int32_t state = 0; state <= 7; ++state) {
        EXPECT_TRUE(copy->StateFont(state)->Equal(item->StateFont(state))) << state;
        EXPECT_TRUE(copy->StateTextStyle(state)->Equal(item->StateTextStyle(state))) << state;
    }
    EXPECT_EQ(BagOf(copy), BagOf(item));
}

TEST(ItemWriting, StoresTheIconsWidthAsItsHeight) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->IconWidth(16);
    item->IconHeight(32);
    const Ref<ThemeItem> copy = ReadFrom(Written(item));
    EXPECT_EQ(copy->IconWidth(), 16);
    EXPECT_EQ(copy->IconHeight(), 16);
    EXPECT_EQ(ReadFrom(Bag(2, {{"IconWidth", 5}, {"IconHeight", 6}}))->IconHeight(), 6);
}

TEST(ItemWriting, LosesAGlyphOrderOfNoughtToTheImagesOrder) {
    const Ref<ThemeItem> item = ReadFrom(Bag(2, {{"FrameOrder", 1}, {"GlyphFrameOrder", 0}}));
    const Ref<ole::PropertyBag> bag = Written(item);
    EXPECT_FALSE(bag->Has("GlyphFrameOrder"));
    EXPECT_EQ(IntegerIn(Written(ReadFrom(bag)), "GlyphFrameOrder"), 1);
}

TEST(ItemWriting, StoresTablesForOrdersOfTheirOwnAlone) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFrames(ByteArray{8, 7, 6});
    EXPECT_EQ(Written(item)->ReadProperty("FrameIndex"),
              Variant(ByteArray{8, 7, 6, 3, 4, 5, 6, 7, 8}));
    EXPECT_FALSE(Written(item)->Has("GlyphFrameIndex"));
    item->FrameOrder(0);
    item->GlyphStateFrames(ByteArray{2});
    EXPECT_FALSE(Written(item)->Has("FrameIndex"));
    EXPECT_FALSE(Written(item)->Has("FrameOrder"));
    EXPECT_EQ(Written(item)->ReadProperty("GlyphFrameIndex"),
              Variant(ByteArray{2, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(IntegerIn(Written(item), "GlyphFrameOrder"), -1);
}

TEST(ItemWriting, StoresTheGlyphFramesThatDifferFromTheFrameCount) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(4);
    item->GlyphFrames(4);
    EXPECT_FALSE(Written(item)->Has("GlyphFrames"));
    EXPECT_EQ(ReadFrom(Written(item))->GlyphFrames(), 4);
    item->GlyphFrames(0);
    EXPECT_EQ(IntegerIn(Written(item), "GlyphFrames"), 0);  // as stored, without the fallback
    item->GlyphFrames(-2);
    EXPECT_EQ(IntegerIn(Written(item), "GlyphFrames"), -2);
}

TEST(ItemWriting, KeepsNothingOfStateOwnerAndImportedNumbers) {
    struct Owner : ThemeOwner {
        int32_t Colour(int32_t) override { return 5; }
        Ref<LFont> Font(int32_t) override { return FontOf(11); }
    };
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Owner(New<Owner>());
    item->State(E_ItemStatePressed);
    item->Numbers().NormalColour = 3;
    item->Numbers().NormalFont = 3;
    item->ImportedNumbers().PartWidth = 9;
    item->StateFont(E_ItemStateFocusMouseOver, FontOf(12));  // a state that isn't kept either
    EXPECT_EQ(BagOf(item), BagOf(New<ThemeItem>()));
    const Ref<ThemeItem> copy = ReadFrom(Written(item));
    EXPECT_EQ(copy->Owner(), nullptr);
    EXPECT_EQ(copy->State(), 0);
    EXPECT_EQ(copy->Numbers().NormalColour, 0);
    EXPECT_EQ(copy->ImportedNumbers().PartWidth, 0);
}

// Images.

TEST(ItemImages, AreStoredPlainUnlessTheFlagsSayCompressed) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(SurfaceOf(4, 3));
    item->Glyph(SurfaceOf(2, 2));
    for (const int32_t flags : {0, 1}) {
        const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
        item->WriteProperties(bag, nullptr, nullptr, nullptr, flags);
        for (const char* key : {"ImageBag", "GlyphBag"}) {
            const Ref<ole::PropertyBag> inner = test::InnerBag(bag, key);
            EXPECT_EQ(inner->Has("cAlphaDIBSection_compressed"), flags == 0) << key;
        }
        EXPECT_TRUE(ReadFrom(bag)->Image()->Equal(item->Image()));
        EXPECT_TRUE(ReadFrom(bag)->Glyph()->Equal(item->Glyph()));
    }
}

TEST(ItemImages, ThatTheReaderHasAlreadyAreNotStored) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(SurfaceOf(4, 3));
    item->Glyph(SurfaceOf(4, 3));
    const Ref<cAlphaDIBSection> known = SurfaceOf(4, 3);
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    item->WriteProperties(bag, known);
    EXPECT_FALSE(bag->Has("ImageBag"));
    EXPECT_TRUE(bag->Has("GlyphBag"));
    const Ref<ThemeItem> reader = New<ThemeItem>();
    reader->Image(known);
    reader->ReadProperties(bag);
    EXPECT_EQ(reader->Image(), known);
    const Ref<ole::PropertyBag> other = New<ole::PropertyBag>();
    item->WriteProperties(other, SurfaceOf(3, 3));
    EXPECT_TRUE(other->Has("ImageBag"));
}

TEST(ItemImages, ComeBackPremultipliedAndTheModePremultipliesNothing) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(SurfaceOf(4, 3));
    item->ImageFlags(0x80000000);  // the mode, past its setter: the pixels are straight
    const Ref<ThemeItem> straight = ReadFrom(Written(item));
    EXPECT_EQ(straight->TransMode(), PerPixel);
    EXPECT_EQ(straight->Image()->Flags() >> 31, 0u);
    item->TransMode(PerPixel);
    const Ref<ThemeItem> premultiplied = ReadFrom(Written(item));
    EXPECT_EQ(premultiplied->Image()->Flags() >> 31, 1u);
    EXPECT_TRUE(premultiplied->Image()->Equal(item->Image()));
}

TEST(ItemImages, ThatCantBeReadLeaveTheItemsOwn) {
    for (const Variant& value :
         {Variant(7), Variant("text"), Variant(ByteArray{}), Variant(ByteArray{1, 2, 3})}) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        const Ref<cAlphaDIBSection> image = SurfaceOf(1, 1), glyph = SurfaceOf(1, 1);
        item->Image(image);
        item->Glyph(glyph);
        item->ReadProperties(Bag(2, {{"ImageBag", value}, {"GlyphBag", value}, {"GlyphAlign", 8}}));
        EXPECT_EQ(item->Image(), image);
        EXPECT_EQ(item->Glyph(), glyph);
        EXPECT_EQ(item->GlyphAlign(), 8);  // what follows is read all the same
    }
}

TEST(ItemImages, OfAnEmptyBagAreEmptySurfaces) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(SurfaceOf(1, 1));
    item->ReadProperties(Bag(2, {{"ImageBag", New<ole::PropertyBag>()->Contents()}}));
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->Image()->Width(), 0);
}

TEST(ItemImages, ThatFailAreEmptyFromThere) {
    const Ref<ole::PropertyBag> inner = New<ole::PropertyBag>();
    inner->WriteProperty("cAlphaDIBSection_compressed", "no number");
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(SurfaceOf(1, 1));
    item->ReadProperties(Bag(2, {{"ImageBag", inner->Contents()}, {"GlyphAlign", 8}}));
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->Image()->Width(), 0);
    EXPECT_EQ(item->GlyphAlign(), 8);
}

// Fonts and styles.

TEST(ItemStates, ThatSayNoMoreThanNormalAreNotStored) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateNormal, FontOf(10));
    item->StateFont(E_ItemStateMouseOver, FontOf(10));
    item->StateTextStyle(E_ItemStateNormal, StyleOf(5));
    item->StateTextStyle(E_ItemStateFocus, StyleOf(5));
    item->StateTextStyle(E_ItemStateDisabled, StyleOf(static_cast<int32_t>(0x80000011)));
    const Ref<ole::PropertyBag> bag = Written(item);
    EXPECT_TRUE(bag->Has("FontNormal"));
    EXPECT_TRUE(bag->Has("TextStyleNormal"));
    for (const char* key : {"FontMouseOver", "TextStyleFocus", "TextStyleDisabled"}) {
        EXPECT_FALSE(bag->Has(key)) << key;
    }
    EXPECT_EQ(item->Fonts()->Count(), 1);  // writing changes the item itself
    EXPECT_EQ(item->TextStyles()->Count(), 1);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateNormal)->TextColor, 5);
}

TEST(ItemStates, ANormalFontThatTheReaderHasIsNotStored) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateNormal, FontOf(10));
    item->StateFont(E_ItemStateMouseOver, FontOf(10));
    item->StateFont(E_ItemStatePressed, FontOf(11));
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    item->WriteProperties(bag, nullptr, FontOf(10));
    EXPECT_FALSE(bag->Has("FontNormal"));
    EXPECT_FALSE(bag->Has("FontMouseOver"));
    EXPECT_TRUE(bag->Has("FontPressed"));
    const Ref<ole::PropertyBag> other = New<ole::PropertyBag>();
    item->WriteProperties(other, nullptr, FontOf(11));
    EXPECT_TRUE(other->Has("FontNormal"));
    EXPECT_TRUE(other->Has("FontPressed"));  // no state but Normal asks
}

TEST(ItemStates, OnlyNormalAndDisabledStylesAreMeasuredAgainstTheReaders) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    for (int32_t state = 1; state <= 7; ++state) item->StateTextStyle(state, StyleOf(5));
    item->StateTextStyle(E_ItemStateNormal, StyleOf(6));
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    item->WriteProperties(bag, nullptr, nullptr, StyleOf(5));
    for (int32_t state = 0; state <= 7; ++state) {
        const bool stored = bag->Has("TextStyle" + ThemeItem::StateName(state));
        EXPECT_EQ(stored, state != E_ItemStateDisabled) << state;
    }
    const Ref<ole::PropertyBag> other = New<ole::PropertyBag>();
    item->WriteProperties(other, nullptr, nullptr, StyleOf(6));
    EXPECT_FALSE(other->Has("TextStyleNormal"));
    EXPECT_TRUE(other->Has("TextStyleDisabled"));
}

TEST(ItemStates, ThatTheBagDoesNotMentionStay) {
    const Ref<ThemeItem> item = New<ThemeItem>(), source = New<ThemeItem>();
    const Ref<LFont> pressed = FontOf(10);
    item->StateFont(E_ItemStatePressed, pressed);
    item->StateFont(E_ItemStateNormal, FontOf(9));
    source->StateFont(E_ItemStateNormal, FontOf(12));
    source->StateTextStyle(E_ItemStateGroup, StyleOf(7));
    item->ReadProperties(Written(source));
    EXPECT_EQ(item->StateFont(E_ItemStatePressed), pressed);
    EXPECT_EQ(item->StateFont(E_ItemStateNormal)->Height, 12);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateGroup)->TextColor, 7);
}

TEST(ItemStates, AnEntryThatCantBeReadLeavesTheItemsOwnAndTheNextIsRead) {
    const Ref<ole::PropertyBag> overflow = New<ole::PropertyBag>(), good = New<ole::PropertyBag>();
    overflow->WriteProperty("Italic", 300);
    good->WriteProperty("Height", 21);
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> normal = FontOf(10);
    item->StateFont(E_ItemStateNormal, normal);
    item->ReadProperties(Bag(2, {{"FontNormal", overflow->Contents()},
                                 {"TextStyleNormal", ByteArray{9}},
                                 {"FontMouseOver", 5},
                                 {"FontPressed", good->Contents()}}));
    EXPECT_EQ(item->StateFont(E_ItemStateNormal), normal);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateNormal), nullptr);
    EXPECT_EQ(item->StateFont(E_ItemStateMouseOver), nullptr);
    EXPECT_EQ(item->StateFont(E_ItemStatePressed)->Height, 21);
}

TEST(ItemStates, ADefaultFontIsStoredAsAnEmptyBag) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateNormal, New<LFont>());
    EXPECT_THAT(test::InnerBag(Written(item), "FontNormal")->Names(), IsEmpty());
    EXPECT_TRUE(ReadFrom(Written(item))->StateFont(E_ItemStateNormal)->Equal(New<LFont>()));
}

// Reading.

TEST(ItemReading, OfAVersionAloneGivesTheReadersDefaults) {
    const Ref<ThemeItem> item = ReadFrom(Bag(1));
    EXPECT_EQ(item->IconTransMode(), 2);
    EXPECT_EQ(item->IconAlign(), 1);
    EXPECT_EQ(item->FrameOrder(), 0);
    EXPECT_EQ(item->ImageMarginLeft(), 0);
    EXPECT_EQ(item->ImageMarginTop(), 0);
    EXPECT_EQ(item->ImageMarginRight(), 0);
    EXPECT_EQ(item->ImageMarginBottom(), 0);
}

TEST(ItemReading, OfABagWithoutAVersionIsThatOfTheFirst) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    bag->WriteProperty("ImageFlags", 0x20000000);
    EXPECT_EQ(ReadFrom(bag)->GlyphFrameVert(), -1);
    EXPECT_EQ(ReadFrom(bag)->IconTransMode(), 2);
}

TEST(ItemReading, OfAnUnknownVersionLeavesTheItemAsItWas) {
    for (const Variant& version :
         {Variant(3), Variant(0), Variant(-1), Variant("two"), Variant(ByteArray{2})}) {
        const Ref<ThemeItem> item = test::FullItem();
        const ByteArray before = BagOf(item);
        const Ref<ole::PropertyBag> bag = Written(New<ThemeItem>());
        bag->WriteProperty("Version", version);
        item->ReadProperties(bag);
        EXPECT_EQ(BagOf(item), before);
    }
}

TEST(ItemReading, OfTheFirstVersionTurnsTheGlyphWithTheImage) {
    EXPECT_EQ(ReadFrom(Bag(1, {{"ImageFlags", 0x20000000}}))->GlyphFrameVert(), -1);
    EXPECT_EQ(ReadFrom(Bag(1, {{"ImageFlags", 0}}))->GlyphFrameVert(), 0);
    EXPECT_EQ(ReadFrom(Bag(1, {{"ImageFlags", 0x04000000}}))->GlyphFrameVert(), -1);
    const Ref<ThemeItem> second = ReadFrom(Bag(2, {{"ImageFlags", 0x20000000}}));
    EXPECT_EQ(second->FrameVert(), -1);
    EXPECT_EQ(second->GlyphFrameVert(), 0);
    const Ref<ThemeItem> direct = New<ThemeItem>();
    direct->ReadProperties_v1(Bag(1, {{"ImageFlags", 0x20000000}}));
    EXPECT_EQ(direct->GlyphFrameVert(), 0);
}

TEST(ItemReading, TakesNumbersPastTheSetters) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(4);
    item->ReadProperties(Bag(2, {{"FrameOrder", 5}}));
    EXPECT_EQ(item->FrameCount(), 0);
    EXPECT_EQ(item->FrameOrder(), 5);
    item->ReadProperties(Bag(2, {{"FrameOrder", 5}, {"FrameCount", 9}}));
    for (int32_t state = 0; state <= 8; ++state) EXPECT_EQ(item->StateFrame(state), 0) << state;
}

TEST(ItemReading, TakesAtMostNineEntriesOfATable) {
    const ByteArray twelve{9, 8, 7, 6, 5, 4, 3, 2, 1, 99, 99, 99};
    EXPECT_EQ(ReadFrom(Bag(2, {{"FrameOrder", -1}, {"FrameIndex", twelve}}))->StateFrames(),
              (ByteArray{9, 8, 7, 6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(
        ReadFrom(Bag(2, {{"FrameOrder", -1}, {"FrameIndex", ByteArray{9, 9, 9}}}))->StateFrames(),
        (ByteArray{9, 9, 9, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(ReadFrom(Bag(2, {{"GlyphFrameIndex", twelve}}))->GlyphStateFrames(),
              (ByteArray{9, 8, 7, 6, 5, 4, 3, 2, 1}));
    EXPECT_EQ(ReadFrom(Bag(2, {{"GlyphFrameIndex", ByteArray{9}}}))->GlyphStateFrames(),
              (ByteArray{9, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(ItemReading, TakesTheImagesTableOnlyForAnOrderOfItsOwn) {
    const ByteArray untouched = New<ThemeItem>()->StateFrames();
    EXPECT_EQ(ReadFrom(Bag(2, {{"FrameOrder", 1}, {"FrameIndex", ByteArray{9}}}))->StateFrames(),
              untouched);
    for (const Variant& value : {Variant(7), Variant("9,9"), Variant(true)}) {
        const Ref<ThemeItem> item = ReadFrom(
            Bag(2, {{"FrameOrder", -1}, {"FrameIndex", value}, {"GlyphFrameIndex", value}}));
        EXPECT_EQ(item->FrameOrder(), -1);
        EXPECT_EQ(item->StateFrames(), untouched);
        EXPECT_EQ(item->GlyphStateFrames(), untouched);
    }
}

TEST(ItemReading, AGlyphTableMakesTheGlyphGoByIt) {
    const auto order = [](const Ref<ThemeItem>& item) {
        return IntegerIn(Written(item), "GlyphFrameOrder");
    };
    EXPECT_EQ(order(ReadFrom(Bag(2, {{"FrameOrder", 1}, {"GlyphFrameIndex", ByteArray{2}}}))), -1);
    EXPECT_EQ(order(ReadFrom(Bag(2, {{"FrameOrder", 1}, {"GlyphFrameIndex", 2}}))), 1);
    EXPECT_EQ(order(ReadFrom(Bag(2, {{"FrameOrder", 1}, {"GlyphFrameOrder", 5}}))), 5);
}

TEST(ItemReading, LeavesTheFramesOfTheStateUntilItIsSetAgain) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    item->State(E_ItemStatePressed);
    EXPECT_EQ(item->CurrentFrame(), 2);
    item->ReadProperties(Bag(2, {{"FrameCount", 1}}));
    EXPECT_EQ(item->State(), E_ItemStatePressed);
    EXPECT_EQ(item->CurrentFrame(), 2);
}

// Failures.

TEST(ItemReading, RaisesForANumberThatIsNoneAndKeepsWhatWasReadBefore) {
    // In the order of reading: each bag breaks at a later key than the one before.
    const char* const kOrder[] = {
        "ContentMarginLeft", "ContentMarginTop", "ContentMarginRight", "ContentMarginBottom",
        "BackgroundEffect",  "ImageMarginLeft",  "ImageMarginTop",     "ImageMarginRight",
        "ImageMarginBottom", "GlyphMarginLeft",  "GlyphMarginTop",     "GlyphMarginRight",
        "GlyphMarginBottom", "IconMarginLeft",   "IconMarginTop",      "IconMarginRight",
        "IconMarginBottom",  "IconTransMode",    "IconAlign",          "IconWidth",
        "IconHeight",        "ImageFlags",       "ImageAlpha",         "GlyphAlpha",
        "FrameCount",        "FrameOrder",       "GlyphFrameOrder"};
    const auto marginOf = [](const std::string& key) {
        const size_t at = key.find("Margin");
        return at == std::string::npos ? key : key.substr(0, at);
    };
    std::vector<std::string> read;
    for (const char* broken : kOrder) {
        const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
        for (const NumberKey& number : kNumbers) bag->WriteProperty(number.key, 7);
        bag->WriteProperty("Version", 2);
        bag->WriteProperty(broken, "no number");
        const Ref<ThemeItem> item = New<ThemeItem>();
        for (const NumberKey& number : kNumbers) number.set(*item, 3);
        EXPECT_EQ(RaisedBy([&] { item->ReadProperties(bag); }), 13) << broken;
        for (const NumberKey& number : kNumbers) {
            const bool before = std::find(read.begin(), read.end(), number.key) != read.end();
            // A margin is taken over whole or not at all.
            const bool taken = before && marginOf(number.key) != marginOf(broken);
            EXPECT_EQ(number.get(*item), taken ? 7 : 3) << number.key << " before " << broken;
        }
        read.push_back(broken);
    }
}

TEST(ItemReading, SkipsWhatFailsBehindTheNumbers) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->GlyphAlign(6);
    item->GlyphFrames(5);
    item->ReadProperties(
        Bag(2, {{"GlyphAlign", "x"}, {"GlyphFrames", ByteArray{1}}, {"FrameCount", 3}}));
    EXPECT_EQ(item->GlyphAlign(), 6);
    EXPECT_EQ(item->GlyphFrames(), 5);
    EXPECT_EQ(item->FrameCount(), 3);
    item->ReadProperties(Bag(2, {{"FrameCount", 3}}));
    EXPECT_EQ(item->GlyphFrames(), 3);
}

TEST(ItemBag, OfNoneRaises) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    gdi::RECT rc{};
    EXPECT_EQ(RaisedBy([&] { item->ReadProperties(nullptr); }), 91);
    EXPECT_EQ(RaisedBy([&] { item->ReadProperties_v1(nullptr); }), 91);
    EXPECT_EQ(RaisedBy([&] { item->WriteProperties(nullptr); }), 91);
    EXPECT_EQ(RaisedBy([&] { item->ReadPropertiesRECT(nullptr, rc, "A"); }), 91);
    EXPECT_EQ(RaisedBy([&] { item->WritePropertiesRECT(nullptr, rc, "A"); }), 91);
}

// Rectangles.

TEST(ItemRectangle, IsFourKeysInOrderWithoutThoseOfNought) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->WritePropertiesRECT(bag, {1, 2, 3, 4}, "Box");
    EXPECT_THAT(NamesIn(bag), ElementsAre("BoxLeft", "BoxTop", "BoxRight", "BoxBottom"));
    gdi::RECT rc{};
    item->ReadPropertiesRECT(bag, rc, "Box");
    EXPECT_THAT((std::vector{rc.left, rc.top, rc.right, rc.bottom}), ElementsAre(1, 2, 3, 4));
    item->WritePropertiesRECT(bag, {0, 2, 0, 0}, "Box");
    EXPECT_THAT(NamesIn(bag), ElementsAre("BoxTop"));
    item->ReadPropertiesRECT(bag, rc, "Box");
    EXPECT_THAT((std::vector{rc.left, rc.top, rc.right, rc.bottom}), ElementsAre(0, 2, 0, 0));
}

TEST(ItemInABag, IsStoredLikeAnyValue) {
    const Ref<ThemeItem> item = New<ThemeItem>(), other = New<ThemeItem>();
    item->SetImage(SurfaceOf(6, 2), 3, 0, Trans);
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    bag->WriteProperty("item", item);
    EXPECT_EQ(bag->ReadProperty("item"), Variant(Written(item)->Contents()));
    EXPECT_TRUE(bag->RestoreProperty("item", *other));
    EXPECT_EQ(Written(other)->Contents(), Written(item)->Contents());
}

}  // namespace
}  // namespace vxgui
