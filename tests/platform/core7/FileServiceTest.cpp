#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/TemporaryFolder.h"
#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

using test::TemporaryFolder;

TEST(FileServiceTest, WhatIsWrittenIsRead) {
    const TemporaryFolder folder;
    ByteArray written(300000);
    for (size_t i = 0; i < written.size(); ++i) written[i] = static_cast<uint8_t>(i * 31 >> 3);
    ASSERT_TRUE(WriteWholeFile(folder.Path("a.bin"), written.data(), written.size()));
    ByteArray read{1, 2, 3};
    ASSERT_TRUE(ReadWholeFile(folder.Path("a.bin"), &read));
    EXPECT_EQ(read, written);
    EXPECT_EQ(read.capacity() < 2 * read.size(), true) << "not more memory than twice the file";
}

TEST(FileServiceTest, WritingReplacesTheFile) {
    const TemporaryFolder folder;
    const String path = folder.Write("a.bin", "something long");
    ASSERT_TRUE(WriteWholeFile(path, "ab", 2));
    ByteArray read;
    ASSERT_TRUE(ReadWholeFile(path, &read));
    EXPECT_EQ(read, (ByteArray{'a', 'b'}));
}

TEST(FileServiceTest, AnEmptyFileIsReadAsNoBytes) {
    const TemporaryFolder folder;
    ByteArray read{1};
    ASSERT_TRUE(ReadWholeFile(folder.Write("a.bin", ""), &read));
    EXPECT_TRUE(read.empty());
}

TEST(FileServiceTest, AFileBeyondTheLimitIsNotRead) {
    const TemporaryFolder folder;
    const String path = folder.Write("a.bin", "12345");
    ByteArray read{1};
    EXPECT_TRUE(ReadWholeFile(path, &read, 5));
    EXPECT_FALSE(ReadWholeFile(path, &read, 4));
    EXPECT_TRUE(read.empty());
    EXPECT_EQ(kernel::GetLastError(), 223u);
}

TEST(FileServiceTest, AMissingFileIsNotRead) {
    const TemporaryFolder folder;
    ByteArray read{1};
    EXPECT_FALSE(ReadWholeFile(folder.Path("none"), &read));
    EXPECT_TRUE(read.empty());
    EXPECT_EQ(kernel::GetLastError(), 2u);
    EXPECT_FALSE(ReadWholeFile("", &read));
}

TEST(FileServiceTest, AFolderOrAPipeIsNoFile) {
    const TemporaryFolder folder;
    ByteArray read;
    EXPECT_FALSE(ReadWholeFile(folder.Path(), &read));
    EXPECT_EQ(kernel::GetLastError(), 5u);
    ASSERT_EQ(::mkfifo(folder.Path("pipe").Utf8().c_str(), 0600), 0);
    EXPECT_FALSE(ReadWholeFile(folder.Path("pipe"), &read)) << "and it must not wait for a writer";
}

TEST(FileServiceTest, AFileInAMissingFolderCannotBeMade) {
    const TemporaryFolder folder;
    EXPECT_FALSE(WriteWholeFile(folder.Path("none/a.bin"), "a", 1));
    EXPECT_EQ(kernel::GetLastError(), 3u);
    EXPECT_EQ(CreateOutputFile(folder.Path("none/a.bin")), nullptr);
    EXPECT_EQ(CreateOutputFile(folder.Path()), nullptr);
    EXPECT_EQ(kernel::GetLastError(), 5u);
}

TEST(FileServiceTest, PiecesFollowOneAnother) {
    const TemporaryFolder folder;
    {
        const auto file = CreateOutputFile(folder.Path("a.bin"));
        ASSERT_NE(file, nullptr);
        size_t written = 0;
        EXPECT_TRUE(file->Write("abc", 3, &written));
        EXPECT_EQ(written, 3u);
        EXPECT_TRUE(file->Write("", 0, &written));
        EXPECT_EQ(written, 0u);
        EXPECT_TRUE(file->Write("de", 2));
    }
    ByteArray read;
    ASSERT_TRUE(ReadWholeFile(folder.Path("a.bin"), &read));
    EXPECT_EQ(std::string(read.begin(), read.end()), "abcde");
}

TEST(FileServiceTest, AFullDiskFailsTheWrite) {
    const auto file = CreateOutputFile("/dev/full");
    if (!file) GTEST_SKIP() << "no device that is always full here";
    size_t written = 99;
    EXPECT_FALSE(file->Write("abc", 3, &written));
    EXPECT_EQ(written, 0u);
    EXPECT_EQ(kernel::GetLastError(), 112u);
}

}  // namespace
}  // namespace vxgui::core7
