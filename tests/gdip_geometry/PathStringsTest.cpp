#include <gtest/gtest.h>

#include "tests/support/Errors.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/base/Error.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpPath.h"

namespace vxgui {
namespace {

class PathStrings : public testing::Test {
protected:
    PathStrings() {
        EXPECT_TRUE(font_->Create("DejaVu Sans", 20, 0, gdiplus::UnitPixel));
        EXPECT_TRUE(family_->CreateFontFamily("DejaVu Sans"));
    }
    static gdiplus::GpRectF BoundsOf(const Ref<GpPath>& path) {
        gdiplus::GpRectF bounds{};
        EXPECT_EQ(path->GetBounds(bounds), gdiplus::Ok);
        return bounds;
    }

    test::GdiplusSession session_;
    Ref<GpFont> font_ = New<GpFont>();
    Ref<GpFontFamily> family_ = New<GpFontFamily>();
    Ref<GpPath> path_ = New<GpPath>();
};

TEST_F(PathStrings, AreAddedInAFamily) {
    EXPECT_EQ(path_->AddString("HH", 1, family_->Handle(), 0, 100, {10, 20, 0, 0}), gdiplus::Ok);
    const gdiplus::GpRectF one = BoundsOf(path_);
    EXPECT_NEAR(one.Height, 72.9, 0.5);  // the cap height is 1493 of 2048
    EXPECT_GT(one.X, 10);
    EXPECT_GT(one.Y, 20);
    const Ref<GpPath> both = New<GpPath>();
    EXPECT_EQ(both->AddStringI("HH", -1, family_->Handle(), 0, 100, {10, 20, 0, 0}), gdiplus::Ok);
    EXPECT_NEAR(BoundsOf(both).Height, one.Height, 0.01);
    EXPECT_GT(BoundsOf(both).Width, 1.8f * one.Width);
    EXPECT_EQ(path_->AddString("H", -1, nullptr, 0, 100, {}), gdiplus::InvalidParameter);
    EXPECT_EQ(path_->Status, gdiplus::Ok);
}

TEST_F(PathStrings, InAFontAreAsHighAsTheFont) {
    EXPECT_TRUE(path_->AddStringWithFont("H", font_, nullptr, 0, 0, 0, 0));
    const Ref<GpPath> sized = New<GpPath>();
    EXPECT_EQ(sized->AddString("H", -1, family_->Handle(), 0, font_->PathEmSize(), {}),
              gdiplus::Ok);
    EXPECT_GT(BoundsOf(path_).Height, 10);
    EXPECT_EQ(BoundsOf(path_).Height, BoundsOf(sized).Height);
    const Ref<GpPath> integers = New<GpPath>();
    EXPECT_TRUE(integers->AddStringWithFontI("H", font_, nullptr, 5, 7, 0, 0));
    EXPECT_NEAR(BoundsOf(integers).X, BoundsOf(path_).X + 5, 0.01);
    EXPECT_NEAR(BoundsOf(integers).Y, BoundsOf(path_).Y + 7, 0.01);
}

TEST_F(PathStrings, NeedAFont) {
    const auto notSet = static_cast<int32_t>(ErrorNumber::ObjectNotSet);
    EXPECT_EQ(test::RaisedBy([&] { path_->AddStringWithFont("H", nullptr, nullptr, 0, 0, 0, 0); }),
              notSet);
    EXPECT_EQ(test::RaisedBy([&] { path_->AddStringWithFontI("H", nullptr, nullptr, 0, 0, 0, 0); }),
              notSet);
}

}  // namespace
}  // namespace vxgui
