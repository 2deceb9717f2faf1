#include <gtest/gtest.h>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"
#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {
namespace {

class GdiplusTextureBrush : public test::BrushFixture {
protected:
    GdiplusTextureBrush() {
        const Ref<Bitmap> bitmap = Bitmap::Create(3, 2, PixelFormat32bppARGB);
        bitmap->WriteStraight(0, 0, std::span(kPixels).first(3));
        bitmap->WriteStraight(0, 1, std::span(kPixels).last(3));
        image_ = static_cast<GpImage*>(EnterObject(bitmap));
        GdipCreateImageAttributes(&attributes_);
    }
    ~GdiplusTextureBrush() override {
        GdipDisposeImageAttributes(attributes_);
        RetireObject(image_);
    }
    GpBrush* Make(WrapMode wrap = WrapModeTile) {
        GpBrush* brush = nullptr;
        EXPECT_EQ(GdipCreateTexture(image_, wrap, &brush), Ok);
        return Keep(brush);
    }
    static ARGB PixelAt(int x, int y) { return kPixels[y * 3 + x]; }

    static constexpr ARGB kPixels[] = {0xFF000001, 0xFF000002, 0xFF000003,
                                       0xFF000004, 0xFF000005, 0xFF000006};
    GpImage* image_;
    GpImageAttributes* attributes_ = nullptr;
};

// Where a place of an endless row of copies lies in the first.
int Wrapped(int at, int size, bool flips) {
    const int within = (at % size + size) % size;
    const int copy = (at - within) / size;
    return flips && copy % 2 != 0 ? size - 1 - within : within;
}

TEST_F(GdiplusTextureBrush, RepeatsAndMirrorsInAllModes) {
    for (int mode = 0; mode < 4; ++mode) {
        const auto picture = Paint(Make(static_cast<WrapMode>(mode)), 14, 9);
        for (int y = 0; y < 9; ++y) {
            for (int x = 0; x < 14; ++x) {
                EXPECT_EQ(picture.At(x, y),
                          PixelAt(Wrapped(x, 3, mode & 1), Wrapped(y, 2, mode & 2)))
                    << mode << ": " << x << ", " << y;
            }
        }
    }
}

TEST_F(GdiplusTextureBrush, LeavesWhatIsBeyondClearWhenClamped) {
    const auto picture = Paint(Make(WrapModeClamp), 5, 5);
    for (int y = 0; y < 5; ++y) {
        for (int x = 0; x < 5; ++x) {
            EXPECT_EQ(picture.At(x, y), x < 3 && y < 2 ? PixelAt(x, y) : 0);
        }
    }
}

TEST_F(GdiplusTextureBrush, AChangedWrapModeCounts) {
    GpBrush* brush = Make();
    ASSERT_EQ(GdipSetTextureWrapMode(brush, WrapModeTileFlipX), Ok);
    EXPECT_EQ(Paint(brush, 7, 4).pixels, Paint(Make(WrapModeTileFlipX), 7, 4).pixels);
}

TEST_F(GdiplusTextureBrush, MovesWithItsTransformAndTheWorld) {
    GpBrush* brush = Make();
    GdipTranslateTextureTransform(brush, 1, 0, MatrixOrderPrepend);
    const auto picture = Paint(brush, 6, 4, Affine::Translation(0, 1));
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(picture.At(x, y),
                      PixelAt(Wrapped(x - 1, 3, false), Wrapped(y - 1, 2, false)));
        }
    }
}

TEST_F(GdiplusTextureBrush, ScalesSmoothly) {
    GpBrush* brush = Make();
    GdipScaleTextureTransform(brush, 8, 8, MatrixOrderPrepend);
    const auto picture = Paint(brush, 24, 16);
    EXPECT_EQ(picture.At(4, 3) >> 24, 255u);
    EXPECT_EQ(picture.At(12, 4) & 255, 2u);
    EXPECT_NE(picture.pixels, std::vector<uint32_t>(24 * 16, picture.At(0, 0)));
}

TEST_F(GdiplusTextureBrush, PartsBeginAtTheOrigin) {
    GpBrush* brush = nullptr;
    ASSERT_EQ(GdipCreateTexture2I(image_, WrapModeTile, 1, 1, 2, 1, &brush), Ok);
    const auto picture = Paint(Keep(brush), 4, 2);
    EXPECT_EQ(picture.pixels,
              (std::vector<uint32_t>{PixelAt(1, 1), PixelAt(2, 1), PixelAt(1, 1), PixelAt(2, 1),
                                     PixelAt(1, 1), PixelAt(2, 1), PixelAt(1, 1), PixelAt(2, 1)}));
    ASSERT_EQ(GdipCreateTexture2(image_, WrapModeTile, 1, 1, 2, 1, &brush), Ok);
    EXPECT_EQ(Paint(Keep(brush), 4, 2).pixels, picture.pixels);
}

TEST_F(GdiplusTextureBrush, RefusesPartsBeyondTheImage) {
    GpBrush* brush = nullptr;
    EXPECT_EQ(GdipCreateTexture2I(image_, WrapModeTile, 2, 0, 2, 1, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreateTexture2(image_, WrapModeTile, 0, 0, 3, 3, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreateTextureIAI(image_, nullptr, 0, 0, 0, 1, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreateTextureIA(image_, nullptr, -1, 0, 1, 1, &brush), OutOfMemory);
    EXPECT_EQ(GdipCreateTexture(image_, static_cast<WrapMode>(5), &brush), InvalidParameter);
    EXPECT_EQ(GdipCreateTexture(nullptr, WrapModeTile, &brush), InvalidParameter);
    EXPECT_EQ(GdipCreateTexture2I(nullptr, WrapModeTile, 0, 0, 1, 1, &brush), InvalidParameter);
    EXPECT_EQ(brush, nullptr);
}

TEST_F(GdiplusTextureBrush, ALockedBitmapIsBusy) {
    const Ref<Bitmap> bitmap = Find<Bitmap>(image_);
    BitmapData data{};
    ASSERT_EQ(bitmap->Lock({0, 0, 3, 2}, ImageLockModeRead, PixelFormat32bppARGB, &data), Ok);
    GpBrush* brush = nullptr;
    EXPECT_EQ(GdipCreateTexture(image_, WrapModeTile, &brush), ObjectBusy);
    EXPECT_EQ(bitmap->Unlock(data), Ok);
}

TEST_F(GdiplusTextureBrush, AttributesAdjustColoursAndGiveTheWrapMode) {
    const ColorMap forBitmaps{kPixels[0], 0xFF0000AA}, forBrushes{kPixels[0], 0xFF0000BB};
    GdipSetImageAttributesRemapTable(attributes_, ColorAdjustTypeBitmap, 1, 1, &forBitmaps);
    const auto first = [&] {
        GpBrush* brush = nullptr;
        EXPECT_EQ(GdipCreateTextureIAI(image_, attributes_, 0, 0, 3, 2, &brush), Ok);
        return Paint(Keep(brush), 6, 2);
    };
    EXPECT_EQ(first().At(0, 0), 0xFF0000AAu);
    EXPECT_EQ(first().At(3, 0), 0xFF0000AAu);  // tiles
    GdipSetImageAttributesRemapTable(attributes_, ColorAdjustTypeBrush, 1, 1, &forBrushes);
    GdipSetImageAttributesWrapMode(attributes_, WrapModeClamp, 0, 0);
    EXPECT_EQ(first().At(0, 0), 0xFF0000BBu);
    EXPECT_EQ(first().At(3, 0), 0u);
    GpBrush* brush = nullptr;
    ASSERT_EQ(GdipCreateTextureIA(image_, attributes_, 0, 0, 1, 1, &brush), Ok);
    EXPECT_EQ(Paint(Keep(brush), 1, 1).At(0, 0), 0xFF0000BBu);
    const auto* wrong = reinterpret_cast<const GpImageAttributes*>(image_);
    EXPECT_EQ(GdipCreateTextureIA(image_, wrong, 0, 0, 1, 1, &brush), InvalidParameter);
}

TEST_F(GdiplusTextureBrush, KeepsACopyOfTheImage) {
    GpBrush* brush = Make();
    const ARGB other = 0xFFFFFFFF;
    Find<Bitmap>(image_)->WriteStraight(0, 0, {&other, 1});
    EXPECT_EQ(Paint(brush, 1, 1).At(0, 0), kPixels[0]);
    GpImage* image = nullptr;
    ASSERT_EQ(GdipGetTextureImage(brush, &image), Ok);
    const Ref<Bitmap> copy = Find<Bitmap>(image);
    EXPECT_EQ(copy->Width(), 3u);
    EXPECT_EQ(copy->Height(), 2u);
    ARGB pixel = 0;
    copy->ReadStraight(2, 1, {&pixel, 1});
    EXPECT_EQ(pixel, kPixels[5]);
    EXPECT_EQ(GdipDisposeImage(image), Ok);
    EXPECT_EQ(GdipGetTextureImage(nullptr, &image), InvalidParameter);
    EXPECT_EQ(GdipGetTextureImage(brush, nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
