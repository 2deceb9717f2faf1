#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/Errors.h"
#include "tests/theme/RecordingSurface.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {
namespace {

using test::RecordingSurface;
using testing::ElementsAre;

constexpr double kFactors[] = {0.25, 1, 1.25, 1.5, 2, 3, 16};

Ref<cAlphaDIBSection> Strip(int32_t width, int32_t height, auto pixelAt) {
    Ref<cAlphaDIBSection> strip = New<cAlphaDIBSection>();
    strip->Create(width, height);
    const std::span<ARGB> pixels = strip->Pixels();
    for (int32_t y = 0; y < height; ++y)
        for (int32_t x = 0; x < width; ++x)
            pixels[static_cast<size_t>((height - 1 - y) * width + x)] = pixelAt(x, y);
    return strip;
}

ARGB Opaque(int32_t shade) { return {uint8_t(shade), uint8_t(shade), uint8_t(shade), 255}; }

Ref<cAlphaDIBSection> Numbered(int32_t width, int32_t height) {
    return Strip(width, height, [](int32_t x, int32_t y) { return Opaque(x * 7 + y * 31); });
}

uint8_t ShadeAt(const Ref<cAlphaDIBSection>& strip, int32_t x, int32_t y) {
    return static_cast<uint8_t>(strip->GetPixel(x, y));
}

/// An item of one frame, 11 by 9, with margins of 4 and 3.
Ref<ThemeItem> Plate(int32_t tile = 0, int32_t tiledEdges = 0) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(Numbered(11, 9), 1, 0, Normal);
    item->SetImageMargin(4, 3, 4, 3);
    item->SetTile(tile, tiledEdges, tiledEdges, tiledEdges, tiledEdges);
    return item;
}

/// What an item asks of its image when it is drawn.
std::vector<std::string> Calls(const Ref<ThemeItem>& item, int32_t w, int32_t h) {
    const Ref<RecordingSurface> recorder =
        New<RecordingSurface>(item->Image()->Width(), item->Image()->Height());
    const Ref<cAlphaDIBSection> image = item->Image();
    item->Image(recorder);
    item->DrawBackground(nullptr, 100, 50, w, h, -1, -1);
    item->Image(image);
    return recorder->calls;
}

TEST(ScaledItem, TakesFactorsFromAQuarterToSixteen) {
    const Ref<ThemeItem> item = Plate();
    for (const double factor : kFactors) EXPECT_EQ(item->Scaled(factor)->Scale(), factor);
    EXPECT_EQ(item->Scale(), 1);
    for (const double factor : {0.0, -1.0, 0.2499, 16.01, std::nan(""), HUGE_VAL})
        EXPECT_EQ(test::RaisedBy([&] { item->Scaled(factor); }), 5) << factor;
}

TEST(ScaledItem, EverySizeIsRoundedOnce) {
    const Ref<ThemeItem> item = Plate();
    item->SetContentMargin(1, 2, 3, 5);
    item->SetGlyphMargin(3, -3, 1, 0);
    item->SetIconMargin(7, 0, 1, 1);
    item->IconWidth(15);
    item->IconHeight(17);
    const Ref<ThemeItem> scaled = item->Scaled(1.5);
    EXPECT_EQ(scaled->ImageMarginLeft(), 6);
    EXPECT_EQ(scaled->ImageMarginTop(), 5);
    EXPECT_EQ(scaled->ContentLeft(), 2);
    EXPECT_EQ(scaled->ContentTop(), 3);
    EXPECT_EQ(scaled->ContentRight(), 5);
    EXPECT_EQ(scaled->ContentBottom(), 8);
    int32_t left, top, right, bottom;
    scaled->GetGlyphMargin(left, top, right, bottom);
    EXPECT_THAT((std::array{left, top, right, bottom}), ElementsAre(5, -5, 2, 0));
    scaled->GetIconMargin(left, top, right, bottom);
    EXPECT_THAT((std::array{left, top, right, bottom}), ElementsAre(11, 0, 2, 2));
    EXPECT_EQ(scaled->IconWidth(), 23);
    EXPECT_EQ(scaled->IconHeight(), 26);
    EXPECT_EQ(scaled->ImageWidth(), 17);
    EXPECT_EQ(scaled->ImageHeight(), 14);
}

TEST(ScaledItem, IsACopy) {
    const Ref<ThemeItem> item = Plate();
    item->State(E_ItemStatePressed);
    item->BackgroundEffect(77);
    const Ref<ThemeItem> scaled = item->Scaled(2);
    item->SetImageMargin(1, 1, 1, 1);
    item->BackgroundEffect(5);
    item->State(E_ItemStateNormal);
    EXPECT_EQ(scaled->State(), E_ItemStatePressed);
    EXPECT_EQ(scaled->BackgroundEffect(), 77);
    EXPECT_EQ(scaled->ImageMarginLeft(), 8);
}

TEST(ScaledItem, AtFactorOneDrawsAsBefore) {
    for (int32_t tile = 0; tile <= 4; ++tile) {
        const Ref<ThemeItem> item = Plate(tile, tile % 2);
        const Ref<ThemeItem> scaled = item->Scaled(1);
        EXPECT_EQ(scaled->Image(), item->Image());
        for (const int32_t size : {5, 9, 30, 61})
            EXPECT_EQ(Calls(scaled, size, size + 3), Calls(item, size, size + 3));
    }
}

TEST(ScaledItem, AtItsOwnSizeNothingIsStretched) {
    for (const double factor : kFactors) {
        const Ref<ThemeItem> scaled = Plate()->Scaled(factor);
        for (const std::string& call : Calls(scaled, scaled->ImageWidth(), scaled->ImageHeight())) {
            int x, y, w, h, sx, sy, sw, sh;
            ASSERT_EQ(std::sscanf(call.c_str(), "copy %d %d %d %d %d %d %d %d", &x, &y, &w, &h, &sx,
                                  &sy, &sw, &sh),
                      8);
            EXPECT_EQ(w, sw) << factor;
            EXPECT_EQ(h, sh) << factor;
        }
    }
}

TEST(ScaledItem, TilesShareEdgesThatAreRoundedOnceAndTheLastIsCut) {
    const Ref<ThemeItem> item = Plate();
    item->TileTop(1);
    const Ref<ThemeItem> scaled = item->Scaled(1.25);  // tiles of 3 pixels, 3.75 apart
    auto calls = Calls(scaled, 10 + 17, 4);
    ASSERT_EQ(calls.size(), 10u);
    calls.resize(7);                                           // the row of the top edge
    EXPECT_THAT(calls, ElementsAre("copy 100 50 5 4 0 0 5 4",  // 4 x 1.25
                                   "copy 105 50 4 4 5 0 4 4",  // to 3.75
                                   "copy 109 50 4 4 5 0 4 4",  // to 7.5
                                   "copy 113 50 3 4 5 0 3 4",  // to 11.25
                                   "copy 116 50 4 4 5 0 4 4",  // to 15
                                   "copy 120 50 2 4 5 0 2 4",  // to 18.75, cut
                                   "copy 122 50 5 4 9 0 5 4"));
}

TEST(ScaledItem, AMiddleOfOnePixelIsStretchedAtEveryFactor) {
    const Ref<ThemeItem> item = Plate(TileXTileY, 1);
    item->SetImageMargin(5, 4, 5, 4);
    for (const double factor : kFactors) {
        const auto calls = Calls(item->Scaled(factor), 400, 400);
        EXPECT_EQ(calls.size(), 9u) << factor;
    }
}

TEST(ScaledItem, FramesStayApartInBothDirections) {
    for (const bool vertical : {false, true}) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        // Three frames, with a pixel left over that is never shown.
        const int32_t length = 3 * 5 + 1;
        item->SetImage(
            Strip(vertical ? 5 : length, vertical ? length : 5,
                  [&](int32_t x, int32_t y) { return Opaque(50 * ((vertical ? y : x) / 5)); }),
            3, vertical, Normal);
        item->SetImageMargin(1, 1, 1, 1);
        const Ref<ThemeItem> scaled = item->Scaled(1.5);
        EXPECT_EQ(scaled->ImageWidth(), 8);
        EXPECT_EQ(scaled->ImageHeight(), 8);
        const Ref<cAlphaDIBSection> strip = scaled->Image();
        for (int32_t at = 0; at < 24; ++at)
            EXPECT_EQ(ShadeAt(strip, vertical ? 3 : at, vertical ? at : 3), 50 * (at / 8));
    }
}

TEST(ScaledItem, AWholeFactorRepeatsEachPixel) {
    const Ref<ThemeItem> scaled = Plate()->Scaled(3);
    const Ref<cAlphaDIBSection> strip = scaled->Image();
    for (int32_t y = 0; y < 27; ++y)
        for (int32_t x = 0; x < 33; ++x)
            ASSERT_EQ(ShadeAt(strip, x, y), uint8_t(x / 3 * 7 + y / 3 * 31));
}

TEST(ScaledItem, AColourKeyDoesNotRunIntoTheEdges) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const ARGB magenta{255, 0, 255, 0};
    item->SetImage(Strip(2, 1, [&](int32_t x, int32_t) { return x ? Opaque(40) : magenta; }), 1, 0,
                   Trans);
    item->SetImageMargin();
    const Ref<ThemeItem> scaled = item->Scaled(1.5);
    EXPECT_EQ(scaled->TransMode(), PerPixel);
    const Ref<cAlphaDIBSection> strip = scaled->Image();
    EXPECT_EQ(strip->GetPixel(0, 0), 0);
    EXPECT_EQ(strip->GetPixel(1, 0), ValueFromARGB({20, 20, 20, 128}));
    EXPECT_EQ(strip->GetPixel(2, 0), ValueFromARGB(Opaque(40)));
    EXPECT_EQ(item->TransMode(), Trans);  // the original stays as it was
    EXPECT_EQ(item->Image()->GetPixel(0, 0), ValueFromARGB(magenta));
}

TEST(ScaledItem, AKeyThatAConstantAlphaBeatsStaysAColour) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(Strip(2, 1, [](int32_t, int32_t) { return ARGB{255, 0, 255, 0}; }), 1, 0, Trans);
    item->ImageAlpha(100);
    const Ref<ThemeItem> scaled = item->Scaled(2);
    EXPECT_EQ(scaled->TransMode(), Trans);
    EXPECT_EQ(scaled->ImageAlpha(), 100);
    EXPECT_EQ(scaled->Image()->GetPixel(0, 0), 0x00FF00FF);
}

TEST(ScaledItem, PremultipliedPixelsAreNotMultipliedAgain) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(Strip(1, 1,
                         [](int32_t, int32_t) {
                             return ARGB{200, 200, 200, 128};
                         }),
                   1, 0, PerPixel);
    const int32_t pixel = item->Image()->GetPixel(0, 0);
    const Ref<ThemeItem> scaled = item->Scaled(2);
    scaled->TransMode(PerPixel);
    EXPECT_EQ(scaled->Image()->GetPixel(1, 1), pixel);
}

TEST(ScaledItem, TheGlyphIsPlacedByItsScaledMargins) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetGlyph(Numbered(3 * 5, 5), 3, 0, Normal, 255, DefaultTransColor, RightBottom);
    item->SetGlyphMargin(0, 0, 3, 1);
    const Ref<ThemeItem> scaled = item->Scaled(1.5);
    const Ref<RecordingSurface> recorder = New<RecordingSurface>(24, 8);
    EXPECT_EQ(scaled->Glyph()->Width(), 24);
    EXPECT_EQ(scaled->Glyph()->Height(), 8);
    scaled->Glyph(recorder);
    scaled->DrawBackground(nullptr, 0, 0, 100, 50, -1, 1);
    EXPECT_THAT(recorder->calls, ElementsAre("copy 87 40 8 8 8 0 8 8"));
}

TEST(ScaledItem, AKeyedGlyphIsOpaqueWhateverItsAlphaSays) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetGlyph(Numbered(4, 4), 1, 0, Trans, 9, 0);
    const Ref<ThemeItem> scaled = item->Scaled(2);
    EXPECT_EQ(scaled->GlyphTransMode(), PerPixel);
    EXPECT_EQ(scaled->GlyphAlpha(), 255);
}

TEST(ScaledItem, AnIconWithoutASizeIsAsManyTimesLarger) {
    const Ref<ThemeItem> scaled = New<ThemeItem>()->Scaled(1.5);
    scaled->IconTransMode(3);  // copy
    const Ref<RecordingSurface> icon = New<RecordingSurface>(16, 11);
    scaled->DrawIcon(nullptr, icon, 0);
    EXPECT_THAT(icon->calls, ElementsAre("copy 0 0 24 17 0 0 16 11"));
}

TEST(ScaledItem, AStripTooLargeToMakeIsAnError) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(Numbered(1000, 600), 1, 0, Normal);
    EXPECT_EQ(test::RaisedBy([&] { item->Scaled(16); }), 7);
}

TEST(ScaledItem, AnEmptyStripStaysAsItIs) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(New<cAlphaDIBSection>(), 1, 0, Normal);
    item->SetGlyph(Numbered(2, 2), 5, 0, Normal);  // more frames than pixels
    const Ref<ThemeItem> scaled = item->Scaled(2);
    EXPECT_EQ(scaled->Image(), item->Image());
    EXPECT_EQ(scaled->Glyph(), item->Glyph());
}

TEST(ScaledItem, FontsAndTheReachOfShadowsScale) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Sans", -13, 5);
    font->DrawingStyle = New<TextStyle>();
    font->DrawingStyle->ShadowX = 2;
    item->StateFont(E_ItemStateNormal, font);
    item->StateFont(E_ItemStatePressed, font);
    const Ref<TextStyle> style = New<TextStyle>();
    style->Create(1, 1, 1, 5, 7, 3, 6, 1, 2, -3, 4, 8);
    item->StateTextStyle(E_ItemStateNormal, style);
    const Ref<ThemeItem> scaled = item->Scaled(1.5);
    const Ref<LFont> larger = scaled->GetStateFont(E_ItemStateNormal);
    EXPECT_EQ(larger->Height, -20);
    EXPECT_EQ(larger->Width, 8);
    EXPECT_EQ(larger->DrawingStyle->ShadowX, 3);
    EXPECT_EQ(scaled->GetStateFont(E_ItemStatePressed), larger);
    const Ref<TextStyle> wider = scaled->GetStateTextStyle(E_ItemStateNormal);
    EXPECT_EQ(wider->ShadowX, 2);
    EXPECT_EQ(wider->ShadowY, 3);
    EXPECT_EQ(wider->ShadowOffsetX, -5);
    EXPECT_EQ(wider->ShadowOffsetY, 6);
    EXPECT_EQ(wider->TextContrast, 7);
    EXPECT_EQ(wider->ShadowThickness, 6);
    EXPECT_EQ(font->Height, -13);
    EXPECT_EQ(style->ShadowX, 1);
}

TEST(ScaledItem, DefaultFontsScaleToo) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const int32_t height = item->CurrentFont()->Height;
    EXPECT_EQ(item->Scaled(2)->CurrentFont()->Height, 2 * height);
    item->StateFont(E_ItemStateNormal, New<LFont>());  // without a name
    EXPECT_EQ(item->Scaled(2)->CurrentFont()->Height, 2 * height);
    EXPECT_FALSE(item->Scaled(2)->CurrentFont()->Name.empty());
    item->CurrentFont()->Name = "DejaVu Sans";
    item->CurrentFont()->Height = 0;  // stands for a cell of 12
    EXPECT_EQ(item->Scaled(2)->CurrentFont()->Height, 24);
    EXPECT_EQ(item->Scaled(1)->CurrentFont()->Height, 0);
}

TEST(ScaledItem, CaptionsMeasureAsManyTimesLarger) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Sans", -20);
    item->StateFont(E_ItemStateNormal, font);
    const int32_t width = item->TextWidth(nullptr, "A caption", DT_SINGLELINE);
    EXPECT_NEAR(item->Scaled(3)->TextWidth(nullptr, "A caption", DT_SINGLELINE), 3 * width, 9);
}

// Supplied strips.

TEST(SuppliedStrip, TheNextLargerScaleIsTaken) {
    const Ref<ThemeItem> item = Plate();
    const auto supply = [&](double scale, int32_t shade) {
        item->AddImageStrip(scale,
                            Strip(int32_t(std::lround(11 * scale)), int32_t(std::lround(9 * scale)),
                                  [&](int32_t, int32_t) { return Opaque(shade); }));
    };
    item->SetImage(Strip(11, 9, [](int32_t, int32_t) { return Opaque(1); }), 1, 0, Normal);
    supply(3, 30);
    supply(0.5, 5);
    supply(1.5, 15);
    const auto shade = [&](double factor) { return ShadeAt(item->Scaled(factor)->Image(), 2, 2); };
    EXPECT_EQ(shade(0.25), 5);
    EXPECT_EQ(shade(0.5), 5);
    EXPECT_EQ(shade(0.75), 1);
    EXPECT_EQ(shade(1), 1);
    EXPECT_EQ(shade(1.25), 15);
    EXPECT_EQ(shade(1.5), 15);
    EXPECT_EQ(shade(2), 30);
    EXPECT_EQ(shade(3), 30);
    EXPECT_EQ(shade(16), 30);
    supply(3, 31);
    EXPECT_EQ(shade(3), 31);
    EXPECT_EQ(test::RaisedBy([&] { supply(17, 1); }), 5);
}

TEST(SuppliedStrip, AtItsOwnScaleIsDrawnPixelByPixel) {
    const Ref<ThemeItem> item = Plate();
    const Ref<cAlphaDIBSection> fine = Numbered(22, 18);
    item->AddImageStrip(2, fine);
    const Ref<ThemeItem> scaled = item->Scaled(2);
    for (int32_t y = 0; y < 18; ++y)
        for (int32_t x = 0; x < 22; ++x)
            ASSERT_EQ(scaled->Image()->GetPixel(x, y), fine->GetPixel(x, y));
    EXPECT_EQ(scaled->ImageMarginLeft(), 8);
}

TEST(SuppliedStrip, GoesThroughWhatItsBaseWentThrough) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    const auto half = [](int32_t, int32_t) { return ARGB{200, 200, 200, 128}; };
    item->SetImage(Strip(1, 1, half), 1, 0, PerPixel);
    item->AddImageStrip(2, Strip(2, 2, half));
    EXPECT_EQ(item->Scaled(2)->Image()->GetPixel(0, 0), item->Image()->GetPixel(0, 0));
    const auto key = [](int32_t, int32_t) { return Opaque(9); };
    item->SetImage(Strip(1, 1, key), 1, 0, Trans, 255, 0x090909);
    item->AddImageStrip(2, Strip(2, 2, key));
    EXPECT_EQ(item->Scaled(2)->Image()->GetPixel(0, 0), 0);
}

TEST(SuppliedStrip, DoesNotOutliveItsBase) {
    const Ref<ThemeItem> item = Plate();
    item->AddImageStrip(2, Strip(22, 18, [](int32_t, int32_t) { return Opaque(200); }));
    item->Image(Numbered(11, 9));
    EXPECT_EQ(ShadeAt(item->Scaled(2)->Image(), 0, 0), 0);
    EXPECT_TRUE(item->ImageStrips().empty());
}

TEST(SuppliedStrip, OfAGlyphAndOfACopyCount) {
    const Ref<ThemeItem> item = Plate(), copy = New<ThemeItem>();
    item->SetGlyph(Numbered(2, 2), 1, 0, Normal);
    item->AddGlyphStrip(2, Strip(4, 4, [](int32_t, int32_t) { return Opaque(99); }));
    item->AddImageStrip(2, Strip(22, 18, [](int32_t, int32_t) { return Opaque(88); }));
    item->CopyTo(copy, COPYTO_Image | COPYTO_ImageProp | COPYTO_Glyph | COPYTO_GlyphProp);
    for (const Ref<ThemeItem>& any : {item, copy, item->Scaled(1)}) {
        EXPECT_EQ(ShadeAt(any->Scaled(2)->Glyph(), 0, 0), 99);
        EXPECT_EQ(ShadeAt(any->Scaled(2)->Image(), 0, 0), 88);
    }
}

// Whole sets.

TEST(ScaledSet, KeepsKeysPaletteAndWhatItsItemsShare) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->AddColour(0x112233);
    set->AddColour(0x445566);
    const Ref<LFont> font = New<LFont>();
    font->Create("DejaVu Sans", -10);
    set->AddFont(font);
    set->TextStyles(New<TextStyles>());
    const Ref<TextStyle> style = set->TextStyles()->Add("TextStyle_01");
    style->ShadowX = 1;
    for (const char* key : {"First", "Second"}) {
        const Ref<ThemeItem> item = Plate();
        item->StateFont(E_ItemStateNormal, font);
        item->StateTextStyle(E_ItemStateNormal, style);
        set->Item(key, item);
    }
    const Ref<ThemeSet> scaled = set->Scaled(2);
    EXPECT_EQ(scaled->Colour(1), 0x445566);
    EXPECT_EQ(scaled->Font(1)->Height, -20);
    EXPECT_EQ(scaled->TextStyles()->Item("TextStyle_01")->ShadowX, 2);
    EXPECT_EQ(scaled->ThemeItems()->Count(), 2);
    EXPECT_EQ(scaled->Item("Second")->Scale(), 2);
    for (const char* key : {"First", "Second"}) {
        EXPECT_EQ(scaled->Item(key)->CurrentFont(), scaled->Font(1));
        EXPECT_EQ(scaled->Item(key)->CurrentTextStyle(), scaled->TextStyles()->Item(1));
    }
    EXPECT_EQ(set->Font(1)->Height, -10);
}

TEST(ScaledSet, OwnsItsItemsWhereTheOtherDid) {
    const Ref<ThemeSet> set = New<ThemeSet>(), other = New<ThemeSet>();
    for (const auto& owner : {set, other}) {
        const Ref<LFont> font = New<LFont>();
        font->Create("DejaVu Sans", -10);
        owner->AddFont(font);
        owner->AddColour(0x123456);
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->Owner(owner);
        item->Numbers().NormalFont = 1;
        set->Item(owner == set ? "Own" : "Other", item);
    }
    const Ref<ThemeSet> scaled = set->Scaled(1.5);
    EXPECT_EQ(scaled->Item("Own")->CurrentFont(), scaled->Font(1));
    EXPECT_EQ(scaled->Item("Other")->CurrentFont()->Height, -15);
    EXPECT_EQ(scaled->Item("Other")->CurrentColour(), 0x123456);
    scaled->Dispose();
    set->Dispose();
}

TEST(ScaledSet, WithoutPoolsHasNone) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    EXPECT_EQ(set->Scaled(2)->Fonts(), nullptr);
    EXPECT_EQ(set->Scaled(2)->ThemeItems()->Count(), 0);
    set->Dispose();
    EXPECT_EQ(set->Scaled(2)->ThemeItems(), nullptr);
}

}  // namespace
}  // namespace vxgui
