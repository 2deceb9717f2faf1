#include "vxgui/theme/ThemeItem.h"

#include <gtest/gtest.h>

#include "tests/theme/RecordingSurface.h"
#include "tests/theme/StoredItems.h"

namespace vxgui {
namespace {

using test::RecordingSurface;

TEST(NewThemeItem, HasTheDocumentedValues) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_EQ(item->FrameOrder(), 1);
    EXPECT_EQ(item->GlyphAlign(), 1);
    EXPECT_EQ(item->ImageMarginLeft(), 4);
    EXPECT_EQ(item->ImageMarginTop(), 4);
    EXPECT_EQ(item->ImageMarginRight(), 4);
    EXPECT_EQ(item->ImageMarginBottom(), 4);
    EXPECT_EQ(item->ImageAlpha(), 255);
    EXPECT_EQ(item->GlyphAlpha(), 255);
    EXPECT_EQ(item->StateFrames(), (ByteArray{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(item->GlyphStateFrames(), (ByteArray{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(item->FrameCount(), 0);
    EXPECT_EQ(item->State(), 0);
    EXPECT_EQ(item->ImageFlags(), 0u);
    EXPECT_EQ(item->IconAlign(), 0);
    EXPECT_EQ(item->IconTransMode(), 0);
    EXPECT_EQ(item->IconWidth() + item->IconHeight() + item->BackgroundEffect(), 0);
    EXPECT_EQ(
        item->ContentLeft() + item->ContentTop() + item->ContentRight() + item->ContentBottom(), 0);
    EXPECT_EQ(item->Image(), nullptr);
    EXPECT_EQ(item->Glyph(), nullptr);
}

TEST(FrameCountProperty, OnlyNumbersAboveNoughtAreTaken) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(5);
    item->FrameCount(0);
    EXPECT_EQ(item->FrameCount(), 5);
    item->FrameCount(-1);
    EXPECT_EQ(item->FrameCount(), 5);
    item->SetImage(nullptr, 0, 0, 0);
    EXPECT_EQ(item->FrameCount(), 5);
}

TEST(FrameOrderProperty, OnlyTheThreeOrdersAreTaken) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameOrder(2);
    EXPECT_EQ(item->FrameOrder(), 1);
    item->FrameOrder(-2);
    EXPECT_EQ(item->FrameOrder(), 1);
    item->FrameOrder(0);
    EXPECT_EQ(item->FrameOrder(), 0);
    item->FrameOrder(-1);
    EXPECT_EQ(item->FrameOrder(), -1);
}

TEST(GlyphFramesProperty, ReadingTakesTheFrameCountAndKeepsIt) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(6);
    EXPECT_EQ(item->GlyphFrames(), 6);
    item->FrameCount(9);
    EXPECT_EQ(item->GlyphFrames(), 6);
    item->GlyphFrames(-3);
    EXPECT_EQ(item->GlyphFrames(), 9);
}

struct FlagCase {
    const char* name;
    uint32_t mask;
    void (ThemeItem::*set)(int32_t);
    int32_t (ThemeItem::*get)() const;
};

TEST(ImageFlagsProperty, EachBooleanIsAViewOnItsBit) {
    const FlagCase cases[] = {
        {"TileLeft", 0x10, &ThemeItem::TileLeft, &ThemeItem::TileLeft},
        {"TileTop", 0x20, &ThemeItem::TileTop, &ThemeItem::TileTop},
        {"TileRight", 0x40, &ThemeItem::TileRight, &ThemeItem::TileRight},
        {"TileBottom", 0x80, &ThemeItem::TileBottom, &ThemeItem::TileBottom},
        {"GlyphFrameVert", 0x04000000, &ThemeItem::GlyphFrameVert, &ThemeItem::GlyphFrameVert},
        {"FrameVert", 0x20000000, &ThemeItem::FrameVert, &ThemeItem::FrameVert},
    };
    for (const FlagCase& c : cases) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        ((*item).*c.set)(7);
        EXPECT_EQ(item->ImageFlags(), c.mask) << c.name;
        EXPECT_EQ(((*item).*c.get)(), -1) << c.name;
        item->ImageFlags(0xFFFFFFFF);
        ((*item).*c.set)(0);
        EXPECT_EQ(item->ImageFlags(), ~c.mask) << c.name;
        EXPECT_EQ(((*item).*c.get)(), 0) << c.name;
    }
}

TEST(ImageFlagsProperty, ModesAreViewsOnTheirBits) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->TransMode(PerPixel);
    EXPECT_EQ(item->ImageFlags(), 0x80000000u);
    item->TransMode(Trans);
    EXPECT_EQ(item->ImageFlags(), 0x40000000u);
    EXPECT_EQ(item->TransMode(), Trans);
    item->TransMode(3);
    EXPECT_EQ(item->ImageFlags(), 0u);
    item->GlyphTransMode(PerPixel);
    EXPECT_EQ(item->ImageFlags(), 0x10000000u);
    item->GlyphTransMode(Trans);
    EXPECT_EQ(item->ImageFlags(), 0x08000000u);
    item->ImageFlags(0xD8000000);
    EXPECT_EQ(item->TransMode(), PerPixel);  // the higher bit wins
    EXPECT_EQ(item->GlyphTransMode(), PerPixel);
}

TEST(ImageFlagsProperty, OtherBitsAreKept) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->ImageFlags(0x03FFFF00);
    item->TransMode(PerPixel);
    item->Tile(3);
    EXPECT_EQ(item->ImageFlags(), 0x83FFFF03u);
}

TEST(TileProperty, SixteenLeavesTileNoughtAndSetsTileLeft) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Tile(16);
    EXPECT_EQ(item->Tile(), 0);
    EXPECT_EQ(item->TileLeft(), -1);
    item->Tile(3);  // which clears the low four bits alone
    EXPECT_EQ(item->ImageFlags(), 0x13u);
}

TEST(TransModeProperty, PerPixelPremultipliesTheImageOnce) {
    const Ref<RecordingSurface> surface = New<RecordingSurface>(2, 1);
    static_cast<uint32_t*>(surface->DIBSectionBitsPtr())[0] = 0x7FFFFFFF;
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(surface);
    item->TransMode(Trans);
    EXPECT_EQ(surface->premultiplied, 0);
    item->TransMode(PerPixel);
    item->TransMode(PerPixel);
    EXPECT_EQ(surface->GetPixel(0, 0), 0x7F7F7F7F);
}

TEST(GlyphTransModeProperty, PerPixelPremultipliesTheGlyph) {
    const Ref<RecordingSurface> image = New<RecordingSurface>(2, 1),
                                glyph = New<RecordingSurface>(2, 1);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(image);
    item->Glyph(glyph);
    item->GlyphTransMode(Trans);
    EXPECT_EQ(glyph->premultiplied, 0);
    item->GlyphTransMode(PerPixel);
    EXPECT_EQ(glyph->premultiplied, 1);
    EXPECT_EQ(image->premultiplied, 0);
}

TEST(ImageSize, IsThatOfOneFrame) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_EQ(item->ImageWidth(), 0);
    EXPECT_EQ(item->ImageHeight(), 0);
    item->Image(New<RecordingSurface>(40, 21));
    item->FrameCount(1);
    EXPECT_EQ(item->ImageWidth(), 40);
    item->FrameCount(3);
    EXPECT_EQ(item->ImageWidth(), 13);
    EXPECT_EQ(item->ImageHeight(), 21);
    item->FrameVert(1);
    EXPECT_EQ(item->ImageWidth(), 40);
    EXPECT_EQ(item->ImageHeight(), 7);
}

TEST(SetImage, TurnsAKeyWithPartialOpacityIntoAlpha) {
    const Ref<RecordingSurface> surface = New<RecordingSurface>(2, 1);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(surface, 2, 1, Trans, 252, 0x0000FF);
    EXPECT_EQ(surface->keyed, 1);
    EXPECT_EQ(surface->premultiplied, 1);
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(surface->TransparentColor(), 0x0000FF);
    EXPECT_EQ(item->FrameCount(), 2);
    EXPECT_EQ(item->FrameVert(), -1);
    EXPECT_EQ(item->ImageAlpha(), 252);
}

TEST(SetImage, TurnsAKeyIntoAlphaForAnAlphaOfNoughtToo) {
    const Ref<RecordingSurface> surface = New<RecordingSurface>(2, 1);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(surface, 1, 0, Trans, 0);
    EXPECT_EQ(surface->keyed, 1);
    EXPECT_EQ(item->TransMode(), PerPixel);
}

TEST(SetImage, WithoutASurfaceKeepsTheModeAskedFor) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(nullptr, 1, 0, Trans, 100);
    EXPECT_EQ(item->TransMode(), Trans);
    EXPECT_EQ(item->ImageAlpha(), 100);
}

TEST(SetImage, HasOpaqueAndMagentaForDefaults) {
    const Ref<RecordingSurface> surface = New<RecordingSurface>(2, 1);
    const Ref<ThemeItem> item = New<ThemeItem>();
    surface->TransparentColor(5);
    item->ImageAlpha(9);
    item->SetImage(surface, 1, 0, PerPixel);
    EXPECT_EQ(item->ImageAlpha(), 255);
    EXPECT_EQ(surface->TransparentColor(), 0xFF00FF);
    EXPECT_GT(surface->premultiplied, 0);
    EXPECT_EQ(surface->keyed, 0);
}

TEST(SetImage, KeepsAKeyAtNearlyFullOpacity) {
    const Ref<RecordingSurface> surface = New<RecordingSurface>(2, 1);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(surface, 1, 0, Trans, 253);
    EXPECT_EQ(surface->keyed, 0);
    EXPECT_EQ(item->TransMode(), Trans);
}

TEST(SetImagePicture, WithoutAPictureLeavesNoImage) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(New<RecordingSurface>(2, 2));
    item->SetImagePicture(nullptr, 3, 0, Normal);
    EXPECT_EQ(item->Image(), nullptr);
    EXPECT_EQ(item->FrameCount(), 3);
}

TEST(SetImagePicture, MakesASurfaceOfThePicture) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<ole::Picture> picture = test::SurfaceOf(6, 4)->Picture();
    item->SetImagePicture(picture, 2, 1, Trans, 254, 0x123456);
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->Image()->Width(), 6);
    EXPECT_EQ(item->Image()->Height(), 4);
    EXPECT_EQ(item->Image()->TransparentColor(), 0x123456);
    EXPECT_EQ(item->FrameCount(), 2);
    EXPECT_EQ(item->FrameVert(), -1);
    EXPECT_EQ(item->TransMode(), Trans);
    EXPECT_EQ(item->ImageAlpha(), 254);
    item->SetImagePicture(picture, 2, 0, Normal);
    EXPECT_EQ(item->ImageAlpha(), 255);
    EXPECT_EQ(item->Image()->TransparentColor(), DefaultTransColor);
}

TEST(SetGlyphImagePicture, MakesASurfaceOfThePicture) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    item->GlyphAlign(RightBottom);
    item->SetGlyphImagePicture(test::SurfaceOf(6, 4)->Picture(), 0, PerPixel);
    ASSERT_NE(item->Glyph(), nullptr);
    EXPECT_EQ(item->Glyph()->Width(), 6);
    EXPECT_EQ(item->Glyph()->Flags() >> 31, 1u);  // premultiplied
    EXPECT_EQ(item->GlyphFrames(), 3);
    EXPECT_EQ(item->GlyphTransMode(), PerPixel);
    EXPECT_EQ(item->GlyphAlign(), LeftCenter);
}

TEST(SetGlyph, ConvertsNoKeyAndTakesTheFrameCount) {
    const Ref<RecordingSurface> surface = New<RecordingSurface>(4, 4);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(5);
    item->SetGlyph(surface, 0, 1, Trans, 100, 0x00FF00, CenterCenter);
    EXPECT_EQ(item->GlyphFrames(), 5);
    EXPECT_EQ(item->GlyphTransMode(), Trans);
    EXPECT_EQ(item->GlyphFrameVert(), -1);
    EXPECT_EQ(item->GlyphAlpha(), 100);
    EXPECT_EQ(item->GlyphAlign(), CenterCenter);
    EXPECT_EQ(surface->TransparentColor(), 0x00FF00);
    EXPECT_EQ(surface->keyed, 0);
    item->SetGlyph(surface, 2, 0, PerPixel);
    EXPECT_GT(surface->premultiplied, 0);
    EXPECT_EQ(item->GlyphAlign(), 1);
}

TEST(SetGlyphImage, PremultipliesAPerPixelGlyph) {
    const Ref<RecordingSurface> surface = New<RecordingSurface>(4, 4);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->FrameCount(3);
    item->SetGlyphImage(surface, 0, PerPixel, RightBottom);
    EXPECT_EQ(item->GlyphFrames(), 3);
    EXPECT_EQ(item->GlyphTransMode(), PerPixel);
    EXPECT_EQ(item->GlyphAlign(), RightBottom);
    EXPECT_GT(surface->premultiplied, 0);
    item->SetGlyphImagePicture(nullptr, 2, Normal);
    EXPECT_EQ(item->Glyph(), nullptr);
    EXPECT_EQ(item->GlyphFrames(), 2);
}

TEST(SetTile, SetsTheFiveInOneCall) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetTile(2, 1, 0, 1, 0);
    EXPECT_EQ(item->ImageFlags(), 0x52u);
    item->SetTile(1);
    EXPECT_EQ(item->ImageFlags(), 0x01u);
}

TEST(MarginSetters, FewerArgumentsZeroTheRest) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImageMargin(9);
    EXPECT_EQ(item->ImageMarginLeft(), 9);
    EXPECT_EQ(item->ImageMarginTop() + item->ImageMarginRight() + item->ImageMarginBottom(), 0);
    int32_t l, t, r, b;
    item->SetGlyphMargin(1, 2, 3, 4);
    item->GetGlyphMargin(l, t, r, b);
    EXPECT_EQ(l * 1000 + t * 100 + r * 10 + b, 1234);
    item->SetIconMargin(5, 6, 7);
    item->GetIconMargin(l, t, r, b);
    EXPECT_EQ(l * 1000 + t * 100 + r * 10 + b, 5670);
    item->SetContentMargin(1, 2, 3, 4);
    item->ContentRight(8);
    item->GetContentMargin(l, t, r, b);
    EXPECT_EQ(l * 1000 + t * 100 + r * 10 + b, 1284);
}

}  // namespace
}  // namespace vxgui
