#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>

#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/base/Error.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/platform/kernel/resources/ResourceTree.h"

namespace vxgui::kernel {
namespace {

const std::string kText = "[Colour0]\nColour=1 2 3\n";
const std::string kPicture = "a picture";

ResourceBlock BlockOf(const std::string& bytes) {
    return {reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()};
}

std::string TextOf(ResourceBlock block) {
    return {reinterpret_cast<const char*>(block.data), block.size};
}

std::vector<ModuleResource> Samples() {
    return {{"TxtFiles", "blue.INI", BlockOf(kText)},
            {"Image", "Item.bmp", BlockOf(kPicture)},
            {"Image", "#7", BlockOf(kText)},
            {"#10", "Data", BlockOf(kPicture)},
            {"#10", "#65535", BlockOf(kText)}};
}

std::string FindIn(const ByteArray& file, const String& type, const String& name) {
    return TextOf(ResourceTree(ByteSpan(file)).Find(type, name));
}

// The place of the resource section in a file that the writer made.
constexpr size_t kSection = 0x200;

class ResourceOfAModule : public testing::TestWithParam<bool> {
protected:
    ByteArray file_ = WriteResourceModule(Samples(), GetParam());
};
INSTANTIATE_TEST_SUITE_P(Widths, ResourceOfAModule, testing::Values(false, true));

TEST_P(ResourceOfAModule, IsFoundByTextOrNumberWithoutRegardToCase) {
    EXPECT_EQ(FindIn(file_, "TxtFiles", "blue.INI"), kText);
    EXPECT_EQ(FindIn(file_, "TXTFILES", "BLUE.ini"), kText);
    EXPECT_EQ(FindIn(file_, "image", "item.BMP"), kPicture);
    EXPECT_EQ(FindIn(file_, "Image", "#7"), kText);
    EXPECT_EQ(FindIn(file_, "#10", "data"), kPicture);
    EXPECT_EQ(FindIn(file_, "#10", "#65535"), kText);
}

TEST_P(ResourceOfAModule, IsEmptyWhenTypeOrNameIsUnknown) {
    const std::pair<const char*, const char*> kUnknown[] = {
        {"TxtFiles", "red.INI"}, {"TxtFile", "blue.INI"}, {"Image", "blue.INI"}, {"", "blue.INI"},
        {"TxtFiles", ""},        {"#11", "Data"},         {"10", "Data"},        {"Image", "#8"},
    };
    for (const auto& [type, name] : kUnknown) EXPECT_EQ(FindIn(file_, type, name), "") << type;
}

TEST_P(ResourceOfAModule, IsListedInTheOrderOfTheDirectories) {
    std::string list;
    for (const ModuleResource& resource : ResourceTree(ByteSpan(file_)).All()) {
        list += resource.type.Utf8() + "/" + resource.name.Utf8() + "=" +
                std::to_string(resource.block.size) + " ";
    }
    EXPECT_EQ(list, "IMAGE/ITEM.BMP=9 IMAGE/#7=23 TXTFILES/BLUE.INI=23 #10/DATA=9 #10/#65535=23 ");
}

// Every length of the file is copied to a block of just that size, so that a read outside it is
// seen by the sanitizer; what is answered is the whole resource or nothing.
TEST_P(ResourceOfAModule, OfATruncatedFileIsWholeOrAbsent) {
    for (size_t length = 0; length <= file_.size(); ++length) {
        const std::unique_ptr<uint8_t[]> part(new uint8_t[length]);
        std::copy_n(file_.begin(), length, part.get());
        const ResourceTree tree(ByteSpan(part.get(), length));
        for (const ModuleResource& sample : Samples()) {
            const std::string found = TextOf(tree.Find(sample.type, sample.name));
            EXPECT_TRUE(found.empty() || found == TextOf(sample.block)) << length;
        }
        for (const ModuleResource& resource : tree.All()) {
            const uint8_t* end = resource.block.data + resource.block.size;
            ASSERT_TRUE(resource.block.data >= part.get() && end <= part.get() + length);
        }
    }
    EXPECT_EQ(FindIn(file_, "TxtFiles", "blue.INI"), kText);
}

TEST_P(ResourceOfAModule, OfADamagedFileLiesInsideIt) {
    std::minstd_rand random(20240501);
    for (int round = 0; round < 10000; ++round) {
        ByteArray edited = file_;
        for (unsigned edit = 0; edit <= random() % 4; ++edit)
            edited[random() % edited.size()] = static_cast<uint8_t>(random() % 3 ? random() : 255);
        const ResourceTree tree{ByteSpan(edited)};
        uint32_t sum = 0;
        const auto read = [&](ResourceBlock block) {
            if (block.size == 0) return;
            ASSERT_GE(block.data, edited.data());
            ASSERT_LE(block.data + block.size, edited.data() + edited.size());
            sum += block.data[0] + block.data[block.size - 1];
        };
        for (const ModuleResource& sample : Samples()) read(tree.Find(sample.type, sample.name));
        for (const ModuleResource& resource : tree.All()) read(resource.block);
    }
}

// The root names itself as the directory below: three levels are read, never more.
TEST_P(ResourceOfAModule, InDirectoriesThatRunInACircleIsNotFound) {
    StoreLittle<uint32_t>(&file_[kSection + 16 + 4], 0x80000000);
    EXPECT_EQ(FindIn(file_, "Image", "Item.bmp"), "");
    EXPECT_LE(ResourceTree(ByteSpan(file_)).All().size(), 5u);
}

TEST_P(ResourceOfAModule, TreesThatShareDirectoriesEndAtABound) {
    // A root of 65,535 numbers that all lead to the root's own middle: billions of ways.
    ByteArray wide = file_;
    wide.resize(kSection + 16 + 8 * 65535);
    for (const size_t at : {kSection + 12, kSection + 14})
        StoreLittle<uint16_t>(&wide[at], at == kSection + 14 ? 65535 : 0);
    for (size_t i = 0; i < 65535; ++i) {
        StoreLittle<uint32_t>(&wide[kSection + 16 + 8 * i], 1);
        StoreLittle<uint32_t>(&wide[kSection + 20 + 8 * i], 0x80000000 + 16 + 8 * (i % 100));
    }
    const size_t sectionHeader = GetParam() ? 0x40 + 24 + 240 : 0x40 + 24 + 224;
    StoreLittle<uint32_t>(&wide[sectionHeader + 8], 1u << 24);
    StoreLittle<uint32_t>(&wide[sectionHeader + 16], 1u << 24);
    EXPECT_LE(ResourceTree(ByteSpan(wide)).All().size(), 16384u);
}

TEST(ResourceNumbers, AreNotTakenForTexts) {
    const std::string bytes = "x";
    const ByteArray file = WriteResourceModule({{"#70000x", "#12", BlockOf(bytes)}});
    EXPECT_EQ(FindIn(file, "#70000X", "#12"), bytes);
}

TEST(ModuleWriter, RefusesWhatIsNoNameAndWhatStandsTwice) {
    const auto write = [](const String& type, const String& name) {
        return [=] { WriteResourceModule({{type, name, {}}, {"A", "B", {}}}); };
    };
    EXPECT_EQ(test::RaisedBy(write("", "x")), 5);
    EXPECT_EQ(test::RaisedBy(write("x", "")), 5);
    EXPECT_EQ(test::RaisedBy(write("x", std::string(261, 'n'))), 5);
    EXPECT_EQ(test::RaisedBy(write("x", "#65536")), 5);
    EXPECT_EQ(test::RaisedBy(write("a", "b")), 457);
    EXPECT_EQ(test::RaisedBy(write("x", std::string(260, 'n'))), 0);
}

TEST(ModuleWriter, MakesAModuleWithoutResourcesToo) {
    const ByteArray file = WriteResourceModule({});
    EXPECT_TRUE(ResourceTree(ByteSpan(file)).All().empty());
}

TEST(FindModuleResource, ReadsALoadedModuleFile) {
    const test::TemporaryFolder folder;
    const ByteArray file = WriteResourceModule(Samples());
    const std::string path = folder.Write("Styles.dll", TextOf({file.data(), file.size()})).Utf8();
    const HMODULE module = RealKernel().LoadLibraryA(path.c_str());
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(TextOf(FindModuleResource(module, "TxtFiles", "blue.INI")), kText);
    EXPECT_EQ(ModuleResources(module).size(), 5u);
    RealKernel().FreeLibrary(module);
    EXPECT_EQ(FindModuleResource(module, "TxtFiles", "blue.INI").data, nullptr);
    EXPECT_EQ(FindModuleResource(nullptr, "TxtFiles", "blue.INI").data, nullptr);
    EXPECT_TRUE(ModuleResources(nullptr).empty());
}

}  // namespace
}  // namespace vxgui::kernel
