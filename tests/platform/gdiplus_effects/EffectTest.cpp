#include <cstring>

#include "tests/platform/gdiplus_effects/EffectFixture.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusEffect = test::EffectFixture;
using test::EffectSample;

TEST_F(GdiplusEffect, IsMadeByItsIdentifierAndByNoOther) {
    for (const GUID& guid : test::kAllEffects) EXPECT_NE(Make(guid), nullptr);
    CGpEffect* effect = Make(test::kBlur);
    EXPECT_EQ(GdipCreateEffect(GUID{}, &effect), InvalidParameter);
    EXPECT_EQ(effect, nullptr);
    EXPECT_EQ(GdipCreateEffect(test::kBlur, nullptr), InvalidParameter);
}

TEST_F(GdiplusEffect, DiesOnce) {
    CGpEffect* effect = nullptr;
    ASSERT_EQ(GdipCreateEffect(test::kTint, &effect), Ok);
    EXPECT_EQ(GdipDeleteEffect(effect), Ok);
    EXPECT_EQ(GdipDeleteEffect(effect), InvalidParameter);
    UINT size = 0;
    EXPECT_EQ(GdipGetEffectParameterSize(effect, &size), InvalidParameter);
}

TEST_F(GdiplusEffect, ParametersHaveTheSizeOfTheirRecord) {
    const UINT sizes[] = {sizeof(BlurParams),
                          sizeof(SharpenParams),
                          sizeof(ColorMatrix),
                          sizeof(ColorLUTParams),
                          sizeof(BrightnessContrastParams),
                          sizeof(HueSaturationLightnessParams),
                          sizeof(LevelsParams),
                          sizeof(TintParams),
                          sizeof(ColorBalanceParams),
                          sizeof(RedEyeCorrectionParams),
                          sizeof(ColorCurveParams)};
    for (size_t i = 0; i < std::size(sizes); ++i) {
        CGpEffect* effect = Make(test::kAllEffects[i]);
        UINT size = 0;
        EXPECT_EQ(GdipGetEffectParameterSize(effect, &size), Ok);
        EXPECT_EQ(size, sizes[i]) << i;
        // What was read can be written back, and no byte more or less.
        std::vector<BYTE> bytes(size + 1);
        ASSERT_EQ(GdipGetEffectParameters(effect, &size, bytes.data()), Ok);
        EXPECT_EQ(GdipSetEffectParameters(effect, bytes.data(), size), Ok);
        EXPECT_EQ(GdipSetEffectParameters(effect, bytes.data(), size - 1), InvalidParameter);
    }
    EXPECT_EQ(GdipGetEffectParameterSize(Make(test::kBlur), nullptr), InvalidParameter);
    EXPECT_EQ(GdipSetEffectParameters(Make(test::kBlur), nullptr, 8), InvalidParameter);
}

TEST_F(GdiplusEffect, ParametersNeedRoom) {
    CGpEffect* effect = Make(test::kBlur, BlurParams{3, 1});
    BlurParams got{};
    UINT size = 4;
    EXPECT_EQ(GdipGetEffectParameters(effect, &size, &got), InsufficientBuffer);
    EXPECT_EQ(size, 8u);
    EXPECT_EQ(GdipGetEffectParameters(effect, &size, &got), Ok);
    EXPECT_EQ(got.radius, 3);
    EXPECT_EQ(got.expandEdge, 1);
    EXPECT_EQ(GdipGetEffectParameters(effect, nullptr, &got), InvalidParameter);
    EXPECT_EQ(GdipGetEffectParameters(nullptr, &size, &got), InvalidParameter);
}

TEST_F(GdiplusEffect, ValuesOutOfRangeAreRefused) {
    EXPECT_EQ(Set(test::kBlur, BlurParams{256, 0}), InvalidParameter);
    EXPECT_EQ(Set(test::kBlur, BlurParams{-1, 0}), InvalidParameter);
    EXPECT_EQ(Set(test::kSharpen, SharpenParams{1, 101}), InvalidParameter);
    EXPECT_EQ(Set(test::kTint, TintParams{181, 0}), InvalidParameter);
    EXPECT_EQ(Set(test::kBrightness, BrightnessContrastParams{256, 0}), InvalidParameter);
    EXPECT_EQ(Set(test::kBrightness, BrightnessContrastParams{0, -101}), InvalidParameter);
    EXPECT_EQ(Set(test::kBalance, ColorBalanceParams{0, 0, 101}), InvalidParameter);
    EXPECT_EQ(Set(test::kHue, HueSaturationLightnessParams{0, 101, 0}), InvalidParameter);
    EXPECT_EQ(Set(test::kLevels, LevelsParams{101, 0, 0}), InvalidParameter);
    EXPECT_EQ(Set(test::kCurve, ColorCurveParams{AdjustContrast, CurveChannelAll, 101}),
              InvalidParameter);
    EXPECT_EQ(Set(test::kCurve, ColorCurveParams{AdjustExposure, static_cast<CurveChannel>(4), 0}),
              InvalidParameter);
    EXPECT_EQ(
        Set(test::kCurve, ColorCurveParams{static_cast<CurveAdjustments>(8), CurveChannelAll, 0}),
        InvalidParameter);
    EXPECT_EQ(Set(test::kRedEye, RedEyeCorrectionParams{2, {0, 0, 1, 1}}), InvalidParameter);
}

TEST_F(GdiplusEffect, ANewOneChangesNothing) {
    const test::TestPicture sample = EffectSample();
    for (const GUID& guid : test::kAllEffects) {
        EXPECT_EQ(Applied(Make(guid), sample).pixels, sample.pixels);
    }
}

TEST_F(GdiplusEffect, LeavesWhatLiesAroundItsPart) {
    const test::TestPicture sample = EffectSample(32);
    CGpEffect* effects[] = {Make(test::kBlur, BlurParams{4, 1}),
                            Make(test::kBrightness, BrightnessContrastParams{90, 0}),
                            Make(test::kTint, TintParams{60, 80})};
    for (CGpEffect* effect : effects) {
        gdi::RECT part{10, 8, 20, 30};
        const test::TestPicture applied = Applied(effect, sample, &part);
        int changed = 0;
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) {
                const bool inside = x >= 10 && x < 20 && y >= 8 && y < 30;
                const bool differs = applied.At(x, y) != sample.At(x, y);
                EXPECT_FALSE(differs && !inside) << x << ", " << y;
                changed += differs;
            }
        }
        EXPECT_GT(changed, 30);
    }
}

TEST_F(GdiplusEffect, APartIsThatOfTheWholePicture) {
    const test::TestPicture sample = EffectSample(32);
    CGpEffect* effect = Make(test::kBlur, BlurParams{4, 0});
    const test::TestPicture whole = Applied(effect, sample);
    gdi::RECT part{10, 8, 20, 30};
    const test::TestPicture applied = Applied(effect, sample, &part);
    for (int y = 8; y < 30; ++y) {
        for (int x = 10; x < 20; ++x) EXPECT_EQ(applied.At(x, y), whole.At(x, y));
    }
}

TEST_F(GdiplusEffect, RefusesWhatIsMissingLockedOrOutside) {
    CGpEffect* effect = Make(test::kBlur);
    GpBitmap* bitmap = BitmapOf(EffectSample(8));
    gdi::RECT outside{8, 0, 12, 4};
    EXPECT_EQ(GdipBitmapApplyEffect(nullptr, effect, nullptr, 0, nullptr, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipBitmapApplyEffect(bitmap, nullptr, nullptr, 0, nullptr, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipBitmapApplyEffect(bitmap, effect, &outside, 0, nullptr, nullptr),
              InvalidParameter);
    EXPECT_EQ(GdipBitmapApplyEffect(bitmap, effect, nullptr, 1, nullptr, nullptr),
              InvalidParameter);
    BitmapData data{};
    const Ref<Bitmap> found = Find<Bitmap>(bitmap);
    ASSERT_EQ(found->Lock({0, 0, 8, 8}, ImageLockModeRead, PixelFormat32bppARGB, &data), Ok);
    EXPECT_EQ(GdipBitmapApplyEffect(bitmap, effect, nullptr, 0, nullptr, nullptr), ObjectBusy);
    EXPECT_EQ(found->Unlock(data), Ok);
}

TEST_F(GdiplusEffect, TablesAreHandedOutAsAuxiliaryData) {
    GpBitmap* bitmap = BitmapOf(EffectSample(8));
    void* data = nullptr;
    INT size = -1;
    CGpEffect* effect = Make(test::kBalance, ColorBalanceParams{100, 0, -100});
    ASSERT_EQ(GdipBitmapApplyEffect(bitmap, effect, nullptr, 1, &data, &size), Ok);
    ASSERT_EQ(size, static_cast<INT>(sizeof(ColorLUTParams)));
    const auto* tables = static_cast<const ColorLUTParams*>(data);
    EXPECT_EQ(tables->lutR.Colors[0], 128);
    EXPECT_EQ(tables->lutG.Colors[77], 77);
    EXPECT_EQ(tables->lutB.Colors[255], 128);
    EXPECT_EQ(tables->lutA.Colors[3], 3);
    GdipFree(data);
    ASSERT_EQ(GdipBitmapApplyEffect(bitmap, Make(test::kBlur), nullptr, 1, &data, &size), Ok);
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(size, 0);
}

TEST_F(GdiplusEffect, MemoryIsForTheCallerToFree) {
    void* memory = GdipAlloc(100);
    ASSERT_NE(memory, nullptr);
    std::memset(memory, 1, 100);
    GdipFree(memory);
    GdipFree(nullptr);
}

TEST_F(GdiplusEffect, MakesABitmapOfAPart) {
    const test::TestPicture sample = EffectSample(16);
    GpBitmap* bitmap = BitmapOf(sample);
    gdi::RECT part{4, 5, 12, 99}, place{};
    GpBitmap* result = nullptr;
    CGpEffect* effect = Make(test::kBrightness, BrightnessContrastParams{10, 0});
    ASSERT_EQ(
        GdipBitmapCreateApplyEffect(bitmap, effect, &part, &place, &result, 0, nullptr, nullptr),
        Ok);
    EXPECT_EQ(place.left, 4);
    EXPECT_EQ(place.top, 5);
    EXPECT_EQ(place.right, 12);
    EXPECT_EQ(place.bottom, 16);
    const test::TestPicture made = PictureOf(Keep(result));
    const test::TestPicture inPlace = Applied(effect, sample);
    EXPECT_EQ(made.width, 8);
    EXPECT_EQ(made.height, 11);
    for (int y = 0; y < 11; ++y) {
        for (int x = 0; x < 8; ++x) EXPECT_EQ(made.At(x, y), inPlace.At(x + 4, y + 5));
    }
    EXPECT_EQ(PictureOf(bitmap).pixels, sample.pixels);
    EXPECT_EQ(
        GdipBitmapCreateApplyEffect(bitmap, effect, &part, &place, nullptr, 0, nullptr, nullptr),
        InvalidParameter);
    EXPECT_EQ(
        GdipBitmapCreateApplyEffect(nullptr, effect, &part, &place, &result, 0, nullptr, nullptr),
        InvalidParameter);
    EXPECT_EQ(result, nullptr);
}

TEST_F(GdiplusEffect, ABlurOfItsOwnGrowsBySoftEdges) {
    test::TestPicture white{10, 10, std::vector<uint32_t>(100, 0xFFFFFFFF)};
    GpBitmap* bitmap = BitmapOf(white);
    gdi::RECT place{};
    GpBitmap* result = nullptr;
    ASSERT_EQ(GdipBitmapCreateApplyEffect(bitmap, Make(test::kBlur, BlurParams{3, 1}), nullptr,
                                          &place, &result, 0, nullptr, nullptr),
              Ok);
    EXPECT_EQ(place.left, -3);
    EXPECT_EQ(place.bottom, 13);
    const test::TestPicture made = PictureOf(Keep(result));
    ASSERT_EQ(made.width, 16);
    for (int x = 1; x < 8; ++x) EXPECT_GE(made.At(x, 8) >> 24, made.At(x - 1, 8) >> 24) << x;
    EXPECT_GT(made.At(7, 8) >> 24, 250u);
    EXPECT_LT(made.At(0, 8) >> 24, 20u);
    EXPECT_EQ(made.At(7, 8) & 0xFFFFFF, 0xFFFFFFu);
}

}  // namespace
}  // namespace vxgui::gdiplus
