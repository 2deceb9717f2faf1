#include "tests/platform/gdiplus_graphics/ImageFixture.h"

namespace vxgui::gdiplus {
namespace {

class GdiplusDrawImage : public test::ImageFixture {
protected:
    GdiplusDrawImage() { EXPECT_EQ(GdipCreateImageAttributes(&attributes_), Ok); }
    ~GdiplusDrawImage() override { GdipDisposeImageAttributes(attributes_); }

    // What was drawn is the picture with its upper left corner at (x, y); it is cleared.
    void ExpectAt(int left, int top, const test::TestPicture& picture) {
        test::TestPicture expected = Box(0, 0, 0, 0, 0);
        for (int y = 0; y < picture.height; ++y) {
            for (int x = 0; x < picture.width; ++x) {
                expected.At(left + x, top + y) = picture.At(x, y);
            }
        }
        ExpectSame(OnBitmap(), expected);
        GdipGraphicsClear(onBitmap_, 0);
    }

    const test::TestPicture mosaic_ = Mosaic(6, 5);
    GpBitmap* const source_ = MakeBitmap(mosaic_);
    GpImage* const image_ = AsImage(source_);
    GpImageAttributes* attributes_ = nullptr;
};

TEST_F(GdiplusDrawImage, ShowsItWhole) {
    ASSERT_EQ(GdipDrawImage(onBitmap_, image_, 2, 3), Ok);
    ExpectAt(2, 3, mosaic_);
    ASSERT_EQ(GdipDrawImageI(onBitmap_, image_, 1, 1), Ok);
    ExpectAt(1, 1, mosaic_);
    ASSERT_EQ(GdipDrawImageRect(onBitmap_, image_, 3, 2, 6, 5), Ok);
    ExpectAt(3, 2, mosaic_);
    ASSERT_EQ(GdipDrawImageRectI(onBitmap_, image_, 4, 2, 6, 5), Ok);
    ExpectAt(4, 2, mosaic_);
    EXPECT_EQ(GdipDrawImage(onBitmap_, nullptr, 0, 0), InvalidParameter);
    EXPECT_EQ(GdipDrawImageI(nullptr, image_, 0, 0), InvalidParameter);
    EXPECT_EQ(GdipDrawImageRect(nullptr, image_, 0, 0, 1, 1), InvalidParameter);
    EXPECT_EQ(GdipDrawImageRectI(onBitmap_, nullptr, 0, 0, 1, 1), InvalidParameter);
}

TEST_F(GdiplusDrawImage, ShowsParts) {
    const test::TestPicture part = Cut(mosaic_, 1, 2, 4, 2);
    ASSERT_EQ(GdipDrawImagePointRect(onBitmap_, image_, 5, 6, 1, 2, 4, 2, UnitPixel), Ok);
    ExpectAt(5, 6, part);
    ASSERT_EQ(GdipDrawImagePointRectI(onBitmap_, image_, 5, 6, 1, 2, 4, 2, UnitPixel), Ok);
    ExpectAt(5, 6, part);
    ASSERT_EQ(GdipDrawImageRectRect(onBitmap_, image_, 3, 3, 4, 2, 1, 2, 4, 2, UnitPixel, nullptr,
                                    nullptr, nullptr),
              Ok);
    ExpectAt(3, 3, part);
    ASSERT_EQ(GdipDrawImageRectRectI(onBitmap_, image_, 3, 3, 4, 2, 1, 2, 4, 2, UnitPixel, nullptr,
                                     nullptr, nullptr),
              Ok);
    ExpectAt(3, 3, part);
    EXPECT_EQ(GdipDrawImagePointRect(onBitmap_, image_, 0, 0, 0, 0, 1, 1, UnitWorld),
              InvalidParameter);
    EXPECT_EQ(GdipDrawImagePointRectI(nullptr, image_, 0, 0, 0, 0, 1, 1, UnitPixel),
              InvalidParameter);
    EXPECT_EQ(GdipDrawImageRectRect(onBitmap_, nullptr, 0, 0, 1, 1, 0, 0, 1, 1, UnitPixel, nullptr,
                                    nullptr, nullptr),
              InvalidParameter);
    EXPECT_EQ(
        GdipDrawImageRectRectI(onBitmap_, image_, 0, 0, 1, 1, 0, 0, 1, 1, UnitPixel,
                               reinterpret_cast<GpImageAttributes*>(image_), nullptr, nullptr),
        InvalidParameter);
}

TEST_F(GdiplusDrawImage, CountsPartsInUnits) {
    ASSERT_EQ(GdipDrawImageRectRect(onBitmap_, image_, 0, 0, 3, 2, 1 / 96.0f, 1 / 96.0f, 3 / 96.0f,
                                    2 / 96.0f, UnitInch, nullptr, nullptr, nullptr),
              Ok);
    ExpectAt(0, 0, Cut(mosaic_, 1, 1, 3, 2));
}

TEST_F(GdiplusDrawImage, TurnsByRightAnglesExactly) {
    // Upper left at (7, 1), the image's right going down.
    const GpPointF corners[] = {{7, 1}, {7, 7}, {2, 1}};
    const GpPoint cornersI[] = {{7, 1}, {7, 7}, {2, 1}};
    test::TestPicture turned{5, 6, {}};
    for (int y = 0; y < 6; ++y) {
        for (int x = 0; x < 5; ++x) turned.pixels.push_back(mosaic_.At(y, 4 - x));
    }
    ASSERT_EQ(GdipDrawImagePoints(onBitmap_, image_, corners, 3), Ok);
    ExpectAt(2, 1, turned);
    ASSERT_EQ(GdipDrawImagePointsI(onBitmap_, image_, cornersI, 3), Ok);
    ExpectAt(2, 1, turned);
    ASSERT_EQ(GdipDrawImagePointsRect(onBitmap_, image_, corners, 3, 0, 0, 6, 5, UnitPixel, nullptr,
                                      nullptr, nullptr),
              Ok);
    ExpectAt(2, 1, turned);
    ASSERT_EQ(GdipDrawImagePointsRectI(onBitmap_, image_, cornersI, 3, 0, 0, 6, 5, UnitPixel,
                                       nullptr, nullptr, nullptr),
              Ok);
    ExpectAt(2, 1, turned);
}

TEST_F(GdiplusDrawImage, WantsThreeCorners) {
    const GpPointF corners[4] = {};
    const GpPoint cornersI[4] = {};
    EXPECT_EQ(GdipDrawImagePoints(onBitmap_, image_, corners, 2), InvalidParameter);
    EXPECT_EQ(GdipDrawImagePoints(onBitmap_, image_, corners, 4), NotImplemented);
    EXPECT_EQ(GdipDrawImagePointsI(onBitmap_, image_, nullptr, 3), InvalidParameter);
    EXPECT_EQ(GdipDrawImagePointsI(onBitmap_, image_, cornersI, 4), NotImplemented);
    EXPECT_EQ(GdipDrawImagePointsRect(onBitmap_, image_, nullptr, 3, 0, 0, 1, 1, UnitPixel, nullptr,
                                      nullptr, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipDrawImagePointsRectI(onBitmap_, image_, cornersI, 3, 0, 0, 1, 1, UnitWorld,
                                       nullptr, nullptr, nullptr),
              InvalidParameter);
}

TEST_F(GdiplusDrawImage, DrawsNothingWithoutExtent) {
    for (const REAL extent : {0.0f, 4.0f}) {
        EXPECT_EQ(GdipDrawImageRectRect(onBitmap_, image_, 0, 0, extent, 4, 0, 0, 4 - extent, 4,
                                        UnitPixel, nullptr, nullptr, nullptr),
                  Ok);
    }
    EXPECT_EQ(GdipDrawImageRectRect(onBitmap_, image_, 0, 0, 4, 4, 20, 20, 4, 4, UnitPixel, nullptr,
                                    nullptr, nullptr),
              Ok);
    ExpectAt(0, 0, {0, 0, {}});
}

TEST_F(GdiplusDrawImage, StaysWithinClipAndTarget) {
    GdipSetClipRectI(onBitmap_, 4, 0, 20, 20, CombineModeReplace);
    ASSERT_EQ(GdipDrawImageI(onBitmap_, image_, -1, -1), Ok);
    GdipResetClip(onBitmap_);
    ExpectAt(4, 0, Cut(mosaic_, 5, 1, 1, 4));
}

TEST_F(GdiplusDrawImage, FollowsTheWorld) {
    GdipSetInterpolationMode(onBitmap_, InterpolationModeNearestNeighbor);
    GdipSetPixelOffsetMode(onBitmap_, PixelOffsetModeHalf);
    GdipScaleWorldTransform(onBitmap_, 2, 2, MatrixOrderPrepend);
    ASSERT_EQ(GdipDrawImageRectI(onBitmap_, image_, 0, 0, 6, 5), Ok);
    const test::TestPicture drawn = OnBitmap();
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 12; ++x) EXPECT_EQ(drawn.At(x, y), mosaic_.At(x / 2, y / 2));
    }
}

TEST_F(GdiplusDrawImage, BlendsOrCopies) {
    GpImage* faint = AsImage(MakeBitmap(Box(0, 0, 0, 0, 0, 0x80FF0000, 2, 2)));
    GdipGraphicsClear(onBitmap_, kBlue);
    ASSERT_EQ(GdipDrawImageI(onBitmap_, faint, 0, 0), Ok);
    EXPECT_EQ(OnBitmap().At(0, 0), 0xFF80007Fu);
    GdipSetCompositingMode(onBitmap_, CompositingModeSourceCopy);
    ASSERT_EQ(GdipDrawImageI(onBitmap_, faint, 4, 0), Ok);
    EXPECT_EQ(OnBitmap().At(4, 0), 0x80FF0000u);
}

TEST_F(GdiplusDrawImage, DrawsABitmapOnItself) {
    for (const PixelFormat format : {PixelFormat32bppARGB, PixelFormat32bppPARGB}) {
        GpBitmap* bitmap = MakeBitmap(mosaic_, format);
        ASSERT_EQ(GdipDrawImageI(GraphicsOf(bitmap), AsImage(bitmap), 1, 1), Ok);
        test::TestPicture expected = mosaic_;
        for (int y = 1; y < 5; ++y) {
            for (int x = 1; x < 6; ++x) expected.At(x, y) = mosaic_.At(x - 1, y - 1);
        }
        ExpectSame(PictureOf(bitmap), expected);
    }
}

TEST_F(GdiplusDrawImage, IsBusyWhileTheImageIsLocked) {
    BitmapData data{};
    GdipBitmapLockBits(source_, nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data);
    EXPECT_EQ(GdipDrawImageI(onBitmap_, image_, 0, 0), ObjectBusy);
    GpCachedBitmap* cached = nullptr;
    EXPECT_EQ(GdipCreateCachedBitmap(source_, onBitmap_, &cached), ObjectBusy);
    GdipBitmapUnlockBits(source_, &data);
}

TEST_F(GdiplusDrawImage, EndsWhenTheCallerSaysSo) {
    int asked = 0;
    const auto abort = [](void* data) -> BOOL { return ++*static_cast<int*>(data) > 0; };
    EXPECT_EQ(GdipDrawImageRectRectI(onBitmap_, image_, 0, 0, 4, 4, 0, 0, 4, 4, UnitPixel, nullptr,
                                     abort, &asked),
              Aborted);
    EXPECT_EQ(asked, 1);
    ExpectAt(0, 0, {0, 0, {}});
    const auto goOn = [](void* data) -> BOOL { return ++*static_cast<int*>(data) < 0; };
    EXPECT_EQ(GdipDrawImageRectRectI(onBitmap_, image_, 0, 0, 4, 4, 0, 0, 4, 4, UnitPixel, nullptr,
                                     goOn, &asked),
              Ok);
    EXPECT_GT(asked, 1);
    ExpectAt(0, 0, Cut(mosaic_, 0, 0, 4, 4));
}

TEST_F(GdiplusDrawImage, AdjustsWhatItDraws) {
    const ColorMatrix halfAlpha{
        {{1, 0, 0, 0, 0}, {0, 1, 0, 0, 0}, {0, 0, 1, 0, 0}, {0, 0, 0, 0.5f, 0}, {0, 0, 0, 0, 1}}};
    ASSERT_EQ(GdipSetImageAttributesColorMatrix(attributes_, ColorAdjustTypeBitmap, 1, &halfAlpha,
                                                nullptr, ColorMatrixFlagsDefault),
              Ok);
    GdipGraphicsClear(onBitmap_, 0xFF000000);
    GpImage* white = AsImage(MakeBitmap(Box(0, 0, 0, 0, 0, 0xFFFFFFFF, 4, 4)));
    ASSERT_EQ(GdipDrawImageRectRectI(onBitmap_, white, 1, 1, 2, 2, 0, 0, 2, 2, UnitPixel,
                                     attributes_, nullptr, nullptr),
              Ok);
    ExpectSame(OnBitmap(), Box(1, 1, 3, 3, 0xFF808080, 0xFF000000), 1);
}

TEST_F(GdiplusDrawImage, GoesOnBeyondTheImageByItsWrapMode) {
    struct {
        WrapMode mode;
        const char* row;  // of the image "abcd", from 5 before it to 5 behind it
        const char* column;
    } const cases[] = {{WrapModeTile, "dabcdabcdabcda", "dabcdabcdabcda"},
                       {WrapModeTileFlipX, "ddcbaabcddcbaa", "dabcdabcdabcda"},
                       {WrapModeTileFlipY, "dabcdabcdabcda", "ddcbaabcddcbaa"},
                       {WrapModeTileFlipXY, "ddcbaabcddcbaa", "ddcbaabcddcbaa"},
                       {WrapModeClamp, ".....abcd.....", ".....abcd....."}};
    const test::TestPicture image = Mosaic(4, 4);
    const auto letterAt = [&](uint32_t pixel, bool vertical) {
        for (int i = 0; i < 4; ++i) {
            if (pixel == image.At(vertical ? 0 : i, vertical ? i : 0)) return char('a' + i);
        }
        return pixel == 0xFF123456 ? '.' : '?';
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.mode);
        ASSERT_EQ(GdipSetImageAttributesWrapMode(attributes_, c.mode, 0xFF123456, 0), Ok);
        const test::TestPicture wide = Draw(image, 14, 1,
                                            {{0, 0, 14, 1},
                                             {-5, 0, 14, 1},
                                             InterpolationModeBilinear,
                                             PixelOffsetModeNone,
                                             attributes_});
        const test::TestPicture high = Draw(image, 1, 14,
                                            {{0, 0, 1, 14},
                                             {0, -5, 1, 14},
                                             InterpolationModeBilinear,
                                             PixelOffsetModeNone,
                                             attributes_});
        std::string row, column;
        for (int i = 0; i < 14; ++i) {
            row += letterAt(wide.At(i, 0), false);
            column += letterAt(high.At(0, i), true);
        }
        EXPECT_EQ(row, c.row);
        EXPECT_EQ(column, c.column);
    }
}

TEST_F(GdiplusDrawImage, DrawsCachedBitmapsAsTheyWere) {
    GpCachedBitmap* cached = nullptr;
    ASSERT_EQ(GdipCreateCachedBitmap(source_, onBitmap_, &cached), Ok);
    GdipGraphicsClear(GraphicsOf(source_), kRed);
    GdipTranslateWorldTransform(onBitmap_, 1, 2, MatrixOrderPrepend);
    ASSERT_EQ(GdipDrawCachedBitmap(onBitmap_, cached, 2, 1), Ok);
    ExpectAt(3, 3, mosaic_);
    GdipScaleWorldTransform(onBitmap_, 2, 2, MatrixOrderPrepend);
    EXPECT_EQ(GdipDrawCachedBitmap(onBitmap_, cached, 2, 1), WrongState);
    EXPECT_EQ(GdipDeleteCachedBitmap(cached), Ok);
    EXPECT_EQ(GdipDeleteCachedBitmap(cached), InvalidParameter);
    EXPECT_EQ(GdipDrawCachedBitmap(onBitmap_, cached, 2, 1), InvalidParameter);
    EXPECT_EQ(GdipCreateCachedBitmap(nullptr, onBitmap_, &cached), InvalidParameter);
    EXPECT_EQ(GdipCreateCachedBitmap(source_, nullptr, &cached), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
