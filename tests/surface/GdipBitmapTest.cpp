#include "tests/support/Errors.h"
#include "tests/support/FlatCalls.h"
#include "tests/support/GdiplusSession.h"
#include "tests/support/Golden.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/surface/SurfaceSupport.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/platform/gdiplus.h"

namespace vxgui::test {
namespace {

/// A 4 by 3 bitmap whose pixel i, counted from the top left, is opaque with blue i + 1.
class SurfaceFromGdip : public ::testing::Test {
protected:
    SurfaceFromGdip() {
        TestPicture picture{4, 3, {}};
        for (uint32_t i = 1; i <= 12; ++i) picture.pixels.push_back(0x80000000 | i);
        const String path = folder_.Path("picture.png");
        EXPECT_TRUE(WritePng(path.Utf8(), picture));
        EXPECT_EQ(gdiplus::GdipCreateBitmapFromFile(path.data(), &bitmap), gdiplus::Ok);
    }
    ~SurfaceFromGdip() override {
        gdiplus::GdipDisposeImage(reinterpret_cast<gdiplus::GpImage*>(bitmap));
    }

    static std::vector<int> Blues(const Ref<cAlphaDIBSection>& surface) {
        std::vector<int> blues;
        for (const ARGB pixel : MemoryOf(surface)) blues.push_back(pixel.Blue);
        return blues;
    }

    gdiplus::GpBitmap* bitmap = nullptr;

private:
    const GdiplusSession session_;
    TemporaryFolder folder_;
};

TEST_F(SurfaceFromGdip, ThePictureStandsOnItsHeadAndIsStraight) {
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->FromHGpBitmap(bitmap));
    EXPECT_EQ(Blues(surface), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(surface->GetPixel(0, 0) & 0xFF, 9);
    EXPECT_EQ(MemoryOf(surface)[0].Alpha, 0x80);
    ASSERT_TRUE(surface->FromHGpBitmap(bitmap));  // the lock was given back
}

TEST_F(SurfaceFromGdip, APartIsCopiedInOnePieceWhateverTheStride) {
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->FromHGpBitmap(bitmap, 0, 1, -1, 1));
    EXPECT_EQ(Blues(surface), (std::vector<int>{5, 6, 7, 8}));
    ASSERT_TRUE(surface->FromHGpBitmap(bitmap, 1, 1, 2, 2));
    EXPECT_EQ(Blues(surface), (std::vector<int>{6, 7, 8, 9}));
    ASSERT_TRUE(surface->FromHGpBitmap(bitmap, 2, 2, 100, 100));
    EXPECT_EQ(Blues(surface), (std::vector<int>{11, 12}));
}

TEST_F(SurfaceFromGdip, AnOriginOutsideOrNoBitmapLeavesTheSurface) {
    const auto surface = MakeSurface(1, 1);
    EXPECT_FALSE(surface->FromHGpBitmap(bitmap, 4, 0));
    EXPECT_FALSE(surface->FromHGpBitmap(bitmap, -1, 0));
    EXPECT_FALSE(surface->FromHGpBitmap(bitmap, 0, 3));
    EXPECT_FALSE(surface->FromHGpBitmap(bitmap, 0, -1));
    EXPECT_FALSE(surface->FromHGpBitmap(bitmap, 0, 0, 0, 1));
    EXPECT_FALSE(surface->FromHGpBitmap(nullptr));
    EXPECT_NE(surface->hDC(), nullptr);
}

TEST_F(SurfaceFromGdip, AnObjectGivesWhatItsHandleGives) {
    const auto object = New<GpBitmap>();
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_FALSE(surface->FromGpBitmap(object)) << "an empty one";
    gdiplus::GpBitmap* copy = nullptr;
    gdiplus::GdipCloneBitmapAreaI(0, 0, 4, 3, gdiplus::PixelFormat32bppARGB, bitmap, &copy);
    object->SetHandle(copy);
    ASSERT_TRUE(surface->FromGpBitmap(object, 1, 1, 2, 2));
    EXPECT_EQ(Blues(surface), (std::vector<int>{6, 7, 8, 9}));
    ASSERT_TRUE(surface->FromGpBitmap(object));
    EXPECT_EQ(surface->Width(), 4);
    EXPECT_EQ(surface->Height(), 3);
    EXPECT_EQ(RaisedBy([&] { surface->FromGpBitmap(nullptr); }), 91);
}

TEST_F(SurfaceFromGdip, LocksThePartForReading) {
    const auto surface = New<cAlphaDIBSection>();
    FlatCalls calls;
    ASSERT_TRUE(surface->FromHGpBitmap(bitmap, 1, 1, 9, -5));
    EXPECT_EQ(calls.Take(),
              (std::vector<std::string>{"GdipGetImageWidth(*, *)", "GdipGetImageHeight(*, *)",
                                        "GdipBitmapLockBits(*, [1 1 3 2], 1, 2498570, *)",
                                        "GdipBitmapUnlockBits(*, *)"}));
    calls.Answer("GdipBitmapLockBits", gdiplus::WrongState);
    EXPECT_FALSE(surface->FromHGpBitmap(bitmap, 0, 0, 1, 1));
    EXPECT_EQ(surface->Width(), 3) << "as it was";
}

TEST_F(SurfaceFromGdip, ASurfaceThatCannotBeCreatedLeavesTheLockHeld) {
    const auto model = MakeSurface(1, 1);
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->CreateWithCompatibleDC(1, 1, model->hDC()));
    model->ClearUp();
    EXPECT_FALSE(surface->FromHGpBitmap(bitmap));
    EXPECT_FALSE(New<cAlphaDIBSection>()->FromHGpBitmap(bitmap));
}

}  // namespace
}  // namespace vxgui::test
