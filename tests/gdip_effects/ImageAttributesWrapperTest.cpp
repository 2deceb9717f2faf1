#include <gtest/gtest.h>

#include <functional>

#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpImageAttributes.h"

namespace vxgui {
namespace {

constexpr gdiplus::ARGB kColor = 0xFF406080;

class ImageAttributesWrapper : public testing::Test {
protected:
    gdiplus::ARGB Adjusted(gdiplus::ARGB color,
                           gdiplus::ColorAdjustType type = gdiplus::ColorAdjustTypeDefault) {
        gdiplus::ColorPalette palette{0, 1, {color}};
        attributes_->GetAdjustedPalette(&palette, type);
        return palette.Entries[0];
    }

    test::GdiplusSession session_;
    Ref<GpImageAttributes> attributes_ = New<GpImageAttributes>();
};

TEST_F(ImageAttributesWrapper, ANewOneIsUsableAtOnce) {
    EXPECT_NE(attributes_->Handle(), nullptr);
    attributes_->SetThreshold(0.3f);
    EXPECT_EQ(Adjusted(kColor), 0xFF00FFFFu);
}

// Each test is a process of its own, so that nothing has started GDI+ here.
TEST(WrappersStart, TheFirstWrapperOfAThreadStartsGdiplus) {
    EXPECT_NE(New<GpImageAttributes>()->Handle(), nullptr);
}

TEST_F(ImageAttributesWrapper, SetAndClearComeInPairs) {
    using Attributes = GpImageAttributes;
    gdiplus::ColorMatrix matrix{};
    matrix.m[3][3] = 1;
    const gdiplus::ColorMap map{kColor, 0xFFFFFFFF};
    struct Pair {
        std::function<void(Attributes&)> set, clear;
    };
    const Pair pairs[] = {
        {[&](Attributes& a) { a.SetColorMatrix(&matrix); },
         [](Attributes& a) { a.ClearColorMatrix(); }},
        {[](Attributes& a) { a.SetThreshold(0.4f); }, [](Attributes& a) { a.ClearThreshold(); }},
        {[](Attributes& a) { a.SetGamma(2); }, [](Attributes& a) { a.ClearGamma(); }},
        {[](Attributes& a) { a.SetColorKey(kColor, kColor); },
         [](Attributes& a) { a.ClearColorKey(); }},
        {[](Attributes& a) { a.SetOutputChannel(gdiplus::ColorChannelFlagsC); },
         [](Attributes& a) { a.ClearOutputChannel(); }},
        {[&](Attributes& a) { a.SetRemapTable(1, &map); },
         [](Attributes& a) { a.ClearRemapTable(); }},
    };
    for (const Pair& pair : pairs) {
        pair.set(*attributes_);
        EXPECT_NE(Adjusted(kColor), kColor);
        pair.clear(*attributes_);
        EXPECT_EQ(Adjusted(kColor), kColor);
    }
}

TEST_F(ImageAttributesWrapper, NoOpTurnsTheOthersOff) {
    attributes_->SetGamma(2);
    attributes_->SetNoOp();
    EXPECT_EQ(Adjusted(kColor), kColor);
    attributes_->ClearNoOp();
    EXPECT_NE(Adjusted(kColor), kColor);
}

TEST_F(ImageAttributesWrapper, ClearColorMatrixAppliesToTheDefaultType) {
    gdiplus::ColorMatrix matrix{};
    matrix.m[3][3] = 1;
    attributes_->SetColorMatrix(&matrix);
    attributes_->SetColorMatrix(&matrix, nullptr, gdiplus::ColorMatrixFlagsDefault,
                                gdiplus::ColorAdjustTypePen);
    attributes_->ClearColorMatrix();
    EXPECT_EQ(Adjusted(kColor), kColor);
    EXPECT_EQ(Adjusted(kColor, gdiplus::ColorAdjustTypePen), 0xFF000000u);
}

TEST_F(ImageAttributesWrapper, GrayMatrixComesBehindTheColourMatrix) {
    gdiplus::ColorMatrix black{}, same{};
    black.m[3][3] = 1;
    for (int i = 0; i < 5; ++i) same.m[i][i] = 1;
    attributes_->SetColorMatrix(&black, &same, gdiplus::ColorMatrixFlagsAltGray);
    EXPECT_EQ(Adjusted(kColor), 0xFF000000u);
    EXPECT_EQ(Adjusted(0xFF777777), 0xFF777777u);
}

TEST_F(ImageAttributesWrapper, IdentityAndResetWorkOnOneType) {
    constexpr auto kPen = gdiplus::ColorAdjustTypePen;
    attributes_->SetGamma(2);
    attributes_->SetToIdentity(kPen);
    EXPECT_EQ(Adjusted(kColor, kPen), kColor);
    attributes_->Reset(kPen);
    EXPECT_NE(Adjusted(kColor, kPen), kColor);
}

TEST_F(ImageAttributesWrapper, OperationsDiscardTheFlatStatus) {
    attributes_->SetColorMatrix(nullptr);
    attributes_->SetGamma(-1);
    attributes_->SetWrapMode(static_cast<gdiplus::WrapMode>(77));
    attributes_->SetRemapTable(0, nullptr);
    attributes_->GetAdjustedPalette(nullptr);
    EXPECT_EQ(attributes_->Status, gdiplus::Ok);
    attributes_->Dispose();
    EXPECT_EQ(attributes_->Handle(), nullptr);
    attributes_->ICMMode(true);
    attributes_->CachedBackground(true);
    attributes_->ClearOutputChannelColorProfile();
    EXPECT_EQ(attributes_->Status, gdiplus::Ok);
    EXPECT_EQ(attributes_->Clone(), nullptr);
    EXPECT_EQ(attributes_->Status, gdiplus::InvalidParameter);
}

TEST_F(ImageAttributesWrapper, CloneKeepsTheSettings) {
    attributes_->SetThreshold(0.3f);
    attributes_->SetOutputChannelColorProfile("press.icm");
    attributes_->SetWrapMode(gdiplus::WrapModeTileFlipX);
    const Ref<GpImageAttributes> copy = attributes_->Clone();
    attributes_->ClearThreshold();
    attributes_ = copy;
    EXPECT_EQ(Adjusted(kColor), 0xFF00FFFFu);
}

}  // namespace
}  // namespace vxgui
