#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/ToolCall.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::tool {
namespace {

using testing::HasSubstr;
namespace fs = std::filesystem;

class Module : public testing::TestWithParam<bool> {
protected:
    int Run(std::vector<std::string> arguments) {
        out_.str("");
        errors_.str("");
        return RunTool(std::move(arguments), out_, errors_);
    }
    int Pack(bool wide = false) {
        std::vector<std::string> arguments{"pack", In("in"), "-o", In("Styles.dll")};
        if (wide) arguments.push_back("--64");
        return Run(std::move(arguments));
    }
    int Unpack() { return Run({"unpack", In("Styles.dll"), "-o", In("out")}); }
    std::string In(const std::string& name) const { return folder_.Path(name).Utf8(); }
    /// The files below a folder by their paths in it.
    std::map<std::string, std::string> FilesOf(const std::string& name) const {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::recursive_directory_iterator(In(name))) {
            if (!entry.is_regular_file()) continue;
            std::ifstream file(entry.path(), std::ios::binary);
            files[fs::relative(entry.path(), In(name)).string()] = {
                std::istreambuf_iterator<char>(file), {}};
        }
        return files;
    }
    void WriteSamples() const {
        folder_.Write("in/TxtFiles/blue.INI", "[Colour0]\nColour=1 2 3\n");
        folder_.Write("in/TxtFiles/blueTaskBar.INI", "[Taskbar.Horz]\nImage=Bar.bmp\n");
        folder_.Write("in/Image/Bar.bmp", std::string("\0\xFF\r\n\x1A", 5));
        folder_.Write("in/Image/Empty.bmp", "");
        folder_.Write("in/#10/#7", "numbers");
        folder_.Write("in/.hidden/file", "not packed");
    }
    void WriteModule(const std::vector<kernel::ModuleResource>& resources) {
        const ByteArray file = kernel::WriteResourceModule(resources);
        folder_.Write("Styles.dll", {reinterpret_cast<const char*>(file.data()), file.size()});
    }

    test::TemporaryFolder folder_;
    std::ostringstream out_, errors_;
};
INSTANTIATE_TEST_SUITE_P(Widths, Module, testing::Values(false, true));

TEST_P(Module, ThatIsPackedUnpacksToTheSameFilesInCapitals) {
    WriteSamples();
    ASSERT_EQ(Pack(GetParam()), 0) << errors_.str();
    EXPECT_THAT(out_.str(), HasSubstr("5 resources"));
    ASSERT_EQ(Unpack(), 0) << errors_.str();
    EXPECT_THAT(out_.str(), HasSubstr("5 files"));
    const std::map<std::string, std::string> expected{
        {"TXTFILES/BLUE.INI", "[Colour0]\nColour=1 2 3\n"},
        {"TXTFILES/BLUETASKBAR.INI", "[Taskbar.Horz]\nImage=Bar.bmp\n"},
        {"IMAGE/BAR.BMP", std::string("\0\xFF\r\n\x1A", 5)},
        {"IMAGE/EMPTY.BMP", ""},
        {"#10/#7", "numbers"},
    };
    EXPECT_EQ(FilesOf("out"), expected);
}

TEST_P(Module, PackedAgainIsTheSameToTheByte) {
    WriteSamples();
    ASSERT_EQ(Pack(GetParam()), 0);
    ASSERT_EQ(Unpack(), 0);
    std::vector<std::string> arguments{"pack", In("out"), "-o", In("again.dll")};
    if (GetParam()) arguments.push_back("--64");
    ASSERT_EQ(Run(arguments), 0) << errors_.str();
    const auto files = FilesOf(".");
    EXPECT_EQ(files.at("Styles.dll"), files.at("again.dll"));
}

TEST_P(Module, IsReadByAnIndependentReader) {
    if (OutputOf("command -v wrestool").empty())
        GTEST_SKIP() << "wrestool, of the package icoutils, is not installed";
    WriteSamples();
    ASSERT_EQ(Pack(GetParam()), 0);
    const std::string file = " '" + In("Styles.dll") + "'";
    const std::string list = OutputOf("wrestool -l" + file + " 2>&1");
    // Where type and name are texts its list shows one of them twice; extraction tells them apart.
    EXPECT_THAT(list, HasSubstr("--type='TXTFILES'"));
    EXPECT_THAT(list, HasSubstr("--type='IMAGE'"));
    EXPECT_THAT(list, HasSubstr("--type=10 --name=7"));
    EXPECT_EQ(OutputOf("wrestool -x --raw -t TXTFILES -n BLUE.INI" + file),
              "[Colour0]\nColour=1 2 3\n");
    EXPECT_EQ(OutputOf("wrestool -x --raw -t IMAGE -n BAR.BMP" + file),
              std::string("\0\xFF\r\n\x1A", 5));
}

using Packing = Module;
INSTANTIATE_TEST_SUITE_P(Once, Packing, testing::Values(false));

TEST_P(Packing, SaysWhatItCanNotPack) {
    EXPECT_EQ(Pack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("/in: error: "));
    fs::create_directories(In("in"));
    EXPECT_EQ(Pack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("holds nothing"));
    folder_.Write("in/stray.bmp", "x");
    EXPECT_EQ(Pack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("stray.bmp: error: lies in no folder"));
    fs::remove(In("in/stray.bmp"));
    fs::create_directories(In("in/Image/deeper"));
    EXPECT_EQ(Pack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("deeper: error: can't be read"));
    fs::remove(In("in/Image/deeper"));
    folder_.Write("in/Image/a.bmp", "1");
    folder_.Write("in/Image/A.BMP", "2");
    EXPECT_EQ(Pack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("in: error: Twice the resource"));
    EXPECT_FALSE(fs::exists(In("Styles.dll")));
}

TEST_P(Packing, SaysWhenTheModuleCanNotBeWritten) {
    WriteSamples();
    EXPECT_EQ(Run({"pack", In("in"), "-o", In("none/Styles.dll")}), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("Styles.dll: error: can't be written"));
}

TEST_P(Packing, UnpackingSaysWhatIsNoModule) {
    EXPECT_EQ(Unpack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("can't be read"));
    folder_.Write("Styles.dll", "MZ, and nothing more");
    EXPECT_EQ(Unpack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("no module with resources"));
}

TEST_P(Packing, UnpackingNeverLeavesTheFolder) {
    const uint8_t byte = 1;
    const kernel::ResourceBlock block{&byte, 1};
    for (const char* name : {"..", ".", "../up", "/root", "a\\b", "C:x", "a\nb"}) {
        for (const bool asType : {false, true}) {
            const String bad = name;
            WriteModule({{"Image", "good.bmp", block},
                         {asType ? bad : "Image", asType ? "x" : bad, block}});
            EXPECT_EQ(Unpack(), 1) << name;
            EXPECT_THAT(errors_.str(), HasSubstr("a name that no file can have"));
            EXPECT_FALSE(fs::exists(In("out"))) << name;
        }
    }
}

TEST_P(Packing, UnpackingRefusesAModuleWhoseResourcesShareTheirBytes) {
    const ByteArray large(4096, 7);
    WriteModule({{"A", "A", {large.data(), large.size()}}, {"A", "B", {large.data(), 1}}});
    // The second one's size: the last data entry stands before the texts of the names.
    std::string file = FilesOf(".").at("Styles.dll");
    const std::string size("\x01\0\0\0\0\0\0\0\0\0\0\0", 12);
    const size_t at = file.find(size, 0x200);
    ASSERT_NE(at, std::string::npos);
    std::string edited = file;
    const size_t first = file.find(std::string("\0\x10\0\0\0\0\0\0\0\0\0\0", 12), 0x200);
    ASSERT_NE(first, std::string::npos);
    edited.replace(at - 4, 8, file.substr(first - 4, 8));
    folder_.Write("Styles.dll", edited);
    EXPECT_EQ(Unpack(), 1);
    EXPECT_THAT(errors_.str(), HasSubstr("larger than itself"));
}

}  // namespace
}  // namespace vxgui::tool
