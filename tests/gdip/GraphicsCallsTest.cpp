#include "tests/gdip/WrapperCalls.h"
#include "vxgui/gdip/GpBitmap.h"
#include "vxgui/gdip/GpCachedBitmap.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpMatrix.h"

namespace vxgui {
namespace {

using G = GpGraphics;
using test::Handle;

class GraphicsCalls : public WrapperCalls<GpGraphics> {
protected:
    template <class Object, class Flat>
    static Ref<Object> With(uintptr_t number) {
        Ref<Object> object = New<Object>();
        auto* handle = Handle<Flat>(number);
        object->SetHandle(handle);
        return object;
    }

    gdiplus::GpPen* const pen_ = Handle<gdiplus::GpPen>(2);
    gdiplus::GpBrush* const brush_ = Handle<gdiplus::GpBrush>(3);
    gdiplus::GpPath* const path_ = Handle<gdiplus::GpPath>(4);
    gdi::HDC const dc_ = Handle<gdi::HDC__>(5);
};

TEST_F(GraphicsCalls, MakeTheNewOneFirstAndThenDisposeOfTheOld) {
    Are("GdipCreateFromHDC(#5, out); GdipDeleteGraphics(#1)", [&](G& g) { return g.FromHDC(dc_); });
    Are("GdipCreateFromHWND(#6, out); GdipDeleteGraphics(#1)",
        [&](G& g) { return g.FromHWND(Handle<void>(6)); });
    Are("GdipCreateFromHWNDICM(#6, out); GdipDeleteGraphics(#1)",
        [&](G& g) { return g.FromHWND(Handle<void>(6), true); });
    Are("GdipGetImageGraphicsContext(#7, out); GdipDeleteGraphics(#1)",
        [&](G& g) { return g.FromImage(Handle<gdiplus::GpImage>(7)); });
}

TEST_F(GraphicsCalls, OfTheTarget) {
    Are("GdipGraphicsClear(#1, 7)", [](G& g) { return g.Clear(7); });
    Are("GdipGraphicsClear(#1, 0)", [](G& g) { return g.Clear(); });
    Are("GdipFlush(#1, 1)", [](G& g) { return g.Flush(gdiplus::FlushIntentionSync); });
    Are("GdipFlush(#1, 0)", [](G& g) { return g.Flush(); });
    Are("GdipGetDC(#1, out)", [](G& g) { return g.GetHDC(); });
    Are("GdipReleaseDC(#1, #5)", [&](G& g) { return g.ReleaseHDC(dc_); });
    Are("GdipSaveGraphics(#1, out)", [](G& g) { return g.Save(); });
    Are("GdipRestoreGraphics(#1, 8)", [](G& g) { return g.Restore(8); });
}

TEST_F(GraphicsCalls, OfTheSettings) {
    Are("GdipSetRenderingOrigin(#1, 2, 3)", [](G& g) { return g.SetRenderingOrigin(2, 3); });
    Are("GdipGetRenderingOrigin(#1, out, out)", [](G& g) {
        int32_t x = 0, y = 0;
        return g.GetRenderingOrigin(x, y);
    });
    Are("GdipGetCompositingMode(#1, out)", [](G& g) { return g.CompositingMode(); });
    Are("GdipSetCompositingMode(#1, 1)",
        [](G& g) { g.CompositingMode(gdiplus::CompositingModeSourceCopy); });
    Are("GdipGetCompositingQuality(#1, out)", [](G& g) { return g.CompositingQuality(); });
    Are("GdipSetCompositingQuality(#1, 1)",
        [](G& g) { g.CompositingQuality(gdiplus::CompositingQualityHighSpeed); });
    Are("GdipGetSmoothingMode(#1, out)", [](G& g) { return g.SmoothingMode(); });
    Are("GdipSetSmoothingMode(#1, 4)",
        [](G& g) { g.SmoothingMode(gdiplus::SmoothingModeAntiAlias); });
    Are("GdipGetInterpolationMode(#1, out)", [](G& g) { return g.InterpolationMode(); });
    Are("GdipSetInterpolationMode(#1, 5)",
        [](G& g) { g.InterpolationMode(gdiplus::InterpolationModeNearestNeighbor); });
    Are("GdipGetPixelOffsetMode(#1, out)", [](G& g) { return g.PixelOffsetMode(); });
    Are("GdipSetPixelOffsetMode(#1, 4)",
        [](G& g) { g.PixelOffsetMode(gdiplus::PixelOffsetModeHalf); });
    Are("GdipGetTextRenderingHint(#1, out)", [](G& g) { return g.TextRenderingHint(); });
    Are("GdipSetTextRenderingHint(#1, 4)",
        [](G& g) { g.TextRenderingHint(gdiplus::TextRenderingHintAntiAlias); });
    Are("GdipGetTextContrast(#1, out)", [](G& g) { return g.TextContrast(); });
    Are("GdipSetTextContrast(#1, 7)", [](G& g) { g.TextContrast(7); });
    Are("GdipGetPageUnit(#1, out)", [](G& g) { return g.PageUnit(); });
    Are("GdipSetPageUnit(#1, 6)", [](G& g) { g.PageUnit(gdiplus::UnitMillimeter); });
    Are("GdipGetPageScale(#1, out)", [](G& g) { return g.PageScale(); });
    Are("GdipSetPageScale(#1, 2.5)", [](G& g) { g.PageScale(2.5f); });
}

TEST_F(GraphicsCalls, OfLinesAndRectangles) {
    const gdiplus::GpPointF points[] = {{1.5f, 2}, {3, 4}};
    const gdiplus::GpPoint pointsI[] = {{1, 2}, {3, 4}};
    const gdiplus::GpRectF rects[] = {{1, 2, 3, 4.5f}, {}};
    const gdiplus::GpRect rectsI[] = {{1, 2, 3, 4}, {}};
    Are("GdipDrawLine(#1, #2, 1, 2, 3, 4.5)",
        [&](G& g) { return g.DrawLine(pen_, 1, 2, 3, 4.5f); });
    Are("GdipDrawLineI(#1, #2, 1, 2, 3, 4)", [&](G& g) { return g.DrawLineI(pen_, 1, 2, 3, 4); });
    Are("GdipDrawLines(#1, #2, {1.5 2}, 2)", [&](G& g) { return g.DrawLines(pen_, points, 2); });
    Are("GdipDrawLinesI(#1, #2, {1 2}, 2)", [&](G& g) { return g.DrawLinesI(pen_, pointsI, 2); });
    Are("GdipDrawRectangle(#1, #2, 1, 2, 3, 4.5)",
        [&](G& g) { return g.DrawRectangle(pen_, 1, 2, 3, 4.5f); });
    Are("GdipDrawRectangleI(#1, #2, 1, 2, 3, 4)",
        [&](G& g) { return g.DrawRectangleI(pen_, 1, 2, 3, 4); });
    Are("GdipDrawRectangles(#1, #2, {1 2 3 4.5}, 2)",
        [&](G& g) { return g.DrawRectangles(pen_, rects, 2); });
    Are("GdipDrawRectanglesI(#1, #2, {1 2 3 4}, 2)",
        [&](G& g) { return g.DrawRectanglesI(pen_, rectsI, 2); });
    Are("GdipDrawPath(#1, #2, #4)", [&](G& g) { return g.DrawPath(pen_, path_); });
    Are("GdipFillRectangle(#1, #3, 1, 2, 3, 4.5)",
        [&](G& g) { return g.FillRectangle(brush_, 1, 2, 3, 4.5f); });
    Are("GdipFillRectangleI(#1, #3, 1, 2, 3, 4)",
        [&](G& g) { return g.FillRectangleI(brush_, 1, 2, 3, 4); });
    Are("GdipFillPath(#1, #3, #4)", [&](G& g) { return g.FillPath(brush_, path_); });
}

TEST_F(GraphicsCalls, ForEmptyArraysAreNone) {
    Renew();
    const gdiplus::GpPointF point{};
    const gdiplus::GpRect rect{};
    for (const int32_t count : {0, -1}) {
        EXPECT_FALSE(object_->DrawLines(pen_, &point, count));
        EXPECT_FALSE(object_->DrawRectanglesI(pen_, &rect, count));
    }
    EXPECT_EQ(spy_.Taken(), "");
    EXPECT_EQ(object_->Status, gdiplus::Ok);
}

TEST_F(GraphicsCalls, OfTheWorldAndTheClip) {
    Are("GdipResetWorldTransform(#1)", [](G& g) { return g.ResetTransform(); });
    Are("GdipTranslateWorldTransform(#1, 1, 2, 0)",
        [](G& g) { return g.TranslateTransform(1, 2); });
    Are("GdipTranslateWorldTransform(#1, 1, 2, 1)",
        [](G& g) { return g.TranslateTransform(1, 2, gdiplus::MatrixOrderAppend); });
    Are("GdipScaleWorldTransform(#1, 1, 2, 0)", [](G& g) { return g.ScaleTransform(1, 2); });
    Are("GdipScaleWorldTransform(#1, 1, 2, 1)",
        [](G& g) { return g.ScaleTransform(1, 2, gdiplus::MatrixOrderAppend); });
    Are("GdipRotateWorldTransform(#1, 30, 0)", [](G& g) { return g.RotateTransform(30); });
    Are("GdipRotateWorldTransform(#1, 30, 1)",
        [](G& g) { return g.RotateTransform(30, gdiplus::MatrixOrderAppend); });
    const auto matrix = With<GpMatrix, gdiplus::GpMatrix>(6);
    Are("GdipMultiplyWorldTransform(#1, #6, 0)", [&](G& g) { return g.MultiplyTransform(matrix); });
    Are("GdipMultiplyWorldTransform(#1, #6, 1)",
        [&](G& g) { return g.MultiplyTransform(matrix, gdiplus::MatrixOrderAppend); });
    Are("GdipSetWorldTransform(#1, #6)", [&](G& g) { return g.SetTransform(matrix); });
    Are("GdipResetClip(#1)", [](G& g) { return g.ResetClip(); });
    gdiplus::GpRectF box{};
    gdiplus::GpRect boxI{};
    Are("GdipGetClipBounds(#1, {0 0 0 0})", [&](G& g) { return g.GetClipBoundsRectF(&box); });
    Are("GdipGetClipBoundsI(#1, {0 0 0 0})", [&](G& g) { return g.GetClipBoundsRectL(&boxI); });
}

// The flat function is given no matrix: one that is Ok with it has stored nothing.
TEST_F(GraphicsCalls, AskForTheWorldWithoutAMatrix) {
    Ref<GpMatrix> none, matrix = With<GpMatrix, gdiplus::GpMatrix>(6);
    Renew();
    EXPECT_TRUE(object_->GetTransform(none));
    EXPECT_EQ(spy_.Taken(), "GdipGetWorldTransform(#1, 0)");
    EXPECT_NE(none, nullptr);
    EXPECT_TRUE(object_->GetTransform(matrix));
    EXPECT_EQ(spy_.Taken(), "GdipGetWorldTransform(#1, 0); GdipDeleteMatrix(#6)");
    spy_.Answer(gdiplus::InvalidParameter);
    none = nullptr;
    EXPECT_FALSE(object_->GetTransform(none));
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(object_->Status, gdiplus::InvalidParameter);
}

TEST_F(GraphicsCalls, WithoutAMatrixToMultiplyByAreNone) {
    Renew();
    EXPECT_FALSE(object_->MultiplyTransform(nullptr));
    EXPECT_EQ(spy_.Taken(), "");
    EXPECT_EQ(object_->Status, gdiplus::InvalidParameter);
}

TEST_F(GraphicsCalls, OfCachedBitmaps) {
    const auto bitmap = With<GpBitmap, gdiplus::GpBitmap>(6);
    const auto cached = With<GpCachedBitmap, gdiplus::GpCachedBitmap>(7);
    Are("GdipCreateCachedBitmap(#6, #1, out)", [&](G& g) {
        const Ref<GpCachedBitmap> made = g.CachedBitmap(bitmap);
        return made;
    });
    Are("GdipDrawCachedBitmap(#1, #7, 2, 3)",
        [&](G& g) { return g.DrawCachedBitmap(cached, 2, 3); });
}

class ImageDrawingCalls : public GraphicsCalls {
protected:
    ImageDrawingCalls() {
        Renew();
        spy_.Store(kStored);
    }
    gdiplus::GpBitmap* const bitmap_ = Handle<gdiplus::GpBitmap>(8);
};

TEST_F(ImageDrawingCalls, AskForWhatIsLeftOut) {
    const auto image = With<GpImage, gdiplus::GpImage>(7);
    EXPECT_TRUE(object_->DrawImage(image));
    EXPECT_EQ(spy_.Taken(),
              "GdipGetImageWidth(#7, out); GdipGetImageHeight(#7, out); "
              "GdipDrawImageRectRectI(#1, #7, 0, 0, 3, 3, 0, 0, 3, 3, 2, 0, 0, 0)");
    EXPECT_TRUE(object_->DrawBitmap(bitmap_));
    EXPECT_EQ(spy_.Taken(),
              "GdipGetImageWidth(#8, out); GdipGetImageHeight(#8, out); "
              "GdipDrawImageRectRectI(#1, #8, 0, 0, 3, 3, 0, 0, 3, 3, 2, 0, 0, 0)");
}

TEST_F(ImageDrawingCalls, AskForNoMoreThanIsLeftOut) {
    EXPECT_TRUE(object_->DrawBitmap(bitmap_, 1, 2, -1, 40, 5, 6, 70, -1));
    EXPECT_EQ(spy_.Taken(),
              "GdipGetImageHeight(#8, out); "
              "GdipDrawImageRectRectI(#1, #8, 1, 2, 70, 40, 5, 6, 70, 3, 2, 0, 0, 0)");
    EXPECT_TRUE(object_->DrawBitmap(bitmap_, 1, 2, 30, -1, 5, 6, -1, 80));
    EXPECT_EQ(spy_.Taken(),
              "GdipGetImageWidth(#8, out); "
              "GdipDrawImageRectRectI(#1, #8, 1, 2, 30, 80, 5, 6, 3, 80, 2, 0, 0, 0)");
}

// -1 alone stands for what is left out.
TEST_F(ImageDrawingCalls, HandOnAllElseAsItIs) {
    const auto abort = [](void*) -> int32_t { return 0; };
    EXPECT_TRUE(object_->DrawBitmap(bitmap_, -1, -2, -3, 0, -5, -6, 0, -8, gdiplus::UnitInch,
                                    Handle<gdiplus::GpImageAttributes>(6), abort, Handle<void>(5)));
    EXPECT_EQ(spy_.Taken(),
              "GdipDrawImageRectRectI(#1, #8, -1, -2, -3, 0, -5, -6, 0, -8, 4, #6, function, #5)");
    const auto image = With<GpImage, gdiplus::GpImage>(7);
    EXPECT_TRUE(object_->DrawImage(image, 1, 2, 3, 4, 5, 6, 7, 8, gdiplus::UnitInch,
                                   Handle<gdiplus::GpImageAttributes>(6), abort, Handle<void>(5)));
    EXPECT_EQ(spy_.Taken(),
              "GdipDrawImageRectRectI(#1, #7, 1, 2, 3, 4, 5, 6, 7, 8, 4, #6, function, #5)");
}

TEST_F(ImageDrawingCalls, OfEffectsAnswerTheStatus) {
    gdiplus::GpRectF part{1, 2, 3, 4};
    const auto draw = [&](G& g, auto... unit) {
        return g.DrawImageFX(Handle<gdiplus::GpImage>(7), &part, Handle<gdiplus::GpMatrix>(2),
                             Handle<gdiplus::CGpEffect>(3), Handle<gdiplus::GpImageAttributes>(4),
                             unit...);
    };
    Are("GdipDrawImageFX(#1, #7, {1 2 3 4}, #2, #3, #4, 2)", [&](G& g) { return draw(g); });
    Are("GdipDrawImageFX(#1, #7, {1 2 3 4}, #2, #3, #4, 5)",
        [&](G& g) { return draw(g, gdiplus::UnitDocument); });
}

}  // namespace
}  // namespace vxgui
