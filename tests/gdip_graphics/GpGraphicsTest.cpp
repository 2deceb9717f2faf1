#include "vxgui/gdip/GpGraphics.h"

#include <gtest/gtest.h>

#include "tests/support/Bitmaps.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/base/Error.h"
#include "vxgui/gdip/GpMatrix.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui {
namespace {

using gdiplus::InvalidParameter;
using gdiplus::Ok;

constexpr gdiplus::ARGB kRed = 0xFFFF0000;

/// A graphics over a device context of 12 by 10 pixels, with a pen, a brush and a bitmap of 4 by 3.
class GpGraphicsTest : public testing::Test {
protected:
    GpGraphicsTest() {
        uint8_t* bits = nullptr;
        dib_ = gdi::CreateDib(12, 10, 32, &bits);
        dc_ = gdi::CreateCompatibleDC(nullptr);
        gdi::SelectObject(dc_, dib_);
        graphics_->FromHDC(dc_);
        flat::GdipCreatePen1(kRed, 1, gdiplus::UnitWorld, &pen_);
        flat::GdipCreateSolidFill(kRed, &brush_);
        flat::GdipCreateBitmapFromScan0(4, 3, 0, gdiplus::PixelFormat32bppARGB, nullptr, &bitmap_);
        const Ref<GpGraphics> onBitmap = New<GpGraphics>();
        onBitmap->FromImage(AsImage(bitmap_));
        onBitmap->Clear(kRed);
    }
    ~GpGraphicsTest() override {
        flat::GdipDeletePen(pen_);
        flat::GdipDeleteBrush(brush_);
        flat::GdipDisposeImage(AsImage(bitmap_));
        graphics_->Dispose();
        gdi::DeleteDC(dc_);
        gdi::DeleteObject(dib_);
    }

    static gdiplus::GpImage* AsImage(gdiplus::GpBitmap* bitmap) {
        return reinterpret_cast<gdiplus::GpImage*>(bitmap);
    }
    uint32_t At(int x, int y) const { return test::PictureOf(dib_).At(x, y); }
    // The red box, which is cleared: left, top, right, bottom, its far edges left out.
    std::array<int, 4> RedBox() {
        const test::TestPicture picture = test::PictureOf(dib_);
        std::array<int, 4> box{12, 10, 0, 0};
        for (int y = 0; y < 10; ++y) {
            for (int x = 0; x < 12; ++x) {
                if (picture.At(x, y) != kRed) continue;
                box = {std::min(box[0], x), std::min(box[1], y), std::max(box[2], x + 1),
                       std::max(box[3], y + 1)};
            }
        }
        graphics_->Clear();
        return box;
    }
    using Edges = std::array<int, 4>;

    test::GdiplusSession session_;
    Ref<GpGraphics> graphics_ = New<GpGraphics>();
    gdi::HBITMAP dib_ = nullptr;
    gdi::HDC dc_ = nullptr;
    gdiplus::GpPen* pen_ = nullptr;
    gdiplus::GpBrush* brush_ = nullptr;
    gdiplus::GpBitmap* bitmap_ = nullptr;
};

TEST_F(GpGraphicsTest, ClearsToTransparentBlackWithoutAColour) {
    EXPECT_TRUE(graphics_->Clear(kRed));
    EXPECT_EQ(At(3, 3), kRed);
    EXPECT_TRUE(graphics_->Clear());
    EXPECT_EQ(At(3, 3), 0u);
}

TEST_F(GpGraphicsTest, KeepsItsHandleOnABadDeviceContext) {
    gdiplus::GpGraphics* const before = graphics_->Handle();
    EXPECT_EQ(graphics_->FromHDC(reinterpret_cast<gdi::HDC>(0x5555)), nullptr);
    EXPECT_EQ(graphics_->Handle(), before);
    EXPECT_EQ(graphics_->Status, gdiplus::OutOfMemory);
    EXPECT_EQ(graphics_->FromImage(nullptr), nullptr);
    EXPECT_EQ(graphics_->FromHWND(this, true), nullptr);
    EXPECT_EQ(graphics_->Handle(), before);
    EXPECT_TRUE(graphics_->Clear());
}

TEST_F(GpGraphicsTest, ReplacesItsHandle) {
    gdiplus::GpGraphics* const before = graphics_->Handle();
    gdiplus::GpGraphics* const made = graphics_->FromImage(AsImage(bitmap_));
    EXPECT_NE(made, nullptr);
    EXPECT_EQ(graphics_->Handle(), made);
    EXPECT_EQ(flat::GdipDeleteGraphics(before), InvalidParameter);
    EXPECT_NE(graphics_->FromHWND(nullptr), nullptr);
    EXPECT_NE(graphics_->FromHWND(nullptr, true), nullptr);
    EXPECT_NE(graphics_->FromHDC(dc_), nullptr);
}

TEST_F(GpGraphicsTest, StaysWhenTheScreensContextIsGivenBack) {
    EXPECT_NE(graphics_->FromScreen(), nullptr);
    EXPECT_TRUE(graphics_->FillRectangleI(brush_, 0, 0, 4, 4));
}

TEST_F(GpGraphicsTest, AnswersFalseAndKeepsTheFailureWithoutAHandle) {
    const Ref<GpGraphics> none = New<GpGraphics>();
    EXPECT_EQ(none->Handle(), nullptr);
    EXPECT_FALSE(none->Clear());
    EXPECT_FALSE(none->Flush());
    EXPECT_EQ(none->GetHDC(), nullptr);
    EXPECT_FALSE(none->ReleaseHDC(dc_));
    EXPECT_EQ(none->Save(), 0u);
    EXPECT_FALSE(none->Restore(1));
    EXPECT_EQ(none->PageScale(), 0);
    EXPECT_EQ(none->Status, InvalidParameter);
}

TEST_F(GpGraphicsTest, KeepsItsStatusThroughSuccesses) {
    EXPECT_FALSE(graphics_->ScaleTransform(0, 0));
    EXPECT_TRUE(graphics_->Clear());
    EXPECT_EQ(graphics_->Status, InvalidParameter);
    graphics_->Status = Ok;
    EXPECT_TRUE(graphics_->Flush());
    EXPECT_EQ(graphics_->Status, Ok);
}

TEST_F(GpGraphicsTest, LendsItsContext) {
    const gdi::HDC lent = graphics_->GetHDC();
    EXPECT_EQ(lent, dc_);
    EXPECT_FALSE(graphics_->Clear());
    EXPECT_EQ(graphics_->Status, gdiplus::ObjectBusy);
    EXPECT_TRUE(graphics_->ReleaseHDC(lent));
    EXPECT_TRUE(graphics_->Clear());
}

TEST_F(GpGraphicsTest, StartsWithThePlatformsSettings) {
    EXPECT_EQ(graphics_->PageUnit(), gdiplus::UnitDisplay);
    EXPECT_EQ(graphics_->PageScale(), 1);
    EXPECT_EQ(graphics_->InterpolationMode(), gdiplus::InterpolationModeBilinear);
    EXPECT_EQ(graphics_->TextContrast(), 4u);
}

TEST_F(GpGraphicsTest, ReadsBackItsSettings) {
    graphics_->CompositingMode(gdiplus::CompositingModeSourceCopy);
    graphics_->CompositingQuality(gdiplus::CompositingQualityHighSpeed);
    graphics_->SmoothingMode(gdiplus::SmoothingModeHighQuality);
    graphics_->InterpolationMode(gdiplus::InterpolationModeHighQuality);
    graphics_->PixelOffsetMode(gdiplus::PixelOffsetModeHalf);
    graphics_->TextRenderingHint(gdiplus::TextRenderingHintAntiAlias);
    graphics_->TextContrast(7);
    graphics_->PageUnit(gdiplus::UnitMillimeter);
    graphics_->PageScale(2.5f);
    EXPECT_EQ(graphics_->CompositingMode(), gdiplus::CompositingModeSourceCopy);
    EXPECT_EQ(graphics_->CompositingQuality(), gdiplus::CompositingQualityHighSpeed);
    EXPECT_EQ(graphics_->SmoothingMode(), gdiplus::SmoothingModeAntiAlias);
    EXPECT_EQ(graphics_->InterpolationMode(), gdiplus::InterpolationModeHighQualityBicubic);
    EXPECT_EQ(graphics_->PixelOffsetMode(), gdiplus::PixelOffsetModeHalf);
    EXPECT_EQ(graphics_->TextRenderingHint(), gdiplus::TextRenderingHintAntiAlias);
    EXPECT_EQ(graphics_->TextContrast(), 7u);
    EXPECT_EQ(graphics_->PageUnit(), gdiplus::UnitMillimeter);
    EXPECT_EQ(graphics_->PageScale(), 2.5f);
    EXPECT_TRUE(graphics_->SetRenderingOrigin(3, 4));
    int32_t x = 0, y = 0;
    EXPECT_TRUE(graphics_->GetRenderingOrigin(x, y));
    EXPECT_EQ(x, 3);
    EXPECT_EQ(y, 4);
    EXPECT_EQ(graphics_->Status, Ok);
    graphics_->TextContrast(13);
    EXPECT_EQ(graphics_->Status, InvalidParameter);
}

TEST_F(GpGraphicsTest, SavesAndRestores) {
    const uint32_t state = graphics_->Save();
    EXPECT_NE(state, 0u);
    EXPECT_TRUE(graphics_->TranslateTransform(5, 5));
    EXPECT_TRUE(graphics_->Restore(state));
    EXPECT_TRUE(graphics_->FillRectangleI(brush_, 0, 0, 2, 2));
    EXPECT_EQ(RedBox(), (Edges{0, 0, 2, 2}));
    EXPECT_FALSE(graphics_->Restore(state));
}

TEST_F(GpGraphicsTest, PlacesWhatItFills) {
    EXPECT_TRUE(graphics_->TranslateTransform(1, 2));
    EXPECT_TRUE(graphics_->ScaleTransform(2, 3));
    EXPECT_TRUE(graphics_->FillRectangle(brush_, 1, 0, 2, 1));
    EXPECT_EQ(RedBox(), (Edges{3, 2, 7, 5}));
    EXPECT_TRUE(graphics_->ResetTransform());
    EXPECT_TRUE(graphics_->TranslateTransform(8, 1));
    EXPECT_TRUE(graphics_->RotateTransform(90));
    EXPECT_TRUE(graphics_->FillRectangle(brush_, 0, 0, 4, 2));
    EXPECT_EQ(RedBox(), (Edges{6, 1, 8, 5}));
}

TEST_F(GpGraphicsTest, SetsAndMultipliesItsWorld) {
    const Ref<GpMatrix> matrix = New<GpMatrix>();
    EXPECT_TRUE(matrix->Translate(2, 3));
    EXPECT_TRUE(graphics_->SetTransform(matrix));
    EXPECT_TRUE(graphics_->ScaleTransform(2, 2));
    EXPECT_TRUE(graphics_->MultiplyTransform(matrix));
    EXPECT_TRUE(graphics_->FillRectangleI(brush_, 0, 0, 1, 1));
    EXPECT_EQ(RedBox(), (Edges{6, 9, 8, 10}));
    EXPECT_TRUE(graphics_->SetTransform(matrix));
    EXPECT_TRUE(graphics_->FillRectangleI(brush_, 0, 0, 1, 1));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 3, 4}));
    EXPECT_THROW(graphics_->SetTransform(nullptr), Error);
    EXPECT_EQ(graphics_->Status, Ok);
}

TEST_F(GpGraphicsTest, FailsToMultiplyByNothingWithoutAFlatCall) {
    UnbindAllStubs();
    EXPECT_FALSE(graphics_->MultiplyTransform(nullptr));
    EXPECT_EQ(graphics_->Status, InvalidParameter);
    EXPECT_FALSE(flat::GdipMultiplyWorldTransform.IsBound());
}

TEST_F(GpGraphicsTest, FailsToAnswerItsWorld) {
    Ref<GpMatrix> matrix;
    EXPECT_FALSE(graphics_->GetTransform(matrix));
    EXPECT_EQ(matrix, nullptr);
    EXPECT_EQ(graphics_->Status, InvalidParameter);
}

TEST_F(GpGraphicsTest, AsksForTheBoxOfTheClip) {
    EXPECT_EQ(flat::GdipSetClipRectI(graphics_->Handle(), 1, 2, 3, 4, gdiplus::CombineModeReplace),
              Ok);
    gdiplus::GpRectF box{};
    gdiplus::GpRect boxL{};
    EXPECT_TRUE(graphics_->GetClipBoundsRectF(&box));
    EXPECT_TRUE(graphics_->GetClipBoundsRectL(&boxL));
    EXPECT_EQ(box.Width, 3);
    EXPECT_EQ(boxL.Y, 2);
    EXPECT_TRUE(graphics_->ResetClip());
    EXPECT_TRUE(graphics_->GetClipBoundsRectF(&box));
    EXPECT_EQ(box.X, -4194304);
    EXPECT_FALSE(graphics_->GetClipBoundsRectF(nullptr));
}

TEST_F(GpGraphicsTest, DrawsLinesAndRectangles) {
    const gdiplus::GpPointF points[] = {{2, 3}, {7, 3}};
    const gdiplus::GpPoint pointsI[] = {{2, 3}, {7, 3}};
    const gdiplus::GpRectF rects[] = {{2, 3, 4, 5}};
    const gdiplus::GpRect rectsI[] = {{2, 3, 4, 5}};
    EXPECT_TRUE(graphics_->DrawLine(pen_, 2, 3, 7, 3));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 4}));
    EXPECT_TRUE(graphics_->DrawLineI(pen_, 2, 3, 7, 3));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 4}));
    EXPECT_TRUE(graphics_->DrawLines(pen_, points, 2));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 4}));
    EXPECT_TRUE(graphics_->DrawLinesI(pen_, pointsI, 2));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 4}));
    EXPECT_TRUE(graphics_->DrawRectangle(pen_, 2, 3, 4, 5));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 9}));
    EXPECT_TRUE(graphics_->DrawRectangleI(pen_, 2, 3, 4, 5));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 9}));
    EXPECT_TRUE(graphics_->DrawRectangles(pen_, rects, 1));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 9}));
    EXPECT_TRUE(graphics_->DrawRectanglesI(pen_, rectsI, 1));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 9}));
}

TEST_F(GpGraphicsTest, CallsNothingForEmptyArrays) {
    const gdiplus::GpPointF point{};
    EXPECT_FALSE(graphics_->DrawLines(pen_, &point, 0));
    EXPECT_FALSE(graphics_->DrawLinesI(pen_, nullptr, -1));
    EXPECT_FALSE(graphics_->DrawRectangles(pen_, nullptr, 0));
    EXPECT_FALSE(graphics_->DrawRectanglesI(pen_, nullptr, -5));
    EXPECT_EQ(graphics_->Status, Ok);
    EXPECT_FALSE(graphics_->DrawLines(pen_, &point, 1));
    EXPECT_EQ(graphics_->Status, InvalidParameter);
}

TEST_F(GpGraphicsTest, FillsAndDrawsPaths) {
    const gdiplus::GpPointF points[] = {{2, 3}, {6, 3}, {6, 8}, {2, 8}};
    const uint8_t types[] = {0, 1, 1, 0x81};
    gdiplus::GpPath* path = nullptr;
    flat::GdipCreatePath2(points, types, 4, gdiplus::FillModeAlternate, &path);
    EXPECT_TRUE(graphics_->FillPath(brush_, path));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 6, 8}));
    EXPECT_TRUE(graphics_->DrawPath(pen_, path));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 7, 9}));
    EXPECT_FALSE(graphics_->DrawPath(nullptr, path));
    flat::GdipDeletePath(path);
}

TEST_F(GpGraphicsTest, DrawsABitmapWholeAtItsOwnSizeByDefault) {
    EXPECT_TRUE(graphics_->DrawBitmap(bitmap_));
    EXPECT_EQ(RedBox(), (Edges{0, 0, 4, 3}));
    EXPECT_TRUE(graphics_->DrawBitmap(bitmap_, 2, 3, 8, 6));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 10, 9}));
    EXPECT_TRUE(graphics_->DrawBitmap(bitmap_, 2, 3, -1, -1, 1, 1, 2, 1));
    EXPECT_EQ(RedBox(), (Edges{2, 3, 4, 4}));
    EXPECT_FALSE(graphics_->DrawBitmap(nullptr));
    EXPECT_EQ(graphics_->Status, InvalidParameter);
}

TEST_F(GpGraphicsTest, DrawsWithEffectsAndKeepsNoStatusOfIt) {
    gdiplus::GpRectF part{1, 1, 2, 2};
    EXPECT_EQ(graphics_->DrawImageFX(AsImage(bitmap_), &part, nullptr, nullptr, nullptr), Ok);
    EXPECT_EQ(RedBox(), (Edges{1, 1, 3, 3}));
    EXPECT_EQ(graphics_->DrawImageFX(nullptr, &part, nullptr, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(graphics_->Status, Ok);
}

TEST_F(GpGraphicsTest, PassesTheCallbackOn) {
    const auto abort = [](void* data) -> int32_t { return data != nullptr; };
    EXPECT_FALSE(graphics_->DrawBitmap(bitmap_, 0, 0, -1, -1, 0, 0, -1, -1, gdiplus::UnitPixel,
                                       nullptr, abort, this));
    EXPECT_EQ(graphics_->Status, gdiplus::Aborted);
}

}  // namespace
}  // namespace vxgui
