#include "tests/platform/gdiplus_effects/AttributesFixture.h"
#include "vxgui/platform/gdiplus/Attributes.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusAttributes = test::AttributesFixture;
constexpr uint32_t kColor = 0xFFFF0000, kAdjusted = 0xFF00FF00;

void SetRemap(GpImageAttributes* attributes, ColorAdjustType type) {
    const ColorMap map{kColor, kAdjusted};
    EXPECT_EQ(GdipSetImageAttributesRemapTable(attributes, type, 1, 1, &map), Ok);
}

TEST_F(GdiplusAttributes, DefaultSettingsApplyToTypesWithoutTheirOwn) {
    SetRemap(attributes_, ColorAdjustTypeDefault);
    for (int type = 0; type < ColorAdjustTypeCount; ++type) {
        EXPECT_EQ(Adjusted(kColor, static_cast<ColorAdjustType>(type)), kAdjusted) << type;
    }
    ASSERT_EQ(GdipSetImageAttributesNoOp(attributes_, ColorAdjustTypePen, 1), Ok);
    EXPECT_EQ(Adjusted(kColor, ColorAdjustTypePen), kColor);
    EXPECT_EQ(Adjusted(kColor, ColorAdjustTypeBrush), kAdjusted);
}

TEST_F(GdiplusAttributes, OwnSettingsOfATypeApplyToNoOther) {
    SetRemap(attributes_, ColorAdjustTypeBrush);
    EXPECT_EQ(Adjusted(kColor, ColorAdjustTypeBrush), kAdjusted);
    EXPECT_EQ(Adjusted(kColor, ColorAdjustTypeBitmap), kColor);
    EXPECT_EQ(Adjusted(kColor, ColorAdjustTypeDefault), kColor);
}

TEST_F(GdiplusAttributes, IdentityIsASettingOfItsOwn) {
    SetRemap(attributes_, ColorAdjustTypeDefault);
    ASSERT_EQ(GdipSetImageAttributesToIdentity(attributes_, ColorAdjustTypeBitmap), Ok);
    EXPECT_EQ(Adjusted(kColor), kColor);
    EXPECT_EQ(GdipSetImageAttributesToIdentity(attributes_, ColorAdjustTypeCount),
              InvalidParameter);
}

TEST_F(GdiplusAttributes, ResetGoesBackToTheDefault) {
    SetRemap(attributes_, ColorAdjustTypeDefault);
    GdipSetImageAttributesToIdentity(attributes_, ColorAdjustTypeBitmap);
    ASSERT_EQ(GdipResetImageAttributes(attributes_, ColorAdjustTypeBitmap), Ok);
    EXPECT_EQ(Adjusted(kColor), kAdjusted);
    EXPECT_EQ(GdipResetImageAttributes(nullptr, ColorAdjustTypeBitmap), InvalidParameter);
}

TEST_F(GdiplusAttributes, ClearingTheLastStepGoesBackToTheDefault) {
    SetRemap(attributes_, ColorAdjustTypeDefault);
    GdipSetImageAttributesGamma(attributes_, ColorAdjustTypeBitmap, 1, 2);
    EXPECT_EQ(Adjusted(kColor), kColor);
    GdipSetImageAttributesGamma(attributes_, ColorAdjustTypeBitmap, 0, 0);
    EXPECT_EQ(Adjusted(kColor), kAdjusted);
}

TEST_F(GdiplusAttributes, ClearingAStepThatIsNotSetKeepsTheIdentity) {
    SetRemap(attributes_, ColorAdjustTypeDefault);
    GdipSetImageAttributesToIdentity(attributes_, ColorAdjustTypeBitmap);
    GdipSetImageAttributesGamma(attributes_, ColorAdjustTypeBitmap, 0, 0);
    EXPECT_EQ(Adjusted(kColor), kColor);
}

TEST_F(GdiplusAttributes, CopyKeepsAllAndIsIndependent) {
    SetRemap(attributes_, ColorAdjustTypeBitmap);
    GdipSetImageAttributesWrapMode(attributes_, WrapModeTileFlipX, 0x12345678, 0);
    GpImageAttributes* copy = nullptr;
    ASSERT_EQ(GdipCloneImageAttributes(attributes_, &copy), Ok);
    GdipResetImageAttributes(attributes_, ColorAdjustTypeBitmap);
    std::swap(copy, attributes_);
    EXPECT_EQ(Adjusted(kColor), kAdjusted);
    const Ref<ImageAttributes> found = Find<ImageAttributes>(attributes_);
    EXPECT_EQ(found->wrap, WrapModeTileFlipX);
    EXPECT_EQ(found->outside, 0x12345678u);
    EXPECT_EQ(GdipDisposeImageAttributes(copy), Ok);
    EXPECT_EQ(GdipCloneImageAttributes(copy, &copy), InvalidParameter);
}

TEST_F(GdiplusAttributes, ADisposedOneIsGone) {
    GpImageAttributes* other = nullptr;
    ASSERT_EQ(GdipCreateImageAttributes(&other), Ok);
    EXPECT_EQ(GdipDisposeImageAttributes(other), Ok);
    EXPECT_EQ(GdipDisposeImageAttributes(other), InvalidParameter);
    EXPECT_EQ(GdipCreateImageAttributes(nullptr), InvalidParameter);
}

TEST_F(GdiplusAttributes, KeepsWrapModeAndSwitches) {
    const Ref<ImageAttributes> found = Find<ImageAttributes>(attributes_);
    EXPECT_FALSE(found->wrapSet);
    EXPECT_EQ(GdipSetImageAttributesWrapMode(attributes_, WrapModeClamp, 0xFF112233, 1), Ok);
    EXPECT_TRUE(found->wrapSet);
    EXPECT_EQ(found->outside, 0xFF112233u);
    EXPECT_EQ(GdipSetImageAttributesWrapMode(attributes_, static_cast<WrapMode>(5), 0, 0),
              InvalidParameter);
    EXPECT_EQ(GdipSetImageAttributesICMMode(attributes_, 1), Ok);
    EXPECT_TRUE(found->icmMode);
    EXPECT_EQ(GdipSetImageAttributesICMMode(nullptr, 1), InvalidParameter);
    EXPECT_EQ(GdipSetImageAttributesCachedBackground(attributes_, 1), Ok);
    EXPECT_TRUE(found->cachedBackground);
    EXPECT_EQ(GdipSetImageAttributesCachedBackground(nullptr, 0), InvalidParameter);
}

TEST_F(GdiplusAttributes, AdjustedPaletteNeedsAPaletteAndAType) {
    ColorPalette palette{0, 1, {kColor}};
    EXPECT_EQ(GdipGetImageAttributesAdjustedPalette(attributes_, nullptr, ColorAdjustTypeBitmap),
              InvalidParameter);
    EXPECT_EQ(GdipGetImageAttributesAdjustedPalette(attributes_, &palette, ColorAdjustTypeAny),
              InvalidParameter);
    EXPECT_EQ(palette.Entries[0], kColor);
}

}  // namespace
}  // namespace vxgui::gdiplus
