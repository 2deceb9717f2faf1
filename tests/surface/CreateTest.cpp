#include <cstring>

#include "tests/surface/SurfaceSupport.h"

namespace vxgui::test {
namespace {

TEST(SurfaceCreate, ANewSurfaceIsEmptyAndAnswersZero) {
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_EQ(surface->hDC(), nullptr);
    EXPECT_EQ(surface->hDIB(), nullptr);
    EXPECT_EQ(surface->DIBSectionBitsPtr(), nullptr);
    EXPECT_EQ(surface->Width(), 0);
    EXPECT_EQ(surface->Height(), 0);
    EXPECT_EQ(surface->BytesPerScanLine(), 0);
    EXPECT_EQ(surface->GetPixel(0, 0), 0);
    EXPECT_EQ(surface->Flags(), 3u);
    EXPECT_EQ(surface->TransparentColor(), 0xFF00FF);
    EXPECT_EQ(surface->Picture(), nullptr);
    EXPECT_EQ(surface->ExtractDib(), nullptr);
}

TEST(SurfaceCreate, TheFirstSurfaceSetsTheApartmentUp) {
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(gTrace);
}

TEST(SurfaceCreate, PixelsStartAtZeroInRowsWithoutPadding) {
    const auto surface = MakeSurface(3, 2);
    EXPECT_EQ(surface->BytesPerScanLine(), 12);
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(6));
    EXPECT_NE(surface->hDC(), nullptr);
    EXPECT_NE(surface->hDIB(), nullptr);
}

TEST(SurfaceCreate, ZeroSizeGivesFalseAndAnEmptySurfaceWithFlagsThree) {
    const auto surface = MakeSurface(4, 4);
    surface->UseMsImag32(false);
    EXPECT_FALSE(surface->Create(0, 10));
    EXPECT_EQ(surface->hDC(), nullptr);
    EXPECT_EQ(surface->hDIB(), nullptr);
    EXPECT_EQ(surface->DIBSectionBitsPtr(), nullptr);
    EXPECT_EQ(surface->Flags(), 3u);
    EXPECT_EQ(surface->GetPixel(0, 0), 0);
}

TEST(SurfaceCreate, AHeightBelowZeroIsRefusedAndIsNoOtherOrderOfRows) {
    const auto surface = MakeSurface(4, 4);
    EXPECT_FALSE(surface->Create(4, -3));
    EXPECT_EQ(surface->hDC(), nullptr);
    EXPECT_EQ(surface->hDIB(), nullptr);
    EXPECT_EQ(surface->DIBSectionBitsPtr(), nullptr);
    EXPECT_FALSE(surface->CreateWithCompatibleDC(4, -3, nullptr));
    gdi::HBITMAP made = nullptr;
    EXPECT_FALSE(surface->CreateDIB(nullptr, 4, -3, made));
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(surface->Height(), -3) << "as asked for";
}

TEST(SurfaceCreate, AnAbsurdSizeGivesFalseAndEveryLoopThenDoesNothing) {
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_FALSE(surface->Create(100000, 100000));
    EXPECT_EQ(surface->hDIB(), nullptr);
    surface->PreMultiplyAlpha();
    surface->RandomiseBits();
    surface->MaskFromColor(0);
    EXPECT_FALSE(surface->HasAlphaChannel());
    EXPECT_EQ(surface->GetPixel(5, 5), 0);
    EXPECT_FALSE(surface->Create(-3, 5));
    EXPECT_FALSE(surface->Create(1 << 30, 4));
}

TEST(SurfaceCreate, RecreatingSetsUseMsImag32Again) {
    const auto surface = New<cAlphaDIBSection>();
    surface->UseMsImag32(false);
    EXPECT_FALSE(surface->UseMsImag32());
    ASSERT_TRUE(surface->Create(2, 2));
    EXPECT_TRUE(surface->UseMsImag32());
}

TEST(SurfaceCreate, UseDrawDibNeedsTheHandleAndTheFlag) {
    const auto surface = New<cAlphaDIBSection>();
    const auto handle = std::exchange(gDrawDib, nullptr);
    EXPECT_FALSE(surface->UseDrawDib());
    EXPECT_EQ(surface->Flags() & cAlphaDIBSection::kUseDrawDib, 1u);
    gDrawDib = &gDrawDib;
    EXPECT_TRUE(surface->UseDrawDib());
    surface->UseDrawDib(false);
    EXPECT_FALSE(surface->UseDrawDib());
    EXPECT_EQ(surface->Flags(), 2u);
    surface->UseDrawDib(true);
    EXPECT_TRUE(surface->UseDrawDib());
    gDrawDib = handle;
}

TEST(SurfaceCreate, TheHeaderIsThatOfABottomUpBitmap) {
    const auto surface = MakeSurface(5, 3);
    gdi::DIBSECTION record;
    ASSERT_EQ(gdi::GetObjectA(surface->hDIB(), sizeof record, &record), gdi::kDibSectionRecordSize);
    EXPECT_EQ(record.dsBmih.biSize, 40u);
    EXPECT_EQ(record.dsBmih.biWidth, 5);
    EXPECT_EQ(record.dsBmih.biHeight, 3);
    EXPECT_EQ(record.dsBmih.biBitCount, 32);
    EXPECT_EQ(record.dsBmih.biSizeImage, 60u);
    EXPECT_EQ(record.dsBm.bmBits, surface->DIBSectionBitsPtr());
}

TEST(SurfaceCreate, PlatformDrawingAndThePixelsAreTheSameBytes) {
    const auto surface = MakeCountedSurface(4, 3);
    EXPECT_EQ(gdi::GetPixel(surface->hDC(), 0, 2), gdi::RGB(0, 0, 1));
    gdi::SetPixel(surface->hDC(), 3, 0, gdi::RGB(1, 2, 3));
    EXPECT_EQ(MemoryOf(surface)[11], Pixel(3, 2, 1, 0));
}

TEST(SurfaceCreate, CreateDibMakesABitmapThatIsNotTheSurfaces) {
    const auto surface = MakeSurface(2, 2);
    const gdi::HBITMAP own = surface->hDIB();
    gdi::HBITMAP made = nullptr;
    ASSERT_TRUE(surface->CreateDIB(surface->hDC(), 7, 5, made));
    EXPECT_NE(made, own);
    EXPECT_EQ(surface->hDIB(), own);
    EXPECT_EQ(surface->Width(), 7);
    EXPECT_EQ(surface->Height(), 5);
    EXPECT_TRUE(gdi::DeleteObject(made));
    EXPECT_EQ(surface->GetPixel(6, 0), 0);  // the memory has gone with its bitmap
    surface->RandomiseBits();
}

TEST(SurfaceCreate, CreateDibKeepsTheAskedSizeWhenItFails) {
    const auto surface = New<cAlphaDIBSection>();
    gdi::HBITMAP made = nullptr;
    EXPECT_FALSE(surface->CreateDIB(nullptr, 0, 9, made));
    EXPECT_EQ(made, nullptr);
    EXPECT_EQ(surface->Height(), 9);
}

TEST(SurfaceCreate, TheCompatibleContextSurvivesClearUp) {
    const auto model = MakeSurface(1, 1);
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->CreateWithCompatibleDC(2, 2, model->hDC()));
    model->ClearUp();
    // A context that has gone stays the one that is asked, so creation fails from now on.
    EXPECT_FALSE(surface->Create(2, 2));
    EXPECT_TRUE(surface->CreateWithCompatibleDC(2, 2, nullptr));
}

TEST(SurfaceCreate, ClearUpKeepsTheTransparentColorAndMayBeRepeated) {
    const auto surface = MakeSurface(2, 2);
    surface->TransparentColor(0x123456);
    surface->UseDrawDib(false);
    surface->ClearUp();
    surface->ClearUp();
    EXPECT_EQ(surface->TransparentColor(), 0x123456);
    EXPECT_EQ(surface->Flags(), 3u);
    EXPECT_EQ(surface->Width(), 0);
    EXPECT_EQ(surface->hDC(), nullptr);
}

TEST(SurfaceCreate, TheBitmapAndItsContextGoWithTheSurface) {
    auto surface = MakeSurface(2, 2);
    const gdi::HBITMAP bitmap = surface->hDIB();
    const gdi::HDC dc = surface->hDC();
    surface = nullptr;
    gdi::BITMAP record;
    EXPECT_EQ(gdi::GetObjectA(bitmap, sizeof record, &record), 0);
    EXPECT_FALSE(gdi::DeleteDC(dc));
}

TEST(SurfaceExtract, TheCallerOwnsTheBitmapAndClearUpLeavesIt) {
    const auto surface = MakeCountedSurface(4, 3);
    const gdi::HBITMAP bitmap = surface->ExtractDib();
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(surface->Width(), 4);
    EXPECT_EQ(surface->hDC(), nullptr);
    EXPECT_EQ(surface->hDIB(), nullptr);
    EXPECT_EQ(surface->GetPixel(0, 2), 1);
    EXPECT_EQ(surface->ExtractDib(), nullptr);
    surface->ClearUp();
    gdi::BITMAP record;
    EXPECT_EQ(gdi::GetObjectA(bitmap, gdi::kBitmapRecordSize, &record), gdi::kBitmapRecordSize);
    EXPECT_TRUE(gdi::DeleteObject(bitmap));
}

TEST(SurfaceExtract, PixelsOfADeletedBitmapAreNotTouched) {
    const auto surface = MakeCountedSurface(4, 3);
    gdi::DeleteObject(surface->ExtractDib());
    EXPECT_EQ(surface->GetPixel(0, 2), 0);
    surface->PreMultiplyAlpha();
    surface->RandomiseBits(true);
    EXPECT_FALSE(surface->HasAlphaChannel());
    EXPECT_EQ(surface->Width(), 4);
}

TEST(SurfacePicture, IsACopyThatOwnsItsBitmap) {
    const auto surface = MakeCountedSurface(4, 3);
    const auto picture = surface->Picture();
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Type(), ole::kPictureBitmap);
    gdi::BITMAP record;
    ASSERT_NE(gdi::GetObjectA(picture->Handle(), sizeof record, &record), 0);
    EXPECT_EQ(record.bmWidth, 4);
    EXPECT_EQ(record.bmHeight, 3);
    EXPECT_EQ(std::memcmp(record.bmBits, surface->DIBSectionBitsPtr(), 48), 0);
    EXPECT_NE(record.bmBits, surface->DIBSectionBitsPtr());
}

}  // namespace
}  // namespace vxgui::test
