#include <algorithm>

#include "tests/limits/LimitsTest.h"
#include "tests/support/Errors.h"
#include "tests/support/Images.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/ole.h"
#include "vxgui/platform/ole_stream.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/theme/CompiledSkin.h"

namespace vxgui::test {
namespace {

/// Whether `work` raises nothing.
template <class Work>
bool Passes(Work work) {
    try {
        work();
        return true;
    } catch (const Error&) {
        return false;
    }
}

Ref<cAlphaDIBSection> Picture(int32_t width, int32_t height) {
    const Ref<cAlphaDIBSection> picture = New<cAlphaDIBSection>();
    EXPECT_TRUE(picture->Create(width, height));
    return picture;
}

class PictureLimitsTest : public LimitsTest {
protected:
    static bool Decodes() {
        ByteArray bytes;
        return Picture(4, 2)->SaveToByteArray(bytes) &&
               New<cAlphaDIBSection>()->CreateFromByteArray(bytes, false);
    }
};

TEST_F(PictureLimitsTest, ASideAndNoMore) {
    ApartmentLimits().picture.side = 4;
    EXPECT_TRUE(Decodes());
    ApartmentLimits().picture.side = 3;
    EXPECT_FALSE(Decodes());
}

TEST_F(PictureLimitsTest, AnAreaAndNoMore) {
    ApartmentLimits().picture.area = 8;
    EXPECT_TRUE(Decodes());
    ApartmentLimits().picture.area = 7;
    EXPECT_FALSE(Decodes());
}

TEST_F(PictureLimitsTest, DecodedBytesAndNoMore) {
    ApartmentLimits().picture.bytes = 32;
    EXPECT_TRUE(Decodes());
    ApartmentLimits().picture.bytes = 31;
    EXPECT_FALSE(Decodes());
}

using FileLimitsTest = LimitsTest;

TEST_F(FileLimitsTest, ScansOfAJpegAndNoMore) {
    const auto file = ReadTestFile("images/jpeg-progressive.jpg");
    int32_t scans = 0;
    for (size_t i = 0; i + 1 < file.size(); ++i) scans += file[i] == 0xFF && file[i + 1] == 0xDA;
    ASSERT_GT(scans, 2);
    const ByteArray bytes(file.begin(), file.end());
    ExpectBound(&Limits::jpegScans, scans,
                [&] { return New<cAlphaDIBSection>()->CreateFromByteArray(bytes, false); });
}

TEST_F(FileLimitsTest, BytesOfAFileAndNoMore) {
    const TemporaryFolder folder;
    const String path = folder.Write("file", "0123456789");
    ByteArray bytes;
    ExpectBound(&Limits::fileBytes, size_t{10}, [&] { return core7::ReadWholeFile(path, &bytes); });
}

TEST_F(FileLimitsTest, WhatACompressedBlockHoldsAndNoMore) {
    const ByteArray block = core7::Compress(ByteArray(1000, 7));
    ExpectBound(&Limits::decompressedBytes, size_t{1000},
                [&] { return core7::Decompress(block).has_value(); });
}

TEST_F(FileLimitsTest, KeysAndBytesOfADefineFileAndNoMore) {
    const auto loads = [] { return core7::CreateDefineFile()->LoadText("[a]\nb=1\nc=2\n"); };
    ApartmentLimits().define = {12, 3};
    EXPECT_TRUE(loads());
    ApartmentLimits().define = {11, 3};
    EXPECT_FALSE(loads());
    ApartmentLimits().define = {12, 2};
    EXPECT_FALSE(loads());
}

TEST_F(FileLimitsTest, BytesAndEntriesOfAPropertyBagAndNoMore) {
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    bag->WriteProperty("a", 1, {});
    bag->WriteProperty("b", "two", {});
    const ByteArray contents = bag->Contents();
    const auto reads = [&] { return Passes([&] { New<ole::PropertyBag>()->Contents(contents); }); };
    ExpectBound(&Limits::bagBytes, contents.size(), reads);
    ExpectBound(&Limits::bagEntries, size_t{2}, reads);
}

TEST_F(FileLimitsTest, BytesOfAStreamAndNoMore) {
    const uint8_t bytes[10] = {};
    ExpectBound(&Limits::streamBytes, uint64_t{10}, [&] {
        return ole::CreateStreamOnHGlobal()->Write(bytes, sizeof bytes) == sizeof bytes;
    });
    ExpectBound(&Limits::streamBytes, uint64_t{20},
                [&] { return ole::CreateStreamOnHGlobal()->SetSize(20); });
}

ByteArray ModuleOf(size_t count) {
    static const uint8_t byte = 1;
    std::vector<kernel::ModuleResource> resources;
    for (size_t i = 0; i < count; ++i)
        resources.push_back(
            {"IMAGE", String::FromInt(static_cast<int64_t>(i)) + ".BMP", {&byte, 1}});
    return kernel::WriteResourceModule(resources);
}

TEST_F(FileLimitsTest, BytesOfAModuleAndNoMore) {
    const TemporaryFolder folder;
    const ByteArray file = ModuleOf(1);
    const std::string path =
        folder.Write("style.dll", {reinterpret_cast<const char*>(file.data()), file.size()}).Utf8();
    ExpectBound(&Limits::moduleBytes, file.size(), [&] {
        const kernel::HMODULE module = kernel::TheKernel().LoadLibraryA(path.c_str());
        return module && kernel::TheKernel().FreeLibrary(module);
    });
}

TEST_F(FileLimitsTest, ResourcesOfAModuleAndNoMore) {
    const ByteArray file = ModuleOf(3);
    ExpectBound(&Limits::moduleResources, 3u, [&] {
        return kernel::ResourcesOfFile({file.data(), file.size()}).size() == 3;
    });
}

TEST_F(FileLimitsTest, SectionsOfAThemeSetAndNoMore) {
    for (const char* kind : {"Fonts", "TextStyles", "Themes"}) {
        const Ref<core7::DefineFile> file = core7::CreateDefineFile();
        file->LoadText(String("[ThemeSet]\n") + kind + "=3\n");
        ExpectBound(&Limits::themeSections, 3,
                    [&] { return Passes([&] { ThemeSetFromDefine(New<ThemeSet>(), file, ""); }); });
    }
}

class SkinLimitsTest : public LimitsTest {
protected:
    // Two items, each with a picture of its own.
    static ByteArray Skin() {
        const Ref<ThemeSet> set = New<ThemeSet>();
        set->ThemeItems(New<ThemeItems>());
        for (int32_t side = 3; side < 5; ++side) {
            const Ref<ThemeItem> item = New<ThemeItem>();
            item->SetImage(Picture(side, side), 1, 0, Normal);
            set->ThemeItems()->AddItem(item, String("Theme_0") + String::FromInt(side));
        }
        return BytesOfCompiledSkin({set, {}});
    }
    static auto Reader(const ByteArray& file) {
        return [&file] { return Passes([&] { CompiledSkinFrom(file); }); };
    }
};

TEST_F(SkinLimitsTest, BytesOfTheFileAndNoMore) {
    const TemporaryFolder folder;
    const ByteArray file = Skin();
    const String path = folder.Path("skin.vxs");
    ASSERT_TRUE(core7::WriteWholeFile(path, file.data(), file.size()));
    ExpectBound(&Limits::skinFileBytes, file.size(),
                [&] { return Passes([&] { LoadCompiledSkin(path); }); });
}

TEST_F(SkinLimitsTest, ContentsAndNoMore) {
    const ByteArray file = Skin();
    // The sections' sizes stand in the table behind the header, each entry's last field.
    const size_t sections = LoadLittle<uint32_t>(file.data() + 16);
    size_t contents = 0;
    for (size_t i = 0; i < sections; ++i)
        contents += LoadLittle<uint32_t>(file.data() + 20 + 12 * i + 8);
    ExpectBound(&Limits::skinBytes, contents, Reader(file));
    ExpectBound(&Limits::skinSections, sections, Reader(file));
    ExpectBound(&Limits::skinBytes, contents, [] { return Passes([] { Skin(); }); });
}

TEST_F(SkinLimitsTest, RecordsAndNoMore) {
    const ByteArray file = Skin();
    ExpectBound(&Limits::skinRecords, size_t{2}, Reader(file));
    ExpectBound(&Limits::skinRecords, size_t{2}, [] { return Passes([] { Skin(); }); });
}

}  // namespace
}  // namespace vxgui::test
