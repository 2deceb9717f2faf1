#include "tests/platform/gdiplus_graphics/ImageFixture.h"

namespace vxgui::gdiplus {
namespace {

constexpr GUID kMatrixEffect{
    0x718F2615, 0x7933, 0x40e3, {0xA5, 0x11, 0x5F, 0x68, 0xFE, 0x14, 0xDD, 0x74}};
constexpr GUID kBlurEffect{
    0x633C80A4, 0x1843, 0x482b, {0x9E, 0xF2, 0xBE, 0x28, 0x34, 0xC5, 0xFD, 0xD4}};

class GdiplusDrawImageFX : public test::ImageFixture {
protected:
    ~GdiplusDrawImageFX() override {
        GdipDeleteEffect(effect_);
        GdipDeleteMatrix(matrix_);
    }

    template <class Params>
    CGpEffect* Make(const GUID& guid, const Params& params) {
        EXPECT_EQ(GdipCreateEffect(guid, &effect_), Ok);
        EXPECT_EQ(GdipSetEffectParameters(effect_, &params, sizeof params), Ok);
        return effect_;
    }

    const test::TestPicture mosaic_ = Mosaic(6, 5);
    GpImage* const image_ = AsImage(MakeBitmap(mosaic_));
    CGpEffect* effect_ = nullptr;
    GpMatrix* matrix_ = nullptr;
};

// The picture of `size` with another at a place in it.
test::TestPicture Placed(test::TestPicture picture, int left, int top,
                         const test::TestPicture& part) {
    for (int y = 0; y < part.height; ++y) {
        for (int x = 0; x < part.width; ++x) picture.At(left + x, top + y) = part.At(x, y);
    }
    return picture;
}

TEST_F(GdiplusDrawImageFX, DrawsAPartWhereItLies) {
    GpRectF part{1, 2, 4, 2};
    ASSERT_EQ(GdipDrawImageFX(onBitmap_, image_, &part, nullptr, nullptr, nullptr, UnitPixel), Ok);
    ExpectSame(OnBitmap(), Placed(Box(0, 0, 0, 0, 0), 1, 2, Cut(mosaic_, 1, 2, 4, 2)));
}

TEST_F(GdiplusDrawImageFX, TakesThePartWhereTheMatrixSays) {
    GdipCreateMatrix2(1, 0, 0, 1, 3, 4, &matrix_);
    GpRectF part{1, 1, 4, 3};
    ASSERT_EQ(GdipDrawImageFX(onBitmap_, image_, &part, matrix_, nullptr, nullptr, UnitPixel), Ok);
    ExpectSame(OnBitmap(), Placed(Box(0, 0, 0, 0, 0), 4, 5, Cut(mosaic_, 1, 1, 4, 3)));
}

TEST_F(GdiplusDrawImageFX, AppliesTheEffectToThePart) {
    const ColorMatrix inverted{
        {{-1, 0, 0, 0, 0}, {0, -1, 0, 0, 0}, {0, 0, -1, 0, 0}, {0, 0, 0, 1, 0}, {1, 1, 1, 0, 1}}};
    GpRectF part{1, 1, 4, 3};
    ASSERT_EQ(GdipDrawImageFX(onBitmap_, image_, &part, nullptr, Make(kMatrixEffect, inverted),
                              nullptr, UnitPixel),
              Ok);
    test::TestPicture expected = Cut(mosaic_, 1, 1, 4, 3);
    for (uint32_t& pixel : expected.pixels) pixel ^= 0x00FFFFFF;
    ExpectSame(OnBitmap(), Placed(Box(0, 0, 0, 0, 0), 1, 1, expected));
}

TEST_F(GdiplusDrawImageFX, ShowsWhatAnEffectSpreads) {
    GpImage* dot = AsImage(MakeBitmap(Box(0, 0, 0, 0, 0, kRed, 2, 2)));
    GdipCreateMatrix2(1, 0, 0, 1, 5, 4, &matrix_);
    const BlurParams blur{2, 1};
    ASSERT_EQ(GdipDrawImageFX(onBitmap_, dot, nullptr, matrix_, Make(kBlurEffect, blur), nullptr,
                              UnitPixel),
              Ok);
    const test::TestPicture drawn = OnBitmap();
    EXPECT_GT(drawn.At(4, 4) >> 24, 0u);
    EXPECT_GT(drawn.At(7, 5) >> 24, 0u);
    EXPECT_LT(drawn.At(5, 4) >> 24, 255u);
    EXPECT_EQ(drawn.At(0, 0), 0u);
}

TEST_F(GdiplusDrawImageFX, RefusesWhatIsNotWhatItSays) {
    GpRectF part{0, 0, 1, 1};
    EXPECT_EQ(GdipDrawImageFX(nullptr, image_, &part, nullptr, nullptr, nullptr, UnitPixel),
              InvalidParameter);
    EXPECT_EQ(GdipDrawImageFX(onBitmap_, nullptr, &part, nullptr, nullptr, nullptr, UnitPixel),
              InvalidParameter);
    EXPECT_EQ(GdipDrawImageFX(onBitmap_, image_, &part, nullptr, nullptr, nullptr, UnitWorld),
              InvalidParameter);
    EXPECT_EQ(GdipDrawImageFX(onBitmap_, image_, &part, reinterpret_cast<GpMatrix*>(image_),
                              nullptr, nullptr, UnitPixel),
              InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
