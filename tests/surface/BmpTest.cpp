#include <cstring>
#include <filesystem>

#include "tests/support/TemporaryFolder.h"
#include "tests/surface/SurfaceSupport.h"
#include "vxgui/platform/core7.h"

namespace vxgui::test {
namespace {

TEST(SurfaceBmp, EveryFieldOfTheFileFormStandsInItsPlace) {
    const auto surface = MakeCountedSurface(3, 2);
    ByteArray bytes;
    ASSERT_TRUE(surface->SaveToByteArray(bytes));
    ASSERT_EQ(bytes.size(), 78u);
    const ByteArray head(bytes.begin(), bytes.begin() + 26);
    EXPECT_EQ(head, (ByteArray{'B', 'M', 78, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0,
                               0,   40,  0,  0, 0, 3, 0, 0, 0, 2, 0,  0, 0}));
    EXPECT_EQ(bytes[28], 32);
    EXPECT_EQ(std::memcmp(bytes.data() + 54, surface->DIBSectionBitsPtr(), 24), 0);
}

TEST(SurfaceBmp, ASurfaceWithoutPixelsLeavesTheArray) {
    ByteArray bytes{7};
    EXPECT_FALSE(New<cAlphaDIBSection>()->SaveToByteArray(bytes));
    const auto failed = New<cAlphaDIBSection>();
    failed->Create(100000, 100000);
    EXPECT_FALSE(failed->SaveToByteArray(bytes));
    EXPECT_EQ(bytes, ByteArray{7});
}

TEST(SurfaceBmp, AnEmptySurfaceMakesAFileOfItsHeadersAlone) {
    const TemporaryFolder folder;
    const String path = folder.Path("picture.bmp");
    EXPECT_TRUE(New<cAlphaDIBSection>()->SavePicture(path));
    ByteArray bytes;
    ASSERT_TRUE(core7::ReadWholeFile(path, &bytes));
    ByteArray expected{'B', 'M', 54, 0, 0, 0, 0, 0, 0, 0, 54};
    expected.resize(54);
    EXPECT_EQ(bytes, expected);
}

TEST(SurfaceBmp, PixelsThatAreNotThereCannotBeWritten) {
    const TemporaryFolder folder;
    const auto surface = MakeCountedSurface(3, 2);
    gdi::DeleteObject(surface->ExtractDib());
    EXPECT_FALSE(surface->SavePicture(folder.Path("gone.bmp")));
    const auto failed = New<cAlphaDIBSection>();
    failed->Create(100000, 100000);
    EXPECT_FALSE(failed->SavePicture(folder.Path("failed.bmp")));
}

TEST(SurfaceBmp, TheFileHoldsTheSameBytes) {
    const TemporaryFolder folder;
    const auto surface = MakeCountedSurface(3, 2);
    const String path = folder.Path("picture.bmp");
    EXPECT_TRUE(surface->SavePicture(path));
    ByteArray expected, actual;
    surface->SaveToByteArray(expected);
    ASSERT_TRUE(core7::ReadWholeFile(path, &actual));
    EXPECT_EQ(actual, expected);
    EXPECT_TRUE(MakeSurface(1, 1)->SavePicture(path));
    EXPECT_EQ(std::filesystem::file_size(path.Utf8()), 58u);
}

TEST(SurfaceBmp, AFileThatCannotBeMadeRaises) {
    const TemporaryFolder folder;
    const auto surface = MakeCountedSurface(3, 2);
    try {
        surface->SavePicture(folder.Path("nowhere/picture.bmp"));
        FAIL() << "it must raise";
    } catch (const Error& error) {
        EXPECT_EQ(error.Number(), 17);
        EXPECT_EQ(error.Source(), "VxGUI.cDIBSection");
        EXPECT_EQ(error.Description(), cAlphaDIBSection::SystemErrorText(3));
        EXPECT_FALSE(error.Description().empty());
    }
}

TEST(SurfaceBmp, TheTextOfASystemErrorIsTheSystemsOwnOrEmpty) {
    const auto information = std::exchange(gSysInfo, nullptr);
    EXPECT_EQ(cAlphaDIBSection::SystemErrorText(5), "Access denied");
    gSysInfo = information;
    EXPECT_EQ(cAlphaDIBSection::SystemErrorText(0xFFFFFFFF), "");
}

TEST(SurfaceBmp, AWriteFailsUnlessItSucceededAndWroteAll) {
    EXPECT_FALSE(cAlphaDIBSection::WriteFailed(true, 40, 40));
    EXPECT_TRUE(cAlphaDIBSection::WriteFailed(true, 40, 39));
    EXPECT_TRUE(cAlphaDIBSection::WriteFailed(false, 40, 40));
}

TEST(SurfaceBmp, AFullDiskGivesFalse) {
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full here";
    EXPECT_FALSE(MakeCountedSurface(3, 2)->SavePicture("/dev/full"));
}

}  // namespace
}  // namespace vxgui::test
