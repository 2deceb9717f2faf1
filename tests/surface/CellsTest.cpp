#include "tests/surface/SurfaceSupport.h"
#include "vxgui/surface/cAlphaDIBSectionClip.h"

namespace vxgui::test {
namespace {

Ref<cAlphaDIBSectionClip> MakeClip(const Ref<cAlphaDIBSection>& surface, int32_t columns = 0,
                                   int32_t rows = 0) {
    const auto clip = New<cAlphaDIBSectionClip>();
    clip->Cols(columns);
    clip->Rows(rows);
    clip->DIBSECTION(surface);
    return clip;
}

/// A surface whose pixel at (x, y) from the top left is y * 100 + x.
Ref<cAlphaDIBSection> MakeGrid(int32_t width, int32_t height) {
    const auto surface = MakeSurface(width, height);
    FillMemory(surface,
               [=](int i) { return ARGBFromValue((height - 1 - i / width) * 100 + i % width); });
    return surface;
}

void ExpectPart(const Ref<cAlphaDIBSection>& part, int x, int y, int w, int h) {
    ASSERT_TRUE(part);
    ASSERT_EQ(part->Width(), w);
    ASSERT_EQ(part->Height(), h);
    for (int j = 0; j < h; ++j) {
        for (int i = 0; i < w; ++i) {
            EXPECT_EQ(part->GetPixel(i, j), (y + j) * 100 + x + i) << i << "," << j;
        }
    }
}

TEST(Cells, TheNumberOfColumnsDecidesTheWidth) {
    const auto clip = MakeClip(MakeSurface(120, 10), 4);
    EXPECT_EQ(clip->CellWidth(), 30);
    EXPECT_EQ(clip->Cols(), 4);
}

TEST(Cells, AWidthDecidesTheColumnsAndTheRestBelongsToNone) {
    const auto clip = New<cAlphaDIBSectionClip>();
    clip->CellWidth(50);
    clip->DIBSECTION(MakeGrid(120, 2));
    EXPECT_EQ(clip->Cols(), 2);
    EXPECT_EQ(clip->CellWidth(), 50);
    ExpectPart(clip->DIBCell(1), 50, 0, 50, 2);
    EXPECT_FALSE(clip->DIBCell(2));  // the next row, which isn't there
}

TEST(Cells, TheRemainderOfTheLastColumnBelongsToNoCell) {
    const auto clip = MakeClip(MakeGrid(11, 7), 3, 2);
    EXPECT_EQ(clip->CellWidth(), 3);
    EXPECT_EQ(clip->CellHeight(), 3);
    ExpectPart(clip->DIBCell(2), 6, 0, 3, 3);
    ExpectPart(clip->DIBCell(5), 6, 3, 3, 3);
}

TEST(Cells, WithNeitherSetTheWholeSurfaceIsOneCell) {
    const auto clip = MakeClip(MakeGrid(5, 4));
    EXPECT_EQ(clip->Cols(), 1);
    EXPECT_EQ(clip->Rows(), 1);
    ExpectPart(clip->DIBCell(0), 0, 0, 5, 4);
}

TEST(Cells, TheFifthOfFourColumnsIsInTheSecondRow) {
    const auto clip = MakeClip(MakeGrid(8, 6), 4, 3);
    ExpectPart(clip->DIBCell(5), 2, 2, 2, 2);
    const auto picture = clip->Cell(5);
    ASSERT_TRUE(picture);
    const auto copy = New<cAlphaDIBSection>();
    ASSERT_TRUE(copy->CreateFromPicture(picture));
    ExpectPart(copy, 2, 2, 2, 2);
}

TEST(Cells, ColumnsSetToZeroAreDerivedFromTheWidth) {
    const auto clip = MakeClip(MakeSurface(120, 10), 4);
    clip->Cols(0);
    EXPECT_EQ(clip->CellWidth(), 30);
    EXPECT_EQ(clip->Cols(), 4);
    clip->CellWidth(0);
    EXPECT_EQ(clip->Cols(), 1);
    EXPECT_EQ(clip->CellWidth(), 120);
}

TEST(Cells, RowsFollowTheSameRules) {
    const auto clip = MakeClip(MakeSurface(10, 120), 0, 4);
    EXPECT_EQ(clip->CellHeight(), 30);
    clip->CellHeight(50);
    EXPECT_EQ(clip->Rows(), 2);
    clip->Rows(0);
    EXPECT_EQ(clip->Rows(), 2);
    EXPECT_EQ(clip->CellHeight(), 50);
    clip->Rows(12);
    EXPECT_EQ(clip->CellHeight(), 10);
}

TEST(Cells, AClipWithoutArgumentsIsTheTopLeftCell) {
    const auto clip = MakeClip(MakeGrid(8, 6), 4, 3);
    ExpectPart(clip->DIBClip(), 0, 0, 2, 2);
    ASSERT_TRUE(clip->Clip());
    ExpectPart(clip->DIBClip(1, 3, 7, 3), 1, 3, 7, 3);
    ExpectPart(clip->DIBClip(5, 4, 0, -3), 5, 4, 2, 2);
}

TEST(Cells, ARectangleThatIsNotInsideGivesNone) {
    const auto clip = MakeClip(MakeGrid(8, 6), 4, 3);
    EXPECT_FALSE(clip->DIBClip(-1, 0));
    EXPECT_FALSE(clip->DIBClip(0, -1));
    EXPECT_FALSE(clip->DIBClip(7, 0));
    EXPECT_FALSE(clip->DIBClip(0, 5));
    EXPECT_FALSE(clip->Clip(0, 5));
    EXPECT_FALSE(clip->DIBClip(1, 1, INT32_MAX, INT32_MAX));
    EXPECT_FALSE(clip->Cell(12));
    EXPECT_FALSE(clip->DIBCell(INT32_MAX));
}

TEST(Cells, ANegativeIndexIsTheFirstCell) {
    const auto clip = MakeClip(MakeGrid(8, 6), 4, 3);
    ExpectPart(clip->DIBCell(-7), 0, 0, 2, 2);
}

TEST(Cells, ASurfaceNarrowerThanItsColumnsGivesNone) {
    const auto clip = MakeClip(MakeSurface(3, 6), 4, 3);
    EXPECT_EQ(clip->CellWidth(), 0);
    EXPECT_FALSE(clip->DIBCell(0));
}

TEST(Cells, CellsOfASizeBelowZeroAreNone) {
    const auto clip = MakeClip(MakeGrid(8, 6));
    clip->CellHeight(-2);
    EXPECT_EQ(clip->Rows(), -3);
    EXPECT_FALSE(clip->DIBCell(0));
    EXPECT_FALSE(clip->DIBClip(0, 2, 4, 0));
    EXPECT_FALSE(clip->Cell(0));
}

TEST(Cells, APartIsANewSurfaceWithADefaultKey) {
    const auto surface = MakeGrid(4, 4);
    surface->TransparentColor(5);
    surface->UseMsImag32(false);
    const auto part = MakeClip(surface, 2, 2)->DIBCell(0);
    EXPECT_EQ(part->TransparentColor(), DefaultTransColor);
    EXPECT_EQ(part->Flags(), 3u);
}

TEST(Cells, WithoutASurfaceThereIsNothing) {
    const auto clip = MakeClip(MakeGrid(8, 6), 4, 3);
    clip->LetDIBSECTION(nullptr);
    EXPECT_FALSE(clip->DIBSECTION());
    EXPECT_EQ(clip->Cols(), 4);
    EXPECT_EQ(clip->CellWidth(), 2);
    EXPECT_FALSE(clip->DIBCell(0));
    EXPECT_FALSE(clip->DIBClip());
    EXPECT_FALSE(clip->Cell(0));
    EXPECT_THROW(clip->DrawCell(0, nullptr), Error);
    EXPECT_NO_THROW(clip->DrawCell(-1, nullptr));
    EXPECT_FALSE(New<cAlphaDIBSectionClip>()->DIBCell(0));
    EXPECT_NO_THROW(New<cAlphaDIBSectionClip>()->DrawCell(0, nullptr));
}

TEST(Cells, ASurfaceThatWasCreatedAnewMustBeAssignedAnew) {
    const auto surface = MakeGrid(8, 6);
    const auto clip = MakeClip(surface, 4, 3);
    ASSERT_TRUE(surface->Create(2, 2));
    EXPECT_FALSE(clip->DIBCell(11));
    surface->ClearUp();
    EXPECT_FALSE(clip->DIBCell(0));
    ASSERT_TRUE(surface->Create(8, 6));
    clip->DIBSECTION(surface);
    EXPECT_TRUE(clip->DIBCell(11));
}

TEST(Cells, ACellIsDrawnAtItsSizeOrStretched) {
    const SystemBlend off(false);
    const auto clip = MakeClip(MakeGrid(8, 6), 4, 3);
    GuardedTarget target(5, 5);
    clip->DrawCell(5, target.dc(), 1, 1);
    EXPECT_EQ(ValueFromARGB(target.At(1, 1)), 202);
    EXPECT_EQ(ValueFromARGB(target.At(2, 2)), 303);
    EXPECT_EQ(ValueFromARGB(target.At(3, 3)), 0);
    clip->DrawCell(5, target.dc(), 0, 0, 4, -1);
    EXPECT_EQ(ValueFromARGB(target.At(1, 0)), 202);
    EXPECT_EQ(ValueFromARGB(target.At(2, 0)), 203);
}

TEST(Cells, TheDrawMethodIsTheModeWord) {
    const SystemBlend off(false);
    const auto surface = MakeSurface(2, 1);
    FillMemory(surface, [](int i) { return i ? Pixel(100, 100, 100, 255) : Pixel(9, 0, 0, 255); });
    surface->TransparentColor(0x090000);
    const auto clip = MakeClip(surface);
    GuardedTarget target(2, 1);
    clip->DrawCell(0, target.dc(), 0, 0, 0, 0, 0x100);
    EXPECT_EQ(target.Pixels(), (std::vector<ARGB>{{}, Pixel(100, 100, 100, 255)}));
    target.Fill({});
    clip->DrawCell(0, target.dc(), 0, 0, 0, 0, 0x200 + 128);
    EXPECT_EQ(target.At(1, 0).Blue, 50);  // the alpha is the same throughout: none
}

}  // namespace
}  // namespace vxgui::test
