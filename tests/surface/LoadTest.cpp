#include <cstring>

#include "tests/surface/SurfaceSupport.h"

namespace vxgui::test {
namespace {

/// A device bitmap, which is no DIB section, of the pixels given top row first.
gdi::HBITMAP DeviceBitmap(int width, int height, const std::vector<ARGB>& topDown) {
    return gdi::CreateBitmap(width, height, 1, 32, topDown.data());
}

std::vector<ARGB> Counted(int count) {
    std::vector<ARGB> pixels;
    for (int i = 0; i < count; ++i) pixels.push_back(ARGBFromValue(i + 1));
    return pixels;
}

TEST(SurfaceLoad, LoadPictureBltCopiesTheWholeByDefault) {
    const auto source = MakeCountedSurface(4, 3);
    const auto surface = MakeSurface(4, 3);
    surface->LoadPictureBlt(source->hDC());
    EXPECT_EQ(MemoryOf(surface), MemoryOf(source));
}

TEST(SurfaceLoad, LoadPictureBltTakesAPartAndARasterOperation) {
    const auto source = MakeCountedSurface(4, 3);
    const auto surface = MakeSurface(2, 2);
    surface->LoadPictureBlt(source->hDC(), 1, 1, 1, 2);
    EXPECT_EQ(MemoryOf(surface), (std::vector<ARGB>{ARGBFromValue(2), {}, ARGBFromValue(6), {}}));
    surface->LoadPictureBlt(source->hDC(), 0, 0, -1, -1, gdi::WHITENESS);
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(4, Pixel(255, 255, 255, 255)));
}

TEST(SurfaceLoad, AnHBitmapComesAtItsOwnSize) {
    const auto source = MakeCountedSurface(4, 3);
    const gdi::HBITMAP bitmap = source->ExtractDib();
    const auto surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->CreateFromHBitmap(bitmap));
    EXPECT_EQ(MemoryOf(surface), MemoryOf(source));
    gdi::DeleteObject(bitmap);
    EXPECT_FALSE(surface->CreateFromHBitmap(nullptr));
    EXPECT_EQ(surface->Width(), 4);
    EXPECT_FALSE(surface->CreateFromHBitmap(bitmap));  // it has gone
    EXPECT_EQ(surface->hDC(), nullptr);
}

TEST(SurfaceLoad, ItsOwnBitmapIsGoneBeforeItCouldBeCopied) {
    const auto surface = MakeCountedSurface(4, 3);
    EXPECT_TRUE(surface->CreateFromHBitmap(surface->hDIB()));
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(12));
}

TEST(SurfaceLoad, FromHBitmapRefusesADibSection) {
    const auto source = MakeCountedSurface(4, 3);
    const gdi::HBITMAP bitmap = source->ExtractDib();
    const auto surface = MakeSurface(1, 1);
    EXPECT_FALSE(surface->FromHBITMAP(bitmap, 0, 0, 2, 2));
    EXPECT_EQ(surface->Width(), 1);
    gdi::DeleteObject(bitmap);
}

TEST(SurfaceLoad, FromHBitmapCutsARectangleOutOfADeviceBitmap) {
    const gdi::HBITMAP bitmap = DeviceBitmap(4, 3, Counted(12));
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->FromHBITMAP(bitmap, 1, 1, 2, 2));
    EXPECT_EQ(surface->Width(), 2);
    EXPECT_EQ(surface->GetPixel(0, 0), 6);
    EXPECT_EQ(surface->GetPixel(1, 1), 11);
    ASSERT_TRUE(surface->FromHBITMAP(bitmap, 3, 1));
    EXPECT_EQ(surface->Width(), 1);
    EXPECT_EQ(surface->Height(), 2);
    EXPECT_EQ(surface->GetPixel(0, 0), 8);
    ASSERT_TRUE(surface->FromHBITMAP(bitmap, 2, 0, 100, 100));
    EXPECT_EQ(surface->Width(), 2);
    EXPECT_EQ(surface->Height(), 3);
    gdi::DeleteObject(bitmap);
}

TEST(SurfaceLoad, FromHBitmapWantsItsOriginInside) {
    const gdi::HBITMAP bitmap = DeviceBitmap(4, 3, Counted(12));
    const auto surface = MakeSurface(1, 1);
    EXPECT_FALSE(surface->FromHBITMAP(bitmap, 4, 0));
    EXPECT_FALSE(surface->FromHBITMAP(bitmap, -1, 0));
    EXPECT_FALSE(surface->FromHBITMAP(bitmap, 0, 3));
    EXPECT_FALSE(surface->FromHBITMAP(bitmap, 0, -1));
    EXPECT_FALSE(surface->FromHBITMAP(nullptr));
    EXPECT_EQ(surface->Width(), 1);
    EXPECT_FALSE(surface->FromHBITMAP(bitmap, 0, 0, 0, 2));
    EXPECT_EQ(surface->hDC(), nullptr);
    gdi::DeleteObject(bitmap);
}

TEST(SurfaceLoad, CopyingFromASurfaceStartsAtItsBottomRowWhateverYIs) {
    const auto source = MakeCountedSurface(6, 8);
    const auto low = New<cAlphaDIBSection>();
    const auto high = New<cAlphaDIBSection>();
    ASSERT_TRUE(low->FromAlphaDIBSection(source, 0, 5, 4, 3));
    ASSERT_TRUE(high->FromAlphaDIBSection(source, 0, 0, 4, 3));
    EXPECT_EQ(MemoryOf(low), MemoryOf(high));
    EXPECT_EQ(ValueFromARGB(MemoryOf(low)[0]), 1);
    EXPECT_EQ(ValueFromARGB(MemoryOf(low)[4]), 7);
}

TEST(SurfaceLoad, CopyingFromASurfaceMovesByX) {
    const auto source = MakeCountedSurface(6, 8);
    const auto surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->FromAlphaDIBSection(source, 2, 0, 4, 8));
    EXPECT_EQ(ValueFromARGB(MemoryOf(surface)[0]), 3);
    EXPECT_EQ(ValueFromARGB(MemoryOf(surface)[31]), 48);
}

TEST(SurfaceLoad, CopyingARectangleThatIsNotInsideLeavesTheSurface) {
    const auto source = MakeCountedSurface(6, 8);
    const auto surface = MakeCountedSurface(2, 2);
    const auto before = MemoryOf(surface);
    EXPECT_FALSE(surface->FromAlphaDIBSection(source, 3, 0, 4, 3));
    EXPECT_FALSE(surface->FromAlphaDIBSection(source, -1, 0, 4, 3));
    EXPECT_FALSE(surface->FromAlphaDIBSection(source, 0, 6, 4, 3));
    EXPECT_FALSE(surface->FromAlphaDIBSection(source, 0, -1, 4, 3));
    EXPECT_EQ(MemoryOf(surface), before);
    EXPECT_FALSE(surface->FromAlphaDIBSection(source, 0, 0, 0, 3));
    EXPECT_EQ(surface->hDC(), nullptr);
    EXPECT_THROW(surface->FromAlphaDIBSection(nullptr, 0, 0, 1, 1), Error);
}

TEST(SurfaceLoad, CopyingASurfaceFromItselfGivesZeroes) {
    const auto surface = MakeCountedSurface(4, 4);
    EXPECT_TRUE(surface->FromAlphaDIBSection(surface, 1, 0, 3, 4));
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(12));
}

/// A picture of any type and extents that fills what it is asked to render with one colour.
class ActedPicture : public ole::Picture {
public:
    ActedPicture(gdi::HGDIOBJ handle, int16_t type, int32_t width, int32_t height)
        : handle_(handle), type_(type), width_(width), height_(height) {}
    gdi::HGDIOBJ Handle() const override { return handle_; }
    int16_t Type() const override { return type_; }
    int32_t Width() const override { return width_; }
    int32_t Height() const override { return height_; }
    void Render(gdi::HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy, int32_t sourceX,
                int32_t sourceY, int32_t sourceCx, int32_t sourceCy) const override {
        arguments = {x, y, cx, cy, sourceX, sourceY, sourceCx, sourceCy};
        background = gdi::GetPixel(dc, 0, 0);
    }
    bool SaveAsFile(ByteArray*) const override { return false; }

    mutable std::vector<int32_t> arguments;
    mutable COLORREF background = 0;

private:
    gdi::HGDIOBJ handle_;
    int16_t type_;
    int32_t width_, height_;
};

constexpr int32_t kTenPixels = 265;  // in HIMETRIC at 96 dots an inch: 10.0157

TEST(SurfaceLoad, APictureWithoutAHandleGivesFalse) {
    const auto surface = MakeSurface(1, 1);
    EXPECT_FALSE(surface->CreateFromPicture(nullptr));
    EXPECT_FALSE(surface->CreateFromPicture(New<ActedPicture>(nullptr, 1, 100, 100)));
    EXPECT_EQ(surface->Width(), 1);
}

TEST(SurfaceLoad, AFreshSurfaceHasNoResolutionSoThatAnIconFails) {
    const auto surface = New<cAlphaDIBSection>();
    int handle = 0;
    const auto icon = New<ActedPicture>(&handle, 3, kTenPixels, kTenPixels);
    EXPECT_FALSE(surface->CreateFromPicture(icon));
    EXPECT_TRUE(icon->arguments.empty());
}

TEST(SurfaceLoad, AnIconRendersItselfOverTheTransparentColor) {
    const auto surface = MakeSurface(1, 1);
    surface->TransparentColor(0x112233);
    int handle = 0;
    const auto icon = New<ActedPicture>(&handle, 3, kTenPixels, 2 * kTenPixels);
    EXPECT_TRUE(surface->CreateFromPicture(icon));
    EXPECT_EQ(surface->Width(), 10);
    EXPECT_EQ(surface->Height(), 20);
    EXPECT_EQ(icon->background, 0x112233u);
    EXPECT_EQ(icon->arguments,
              (std::vector<int32_t>{0, 0, 10, 20, 0, 2 * kTenPixels, kTenPixels, -2 * kTenPixels}));
}

TEST(SurfaceLoad, AnotherTypeKeepsWhatItRendered) {
    const auto surface = MakeSurface(1, 1);
    int handle = 0;
    EXPECT_TRUE(surface->CreateFromPicture(New<ActedPicture>(&handle, 4, kTenPixels, kTenPixels)));
    EXPECT_EQ(surface->Width(), 10);
}

TEST(SurfaceLoad, ABitmapPictureComesInItsOwnPixels) {
    const auto source = MakeCountedSurface(4, 3);
    for (const bool live : {false, true}) {
        const auto surface = live ? MakeSurface(1, 1) : New<cAlphaDIBSection>();
        EXPECT_TRUE(surface->CreateFromPicture(source->Picture())) << live;
        EXPECT_EQ(MemoryOf(surface), MemoryOf(source)) << live;
    }
}

}  // namespace
}  // namespace vxgui::test
