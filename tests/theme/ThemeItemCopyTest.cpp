#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/theme/StoredItems.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {
namespace {

using test::BagOf;
using test::FontOf;
using test::FullItem;
using test::StyleOf;
using test::SurfaceOf;

constexpr int32_t kGray = static_cast<int32_t>(0x80000011);

/// An item that equals itself: what is compared with the icon's place is the glyph's.
Ref<ThemeItem> FullPeer() {
    const Ref<ThemeItem> item = FullItem();
    item->IconAlign(item->GlyphAlign());
    return item;
}

struct FourSides {
    int32_t left, top, right, bottom;
    friend bool operator==(const FourSides&, const FourSides&) = default;
};
FourSides GlyphMarginOf(const Ref<ThemeItem>& item) {
    FourSides m;
    item->GetGlyphMargin(m.left, m.top, m.right, m.bottom);
    return m;
}
FourSides IconMarginOf(const Ref<ThemeItem>& item) {
    FourSides m;
    item->GetIconMargin(m.left, m.top, m.right, m.bottom);
    return m;
}

// Clone.

TEST(ItemClone, HasSurfacesFontsAndStylesOfItsOwn) {
    const Ref<ThemeItem> item = FullItem(), copy = item->Clone();
    EXPECT_EQ(BagOf(copy), BagOf(item));
    EXPECT_FALSE(copy->Image() == item->Image());
    EXPECT_FALSE(copy->Glyph() == item->Glyph());
    EXPECT_FALSE(copy->Fonts() == item->Fonts());
    EXPECT_FALSE(copy->StateFont(0) == item->StateFont(0));
    EXPECT_FALSE(copy->StateTextStyle(0) == item->StateTextStyle(0));
}

TEST(ItemClone, HasOnlyWhatIsKept) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    item->State(E_ItemStatePressed);
    item->IconWidth(16);
    item->IconHeight(32);
    item->Numbers().TextColour = 4;
    item->ImportedNumbers().PartHeight = 5;
    const Ref<ThemeItem> copy = item->Clone();
    EXPECT_EQ(copy->State(), 0);
    EXPECT_EQ(copy->CurrentFrame(), 0);
    EXPECT_EQ(copy->IconHeight(), 16);
    EXPECT_EQ(copy->Numbers().TextColour, 0);
    EXPECT_EQ(copy->ImportedNumbers().PartHeight, 0);
    EXPECT_EQ(copy->FrameCount(), 3);
}

TEST(ItemClone, LosesTheFontsOfAnOwner) {
    struct Owner : ThemeOwner {
        int32_t Colour(int32_t) override { return 5; }
        Ref<LFont> Font(int32_t) override { return FontOf(77); }
    };
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Owner(New<Owner>());
    ASSERT_EQ(item->GetStateFont(0)->Height, 77);
    const Ref<ThemeItem> copy = item->Clone();
    EXPECT_EQ(copy->Owner(), nullptr);
    EXPECT_EQ(copy->StateFont(0), nullptr);
    EXPECT_NE(copy->GetStateFont(0)->Height, 77);
}

TEST(ItemClone, MinimizesItsSource) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->StateFont(E_ItemStateNormal, FontOf(9));
    item->StateFont(E_ItemStateGroup, FontOf(9));
    item->StateTextStyle(E_ItemStateNormal, StyleOf(9));
    item->StateTextStyle(E_ItemStateDisabled, StyleOf(kGray));
    item->Clone();
    EXPECT_EQ(item->StateFont(E_ItemStateGroup), nullptr);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateDisabled), nullptr);
}

// CopyTo.

TEST(ItemCopyTo, AnswersEmptyAndDoesNothingWithoutFlags) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    EXPECT_TRUE(item->CopyTo(target, 0).IsEmpty());
    EXPECT_EQ(BagOf(target), BagOf(New<ThemeItem>()));
    EXPECT_TRUE(item->CopyTo(target, COPYTO_Image).IsEmpty());
}

TEST(ItemCopyTo, NoneRaises) {
    EXPECT_EQ(test::RaisedBy([] { New<ThemeItem>()->CopyTo(nullptr, COPYTO_Image); }), 91);
}

TEST(ItemCopyTo, AnImageIsShared) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    item->CopyTo(target, COPYTO_Image);
    EXPECT_EQ(target->Image(), item->Image());
    EXPECT_EQ(target->Glyph(), nullptr);
    EXPECT_EQ(target->FrameCount(), 0);
    EXPECT_EQ(target->TransMode(), Normal);
    target->Image()->TransparentColor(0x123456);
    EXPECT_EQ(item->Image()->TransparentColor(), 0x123456);
    New<ThemeItem>()->CopyTo(target, COPYTO_Image);
    EXPECT_EQ(target->Image(), nullptr);
}

TEST(ItemCopyTo, TheImagesPropertiesTravelWithTheIcons) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    item->IconHeight(19);
    item->CopyTo(target, COPYTO_ImageProp);
    EXPECT_EQ(target->BackgroundEffect(), 17);
    EXPECT_EQ(target->FrameCount(), 4);
    EXPECT_EQ(target->FrameVert(), -1);
    EXPECT_EQ(target->ImageAlpha(), 200);
    EXPECT_EQ(target->TransMode(), PerPixel);
    EXPECT_EQ(target->FrameOrder(), -1);
    EXPECT_EQ(target->Tile(), TileXStretchY);
    EXPECT_EQ(target->TileLeft(), -1);
    EXPECT_EQ(target->TileTop(), 0);
    EXPECT_EQ(target->TileRight(), -1);
    EXPECT_EQ(target->TileBottom(), 0);
    EXPECT_EQ(target->IconAlign(), RightTop);
    EXPECT_EQ(target->IconTransMode(), 1);
    EXPECT_EQ(target->IconWidth(), 18);
    EXPECT_EQ(target->IconHeight(), 19);
    EXPECT_EQ(target->Image(), nullptr);
    EXPECT_EQ(target->ImageMarginLeft(), 4);
    EXPECT_EQ(target->ContentLeft(), 0);
    EXPECT_EQ(target->GlyphTransMode(), Normal);
}

TEST(ItemCopyTo, AFrameOrderTravelsWithoutItsTable) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    item->CopyTo(target, 0xFFFFFFFF);
    EXPECT_EQ(target->FrameOrder(), -1);
    EXPECT_EQ(target->StateFrames(), New<ThemeItem>()->StateFrames());
    EXPECT_EQ(target->GlyphStateFrames(), New<ThemeItem>()->GlyphStateFrames());
}

TEST(ItemCopyTo, AFrameCountOfNoughtKeepsTheTargets) {
    const Ref<ThemeItem> target = New<ThemeItem>();
    target->FrameCount(5);
    New<ThemeItem>()->CopyTo(target, COPYTO_ImageProp);
    EXPECT_EQ(target->FrameCount(), 5);
}

TEST(ItemCopyTo, APerPixelModePremultipliesTheTargetsImage) {
    const Ref<ThemeItem> item = New<ThemeItem>(), target = New<ThemeItem>();
    item->TransMode(PerPixel);
    target->Image(SurfaceOf(4, 3));
    item->CopyTo(target, COPYTO_ImageProp);
    EXPECT_EQ(target->Image()->Flags() >> 31, 1u);
}

TEST(ItemCopyTo, TheGlyphsPropertiesLeaveOutItsAlphaAndDirection) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    item->GlyphFrameVert(-1);
    item->CopyTo(target, COPYTO_GlyphProp);
    EXPECT_EQ(target->GlyphFrames(), 3);
    EXPECT_EQ(target->GlyphTransMode(), Trans);
    EXPECT_EQ(target->GlyphAlign(), RightBottom);
    EXPECT_EQ(GlyphMarginOf(target), (FourSides{5, 6, 7, 8}));
    EXPECT_EQ(target->GlyphAlpha(), 255);
    EXPECT_EQ(target->GlyphFrameVert(), 0);
    EXPECT_EQ(target->Glyph(), nullptr);
}

TEST(ItemCopyTo, GlyphFramesTravelAsTheyRead) {
    const Ref<ThemeItem> item = New<ThemeItem>(), target = New<ThemeItem>();
    item->FrameCount(6);
    item->CopyTo(target, COPYTO_GlyphProp);
    EXPECT_EQ(target->GlyphFrames(), 6);
    EXPECT_EQ(target->FrameCount(), 0);
}

TEST(ItemCopyTo, AGlyphIsSharedAndMarginsAreCopied) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    item->CopyTo(target, COPYTO_Glyph);
    EXPECT_EQ(target->Glyph(), item->Glyph());
    EXPECT_EQ(target->GlyphTransMode(), Normal);
    item->CopyTo(target, COPYTO_ImageMargin);
    EXPECT_EQ(target->ImageMarginLeft(), 1);
    EXPECT_EQ(target->ImageMarginTop(), 2);
    EXPECT_EQ(target->ImageMarginRight(), 3);
    EXPECT_EQ(target->ImageMarginBottom(), 4);
    EXPECT_EQ(IconMarginOf(target), (FourSides{13, 14, 15, 16}));
    EXPECT_EQ(target->ContentLeft(), 0);
    item->CopyTo(target, COPYTO_ContentMargin);
    EXPECT_EQ(target->ContentLeft(), 9);
    EXPECT_EQ(target->ContentTop(), 10);
    EXPECT_EQ(target->ContentRight(), 11);
    EXPECT_EQ(target->ContentBottom(), 12);
    EXPECT_EQ(GlyphMarginOf(target), (FourSides{0, 0, 0, 0}));
}

TEST(ItemCopyTo, FontsByValueLeaveTheTargetsEmpty) {
    const Ref<ThemeItem> item = FullItem(), target = FullItem();
    item->CopyTo(target, COPYTO_FontsLet);
    EXPECT_EQ(target->Fonts()->Count(), 0);
    EXPECT_EQ(target->TextStyles()->Count(), 8);
    item->CopyTo(target, COPYTO_TextStylesLet);
    EXPECT_EQ(target->TextStyles()->Count(), 0);
    EXPECT_EQ(item->Fonts()->Count(), 8);
}

TEST(ItemCopyTo, FontsByReferenceAreSharedByBoth) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    item->CopyTo(target, COPYTO_FontsSet);
    EXPECT_EQ(target->StateTextStyle(0), nullptr);
    target->StateFont(E_ItemStateGroup, nullptr);
    EXPECT_EQ(item->StateFont(E_ItemStateGroup), nullptr);
    item->CopyTo(target, COPYTO_TextStylesSet);
    item->StateTextStyle(E_ItemStateNormal, StyleOf(99));
    EXPECT_EQ(target->StateTextStyle(E_ItemStateNormal)->TextColor, 99);
}

TEST(ItemCopyTo, CollectionsThatAreNotThereYetAreSharedToo) {
    const Ref<ThemeItem> item = New<ThemeItem>(), target = New<ThemeItem>();
    item->CopyTo(target, COPYTO_FontsSet | COPYTO_TextStylesSet);
    item->StateFont(E_ItemStateNormal, FontOf(5));
    item->StateTextStyle(E_ItemStateNormal, StyleOf(5));
    EXPECT_NE(target->StateFont(E_ItemStateNormal), nullptr);
    EXPECT_NE(target->StateTextStyle(E_ItemStateNormal), nullptr);
}

TEST(ItemCopyTo, BothWaysAtOnceAreNeither) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    target->StateFont(E_ItemStateNormal, FontOf(5));
    target->StateTextStyle(E_ItemStateNormal, StyleOf(5));
    item->CopyTo(target, COPYTO_FontsMask | COPYTO_TextStylesMask);
    EXPECT_EQ(target->StateFont(E_ItemStateNormal)->Height, 5);
    EXPECT_EQ(target->StateTextStyle(E_ItemStateNormal)->TextColor, 5);
}

TEST(ItemCopyTo, TheTwoNamedSetsLeaveOutOnePictureEach) {
    const Ref<ThemeItem> item = FullItem();
    const Ref<ThemeItem> noImage = New<ThemeItem>(), noGlyph = New<ThemeItem>();
    item->CopyTo(noImage, COPYTO_NoImage);
    item->CopyTo(noGlyph, COPYTO_NoGlyph);
    EXPECT_EQ(noImage->Image(), nullptr);
    EXPECT_EQ(noImage->Glyph(), item->Glyph());
    EXPECT_EQ(noGlyph->Image(), item->Image());
    EXPECT_EQ(noGlyph->Glyph(), nullptr);
    for (const Ref<ThemeItem>& copy : {noImage, noGlyph}) {
        EXPECT_EQ(copy->FrameCount(), 4);
        EXPECT_EQ(copy->GlyphFrames(), 3);
        EXPECT_EQ(copy->ContentTop(), 10);
        EXPECT_EQ(copy->ImageMarginTop(), 2);
        EXPECT_EQ(copy->Fonts(), item->Fonts());
        EXPECT_EQ(copy->TextStyles(), item->TextStyles());
    }
}

TEST(ItemCopyTo, LeavesStateOwnerAndNumbers) {
    const Ref<ThemeItem> item = FullItem(), target = New<ThemeItem>();
    item->State(E_ItemStatePressed);
    item->Owner(New<ThemeSet>());
    item->Numbers().NormalFont = 3;
    item->CopyTo(target, 0xFFFFFFFF);
    EXPECT_EQ(target->State(), 0);
    EXPECT_EQ(target->Owner(), nullptr);
    EXPECT_EQ(target->Numbers().NormalFont, 0);
}

TEST(ItemCopyTo, ItselfChangesNothing) {
    const Ref<ThemeItem> item = FullItem();
    const ByteArray before = BagOf(item);
    item->CopyTo(item, COPYTO_NoImage | COPYTO_NoGlyph);
    EXPECT_EQ(BagOf(item), before);
}

// Equal.

TEST(ItemEqual, NothingEqualsNone) {
    EXPECT_FALSE(New<ThemeItem>()->Equal(nullptr));
    EXPECT_FALSE(FullPeer()->Equal(nullptr));
}

TEST(ItemEqual, ANewItemDoesNotEqualItself) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_FALSE(item->Equal(item));
    item->IconAlign(item->GlyphAlign());
    EXPECT_TRUE(item->Equal(item));
}

TEST(ItemEqual, ACloneEqualsItsSourceWhenTheGlyphStandsWhereTheIconDoes) {
    const Ref<ThemeItem> item = FullPeer();
    EXPECT_TRUE(item->Equal(item->Clone()));
    EXPECT_TRUE(item->Clone()->Equal(item));
    item->IconAlign(Lefttop);
    EXPECT_FALSE(item->Equal(item->Clone()));
}

TEST(ItemEqual, LooksAtTheOthersIconAlignAndNotAtItsOwn) {
    const Ref<ThemeItem> item = FullPeer(), other = FullPeer();
    item->IconAlign(Lefttop);
    EXPECT_TRUE(item->Equal(other));
    EXPECT_FALSE(other->Equal(item));
}

TEST(ItemEqual, EveryPropertyCounts) {
    using Change = void (*)(ThemeItem&);
    const std::pair<const char*, Change> kChanges[] = {
        {"no image", [](ThemeItem& i) { i.Image(nullptr); }},
        {"image", [](ThemeItem& i) { i.Image(SurfaceOf(1, 1)); }},
        {"content left", [](ThemeItem& i) { i.ContentLeft(99); }},
        {"content top", [](ThemeItem& i) { i.ContentTop(99); }},
        {"content right", [](ThemeItem& i) { i.ContentRight(99); }},
        {"content bottom", [](ThemeItem& i) { i.ContentBottom(99); }},
        {"image left", [](ThemeItem& i) { i.ImageMarginLeft(99); }},
        {"image top", [](ThemeItem& i) { i.ImageMarginTop(99); }},
        {"image right", [](ThemeItem& i) { i.ImageMarginRight(99); }},
        {"image bottom", [](ThemeItem& i) { i.ImageMarginBottom(99); }},
        {"effect", [](ThemeItem& i) { i.BackgroundEffect(99); }},
        {"flags", [](ThemeItem& i) { i.ImageFlags(i.ImageFlags() ^ 0x100); }},
        {"alpha", [](ThemeItem& i) { i.ImageAlpha(99); }},
        {"frames", [](ThemeItem& i) { i.FrameCount(99); }},
        {"order", [](ThemeItem& i) { i.FrameOrder(1); }},
        {"no glyph", [](ThemeItem& i) { i.Glyph(nullptr); }},
        {"glyph", [](ThemeItem& i) { i.Glyph(SurfaceOf(1, 1)); }},
        {"glyph frames", [](ThemeItem& i) { i.GlyphFrames(99); }},
        {"glyph alpha", [](ThemeItem& i) { i.GlyphAlpha(99); }},
        {"glyph align", [](ThemeItem& i) { i.GlyphAlign(0); }},
        {"icon align", [](ThemeItem& i) { i.IconAlign(0); }},
        {"icon mode", [](ThemeItem& i) { i.IconTransMode(9); }},
        {"icon width", [](ThemeItem& i) { i.IconWidth(99); }},
        {"icon height", [](ThemeItem& i) { i.IconHeight(99); }},
        {"glyph left", [](ThemeItem& i) { i.SetGlyphMargin(99, 6, 7, 8); }},
        {"glyph top", [](ThemeItem& i) { i.SetGlyphMargin(5, 99, 7, 8); }},
        {"glyph right", [](ThemeItem& i) { i.SetGlyphMargin(5, 6, 99, 8); }},
        {"glyph bottom", [](ThemeItem& i) { i.SetGlyphMargin(5, 6, 7, 99); }},
        {"icon left", [](ThemeItem& i) { i.SetIconMargin(99, 14, 15, 16); }},
        {"icon top", [](ThemeItem& i) { i.SetIconMargin(13, 99, 15, 16); }},
        {"icon right", [](ThemeItem& i) { i.SetIconMargin(13, 14, 99, 16); }},
        {"icon bottom", [](ThemeItem& i) { i.SetIconMargin(13, 14, 15, 99); }},
        {"frame",
         [](ThemeItem& i) {
             i.StateFrames(ByteArray{3, 2, 1, 0, 255, 2, 1, 3});
         }},
        {"font", [](ThemeItem& i) { i.StateFont(E_ItemStateGroup, FontOf(1)); }},
        {"style", [](ThemeItem& i) { i.StateTextStyle(E_ItemStateGroup, StyleOf(1)); }},
    };
    for (const auto& [name, change] : kChanges) {
        const Ref<ThemeItem> item = FullPeer(), other = FullPeer();
        ASSERT_TRUE(item->Equal(other));
        change(*other);
        EXPECT_FALSE(item->Equal(other)) << name;
        const bool oneWay = std::string(name) == "icon align";
        EXPECT_EQ(other->Equal(item), oneWay) << name;
    }
}

TEST(ItemEqual, ComparesFontsAndStylesAsTheStatesDrawWithThem) {
    const Ref<ThemeItem> item = New<ThemeItem>(), other = New<ThemeItem>();
    for (const Ref<ThemeItem>& each : {item, other}) {
        each->IconAlign(each->GlyphAlign());
        each->StateFont(E_ItemStateNormal, FontOf(9));
        each->StateTextStyle(E_ItemStateNormal, StyleOf(9));
    }
    other->StateFont(E_ItemStatePressed, FontOf(9));
    other->StateTextStyle(E_ItemStateFocus, StyleOf(9));
    other->StateTextStyle(E_ItemStateDisabled, StyleOf(kGray));
    EXPECT_TRUE(item->Equal(other));
    EXPECT_TRUE(other->Equal(item));
}

TEST(ItemEqual, LeavesOutTheLastStateTheGlyphsTableAndWhatIsImported) {
    const Ref<ThemeItem> item = FullPeer(), other = FullPeer();
    other->StateFont(E_ItemStateFocusMouseOver, FontOf(1));
    other->StateTextStyle(E_ItemStateFocusMouseOver, StyleOf(1));
    other->GlyphStateFrames(ByteArray{0, 0, 0});
    other->State(E_ItemStatePressed);
    other->Numbers().PressedColour = 7;
    other->ImportedNumbers().PartWidth = 7;
    EXPECT_TRUE(item->Equal(other));
}

TEST(ItemEqual, AfterACloneTheIconsHeightMayDiffer) {
    const Ref<ThemeItem> item = FullPeer(), other = FullPeer();
    item->IconHeight(32);
    EXPECT_FALSE(item->Equal(other));
    EXPECT_FALSE(item->Equal(item->Clone()));
}

TEST(ItemEqual, GlyphFramesAreComparedAsTheyRead) {
    const Ref<ThemeItem> item = FullPeer(), other = FullPeer();
    item->GlyphFrames(0);
    other->GlyphFrames(4);
    EXPECT_TRUE(item->Equal(other));
}

}  // namespace
}  // namespace vxgui
