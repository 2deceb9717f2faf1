#include <algorithm>

#include "generated/Places.h"
#include "tests/platform/gdiplus_strings/StringFixture.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/core7_files.h"

namespace vxgui::gdiplus {
namespace {

// Families that the tests' configuration hides, and a bold face of one that it shows.
constexpr const char16_t* kThaana = u"/usr/share/fonts/truetype/noto/NotoSansThaana-Regular.ttf";
constexpr const char16_t* kMonoBold = u"/usr/share/fonts/truetype/dejavu/DejaVuSansMono-Bold.ttf";

class FontCollections : public StringFixture {
protected:
    GpFontCollection* Make(GpStatus (*create)(GpFontCollection**)) {
        GpFontCollection* collection = nullptr;
        EXPECT_EQ(create(&collection), Ok);
        return Keep(collection);
    }
    std::vector<std::u16string> Names(GpFontCollection* collection) {
        INT count = 0, found = 0;
        EXPECT_EQ(GdipGetFontCollectionFamilyCount(collection, &count), Ok);
        std::vector<GpFontFamily*> families(static_cast<size_t>(count) + 1);
        EXPECT_EQ(GdipGetFontCollectionFamilyList(collection, count + 1, families.data(), &found),
                  Ok);
        EXPECT_EQ(found, count);
        std::vector<std::u16string> names;
        for (INT i = 0; i < found; ++i) {
            WCHAR name[32] = {};
            EXPECT_EQ(GdipGetFamilyName(families[static_cast<size_t>(i)], name, 0), Ok);
            names.emplace_back(name);
        }
        return names;
    }
};

TEST_F(FontCollections, TheInstalledOneHasEachFamilyOnce) {
    auto names = Names(Make(GdipNewInstalledFontCollection));
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
    for (const char16_t* name : {u"DejaVu Sans", u"DejaVu Serif", u"Noto Sans Arabic"}) {
        EXPECT_TRUE(std::binary_search(names.begin(), names.end(), name));
    }
    EXPECT_FALSE(std::binary_search(names.begin(), names.end(), u"Noto Sans Thaana"));
}

TEST_F(FontCollections, HandOutTheSameFamiliesAgain) {
    GpFontCollection* collection = Make(GdipNewInstalledFontCollection);
    GpFontFamily *first[2] = {}, *second[2] = {};
    INT found = 0;
    ASSERT_EQ(GdipGetFontCollectionFamilyList(collection, 2, first, &found), Ok);
    EXPECT_EQ(found, 2);
    GdipDeleteFontFamily(first[1]);
    ASSERT_EQ(GdipGetFontCollectionFamilyList(collection, 2, second, &found), Ok);
    EXPECT_EQ(first[0], second[0]);
    EXPECT_NE(first[1], second[1]) << "one that was deleted is made anew";
    const size_t before = LiveObjectCount();
    EXPECT_EQ(GdipDeletePrivateFontCollection(&collection), Ok);
    EXPECT_EQ(LiveObjectCount(), before - 3) << "its families end with it";
}

TEST_F(FontCollections, APrivateOneHasItsFilesAlone) {
    GpFontCollection* collection = Make(GdipNewPrivateFontCollection);
    EXPECT_TRUE(Names(collection).empty());
    ASSERT_EQ(GdipPrivateAddFontFile(collection, kThaana), Ok);
    EXPECT_EQ(Names(collection), std::vector<std::u16string>{u"Noto Sans Thaana"});
    GpFontFamily* family = nullptr;
    EXPECT_EQ(GdipCreateFontFamilyFromName(u"noto sans thaana", collection, &family), Ok);
    Keep(family);
    WORD ascent = 0;
    EXPECT_EQ(GdipGetCellAscent(family, 0, &ascent), Ok);
    EXPECT_EQ(ascent, 1069);
    EXPECT_EQ(GdipCreateFontFamilyFromName(u"DejaVu Sans", collection, &family),
              FontFamilyNotFound);
    EXPECT_EQ(GdipCreateFontFamilyFromName(u"Noto Sans Thaana", nullptr, &family),
              FontFamilyNotFound)
        << "the system doesn't see it";
}

TEST_F(FontCollections, TakeFontsFromMemoryThatIsGoneAfterwards) {
    GpFontCollection* collection = Make(GdipNewPrivateFontCollection);
    GpFontFamily* family = nullptr;
    {
        ByteArray bytes;
        ASSERT_TRUE(core7::ReadWholeFile(kMonoBold, &bytes));
        ASSERT_EQ(
            GdipPrivateAddMemoryFont(collection, bytes.data(), static_cast<INT>(bytes.size())), Ok);
        std::fill(bytes.begin(), bytes.end(), uint8_t{0});
    }
    ASSERT_EQ(GdipCreateFontFamilyFromName(u"DejaVu Sans Mono", collection, &family), Ok);
    Keep(family);
    BOOL regular = 1, bold = 0;
    GdipIsStyleAvailable(family, FontStyleRegular, &regular);
    GdipIsStyleAvailable(family, FontStyleBold, &bold);
    EXPECT_FALSE(regular) << "a bold face can't be made regular";
    EXPECT_TRUE(bold);
    GpFont* font = nullptr;
    EXPECT_EQ(GdipCreateFont(family, 10, FontStyleRegular, UnitPixel, &font), FontStyleNotFound);
    EXPECT_EQ(GdipDeletePrivateFontCollection(&collection), Ok);
    EXPECT_EQ(collection, nullptr);
    WORD em = 0;
    EXPECT_EQ(GdipGetEmHeight(family, FontStyleBold, &em), Ok) << "a family outlives it";
    EXPECT_EQ(em, 2048);
}

TEST_F(FontCollections, AddToTheInstalledOneForItsHolderAlone) {
    GpFontCollection* collection = Make(GdipNewInstalledFontCollection);
    ASSERT_EQ(GdipPrivateAddFontFile(collection, kThaana), Ok);
    EXPECT_EQ(Names(collection)[0], u"Noto Sans Thaana");
    EXPECT_EQ(Names(collection).size(), Names(Make(GdipNewInstalledFontCollection)).size() + 1);
    GpFontFamily* family = nullptr;
    for (const char16_t* name : {u"Noto Sans Thaana", u"DejaVu Sans"}) {
        EXPECT_EQ(GdipCreateFontFamilyFromName(name, collection, &family), Ok);
        Keep(family);
    }
}

TEST_F(FontCollections, TellWhatIsNoFont) {
    GpFontCollection* collection = Make(GdipNewPrivateFontCollection);
    EXPECT_EQ(GdipPrivateAddFontFile(collection, u"/no/such/file.ttf"), FileNotFound);
    EXPECT_EQ(GdipPrivateAddFontFile(collection, String(VXGUI_SOURCE_DIR "/README.md").data()),
              NotTrueTypeFont);
    EXPECT_EQ(GdipPrivateAddFontFile(collection, nullptr), InvalidParameter);
    EXPECT_EQ(GdipPrivateAddMemoryFont(collection, "no font", 7), NotTrueTypeFont);
    EXPECT_EQ(GdipPrivateAddMemoryFont(collection, "no font", 0), InvalidParameter);
    EXPECT_EQ(GdipPrivateAddMemoryFont(collection, nullptr, 7), InvalidParameter);
    EXPECT_TRUE(Names(collection).empty());
    ASSERT_EQ(GdipPrivateAddFontFile(collection, kThaana), Ok) << "the failures left nothing";
}

TEST_F(FontCollections, AWrongArgumentIsInvalid) {
    INT count;
    GpFontFamily* families[1];
    for (GpFontCollection* wrong : WrongHandles<GpFontCollection>(Family())) {
        EXPECT_EQ(GdipGetFontCollectionFamilyCount(wrong, &count), InvalidParameter);
        EXPECT_EQ(GdipGetFontCollectionFamilyList(wrong, 1, families, &count), InvalidParameter);
        EXPECT_EQ(GdipPrivateAddFontFile(wrong, kThaana), InvalidParameter);
        EXPECT_EQ(GdipPrivateAddMemoryFont(wrong, "x", 1), InvalidParameter);
        EXPECT_EQ(GdipDeletePrivateFontCollection(&wrong), InvalidParameter);
    }
    EXPECT_EQ(GdipDeletePrivateFontCollection(nullptr), InvalidParameter);
    EXPECT_EQ(GdipNewInstalledFontCollection(nullptr), InvalidParameter);
    EXPECT_EQ(GdipNewPrivateFontCollection(nullptr), InvalidParameter);
    GpFontCollection* live = Make(GdipNewPrivateFontCollection);
    EXPECT_EQ(GdipGetFontCollectionFamilyCount(live, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetFontCollectionFamilyList(live, 1, nullptr, &count), InvalidParameter);
    EXPECT_EQ(GdipGetFontCollectionFamilyList(live, 1, families, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetFontCollectionFamilyList(live, -1, families, &count), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
