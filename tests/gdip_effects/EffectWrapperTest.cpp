#include <gtest/gtest.h>

#include <cstddef>

#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpEffect.h"
#include "vxgui/platform/ole_guid.h"

namespace vxgui {
namespace {

class EffectWrapper : public testing::Test {
protected:
    test::GdiplusSession session_;
    Ref<GpEffect> effect_ = New<GpEffect>();
};

TEST_F(EffectWrapper, MakesAllElevenWithTheirRecords) {
    const uint32_t sizes[] = {sizeof(BlurParams),
                              sizeof(SharpenParams),
                              sizeof(gdiplus::ColorMatrix),
                              sizeof(ColorLUTParams),
                              sizeof(BrightnessContrastParams),
                              sizeof(HueSaturationLightnessParams),
                              sizeof(LevelsParams),
                              sizeof(TintParams),
                              sizeof(ColorBalanceParams),
                              sizeof(RedEyeCorrectionParams),
                              sizeof(ColorCurveParams)};
    for (int i = 0; i < 11; ++i) {
        gdiplus::CGpEffect* made = effect_->Create(static_cast<GpEffectType>(i));
        EXPECT_NE(made, nullptr) << i;
        EXPECT_EQ(effect_->Handle(), made);
        uint32_t size = 0;
        EXPECT_EQ(effect_->GetParameterSize(size), gdiplus::Ok);
        EXPECT_EQ(size, sizes[i]) << i;
    }
}

TEST_F(EffectWrapper, RecordsHaveTheirLayout) {
    EXPECT_EQ(sizeof(BlurParams), 8u);
    EXPECT_EQ(offsetof(BlurParams, expandEdge), 4u);
    EXPECT_EQ(offsetof(SharpenParams, amount), 4u);
    EXPECT_EQ(offsetof(TintParams, amount), 4u);
    EXPECT_EQ(sizeof(RedEyeCorrectionParams), 20u);
    EXPECT_EQ(offsetof(RedEyeCorrectionParams, areas), 4u);
    EXPECT_EQ(offsetof(BrightnessContrastParams, contrastLevel), 4u);
    EXPECT_EQ(offsetof(ColorBalanceParams, magentaGreen), 4u);
    EXPECT_EQ(offsetof(ColorBalanceParams, yellowBlue), 8u);
    EXPECT_EQ(offsetof(HueSaturationLightnessParams, saturationLevel), 4u);
    EXPECT_EQ(offsetof(HueSaturationLightnessParams, lightnessLevel), 8u);
    EXPECT_EQ(offsetof(LevelsParams, midtone), 4u);
    EXPECT_EQ(offsetof(ColorCurveParams, channel), 4u);
    EXPECT_EQ(sizeof(ColorLUTParams), 1024u);
    EXPECT_EQ(offsetof(ColorLUTParams, lutG), 256u);
    EXPECT_EQ(offsetof(ColorLUTParams, lutR), 512u);
    EXPECT_EQ(offsetof(ColorLUTParams, lutA), 768u);
    EXPECT_EQ(offsetof(LevelsParams, shadow), 8u);
    EXPECT_EQ(offsetof(ColorCurveParams, adjustValue), 8u);
}

TEST_F(EffectWrapper, AnUnknownTypeIsRefusedAndKeepsTheEffect) {
    gdiplus::CGpEffect* const held = effect_->Create(GpEffectType::Tint);
    for (int type : {11, -1, 1000}) {
        EXPECT_EQ(effect_->Create(static_cast<GpEffectType>(type)), nullptr) << type;
    }
    EXPECT_EQ(effect_->Handle(), held);
    EXPECT_EQ(effect_->Status, gdiplus::Ok);  // this class doesn't write it
}

TEST_F(EffectWrapper, SettingTheHandleDeletesTheOneBefore) {
    gdiplus::CGpEffect* const first = effect_->Create(GpEffectType::blur);
    effect_->Handle(nullptr);
    EXPECT_EQ(effect_->Handle(), nullptr);
    EXPECT_EQ(gdiplus::GdipDeleteEffect(first), gdiplus::InvalidParameter);
    gdiplus::CGpEffect* const second = effect_->Create(GpEffectType::sharpen);
    effect_ = nullptr;
    EXPECT_EQ(gdiplus::GdipDeleteEffect(second), gdiplus::InvalidParameter);
}

TEST_F(EffectWrapper, ParametersGoThereAndBack) {
    effect_->Create(GpEffectType::Levels);
    const LevelsParams levels{90, -5, 10};
    EXPECT_EQ(effect_->SetParameters(&levels, sizeof levels), gdiplus::Ok);
    LevelsParams got{};
    uint32_t size = sizeof got;
    EXPECT_EQ(effect_->GetParameters(&got, size), gdiplus::Ok);
    EXPECT_EQ(got.highlight, 90);
    EXPECT_EQ(got.midtone, -5);
    EXPECT_EQ(got.shadow, 10);
    EXPECT_EQ(effect_->SetParameters(&levels, 4), gdiplus::InvalidParameter);
    size = 4;
    EXPECT_EQ(effect_->GetParameters(&got, size), gdiplus::InsufficientBuffer);
    EXPECT_EQ(size, sizeof got);
    EXPECT_EQ(effect_->Status, gdiplus::Ok);
}

TEST_F(EffectWrapper, WithoutAnEffectEveryCallFails) {
    uint32_t size = 5;
    EXPECT_EQ(effect_->GetParameterSize(size), gdiplus::InvalidParameter);
    EXPECT_EQ(size, 0u) << "cleared first";
    EXPECT_EQ(effect_->GetParameters(&size, size), gdiplus::InvalidParameter);
    EXPECT_EQ(effect_->SetParameters(&size, 4), gdiplus::InvalidParameter);
}

TEST(GuidText, BecomesBytesAsTheyLieInMemory) {
    ole::GuidBytes bytes;
    EXPECT_TRUE(ole::IIDFromString("{01234567-89ab-CDEF-0123-456789ABCDEF}", &bytes));
    EXPECT_EQ(bytes, (ole::GuidBytes{0x67, 0x45, 0x23, 0x01, 0xAB, 0x89, 0xEF, 0xCD, 0x01, 0x23,
                                     0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF}));
}

TEST(GuidText, OtherTextsAreNone) {
    for (const char* text :
         {"", "01234567-89ab-CDEF-0123-456789ABCDEF", "{01234567-89ab-CDEF-0123-456789ABCDEG}",
          "{0123456-789ab-CDEF-0123-456789ABCDEF}", "{01234567-89ab-CDEF-0123-456789ABCDEF} "}) {
        ole::GuidBytes bytes{1};
        EXPECT_FALSE(ole::IIDFromString(text, &bytes)) << text;
        EXPECT_EQ(bytes, ole::GuidBytes{});
    }
}

}  // namespace
}  // namespace vxgui
