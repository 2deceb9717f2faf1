#include "generated/Places.h"
#include "vxgui/theme/CompiledSkin.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/ThemeSetFile.h"
#include "vxgui/theme/compiled/Container.h"

namespace vxgui {
namespace {

using compiled::Section;
using compiled::SectionKind;
using testing::HasSubstr;
using testing::StartsWith;

const char* const kAurora = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";

struct Canvas {
    int32_t width, height;
    std::vector<uint32_t> pixels =
        std::vector<uint32_t>(size_t(width) * size_t(height), 0xFF7F5F3F);
    gdi::HDC dc = gdi::CreateHostDC({pixels.data(), width, height, width * 4, false});
    ~Canvas() { gdi::DeleteDC(dc); }
};

std::vector<uint32_t> Painted(ThemeItem& item, int32_t state, gdi::SIZE size, bool captioned) {
    Canvas canvas{size.cx, size.cy};
    item.State(state);
    item.DrawBackground(canvas.dc, 0, 0, size.cx, size.cy, -1, -1);
    int32_t right = size.cx, bottom = size.cy;
    if (captioned) item.DrawText(canvas.dc, "Caption of two lines", 0, -1, 0, 0, right, bottom);
    return canvas.pixels;
}

Ref<cAlphaDIBSection> Picture(int32_t width, int32_t height, uint8_t shade) {
    const Ref<cAlphaDIBSection> picture = New<cAlphaDIBSection>();
    picture->Create(width, height);
    for (ARGB& pixel : picture->Pixels()) pixel = ARGB{shade, shade, shade, 255};
    return picture;
}

/// A set with a little of everything.
Ref<ThemeSet> SampleSet() {
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->AddColour(0x112233);
    set->AddColour(-1);
    set->Fonts(New<LFonts>());
    set->Fonts()->Add("Sans", "Font_01", -12, 0, 900, 900, 700, 1, 0, 1, 2, 3, 4, 5, 6);
    set->TextStyles(New<TextStyles>());
    const Ref<TextStyle> style = set->TextStyles()->Add("TextStyle_01", 0x80000012, 1, 2, 4, 3);
    style->FormatFlags = 7;
    style->ShadowOffsetY = -2;
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(Picture(12, 4, 40), 3, 0, PerPixel, 200);
    item->SetGlyph(Picture(4, 8, 90), 2, 1, Trans, 255, 0x00FF00, CenterBottom);
    item->SetImageMargin(1, 2, 3, 4);
    item->SetContentMargin(5, 6, 7, 8);
    item->SetGlyphMargin(9, 10, 11, 12);
    item->SetIconMargin(13, 14, 15, 16);
    item->SetTile(TileXTileY, 1, 0, 1, 0);
    item->StateFrames(ByteArray{0, 1, 2, 255, 0, 1, 2, 0, 1});
    item->IconWidth(16);
    item->IconHeight(24);
    item->IconAlign(RightBottom);
    item->IconTransMode(2);
    item->BackgroundEffect(-5);
    item->StateFont(E_ItemStateNormal, set->Fonts()->Item(1));
    item->StateTextStyle(E_ItemStateFocusMouseOver, style);
    set->Item("Theme_01", item);
    return set;
}

CompiledSkin RoundTrip(const CompiledSkin& skin) {
    return CompiledSkinFrom(BytesOfCompiledSkin(skin));
}

std::string Refusal(const ByteArray& file) {
    try {
        CompiledSkinFrom(file);
    } catch (const Error& error) {
        return error.Description().Utf8();
    }
    return "";
}

size_t CountOf(const ByteArray& file, SectionKind kind) {
    const compiled::Container container(file);
    size_t count = 0;
    for (size_t i = 0; i < container.Count(); ++i) count += container.KindOf(i) == kind;
    return count;
}

TEST(CompiledSkin, PaintsEveryItemAndStateAsTheDefineFileDoes) {
    const Ref<ThemeSet> set = LoadThemeSetFile(kAurora);
    const CompiledSkin copy = RoundTrip({set, {}});
    ASSERT_EQ(copy.set->ThemeItems()->Count(), set->ThemeItems()->Count());
    for (int32_t n = 1; n <= set->ThemeItems()->Count(); ++n) {
        const Ref<ThemeItem> item = set->Item(n),
                             same = copy.set->Item(NumberedSection("Theme_", n));
        ASSERT_TRUE(same);
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            for (const gdi::SIZE size : {gdi::SIZE{24, 20}, gdi::SIZE{131, 57}}) {
                EXPECT_EQ(Painted(*item, state, size, false), Painted(*same, state, size, false))
                    << n << " " << state;
            }
            EXPECT_EQ(Painted(*item, state, {120, 40}, true),
                      Painted(*same, state, {120, 40}, true))
                << n << " " << state;
        }
    }
}

TEST(CompiledSkin, KeepsEveryFieldOfAnItem) {
    const Ref<ThemeSet> set = SampleSet();
    const Ref<ThemeItem> item = set->Item(1), copy = RoundTrip({set, {}}).set->Item("theme_01");
    ASSERT_TRUE(copy);
    EXPECT_TRUE(copy->Image()->Equal(item->Image()));
    EXPECT_TRUE(copy->Glyph()->Equal(item->Glyph()));
    EXPECT_EQ(copy->FrameCount(), 3);
    EXPECT_EQ(copy->FrameOrder(), -1);
    EXPECT_EQ(copy->StateFrames(), item->StateFrames());
    EXPECT_EQ(copy->GlyphStateFrames(), item->GlyphStateFrames());
    EXPECT_EQ(copy->GlyphFrames(), 2);
    EXPECT_EQ(copy->ImageFlags(), item->ImageFlags());
    EXPECT_EQ(copy->ImageAlpha(), 200);
    EXPECT_EQ(copy->GlyphAlpha(), 255);
    EXPECT_EQ(copy->GlyphAlign(), CenterBottom);
    EXPECT_EQ(copy->ImageMarginBottom(), 4);
    EXPECT_EQ(copy->ContentRight(), 7);
    int32_t left, top, right, bottom;
    copy->GetGlyphMargin(left, top, right, bottom);
    EXPECT_EQ(std::vector<int32_t>({left, top, right, bottom}),
              std::vector<int32_t>({9, 10, 11, 12}));
    copy->GetIconMargin(left, top, right, bottom);
    EXPECT_EQ(std::vector<int32_t>({left, top, right, bottom}),
              std::vector<int32_t>({13, 14, 15, 16}));
    EXPECT_EQ(copy->IconWidth(), 16);
    EXPECT_EQ(copy->IconHeight(), 24);
    EXPECT_EQ(copy->IconAlign(), RightBottom);
    EXPECT_EQ(copy->IconTransMode(), 2);
    EXPECT_EQ(copy->BackgroundEffect(), -5);
}

TEST(CompiledSkin, ItemsShareTheFontsAndStylesOfThePools) {
    const Ref<ThemeSet> set = SampleSet(), copy = RoundTrip({set, {}}).set;
    ASSERT_EQ(copy->Fonts()->Count(), 1);
    ASSERT_EQ(copy->TextStyles()->Count(), 1);
    EXPECT_TRUE(copy->Fonts()->Item("Font_01")->Equal(set->Fonts()->Item(1)));
    EXPECT_TRUE(copy->TextStyles()->Item("TextStyle_01")->Equal(set->TextStyles()->Item(1)));
    const Ref<ThemeItem> item = copy->Item(1);
    EXPECT_EQ(item->StateFont(E_ItemStateNormal), copy->Fonts()->Item(1));
    EXPECT_EQ(item->StateFont(E_ItemStatePressed), nullptr);
    EXPECT_EQ(item->StateTextStyle(E_ItemStateFocusMouseOver), copy->TextStyles()->Item(1));
    EXPECT_EQ(copy->Colour(0), 0x112233);
    EXPECT_EQ(copy->Colours().All().size(), 2u);
}

TEST(CompiledSkin, ItemsOfTheSameFontsAndStylesChangeOneByOne) {
    const Ref<ThemeSet> set = SampleSet();
    const Ref<LFont> pooled = set->Fonts()->Item(1);
    for (const char* name : {"Theme_02", "Theme_03", "Theme_04"}) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->StateFont(E_ItemStateNormal, pooled);
        item->StateTextStyle(E_ItemStateFocusMouseOver, set->TextStyles()->Item(1));
        set->Item(name, item);
    }
    const Ref<ThemeSet> read = CompiledSkinFrom(BytesOfCompiledSkin({set, ""})).set;
    const auto item = [&](int32_t n) { return read->Item(n); };
    const Ref<LFont> font = item(1)->StateFont(E_ItemStateNormal);
    const Ref<TextStyle> style = item(1)->StateTextStyle(E_ItemStateFocusMouseOver);
    ASSERT_TRUE(font && style);
    item(2)->StateFont(E_ItemStateNormal, nullptr);
    item(2)->StateTextStyle(E_ItemStateFocusMouseOver, nullptr);
    EXPECT_NE(item(3)->Fonts(), item(1)->Fonts());
    EXPECT_NE(item(3)->TextStyles(), item(1)->TextStyles());
    item(3)->Fonts()->Clear();
    item(3)->LetTextStyles(nullptr);
    for (const int32_t changed : {2, 3}) {
        EXPECT_FALSE(item(changed)->StateFont(E_ItemStateNormal));
        EXPECT_FALSE(item(changed)->StateTextStyle(E_ItemStateFocusMouseOver));
    }
    for (const int32_t same : {1, 4}) {
        EXPECT_EQ(item(same)->StateFont(E_ItemStateNormal), font);
        EXPECT_EQ(item(same)->StateTextStyle(E_ItemStateFocusMouseOver), style);
        EXPECT_EQ(item(same)->Fonts()->Count(), 1);
    }
}

TEST(CompiledSkin, KeepsFontsThatStandInNoPoolAndTheirDrawingStyles) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<ThemeItem> item = New<ThemeItem>();
    const Ref<LFont> font = New<LFont>();
    font->Name = "Sans";
    font->DrawingStyle = New<TextStyle>();
    font->DrawingStyle->ShadowX = 3;
    item->StateFont(E_ItemStateGroup, font);
    set->Item("", item);
    const Ref<ThemeSet> copy = RoundTrip({set, {}}).set;
    EXPECT_EQ(copy->Fonts(), nullptr);
    EXPECT_EQ(copy->TextStyles(), nullptr);
    const Ref<LFont> same = copy->Item(1)->StateFont(E_ItemStateGroup);
    ASSERT_TRUE(same);
    EXPECT_EQ(same->Name, String("Sans"));
    EXPECT_TRUE(font->DrawingStyle->Equal(same->DrawingStyle));
}

TEST(CompiledSkin, AnEmptySetComesBackEmpty) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    set->ThemeItems(nullptr);
    const CompiledSkin copy = RoundTrip({set, {}});
    EXPECT_EQ(copy.set->ThemeItems(), nullptr);
    EXPECT_EQ(copy.set->Fonts(), nullptr);
    EXPECT_EQ(test::RaisedBy([&] { copy.set->Colour(0); }), 9);
    EXPECT_TRUE(copy.notes.empty());
    EXPECT_EQ(test::RaisedBy([&] { BytesOfCompiledSkin({nullptr, {}}); }), 91);
}

TEST(CompiledSkin, KeepsNotesInAnyScript) {
    const String notes("[Theme_01]\nName=确 定\n");
    EXPECT_EQ(RoundTrip({New<ThemeSet>(), notes}).notes, notes);
}

TEST(CompiledSkin, StoresAPictureOnceForAllThatUseIt) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<cAlphaDIBSection> shared = Picture(8, 8, 1);
    for (const auto& image : {shared, shared, Picture(8, 8, 1), Picture(8, 8, 2)}) {
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->SetImage(image, 1, 0, Normal);
        item->Glyph(shared);
        set->Item("", item);
    }
    const ByteArray file = BytesOfCompiledSkin({set, {}});
    EXPECT_EQ(CountOf(file, SectionKind::Picture), 2u);
    const Ref<ThemeSet> copy = CompiledSkinFrom(file).set;
    EXPECT_EQ(copy->Item(1)->Image(), copy->Item(3)->Image());
    EXPECT_EQ(copy->Item(1)->Image(), copy->Item(4)->Glyph());
    EXPECT_NE(copy->Item(1)->Image(), copy->Item(4)->Image());
}

TEST(CompiledSkin, AnImageWithoutPixelsIsNone) {
    const Ref<ThemeSet> set = New<ThemeSet>();
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->Image(New<cAlphaDIBSection>());
    set->Item("", item);
    EXPECT_EQ(RoundTrip({set, {}}).set->Item(1)->Image(), nullptr);
}

TEST(CompiledSkinFile, IsLoadedByTheCallForDefineFiles) {
    const test::TemporaryFolder folder;
    const String path = folder.Path("sample.vxs");
    SaveCompiledSkin({SampleSet(), {}}, path);
    EXPECT_TRUE(IsCompiledSkinFile(path));
    EXPECT_FALSE(IsCompiledSkinFile(kAurora));
    EXPECT_FALSE(IsCompiledSkinFile("/nowhere/x.vxs"));
    EXPECT_EQ(LoadThemeSetFile(path)->ThemeItems()->Count(), 1);
    EXPECT_EQ(LoadCompiledSkin(path).set->ThemeItems()->Count(), 1);
}

TEST(CompiledSkinFile, ErrorsNameThePath) {
    const test::TemporaryFolder folder;
    const auto source = [](auto call) {
        try {
            call();
        } catch (const Error& error) {
            return error.Source();
        }
        return String();
    };
    const String broken = folder.Write("broken.vxs", "VXSK");
    EXPECT_EQ(source([&] { LoadCompiledSkin(broken); }), broken);
    EXPECT_EQ(source([&] { LoadThemeSetFile(broken); }), broken);
    EXPECT_EQ(source([&] { LoadCompiledSkin("/nowhere/x.vxs"); }), String("/nowhere/x.vxs"));
    EXPECT_EQ(source([&] {
                  SaveCompiledSkin({New<ThemeSet>(), {}}, "/nowhere/x.vxs");
              }),
              String("/nowhere/x.vxs"));
}

TEST(CompiledSkinDamage, EveryTruncationIsRefused) {
    const ByteArray file = BytesOfCompiledSkin({SampleSet(), "[Theme_01]\nName=a\n"});
    for (size_t size = 0; size < file.size(); ++size) {
        const ByteArray part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_THAT(Refusal(part), size < 4 ? HasSubstr("no compiled skin") : HasSubstr("cut off"))
            << size;
    }
}

TEST(CompiledSkinDamage, EveryChangedByteIsRefused) {
    const ByteArray file = BytesOfCompiledSkin({SampleSet(), {}});
    for (size_t at = 0; at < file.size(); ++at) {
        ByteArray changed = file;
        changed[at] ^= 0x10;
        EXPECT_NE(Refusal(changed), "") << at;
    }
}

TEST(CompiledSkinDamage, IsDescribed) {
    const ByteArray file = BytesOfCompiledSkin({SampleSet(), {}});
    ByteArray longer = file, later = file, other = file;
    longer.push_back(0);
    later[4] = 2;
    other.back() ^= 1;
    EXPECT_THAT(Refusal(longer), HasSubstr("too long"));
    EXPECT_THAT(Refusal(later), HasSubstr("version 2; only version 1 can be read"));
    EXPECT_THAT(Refusal(other), HasSubstr("checksum"));
    EXPECT_THAT(Refusal({}), HasSubstr("no compiled skin"));
}

/// The file with its checksum made right, as somebody would who means harm.
ByteArray Signed(ByteArray file) {
    StoreLittle(file.data() + 12, core7::Checksum(file.data() + 16, file.size() - 16));
    return file;
}

TEST(CompiledSkinDamage, SizesThatCantBeAreRefusedBeforeRoomIsMade) {
    const ByteArray file = BytesOfCompiledSkin({SampleSet(), {}});
    const auto with = [&](size_t at, uint32_t value) {
        ByteArray changed = file;
        StoreLittle(changed.data() + at, value);
        return Refusal(Signed(changed));
    };
    EXPECT_THAT(with(16, 0xFFFFFFFF), HasSubstr("table goes beyond"));
    EXPECT_THAT(with(20, 0x12345678), HasSubstr("unknown kind"));
    EXPECT_THAT(with(24, 0x7FFFFFFF), HasSubstr("section goes beyond"));
    EXPECT_THAT(with(28, 0xFFFFFFFF), HasSubstr("larger than 96 MiB"));
    EXPECT_THAT(with(28, 1 << 20), HasSubstr("not as large as the table says"));
    EXPECT_THAT(with(16, 1), HasSubstr("behind its last section"));
}

std::string RefusalOf(const std::vector<Section>& sections) {
    return Refusal(compiled::WriteContainer(sections));
}

TEST(CompiledSkinDamage, APictureMustHaveThePixelsThatItClaims) {
    ByteArray block;
    Picture(4, 4, 9)->ToByteArray(block, 0);
    StoreLittle<uint32_t>(block.data() + 24, 8000);  // width, and height
    StoreLittle<uint32_t>(block.data() + 28, 8000);
    StoreLittle<uint32_t>(block.data() + 44, 0);  // the image size
    EXPECT_THAT(RefusalOf({{SectionKind::Picture, block}}), HasSubstr("picture"));
    EXPECT_THAT(RefusalOf({{SectionKind::Picture, {1, 2, 3}}}), HasSubstr("picture"));
    EXPECT_THAT(RefusalOf({{SectionKind::Picture, {}}}), HasSubstr("picture"));
}

ByteArray RecordOf(const std::map<std::string, Variant>& values) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    for (const auto& [name, value] : values) bag->WriteProperty(name, value);
    return compiled::JoinRecords({bag->Contents()});
}

TEST(CompiledSkinDamage, RecordsAreCheckedFieldByField) {
    const auto item = [](const std::map<std::string, Variant>& values) {
        return RefusalOf({{SectionKind::Items, RecordOf(values)}});
    };
    EXPECT_EQ(item({}), "");
    EXPECT_THAT(item({{"Image", 1}}), HasSubstr("refers to what it doesn't hold"));
    EXPECT_THAT(item({{"Glyph", -1}}), HasSubstr("refers to what it doesn't hold"));
    EXPECT_THAT(item({{"Font8", 1}}), HasSubstr("refers to what it doesn't hold"));
    EXPECT_THAT(item({{"StateFrames", ByteArray{1}}}), HasSubstr("frame table"));
    EXPECT_THAT(item({{"StateFrames", 3}}), HasSubstr("frame table"));
    EXPECT_THAT(item({{"FrameCount", "many"}}), StartsWith("damaged"));
    EXPECT_THAT(item({{"ImageAlpha", 256}}), StartsWith("damaged"));
    EXPECT_THAT(RefusalOf({{SectionKind::Items, {5, 0, 0, 0, 1}}}),
                HasSubstr("record goes beyond"));
    EXPECT_THAT(RefusalOf({{SectionKind::Items, {5, 0}}}), HasSubstr("record goes beyond"));
    EXPECT_THAT(RefusalOf({{SectionKind::Fonts, RecordOf({{"DrawingStyle", 2}})}}),
                HasSubstr("refers"));
    EXPECT_THAT(RefusalOf({{SectionKind::Set, {0xFF}}}), StartsWith("damaged"));
}

TEST(CompiledSkinDamage, TooManyRecordsAreRefused) {
    const ByteArray empty(4 * 100001);
    EXPECT_THAT(RefusalOf({{SectionKind::Items, empty}}), HasSubstr("too many records"));
}

TEST(CompiledSkinDamage, SectionsStandOnce) {
    for (const SectionKind kind : {SectionKind::Set, SectionKind::Fonts, SectionKind::Styles,
                                   SectionKind::Items, SectionKind::Notes}) {
        EXPECT_EQ(RefusalOf({{kind, {}}}), "");
        EXPECT_THAT(RefusalOf({{kind, {}}, {kind, {}}}), HasSubstr("two sections of one kind"));
    }
}

TEST(CompiledSkinDamage, TooManySectionsAreRefused) {
    EXPECT_EQ(test::RaisedBy([] {
                  compiled::WriteContainer(std::vector<Section>(10001, {SectionKind::Picture, {}}));
              }),
              6);
    ByteArray file(20 + 12 * 10001);
    const ByteArray small = BytesOfCompiledSkin({New<ThemeSet>(), {}});
    std::copy_n(small.begin(), 8, file.begin());
    StoreLittle<uint32_t>(file.data() + 8, static_cast<uint32_t>(file.size()));
    StoreLittle<uint32_t>(file.data() + 16, 10001);
    EXPECT_THAT(Refusal(Signed(file)), HasSubstr("too many sections"));
}

TEST(CompiledSkin, IsRefusedWhenItIsTooLargeToBeRead) {
    std::vector<Section> sections(2);
    for (Section& section : sections) section.bytes.resize((size_t{48} << 20) + 1);
    EXPECT_EQ(test::RaisedBy([&] { compiled::WriteContainer(sections); }), 6);
}

}  // namespace
}  // namespace vxgui
