#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "vxgui/base/Error.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpCachedBitmap.h"
#include "vxgui/gdip/GpGraphics.h"

namespace vxgui {
namespace {

constexpr gdiplus::ARGB kRed = 0xFFFF0000;

class DrawnBitmaps : public testing::Test {
protected:
    DrawnBitmaps() {
        EXPECT_TRUE(target_->Create(8, 8));
        EXPECT_TRUE(small_->Create(2, 1));
        small_->SetPixel(0, 0, kRed);
        small_->SetPixel(1, 0, kRed);
        EXPECT_TRUE(graphics_->FromImage(reinterpret_cast<gdiplus::GpImage*>(target_->Handle())));
    }
    int Reds() const {
        int count = 0;
        for (int32_t i = 0; i < 64; ++i) count += target_->GetPixel(i % 8, i / 8) == kRed;
        return count;
    }

    const test::GdiplusSession session_;
    const Ref<GpBitmap> target_ = New<GpBitmap>(), small_ = New<GpBitmap>();
    const Ref<GpGraphics> graphics_ = New<GpGraphics>();
};

TEST_F(DrawnBitmaps, AnImageIsDrawnWholeAtTheOriginByDefault) {
    EXPECT_TRUE(graphics_->DrawImage(small_->Image()));
    EXPECT_EQ(target_->GetPixel(0, 0), kRed);
    EXPECT_EQ(target_->GetPixel(1, 0), kRed);
    EXPECT_EQ(Reds(), 2);
}

TEST_F(DrawnBitmaps, APartIsDrawnInItsOwnSizeByDefault) {
    EXPECT_TRUE(graphics_->DrawImage(small_->Image(), 3, 4, -1, -1, 1, 0, 1, 1));
    EXPECT_EQ(target_->GetPixel(3, 4), kRed);
    EXPECT_EQ(Reds(), 1);
}

TEST_F(DrawnBitmaps, WithoutAnImageItRaises) {
    EXPECT_THROW(graphics_->DrawImage(nullptr), Error);
    EXPECT_THROW(graphics_->CachedBitmap(nullptr), Error);
    EXPECT_THROW(graphics_->DrawCachedBitmap(nullptr, 0, 0), Error);
    EXPECT_FALSE(graphics_->DrawImage(New<GpImage>()));
}

TEST_F(DrawnBitmaps, ACachedOneIsMadeByTheGraphics) {
    const Ref<GpCachedBitmap> cached = graphics_->CachedBitmap(small_);
    ASSERT_TRUE(cached);
    EXPECT_TRUE(graphics_->DrawCachedBitmap(cached, 5, 6));
    EXPECT_EQ(target_->GetPixel(6, 6), kRed);
    EXPECT_EQ(Reds(), 2);
    EXPECT_EQ(graphics_->CachedBitmap(New<GpBitmap>()), nullptr);
    EXPECT_EQ(graphics_->Status, gdiplus::InvalidParameter);
}

}  // namespace
}  // namespace vxgui
