#include <gtest/gtest.h>

#include "tests/support/FlatCalls.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpEffect.h"
#include "vxgui/gdip/GpImageAttributes.h"

namespace vxgui {
namespace {

using Lines = std::vector<std::string>;

/// The flat calls that the wrappers of effects and attributes make.
class EffectCalls : public testing::Test {
protected:
    test::GdiplusSession session_;
    test::FlatCalls calls_;
};

TEST_F(EffectCalls, EachTypeHasItsPublishedIdentifier) {
    const char* const identifiers[] = {
        "{633C80A4-1843-482B-9EF2-BE2834C5FDD4}", "{63CBF3EE-C526-402C-8F71-62C540BF5142}",
        "{718F2615-7933-40E3-A511-5F68FE14DD74}", "{A7CE72A9-0F7F-40D7-B3CC-D0C02D5C3212}",
        "{D3A1DBE1-8EC4-4C17-9F4C-EA97AD1C343D}", "{8B2DD6C3-EB07-4D87-A5F0-7108E26A9C5F}",
        "{99C354EC-2A31-4F3A-8C34-17A803B33A25}", "{1077AF00-2848-4441-9489-44AD4C2D7A2C}",
        "{537E597D-251E-48DA-9664-29CA496B70F8}", "{74D29D05-69A4-4266-9549-3CC52836B632}",
        "{DD6A0022-58E4-4A67-9D9B-D48EB881A53D}"};
    for (int32_t type = 0; type < 11; ++type) {
        const Ref<GpEffect> effect = New<GpEffect>();
        calls_.Take();
        EXPECT_NE(effect->Create(static_cast<GpEffectType>(type)), nullptr);
        EXPECT_EQ(calls_.Take(),
                  Lines{"GdipCreateEffect(" + std::string(identifiers[type]) + ", *)"});
    }
}

TEST_F(EffectCalls, AnUnknownTypeAsksForTheZeroIdentifier) {
    const Ref<GpEffect> effect = New<GpEffect>();
    for (const int32_t type : {11, -1}) {
        calls_.Take();
        EXPECT_EQ(effect->Create(static_cast<GpEffectType>(type)), nullptr);
        EXPECT_EQ(calls_.Take(),
                  Lines{"GdipCreateEffect({00000000-0000-0000-0000-000000000000}, *)"});
    }
}

TEST_F(EffectCalls, ANewEffectEndsTheOneThatWasHeld) {
    Ref<GpEffect> effect = New<GpEffect>();
    effect->Create(GpEffectType::blur);
    calls_.Take();
    effect->Create(GpEffectType::Tint);
    Lines lines = calls_.Take();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[1], "GdipDeleteEffect(*)");
    effect->Handle(nullptr);
    EXPECT_EQ(calls_.Take(), Lines{"GdipDeleteEffect(*)"});
    effect->Handle(nullptr);
    effect = nullptr;
    EXPECT_EQ(calls_.Take(), Lines{}) << "there is none any more";
}

TEST_F(EffectCalls, TheSizeStandsInFrontOfTheParametersWhenTheyAreRead) {
    const Ref<GpEffect> effect = New<GpEffect>();
    effect->Create(GpEffectType::Levels);
    LevelsParams levels{};
    uint32_t size = sizeof levels;
    calls_.Take();
    effect->GetParameterSize(size);
    effect->GetParameters(&levels, size);
    effect->SetParameters(&levels, size);
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipGetEffectParameterSize(*, *)", "GdipGetEffectParameters(*, *, *)",
                     "GdipSetEffectParameters(*, *, 12)"}));
}

TEST(EffectValues, AreThePublishedOnes) {
    EXPECT_EQ(static_cast<int>(GpEffectType::blur), 0);
    EXPECT_EQ(static_cast<int>(GpEffectType::sharpen), 1);
    EXPECT_EQ(static_cast<int>(GpEffectType::ColorMatrix), 2);
    EXPECT_EQ(static_cast<int>(GpEffectType::ColorLUT), 3);
    EXPECT_EQ(static_cast<int>(GpEffectType::BrightnessContrast), 4);
    EXPECT_EQ(static_cast<int>(GpEffectType::HueSaturationLightness), 5);
    EXPECT_EQ(static_cast<int>(GpEffectType::Levels), 6);
    EXPECT_EQ(static_cast<int>(GpEffectType::Tint), 7);
    EXPECT_EQ(static_cast<int>(GpEffectType::ColorBalance), 8);
    EXPECT_EQ(static_cast<int>(GpEffectType::RedEyeCorrection), 9);
    EXPECT_EQ(static_cast<int>(GpEffectType::ColorCurve), 10);
    const int adjustments[] = {AdjustExposure,        AdjustDensity,        AdjustContrast,
                               AdjustHighlight,       AdjustShadow,         AdjustMidtone,
                               AdjustWhiteSaturation, AdjustBlackSaturation};
    for (int i = 0; i < 8; ++i) EXPECT_EQ(adjustments[i], i);
    const int channels[] = {CurveChannelAll, CurveChannelRed, CurveChannelGreen, CurveChannelBlue};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(channels[i], i);
}

/// What a call of the attributes' wrapper becomes.
class AttributeCalls : public EffectCalls {
protected:
    static constexpr auto kPen = gdiplus::ColorAdjustTypePen;  // 3
    template <class Operation>
    std::string Line(const Operation& operation) {
        calls_.Take();
        operation(*attributes_);
        const Lines lines = calls_.Take();
        EXPECT_EQ(lines.size(), 1u);
        return lines.empty() ? "" : lines.front();
    }
    static std::string Zero() {
        std::string text = "[0";
        for (int i = 1; i < 25; ++i) text += " 0";
        return text + "]";
    }

    Ref<GpImageAttributes> attributes_ = New<GpImageAttributes>();
};

TEST_F(AttributeCalls, AnObjectMakesItsOwnAtItsCreation) {
    EXPECT_EQ(calls_.TakeOf({"GdipCreateImageAttributes", "GdipDisposeImageAttributes"}),
              Lines{"GdipCreateImageAttributes(*)"});
    attributes_ = nullptr;
    EXPECT_EQ(calls_.Take(), Lines{"GdipDisposeImageAttributes(*)"});
}

TEST_F(AttributeCalls, SettersEnableWithTheirValues) {
    using A = GpImageAttributes;
    gdiplus::ColorMatrix one{}, gray{};
    one.m[0][0] = 1;
    gray.m[4][4] = 2;
    const std::string zeros = Zero();
    const std::string first = "[1" + zeros.substr(2);
    const std::string last = zeros.substr(0, zeros.size() - 2) + "2]";
    EXPECT_EQ(
        Line([&](A& a) { a.SetColorMatrix(&one, &gray, gdiplus::ColorMatrixFlagsAltGray, kPen); }),
        "GdipSetImageAttributesColorMatrix(*, 3, 1, " + first + ", " + last + ", 2)");
    EXPECT_EQ(Line([&](A& a) { a.SetColorMatrix(&one); }),
              "GdipSetImageAttributesColorMatrix(*, 0, 1, " + first + ", 0, 0)");
    EXPECT_EQ(Line([](A& a) { a.SetThreshold(0.5f, kPen); }),
              "GdipSetImageAttributesThreshold(*, 3, 1, 0.5)");
    EXPECT_EQ(Line([](A& a) { a.SetGamma(2.5f, kPen); }),
              "GdipSetImageAttributesGamma(*, 3, 1, 2.5)");
    EXPECT_EQ(Line([](A& a) { a.SetNoOp(kPen); }), "GdipSetImageAttributesNoOp(*, 3, 1)");
    EXPECT_EQ(Line([](A& a) { a.SetColorKey(7, 9, kPen); }),
              "GdipSetImageAttributesColorKeys(*, 3, 1, 7, 9)");
    EXPECT_EQ(Line([](A& a) { a.SetOutputChannel(gdiplus::ColorChannelFlagsM, kPen); }),
              "GdipSetImageAttributesOutputChannel(*, 3, 1, 1)");
    EXPECT_EQ(Line([](A& a) { a.SetOutputChannelColorProfile("press.icm", kPen); }),
              "GdipSetImageAttributesOutputChannelColorProfile(*, 3, 1, \"press.icm\")");
    const gdiplus::ColorMap map[2]{};
    EXPECT_EQ(Line([&](A& a) { a.SetRemapTable(2, map, kPen); }),
              "GdipSetImageAttributesRemapTable(*, 3, 1, 2, *)");
}

TEST_F(AttributeCalls, ClearingDisablesWithZeroValues) {
    using A = GpImageAttributes;
    EXPECT_EQ(Line([](A& a) { a.ClearColorMatrix(); }),
              "GdipSetImageAttributesColorMatrix(*, 0, 0, " + Zero() + ", " + Zero() + ", 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearColorMatrix(kPen); }),
              "GdipSetImageAttributesColorMatrix(*, 3, 0, " + Zero() + ", " + Zero() + ", 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearThreshold(kPen); }),
              "GdipSetImageAttributesThreshold(*, 3, 0, 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearGamma(kPen); }), "GdipSetImageAttributesGamma(*, 3, 0, 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearNoOp(kPen); }), "GdipSetImageAttributesNoOp(*, 3, 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearColorKey(kPen); }),
              "GdipSetImageAttributesColorKeys(*, 3, 0, 0, 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearOutputChannel(kPen); }),
              "GdipSetImageAttributesOutputChannel(*, 3, 0, 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearOutputChannelColorProfile(kPen); }),
              "GdipSetImageAttributesOutputChannelColorProfile(*, 3, 0, 0)");
    EXPECT_EQ(Line([](A& a) { a.ClearRemapTable(kPen); }),
              "GdipSetImageAttributesRemapTable(*, 3, 0, 0, 0)");
}

TEST_F(AttributeCalls, TheOthersPassWhatTheyGet) {
    using A = GpImageAttributes;
    EXPECT_EQ(Line([](A& a) { a.SetToIdentity(kPen); }), "GdipSetImageAttributesToIdentity(*, 3)");
    EXPECT_EQ(Line([](A& a) { a.Reset(kPen); }), "GdipResetImageAttributes(*, 3)");
    EXPECT_EQ(Line([](A& a) { a.SetWrapMode(gdiplus::WrapModeTileFlipX); }),
              "GdipSetImageAttributesWrapMode(*, 1, 4278190080, 0)");
    EXPECT_EQ(Line([](A& a) { a.SetWrapMode(gdiplus::WrapModeClamp, 5, true); }),
              "GdipSetImageAttributesWrapMode(*, 4, 5, 1)");
    EXPECT_EQ(Line([](A& a) { a.ICMMode(true); }), "GdipSetImageAttributesICMMode(*, 1)");
    EXPECT_EQ(Line([](A& a) { a.ICMMode(false); }), "GdipSetImageAttributesICMMode(*, 0)");
    EXPECT_EQ(Line([](A& a) { a.CachedBackground(true); }),
              "GdipSetImageAttributesCachedBackground(*, 1)");
    gdiplus::ColorPalette palette{0, 1, {0}};
    EXPECT_EQ(Line([&](A& a) { a.GetAdjustedPalette(&palette, kPen); }),
              "GdipGetImageAttributesAdjustedPalette(*, *, 3)");
}

TEST_F(AttributeCalls, ACloneIsAnObjectOfItsOwn) {
    calls_.Take();
    const Ref<GpImageAttributes> clone = attributes_->Clone();
    EXPECT_EQ(calls_.Take(),
              (Lines{"GdipCloneImageAttributes(*, *)", "GdipCreateImageAttributes(*)",
                     "GdipDisposeImageAttributes(*)"}))
        << "what the new object had made goes";
    EXPECT_NE(clone->Handle(), attributes_->Handle());
}

}  // namespace
}  // namespace vxgui
