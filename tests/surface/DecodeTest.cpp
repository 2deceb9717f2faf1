#include <cstring>

#include "tests/support/Golden.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/surface/SurfaceSupport.h"
#include "vxgui/platform/core7.h"

namespace vxgui::test {
namespace {

/// A 3 by 2 picture of 32 bits a pixel, bottom row first, whose element i is the value i + 1.
ByteArray CountedTga(bool withFooter = false) {
    ByteArray bytes{0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 3, 0, 2, 0, 32, 8};
    for (uint8_t i = 1; i <= 6; ++i) bytes.insert(bytes.end(), {i, 0, 0, 0});
    if (withFooter) {
        bytes.insert(bytes.end(), 8, 0);
        const std::string_view signature("TRUEVISION-XFILE.\0", 18);
        bytes.insert(bytes.end(), signature.begin(), signature.end());
    }
    return bytes;
}

void ExpectCounted(const Ref<cAlphaDIBSection>& surface) {
    ASSERT_EQ(surface->Width(), 3);
    ASSERT_EQ(surface->Height(), 2);
    EXPECT_EQ(surface->GetPixel(0, 1), 1);
    EXPECT_EQ(surface->GetPixel(2, 0), 6);
    EXPECT_EQ(surface->Flags(), 3u);
}

TEST(SurfaceDecode, ATgaBlockIsDecodedIntoThePixels) {
    const ByteArray bytes = CountedTga();
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->CreateFromTGAPtr(bytes.data(), static_cast<int32_t>(bytes.size())));
    ExpectCounted(surface);
}

TEST(SurfaceDecode, TheTgaFlagAndTheFooterBothLeadToTheTgaDecoder) {
    const auto flagged = New<cAlphaDIBSection>();
    ASSERT_TRUE(flagged->CreateFromByteArray(CountedTga(), true));
    ExpectCounted(flagged);
    const auto recognised = New<cAlphaDIBSection>();
    ASSERT_TRUE(recognised->CreateFromByteArray(CountedTga(true)));
    ExpectCounted(recognised);
}

TEST(SurfaceDecode, ABadHeaderLeavesTheSurface) {
    ByteArray bytes = CountedTga();
    bytes[2] = 0;
    const auto surface = MakeCountedSurface(1, 1);
    EXPECT_FALSE(surface->CreateFromByteArray(bytes, true));
    EXPECT_FALSE(surface->CreateFromTGAPtr(bytes.data(), 17));
    EXPECT_FALSE(surface->CreateFromTGAPtr(nullptr, 0));
    EXPECT_EQ(surface->GetPixel(0, 0), 1);
}

TEST(SurfaceDecode, MissingPixelsLeaveTheSurfaceCreatedAndNotFilled) {
    ByteArray bytes = CountedTga();
    bytes.resize(20);
    const auto surface = MakeCountedSurface(1, 1);
    EXPECT_FALSE(surface->CreateFromByteArray(bytes, true));
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(6));
}

TEST(SurfaceDecode, WhatIsNoPictureGivesFalse) {
    const auto surface = MakeCountedSurface(1, 1);
    EXPECT_FALSE(surface->CreateFromByteArray({}));
    EXPECT_FALSE(surface->CreateFromByteArray({}, true));
    EXPECT_FALSE(surface->CreateFromByteArray(ByteArray(100, 7)));
    EXPECT_FALSE(surface->CreateFromPtr(nullptr, 10));
    EXPECT_EQ(surface->GetPixel(0, 0), 1);
}

TEST(SurfaceDecode, OtherBlocksAreDecodedOverTheTransparentColor) {
    const TemporaryFolder folder;
    const std::string path = folder.Path("picture.png").Utf8();
    // As 32-bit values: opaque, clear, and half clear.
    ASSERT_TRUE(WritePng(path, {3, 1, {0xFF102030, 0x00FFFFFF, 0x80204060}}));
    ByteArray bytes;
    ASSERT_TRUE(core7::ReadWholeFile(path, &bytes));
    const auto surface = New<cAlphaDIBSection>();
    surface->TransparentColor(0x0000FF);
    ASSERT_TRUE(surface->CreateFromByteArray(bytes));
    ASSERT_EQ(surface->Width(), 3);
    // The key is taken as a pixel's value there, so that a red one shines through as blue.
    EXPECT_EQ(static_cast<uint32_t>(surface->GetPixel(0, 0)), 0xFF102030u);
    EXPECT_EQ(static_cast<uint32_t>(surface->GetPixel(1, 0)), 0x000000FFu);
    EXPECT_EQ(surface->GetPixel(2, 0) >> 24 & 0xFF, 0x80);
    EXPECT_NEAR(surface->GetPixel(2, 0) & 0xFF, 0x30 + 0x7F, 1);
}

TEST(SurfaceDecode, ABitmapFileComesAsItsPixels) {
    const TemporaryFolder folder;
    const auto source = MakeSurface(3, 2);
    FillMemory(source, [](int i) { return Pixel(static_cast<uint8_t>(i), 50, 200, 0); });
    ASSERT_TRUE(source->SavePicture(folder.Path("picture.bmp")));
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->CreateFromPictureFile(folder.Path("picture.bmp")));
    ASSERT_EQ(surface->Width(), 3);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(surface->GetPixel(i % 3, i / 3) & 0xFFFFFF,
                  source->GetPixel(i % 3, i / 3) & 0xFFFFFF);
    }
}

TEST(SurfaceDecode, ATgaFileIsLeftToTheLibrarysOwnLoader) {
    const TemporaryFolder folder;
    const ByteArray bytes = CountedTga();
    const String path =
        folder.Write("picture.tga", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->CreateFromPictureFile(path));
    ExpectCounted(surface);
}

TEST(SurfaceDecode, AMissingFileGivesFalseAndLeavesTheSurface) {
    const TemporaryFolder folder;
    const auto surface = MakeCountedSurface(1, 1);
    EXPECT_FALSE(surface->CreateFromPictureFile(folder.Path("none.bmp")));
    EXPECT_FALSE(surface->CreateFromPictureFile(""));
    EXPECT_EQ(surface->GetPixel(0, 0), 1);
}

}  // namespace
}  // namespace vxgui::test
