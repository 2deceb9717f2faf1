#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/ActedKernel.h"
#include "tests/support/GdiplusSession.h"
#include "tests/support/Golden.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/text/ActedDefineFile.h"
#include "tests/theme/SkinPictures.h"
#include "tests/theme/SkinWorld.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

constexpr test::PixelBytes kPixel{200, 100, 50, 127};
constexpr uint32_t kStraight = 0x7F3264C8;
constexpr uint32_t kPremultiplied = 0x7F193264;

uint32_t PixelOf(const Ref<cAlphaDIBSection>& surface, int32_t x = 11) {
    return static_cast<uint32_t>(surface->GetPixel(x, 0));
}

class UisItem : public testing::Test {
protected:
    Ref<ThemeItem> Read(const String& section, const String& fallback = {}) {
        const Ref<core7::DefineFile> file = core7::CreateDefineFile();
        EXPECT_TRUE(file->LoadText("[Item]\n" + section));
        EXPECT_TRUE(item->FromUis(file, source, "Item", fallback));
        return item;
    }
    ThemeItem::OwnerNumbers& Numbers(const String& section) { return Read(section)->Numbers(); }
    /// Packs a style module and makes it the source.
    void UseModule(const std::vector<std::pair<String, std::string>>& pictures) {
        std::vector<kernel::ModuleResource> resources;
        for (const auto& [name, bytes] : pictures) {
            resources.push_back(
                {"Image", name, {reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()}});
        }
        const ByteArray file = kernel::WriteResourceModule(resources);
        const String path =
            folder.Write("Styles.dll", {reinterpret_cast<const char*>(file.data()), file.size()});
        module = kernel::RealKernel().LoadLibraryA(path.Utf8().c_str());
        ASSERT_NE(module, nullptr);
        source = module;
    }
    ~UisItem() override {
        if (module) kernel::RealKernel().FreeLibrary(module);
    }

    test::GdiplusSession gdiplus;
    test::TemporaryFolder folder;
    UisSource source = folder.Path();
    kernel::HMODULE module = nullptr;
    Ref<ThemeItem> item = New<ThemeItem>();
};

// Keys.

struct IntegerKey {
    const char* key;
    int32_t fallback;
    std::function<int32_t(ThemeItem&)> read;
};

#define VX_IMPORTED(name, fallback)                                                   \
    {                                                                                 \
#name, fallback, [](ThemeItem & item) { return item.ImportedNumbers().name; } \
    }
#define VX_NUMBER(name, fallback)                                             \
    {                                                                         \
#name, fallback, [](ThemeItem & item) { return item.Numbers().name; } \
    }
#define VX_PROPERTY(key, property, fallback)                           \
    {                                                                  \
        key, fallback, [](ThemeItem& item) { return item.property(); } \
    }

const IntegerKey kIntegerKeys[] = {
    VX_PROPERTY("FrameCount", FrameCount, 0),
    VX_IMPORTED(PartWidth, -1),
    VX_IMPORTED(PartHeight, -1),
    VX_PROPERTY("LeftWidth", ImageMarginLeft, 0),
    VX_PROPERTY("RightWidth", ImageMarginRight, 0),
    VX_PROPERTY("TopHeight", ImageMarginTop, 0),
    VX_PROPERTY("BottomHeight", ImageMarginBottom, 0),
    VX_PROPERTY("Tile", Tile, 0),
    VX_PROPERTY("ContentLeft", ContentLeft, 0),
    VX_PROPERTY("ContentRight", ContentRight, 0),
    VX_PROPERTY("ContentTop", ContentTop, 0),
    VX_PROPERTY("ContentBottom", ContentBottom, 0),
    VX_NUMBER(TextColour, -1),
    VX_NUMBER(TextColourOver, -1),
    VX_IMPORTED(TextHorzAlignNormal, 0),
    VX_IMPORTED(TextVertAlignNormal, 0),
    VX_NUMBER(NormalColour, -1),
    VX_NUMBER(FocusColour, -1),
    VX_NUMBER(PressedColour, -1),
    VX_NUMBER(FocusPressedColour, -1),
    VX_NUMBER(GroupColour, -1),
    VX_NUMBER(DisabledColour, -1),
    VX_NUMBER(NormalFont, -1),
    VX_NUMBER(FocusFont, -1),
    VX_NUMBER(PressedFont, -1),
    VX_NUMBER(FocusPressedFont, -1),
    VX_NUMBER(GroupFont, -1),
    VX_IMPORTED(SmartSmallMargins, 0),
};

TEST_F(UisItem, IntegerKeysReachTheirFieldsAndHaveTheirDefaults) {
    for (const IntegerKey& key : kIntegerKeys) {
        item = New<ThemeItem>();
        EXPECT_EQ(key.read(*Read(String(key.key) + "=7\n")), 7) << key.key;
        EXPECT_EQ(key.read(*Read("")), key.fallback) << key.key;
    }
}

TEST_F(UisItem, EdgesTileUnlessTheSkinSaysOtherwise) {
    const std::pair<const char*, int32_t (ThemeItem::*)() const> kEdges[] = {
        {"TileTop", &ThemeItem::TileTop},
        {"TileBottom", &ThemeItem::TileBottom},
        {"TileLeft", &ThemeItem::TileLeft},
        {"TileRight", &ThemeItem::TileRight},
    };
    for (const auto& [key, read] : kEdges) {
        EXPECT_EQ(((*Read("")).*read)(), -1) << key;
        EXPECT_EQ(((*Read(String(key) + "=0\n")).*read)(), 0) << key;
        EXPECT_EQ(((*Read(String(key) + "=2\n")).*read)(), -1) << key;
    }
}

const IntegerKey kAnimationKeys[] = {
    VX_IMPORTED(AnimTimerRate, 0),        VX_IMPORTED(LoopBackDelay, 0),
    VX_IMPORTED(MouseEnterStartFrame, 0), VX_IMPORTED(MouseOverStartFrame, 0),
    VX_IMPORTED(MouseOverStopFrame, 0),   VX_IMPORTED(MouseLeaveStopFrame, 0),
    VX_IMPORTED(MouseLeaveMode, 0),
};

TEST_F(UisItem, AnimationKeysAreReadForMoreThanOneFrameAlone) {
    for (const IntegerKey& key : kAnimationKeys) {
        item = New<ThemeItem>();
        Read("FrameCount=2\n" + String(key.key) + "=7\n");
        EXPECT_EQ(key.read(*item), 7) << key.key;
        Read("FrameCount=1\n" + String(key.key) + "=9\n");
        EXPECT_EQ(key.read(*item), 7) << key.key;
        Read("FrameCount=2\n");
        EXPECT_EQ(key.read(*item), 0) << key.key;
    }
}

TEST_F(UisItem, KeysThatTheDialectLacksKeepTheirValues) {
    item->FrameOrder(1);
    item->FrameVert(-1);
    item->SetGlyphMargin(1, 2, 3, 4);
    item->IconWidth(5);
    item->TransMode(Trans);
    Read("FrameOrder=0\nFrameVert=0\nIconWidth=9\n");
    EXPECT_EQ(item->FrameOrder(), 1);
    EXPECT_EQ(item->FrameVert(), -1);
    EXPECT_EQ(item->IconWidth(), 5);
    EXPECT_EQ(item->TransMode(), Trans);
    int32_t left, top, right, bottom;
    item->GetGlyphMargin(left, top, right, bottom);
    EXPECT_EQ(bottom, 4);
}

// Colour and font numbers.

TEST_F(UisItem, NormalColourAndTextColourFillEachOthersGap) {
    EXPECT_EQ(Numbers("TextColour=5\n").NormalColour, 5);
    EXPECT_EQ(Numbers("NormalColour=5\n").TextColour, 5);
    const auto& both = Numbers("NormalColour=5\nTextColour=6\n");
    EXPECT_EQ(both.NormalColour, 5);
    EXPECT_EQ(both.TextColour, 6);
}

TEST_F(UisItem, WithoutColoursTheOwnerIsAskedForMinusOne) {
    struct AskedOwner : ThemeOwner {
        int32_t Colour(int32_t Index) override { return asked = Index, 42; }
        Ref<LFont> Font(int32_t) override { return nullptr; }
        int32_t asked = 0;
    };
    const Ref<AskedOwner> owner = New<AskedOwner>();
    item->Owner(owner);
    Read("");
    EXPECT_EQ(item->Numbers().NormalColour, -1);
    EXPECT_EQ(item->Numbers().TextColour, -1);
    EXPECT_EQ(item->StateColour(E_ItemStateNormal), 42);
    EXPECT_EQ(owner->asked, -1);
}

TEST_F(UisItem, FocusColourFillsTextColourOverOnlyWithoutATextColour) {
    EXPECT_EQ(Numbers("TextColourOver=5\n").FocusColour, 5);
    EXPECT_EQ(Numbers("FocusColour=7\nTextColour=3\n").TextColourOver, -1);
    EXPECT_EQ(Numbers("FocusColour=7\n").TextColourOver, 7);
    EXPECT_EQ(Numbers("FocusColour=7\nTextColourOver=8\n").TextColourOver, 7);
    // A colour of `NormalColour` alone has filled `TextColour` by then.
    EXPECT_EQ(Numbers("FocusColour=7\nNormalColour=3\n").TextColourOver, -1);
}

TEST_F(UisItem, PressedColoursFollowTheFocusColour) {
    EXPECT_EQ(Numbers("FocusColour=7\n").PressedColour, 7);
    EXPECT_EQ(Numbers("FocusColour=7\n").FocusPressedColour, 7);
    EXPECT_EQ(Numbers("FocusColour=7\nPressedColour=8\n").FocusPressedColour, 8);
    EXPECT_EQ(Numbers("TextColourOver=9\n").PressedColour, 9);
}

TEST_F(UisItem, FontNumbersFallBackFromNewKeysToOldOnesToTheNormalFont) {
    EXPECT_EQ(Numbers("TextFont=4\n").NormalFont, 4);
    EXPECT_EQ(Numbers("TextFont=4\nNormalFont=5\n").NormalFont, 5);
    EXPECT_EQ(Numbers("TextFontOver=6\nTextFont=4\n").FocusFont, 6);
    const auto& normal = Numbers("NormalFont=5\n");
    EXPECT_EQ(normal.FocusFont, 5);
    EXPECT_EQ(normal.PressedFont, 5);
    EXPECT_EQ(normal.FocusPressedFont, 5);
    EXPECT_EQ(normal.GroupFont, 5);
    EXPECT_EQ(Numbers("FocusFont=3\nPressedFont=8\n").FocusPressedFont, 3);
}

// Pictures in a folder.

TEST_F(UisItem, OfAnEmptySectionHasNoImageAndIsNoFailure) {
    item->ImageAlpha(77);
    Read("");
    EXPECT_EQ(item->Image(), nullptr);
    EXPECT_EQ(item->Glyph(), nullptr);
    EXPECT_EQ(item->ImageAlpha(), 77);
    EXPECT_EQ(item->TransMode(), Normal);
}

TEST_F(UisItem, ImageAndGlyphAreEmptiedFirst) {
    item->Image(New<cAlphaDIBSection>());
    item->Glyph(New<cAlphaDIBSection>());
    Read("Image=none.bmp\nGlyphImage=none.bmp\nGlyphAlign=3\n");
    EXPECT_EQ(item->Image(), nullptr);
    EXPECT_EQ(item->Glyph(), nullptr);
}

TEST_F(UisItem, TheDefaultImageIsLoadedWhenNoneIsNamed) {
    folder.Write("TaskBarBackground.bmp", test::BmpBytes(kPixel));
    Read("", "TaskBarBackground.bmp");
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->Image()->Width(), 12);
    EXPECT_EQ(item->TransMode(), Normal);
    EXPECT_EQ(PixelOf(item->Image()), kStraight);
}

TEST_F(UisItem, AFileNameInCapitalsIsTakenAsTga) {
    folder.Write("PART.TGA", test::TgaBytes(kPixel));
    Read("Image=PART.TGA\n");
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(PixelOf(item->Image()), kPremultiplied);
}

TEST_F(UisItem, ABitmapIsPerPixelOnRequestAndPremultipliedOnce) {
    folder.Write("a.bmp", test::BmpBytes(kPixel));
    Read("Image=a.bmp\nPerPixel=1\n");
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(PixelOf(item->Image()), kPremultiplied);
    EXPECT_EQ(item->ImageAlpha(), 255);
}

TEST_F(UisItem, TheKeyTransWinsOverTheExtension) {
    test::WritePng(folder.Path("a.png").Utf8(), {1, 1, {0x80402010}});
    Read("Image=a.png\n");
    EXPECT_EQ(item->TransMode(), PerPixel);
    Read("Image=a.png\nTrans=1\nAlpha=255\n");
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->TransMode(), Trans);
}

TEST_F(UisItem, AColourKeyWithAConstantAlphaBecomesAlphaInTheImage) {
    folder.Write("a.bmp", test::BmpBytes({200, 100, 50, 255}));
    Read("Image=a.bmp\nTrans=1\nAlpha=128\n");
    EXPECT_EQ(item->TransMode(), Trans);
    EXPECT_EQ(item->ImageAlpha(), 128);
    EXPECT_EQ(PixelOf(item->Image(), 0) >> 24, 0u);
    EXPECT_EQ(PixelOf(item->Image()) >> 24, 255u);
    Read("Image=a.bmp\nTrans=1\nAlpha=128\nPerPixel=1\n");
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(PixelOf(item->Image(), 0), 0u);
}

TEST_F(UisItem, AColourKeyStaysInAnOpaqueImage) {
    folder.Write("a.bmp", test::BmpBytes(kPixel));
    Read("Image=a.bmp\nTrans=1\nAlpha=253\nPerPixel=1\n");
    EXPECT_EQ(item->TransMode(), Trans);
    EXPECT_EQ(PixelOf(item->Image(), 0), 0xFFFF00FFu);
    Read("Image=a.bmp\nAlpha=300\n");
    EXPECT_EQ(item->ImageAlpha(), 44);  // the low eight bits
}

TEST_F(UisItem, APictureThatCantBeReadLeavesNoImageButItsMode) {
    folder.Write("a.png", "no picture");
    item->ImageAlpha(77);
    Read("Image=a.png\nTrans=1\nAlpha=3\n");
    EXPECT_EQ(item->Image(), nullptr);
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(item->ImageAlpha(), 77);
}

TEST_F(UisItem, TheGlyphKeysAreReadInFull) {
    folder.Write("g.tga", test::TgaBytes(kPixel));
    Read(
        "FrameCount=4\nGlyphImage=g.tga\nGlyphFrames=3\nGlyphTransMode=1\nGlyphVertAlign=1\n"
        "GlyphHorzAlign=2\n");
    ASSERT_NE(item->Glyph(), nullptr);
    EXPECT_EQ(item->GlyphFrames(), 3);
    EXPECT_EQ(item->GlyphTransMode(), Trans);
    EXPECT_EQ(item->GlyphAlign(), 7);
    EXPECT_EQ(PixelOf(item->Glyph()), kPremultiplied);
    Read("FrameCount=4\nGlyphImage=g.tga\nGlyphFrames=0\n");
    EXPECT_EQ(item->GlyphFrames(), 4);
    EXPECT_EQ(item->GlyphTransMode(), Normal);
    EXPECT_EQ(item->GlyphAlign(), 0);
}

TEST_F(UisItem, AGlyphThatIsNotThereLeavesItsFieldsAlone) {
    item->GlyphFrames(3);
    item->GlyphAlign(5);
    Read("GlyphImage=none.tga\nGlyphFrames=8\nGlyphVertAlign=1\n");
    EXPECT_EQ(item->GlyphFrames(), 3);
    EXPECT_EQ(item->GlyphAlign(), 5);
}

// Pictures in a style module.

TEST_F(UisItem, TakesItsPicturesFromAModule) {
    UseModule({{"a.bmp", test::BmpBytes({200, 100, 50, 255})}, {"b.TGA", test::TgaBytes(kPixel)}});
    Read("Image=a.bmp\nGlyphImage=b.TGA\n");
    ASSERT_NE(item->Image(), nullptr);
    ASSERT_NE(item->Glyph(), nullptr);
    EXPECT_EQ(PixelOf(item->Image()) & 0xFFFFFF, 0x3264C8u);
    EXPECT_EQ(item->TransMode(), Normal);
    EXPECT_EQ(PixelOf(item->Glyph()), kPremultiplied);
    Read("Image=b.TGA\n");
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(PixelOf(item->Image()), kPremultiplied);
    Read("Image=none.bmp\n");
    EXPECT_EQ(item->Image(), nullptr);
}

TEST_F(UisItem, TheSameRulesHoldForTheModesOfAModulesPictures) {
    test::WritePng(folder.Path("a.png").Utf8(), {1, 1, {0x80402010}});
    std::ifstream file(folder.Path("a.png").Utf8(), std::ios::binary);
    const std::string png(std::istreambuf_iterator<char>(file), {});
    UseModule({{"A.PNG", png}, {"a.bmp", test::BmpBytes(kPixel)}});
    Read("Image=A.PNG\n");
    ASSERT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->TransMode(), PerPixel);
    item->TransMode(Normal);
    Read("Image=a.bmp\nPerPixel=1\n");
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(item->Image()->Flags() >> 31, 1u);  // premultiplied
    item->TransMode(Normal);
    Read("", "a.bmp");
    EXPECT_NE(item->Image(), nullptr);
    EXPECT_EQ(item->TransMode(), Normal);
}

// What is asked for.

TEST_F(UisItem, TheKeysAreReadInTheirOrderEachWithItsDefault) {
    folder.Write("a.bmp", test::BmpBytes(kPixel));
    const Ref<test::ActedDefineFile> file = New<test::ActedDefineFile>();
    file->values = {{"FrameCount", "2"},    {"GlyphImage", "a.bmp"}, {"FocusColour", "7"},
                    {"PressedColour", "8"}, {"Trans", "1"},          {"Alpha", "9"}};
    EXPECT_TRUE(item->FromUis(file, source, "S", "a.bmp"));
    EXPECT_THAT(
        file->reads,
        testing::ElementsAre(
            "text Image a.bmp", "integer PerPixel 0", "integer Trans 0", "integer Alpha 255",
            "integer PerPixel 0", "integer FrameCount 0", "integer PartWidth -1",
            "integer PartHeight -1", "text GlyphImage ", "integer GlyphFrames 0",
            "integer GlyphTransMode 0", "integer GlyphVertAlign 0", "integer GlyphHorzAlign 0",
            "integer LeftWidth 0", "integer RightWidth 0", "integer TopHeight 0",
            "integer BottomHeight 0", "integer Tile 0", "integer TileTop 1", "integer TileBottom 1",
            "integer TileLeft 1", "integer TileRight 1", "integer ContentLeft 0",
            "integer ContentRight 0", "integer ContentTop 0", "integer ContentBottom 0",
            "integer TextColour -1", "integer TextColourOver -1", "integer TextHorzAlignNormal 0",
            "integer TextVertAlignNormal 0", "integer NormalColour -1", "integer FocusColour -1",
            "integer PressedColour 7", "integer FocusPressedColour 8", "integer GroupColour -1",
            "integer DisabledColour -1", "integer NormalFont -1", "integer TextFont -1",
            "integer FocusFont -1", "integer TextFontOver -1", "integer PressedFont -1",
            "integer FocusPressedFont -1", "integer GroupFont -1", "integer SmartSmallMargins 0",
            "integer AnimTimerRate 0", "integer LoopBackDelay 0", "integer MouseEnterStartFrame 0",
            "integer MouseOverStartFrame 0", "integer MouseOverStopFrame 0",
            "integer MouseLeaveStopFrame 0", "integer MouseLeaveMode 0", "text ImageScales ",
            "text GlyphScales "));
}

TEST(UisFolder, IsItselfAskedForWhenNoImageIsNamed) {
    test::SkinWorld world;
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    const Ref<ThemeItem> item = New<ThemeItem>();
    EXPECT_TRUE(item->FromUis(file, String("/skins/flat.png"), "Item", ""));
    EXPECT_EQ(world.sought, std::vector<std::string>{"/skins/flat.png"});
    EXPECT_EQ(item->TransMode(), Normal);
    // A folder that is there is no picture, but its name decides the mode like a picture's.
    world.AddFile("/skins/flat.png");
    EXPECT_TRUE(item->FromUis(file, String("/skins/flat.png"), "Item", ""));
    EXPECT_EQ(item->TransMode(), PerPixel);
    EXPECT_EQ(item->Image(), nullptr);
}

// Failures.

TEST(UisFailure, IsShownAndAnsweredWithFalse) {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();  // sets the apartment up
    ActedKernel acted;
    kernel::Kernel* before = kernel::SetKernel(&acted);
    kernel::SetLastError(0);
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(surface);
    EXPECT_FALSE(item->FromUis(nullptr, "folder", "Item", ""));
    kernel::SetKernel(before);
    EXPECT_EQ(item->Image(), nullptr);
    ASSERT_EQ(acted.calls.size(), 1u);
    EXPECT_NE(acted.calls[0].find("ThemeItem::Public Function LoadFromRes"), std::string::npos);
    EXPECT_NE(acted.calls[0].find("91"), std::string::npos);
}

}  // namespace
}  // namespace vxgui
