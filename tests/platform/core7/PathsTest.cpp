#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

using test::TemporaryFolder;

FileSystem& Files() { return ThePathService().TheFileSystem(); }

TEST(FileSystemTest, BuildPathPutsOneSeparatorBetween) {
    const struct {
        const char *folder, *name, *path;
    } cases[] = {
        {"skins", "a.png", "skins/a.png"},
        {"skins/", "a.png", "skins/a.png"},
        {"skins\\", "a.png", "skins/a.png"},
        {"skins", "/a.png", "skins/a.png"},
        {"skins\\", "\\a.png", "skins/a.png"},
        {"", "a.png", "a.png"},
        {"skins", "", "skins"},
        {"", "", ""},
        {"/", "a.png", "/a.png"},
        {"c:\\skins", "b\\a.png", "c:/skins/b/a.png"},
        {"skins", "../other", "skins/../other"},
    };
    for (const auto& c : cases) EXPECT_EQ(Files().BuildPath(c.folder, c.name), c.path);
}

TEST(FileSystemTest, TheParentOfAPathIsWhatStandsBeforeItsLastPart) {
    const struct {
        const char *path, *parent;
    } cases[] = {{"a/b/c.uis", "a/b"},
                 {"a\\b\\c.uis", "a/b"},
                 {"a/b/", "a"},
                 {"c.uis", ""},
                 {"/c.uis", "/"},
                 {"/", ""},
                 {"", ""},
                 {"a//b", "a"}};
    for (const auto& c : cases) EXPECT_EQ(Files().GetParentFolderName(c.path), c.parent) << c.path;
}

TEST(FileSystemTest, TheExtensionIsWhatFollowsTheLastPoint) {
    const struct {
        const char *path, *extension;
    } cases[] = {{"a.tga", "tga"}, {"a.b.TGA", "TGA"},      {"a", ""},
                 {"a.", ""},       {"x.y/a", ""},           {"x.y\\a", ""},
                 {"", ""},         {".profile", "profile"}, {"x.y/a.png", "png"}};
    for (const auto& c : cases) EXPECT_EQ(Files().GetExtensionName(c.path), c.extension) << c.path;
}

TEST(PathServiceTest, JoinPathMakesOnePathWithSingleSeparators) {
    const struct {
        std::vector<String> parts;
        const char* path;
    } cases[] = {
        {{"skin", "images", "a.png"}, "skin/images/a.png"},
        {{"skin\\", "images\\a.png"}, "skin/images/a.png"},
        {{"skin//images", "a.png"}, "skin/images/a.png"},
        {{"skin", ""}, "skin"},
        {{"", "a.png"}, "a.png"},
        {{"skin", "", "a.png"}, "skin/a.png"},
        {{"/skins/one/", "a.png"}, "/skins/one/a.png"},
        {{}, ""},
    };
    for (const auto& c : cases) EXPECT_EQ(ThePathService().JoinPath(c.parts), c.path);
}

TEST(PathServiceTest, AnAbsoluteLaterPartStartsAfresh) {
    EXPECT_EQ(ThePathService().JoinPath({"skin", "/art/a.png"}), "/art/a.png");
    EXPECT_EQ(ThePathService().JoinPath({"skin", "\\art", "a.png"}), "/art/a.png");
    EXPECT_EQ(ThePathService().JoinPath({"skin", "c:\\art"}), "c:/art");
}

TEST(PathServiceTest, AFolderIsAPathButNoFile) {
    const TemporaryFolder folder;
    const String file = folder.Write("a.png", "x");
    EXPECT_TRUE(ThePathService().FileExists(file));
    EXPECT_TRUE(ThePathService().PathExists(file));
    EXPECT_TRUE(ThePathService().PathExists(folder.Path()));
    EXPECT_FALSE(ThePathService().FileExists(folder.Path()));
    EXPECT_FALSE(ThePathService().PathExists(folder.Path("b.png")));
    EXPECT_FALSE(ThePathService().FileExists(""));
    EXPECT_FALSE(ThePathService().PathExists(""));
}

TEST(PathServiceTest, AnApartmentHasOneServiceAndOneFileSystem) {
    EXPECT_EQ(&ThePathService(), &ThePathService());
    EXPECT_EQ(&Files(), &Files());
}

TEST(NativePathTest, HasSlashesForBackslashes) {
    EXPECT_EQ(NativePath("no\\such/file"), "no/such/file");
    EXPECT_EQ(NativePath(""), "");
    EXPECT_EQ(NativePath(u"no\\\x786E"), "no/\xE7\xA1\xAE");
}

TEST(NativePathTest, APathWithNulIsNone) {
    EXPECT_EQ(NativePath(String(std::u16string(u"a.png\0.txt", 10))), "");
}

TEST(NativePathTest, FindsAnEntryThatDiffersInCaseAlone) {
    const TemporaryFolder folder;
    folder.Write("Images/Start/Button.PNG", "x");
    const std::string there = folder.Path("Images/Start/Button.PNG").Utf8();
    EXPECT_EQ(NativePath(folder.Path("images\\START\\button.png")), there);
    EXPECT_EQ(NativePath(folder.Path("Images/Start/Button.PNG")), there);
    EXPECT_TRUE(ThePathService().FileExists(folder.Path("images/start/button.png")));
}

TEST(NativePathTest, ANewFileGoesToTheFolderThatDiffersInCase) {
    const TemporaryFolder folder;
    folder.Write("Images/a.png", "x");
    EXPECT_EQ(NativePath(folder.Path("images/New.png")), folder.Path("Images/New.png").Utf8());
}

TEST(NativePathTest, TheEntryAsWrittenWinsElseTheFirstInTheOrderOfBytes) {
    const TemporaryFolder folder;
    folder.Write("b.png", "x");
    folder.Write("B.png", "x");
    EXPECT_EQ(NativePath(folder.Path("b.png")), folder.Path("b.png").Utf8());
    EXPECT_EQ(NativePath(folder.Path("B.PNG")), folder.Path("B.png").Utf8());
}

}  // namespace
}  // namespace vxgui::core7
