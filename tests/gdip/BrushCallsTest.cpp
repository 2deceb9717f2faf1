#include "tests/gdip/WrapperCalls.h"
#include "vxgui/gdip/GpBrush.h"

namespace vxgui {
namespace {

using gdiplus::GpPoint;
using gdiplus::GpPointF;
using gdiplus::GpRect;
using gdiplus::GpRectF;
using test::Handle;

constexpr auto kAppend = gdiplus::MatrixOrderAppend;
constexpr auto kFlipX = gdiplus::WrapModeTileFlipX;

class BrushCalls : public WrapperCalls<GpBrush> {
protected:
    /// `call(...)` as `Are` has it, for a creation that goes through `SetHandle`.
    template <class Run>
    void Make(const std::string& call, Run run) {
        Are((call + "; GdipDeleteBrush(#1); GdipGetBrushType(#9, out)").c_str(), run);
    }
    /// What a call of all kinds of brushes with a transform comes to, by the brush's kind. `%` in
    /// `call` stands for the name of the kind.
    template <class Run>
    void ByKind(const std::string& call, Run run, int first = gdiplus::BrushTypeTextureFill) {
        const char* const names[] = {"Texture", "PathGradient", "Line"};
        for (type_ = first; type_ <= gdiplus::BrushTypeLinearGradient; ++type_) {
            std::string named = call;
            named.replace(call.find('%'), 1, names[type_ - gdiplus::BrushTypeTextureFill]);
            run(named.c_str());
        }
    }
    template <class Run>
    void OfBoth(const char* call, Run run) {
        const auto are = [&](const char* named) { Are(named, run); };
        ByKind(call, are, gdiplus::BrushTypePathGradient);
    }
    template <class Run>
    void OfAll(const char* call, Run run) {
        ByKind(call, [&](const char* named) { Are(named, run); });
    }

    gdiplus::GpMatrix* const matrix_ = Handle<gdiplus::GpMatrix>(2);
    gdiplus::GpPath* const path_ = Handle<gdiplus::GpPath>(3);
    gdiplus::GpImage* const image_ = Handle<gdiplus::GpImage>(4);
    gdiplus::GpImageAttributes* const attributes_ = Handle<gdiplus::GpImageAttributes>(5);
};

TEST_F(BrushCalls, ForAHandleAskItsTypeOnce) {
    auto* handle = Handle<gdiplus::GpBrush>(6);
    Renew();
    spy_.Store(4);
    object_->SetHandle(handle);
    EXPECT_EQ(spy_.Taken(), "GdipDeleteBrush(#1); GdipGetBrushType(#6, out)");
    EXPECT_EQ(object_->GetType(), 4);
    EXPECT_EQ(object_->GetType(), 4);
    EXPECT_EQ(spy_.Taken(), "");
    object_->Dispose();
    EXPECT_EQ(spy_.Taken(), "GdipDeleteBrush(#6)");
    object_->Dispose();
    EXPECT_EQ(spy_.Taken(), "") << "there is no handle any more";
}

TEST_F(BrushCalls, AskForATypeThatIsNotKnown) {
    spy_.Answer(gdiplus::InvalidParameter);
    EXPECT_EQ(object_->GetType(), -1);
    EXPECT_EQ(spy_.Taken(), "GdipGetBrushType(0, out)");
    EXPECT_EQ(object_->Status, gdiplus::InvalidParameter);
}

TEST_F(BrushCalls, OfColoursAndHatches) {
    Make("GdipCreateSolidFill(7, out)", [](GpBrush& b) { return b.CreateSolidBrush(7); });
    Make("GdipCreateHatchBrush(4, 5, 6, out)",
         [](GpBrush& b) { return b.CreateHatchBrush(gdiplus::HatchStyleCross, 5, 6); });
    Are("GdipGetSolidFillColor(#1, out)", [](GpBrush& b) { return b.GetColor(); });
    Are("GdipGetHatchStyle(#1, out)", [](GpBrush& b) { return b.GetHatchStyle(); });
    Are("GdipGetHatchForegroundColor(#1, out)", [](GpBrush& b) { return b.GetForegroundColor(); });
    Are("GdipGetHatchBackgroundColor(#1, out)", [](GpBrush& b) { return b.GetBackgroundColor(); });
    Are("GdipCloneBrush(#1, out); GdipGetBrushType(#9, out)", [](GpBrush& b) { return b.Clone(); });
}

TEST_F(BrushCalls, SetAColourInPlaceOnASolidBrushOnly) {
    const auto set = [](GpBrush& b) { return b.SetColor(7); };
    Are("GdipSetSolidFillColor(#1, 7)", set);
    for (type_ = 1; type_ <= 4; ++type_) Make("GdipCreateSolidFill(7, out)", set);
}

TEST_F(BrushCalls, OfLineBrushes) {
    const GpPointF point{1.5f, 2};
    const GpPoint pointI{1, 2};
    const GpRectF rect{1, 2, 3, 4.5f};
    const GpRect rectI{1, 2, 3, 4};
    constexpr auto kDiagonal = gdiplus::LinearGradientModeForwardDiagonal;
    Make("GdipCreateLineBrushFromRect({1 2 3 4.5}, 7, 8, 1, 0, out)",
         [](GpBrush& b) { return b.CreateLineBrush(7, 8, 1, 2, 3, 4.5f); });
    Make("GdipCreateLineBrushFromRect({1 2 3 4.5}, 7, 8, 2, 1, out)",
         [](GpBrush& b) { return b.CreateLineBrush(7, 8, 1, 2, 3, 4.5f, kDiagonal, kFlipX); });
    Make("GdipCreateLineBrush({1.5 2}, {3 4}, 7, 8, 0, out)", [&](GpBrush& b) {
        return b.CreateLineBrushF(point, {3, 4}, 7, 8);
    });
    Make("GdipCreateLineBrushI({1 2}, {3 4}, 7, 8, 1, out)", [&](GpBrush& b) {
        return b.CreateLineBrushI(pointI, {3, 4}, 7, 8, kFlipX);
    });
    Make("GdipCreateLineBrushFromRect({1 2 3 4.5}, 7, 8, 0, 0, out)",
         [&](GpBrush& b) { return b.CreateLineBrushRectF(rect, 7, 8); });
    Make("GdipCreateLineBrushFromRect({1 2 3 4.5}, 7, 8, 2, 1, out)",
         [&](GpBrush& b) { return b.CreateLineBrushRectF(rect, 7, 8, kDiagonal, kFlipX); });
    Make("GdipCreateLineBrushFromRectI({1 2 3 4}, 7, 8, 0, 0, out)",
         [&](GpBrush& b) { return b.CreateLineBrushRectI(rectI, 7, 8); });
    Make("GdipCreateLineBrushFromRectI({1 2 3 4}, 7, 8, 2, 1, out)",
         [&](GpBrush& b) { return b.CreateLineBrushRectI(rectI, 7, 8, kDiagonal, kFlipX); });
    Make("GdipCreateLineBrushFromRectWithAngleI({1 2 3 4}, 7, 8, 30, 0, 0, out)",
         [&](GpBrush& b) { return b.CreateLineBrushRectWithAngleI(rectI, 7, 8, 30); });
    Make("GdipCreateLineBrushFromRectWithAngle({1 2 3 4.5}, 7, 8, 30, 1, 1, out)",
         [&](GpBrush& b) { return b.CreateLineBrushRectWithAngleF(rect, 7, 8, 30, true, kFlipX); });
    gdiplus::ARGB colors[2];
    Are("GdipSetLineColors(#1, 7, 8)", [](GpBrush& b) { return b.SetLinearColors(7, 8); });
    Are("GdipGetLineColors(#1, out)", [&](GpBrush& b) { return b.GetLinearColors(colors); });
}

TEST_F(BrushCalls, OfBothGradients) {
    GpRectF rect{};
    GpRect rectI{};
    float values[] = {1.5f, 2}, places[] = {0.5f, 1};
    gdiplus::ARGB colors[] = {7, 8};
    OfBoth("GdipGet%Rect(#1, {0 0 0 0})", [&](GpBrush& b) { return b.GetRectangle(&rect); });
    OfBoth("GdipGet%RectI(#1, {0 0 0 0})", [&](GpBrush& b) { return b.GetRectangleI(&rectI); });
    OfBoth("GdipSet%GammaCorrection(#1, 1)", [](GpBrush& b) { return b.SetGammaCorrection(true); });
    OfBoth("GdipGet%GammaCorrection(#1, out)", [](GpBrush& b) { return b.GetGammaCorrection(); });
    OfBoth("GdipGet%BlendCount(#1, out)", [](GpBrush& b) { return b.GetBlendCount(); });
    OfBoth("GdipSet%Blend(#1, {1.5}, {0.5}, 2)",
           [&](GpBrush& b) { return b.SetBlend(values, places, 2); });
    OfBoth("GdipSet%PresetBlend(#1, {7}, {0.5}, 2)",
           [&](GpBrush& b) { return b.SetInterpolationColors(colors, places, 2); });
    OfBoth("GdipGet%Blend(#1, out, out, 2)",
           [&](GpBrush& b) { return b.GetBlend(values, places, 2); });
    OfBoth("GdipGet%PresetBlendCount(#1, out)",
           [](GpBrush& b) { return b.GetInterpolationColorCount(); });
    OfBoth("GdipGet%PresetBlend(#1, out, out, 2)",
           [&](GpBrush& b) { return b.GetInterpolationColors(colors, places, 2); });
    OfBoth("GdipSet%SigmaBlend(#1, 0.5, 1)", [](GpBrush& b) { return b.SetBlendBellShape(0.5f); });
    OfBoth("GdipSet%SigmaBlend(#1, 0.5, 0.25)",
           [](GpBrush& b) { return b.SetBlendBellShape(0.5f, 0.25f); });
    OfBoth("GdipSet%LinearBlend(#1, 0.5, 1)",
           [](GpBrush& b) { return b.SetBlendTriangularShape(0.5f); });
    OfBoth("GdipSet%LinearBlend(#1, 0.5, 0.25)",
           [](GpBrush& b) { return b.SetBlendTriangularShape(0.5f, 0.25f); });
}

TEST_F(BrushCalls, OfAllWithAPlaceInTheWorld) {
    OfAll("GdipGet%WrapMode(#1, out)", [](GpBrush& b) { return b.GetWrapMode(); });
    OfAll("GdipSet%WrapMode(#1, 1)", [](GpBrush& b) { return b.SetWrapMode(kFlipX); });
    OfAll("GdipGet%Transform(#1, #2)", [&](GpBrush& b) { return b.GetTransform(matrix_); });
    OfAll("GdipSet%Transform(#1, #2)", [&](GpBrush& b) { return b.SetTransform(matrix_); });
    OfAll("GdipReset%Transform(#1)", [](GpBrush& b) { return b.ResetTransform(); });
    OfAll("GdipMultiply%Transform(#1, #2, 0)",
          [&](GpBrush& b) { return b.MultiplyTransform(matrix_); });
    OfAll("GdipMultiply%Transform(#1, #2, 1)",
          [&](GpBrush& b) { return b.MultiplyTransform(matrix_, kAppend); });
    OfAll("GdipTranslate%Transform(#1, 1, 2, 0)",
          [](GpBrush& b) { return b.TranslateTransform(1, 2); });
    OfAll("GdipTranslate%Transform(#1, 1, 2, 1)",
          [](GpBrush& b) { return b.TranslateTransform(1, 2, kAppend); });
    OfAll("GdipScale%Transform(#1, 1, 2, 0)", [](GpBrush& b) { return b.ScaleTransform(1, 2); });
    OfAll("GdipScale%Transform(#1, 1, 2, 1)",
          [](GpBrush& b) { return b.ScaleTransform(1, 2, kAppend); });
    OfAll("GdipRotate%Transform(#1, 30, 0)", [](GpBrush& b) { return b.RotateTransform(30); });
    OfAll("GdipRotate%Transform(#1, 30, 1)",
          [](GpBrush& b) { return b.RotateTransform(30, kAppend); });
}

TEST_F(BrushCalls, ByTypeAreNoneForOtherBrushes) {
    float value = 0, place = 0;
    const gdiplus::ARGB color = 7;
    GpRectF rect{};
    for (const int type : {-1, 0, 1}) {
        type_ = type;
        Renew();
        object_->GetRectangle(&rect);
        object_->SetGammaCorrection(true);
        EXPECT_FALSE(object_->GetGammaCorrection());
        EXPECT_EQ(object_->GetBlendCount(), 0);
        EXPECT_EQ(object_->GetBlend(&value, &place, 1), gdiplus::Ok);
        EXPECT_EQ(object_->SetBlend(&value, &place, 1), gdiplus::Ok);
        EXPECT_TRUE(object_->SetInterpolationColors(&color, &place, 1));
        EXPECT_EQ(object_->SetBlendBellShape(0), gdiplus::Ok);
        EXPECT_EQ(object_->GetWrapMode(), 0);
        EXPECT_EQ(object_->SetWrapMode(kFlipX), gdiplus::Ok);
        EXPECT_EQ(object_->RotateTransform(30), gdiplus::Ok);
        EXPECT_EQ(spy_.Taken(), "");
    }
    type_ = gdiplus::BrushTypeTextureFill;
    Renew();
    EXPECT_EQ(object_->GetBlend(&value, &place, 1), gdiplus::Ok);
    EXPECT_EQ(spy_.Taken(), "") << "a texture is no gradient";
}

TEST_F(BrushCalls, OfPathBrushes) {
    const GpPointF points[] = {{1.5f, 2}, {}};
    const GpPoint pointsI[] = {{1, 2}, {}};
    Make("GdipCreatePathGradient({1.5 2}, 2, 4, out)",
         [&](GpBrush& b) { return b.CreatePathBrush(points, 2); });
    Make("GdipCreatePathGradient({1.5 2}, 2, 1, out)",
         [&](GpBrush& b) { return b.CreatePathBrush(points, 2, kFlipX); });
    Make("GdipCreatePathGradientI({1 2}, 2, 4, out)",
         [&](GpBrush& b) { return b.CreatePathBrushI(pointsI, 2); });
    Make("GdipCreatePathGradientI({1 2}, 2, 1, out)",
         [&](GpBrush& b) { return b.CreatePathBrushI(pointsI, 2, kFlipX); });
    Make("GdipCreatePathGradientFromPath(#3, out)",
         [&](GpBrush& b) { return b.CreatePathBrushFromPath(path_); });
}

TEST_F(BrushCalls, OfColoursAndPointsOfPathBrushes) {
    gdiplus::ARGB colors[] = {7, 8};
    int32_t count = 2;
    float x = 0, y = 0;
    Are("GdipGetPathGradientCenterColor(#1, out)", [](GpBrush& b) { return b.CenterColor(); });
    AreUnkept("GdipSetPathGradientCenterColor(#1, 7)", [](GpBrush& b) { b.CenterColor(7); });
    Are("GdipSetPathGradientSurroundColorsWithCount(#1, {7}, out)",
        [&](GpBrush& b) { return b.SetSurroundColors(colors, 2); });
    Are("GdipGetPathGradientSurroundColorsWithCount(#1, out, out)",
        [&](GpBrush& b) { return b.GetSurroundColors(colors, count); });
    EXPECT_EQ(count, kStored);
    AreUnkept("GdipSetPathGradientPath(#1, #3)", [&](GpBrush& b) { b.Path(path_); });
    AreUnkept("GdipSetPathGradientCenterPoint(#1, {1.5 2})", [](GpBrush& b) {
        b.CenterPoint({1.5f, 2});
    });
    AreUnkept("GdipSetPathGradientCenterPointI(#1, {1 2})", [](GpBrush& b) {
        b.CenterPointI({1, 2});
    });
    Are("GdipGetPathGradientCenterPoint(#1, {0 0})", [](GpBrush& b) { b.CenterPoint(); });
    Are("GdipGetPathGradientCenterPointI(#1, {0 0})", [](GpBrush& b) { b.CenterPointI(); });
    Are("GdipGetPathGradientPointCount(#1, out)", [](GpBrush& b) { return b.PointCount(); });
    Are("GdipGetPathGradientSurroundColorCount(#1, out)",
        [](GpBrush& b) { return b.SurroundColorCount(); });
    Are("GdipGetPathGradientFocusScales(#1, out, out)",
        [&](GpBrush& b) { return b.GetFocusScales(&x, &y); });
    Are("GdipSetPathGradientFocusScales(#1, 0.5, 0.25)",
        [](GpBrush& b) { return b.SetFocusScales(0.5f, 0.25f); });
}

TEST_F(BrushCalls, ReadAPathIntoANewOne) {
    Renew();
    EXPECT_EQ(object_->Path(), Handle<gdiplus::GpPath>(9));
    EXPECT_EQ(spy_.Taken(), "GdipCreatePath(0, out); GdipGetPathGradientPath(#1, #9)");
}

TEST_F(BrushCalls, OfTextures) {
    Make("GdipCreateTexture(#4, 0, out)", [&](GpBrush& b) { return b.CreateTextureBrush(image_); });
    Make("GdipCreateTexture(#4, 1, out)",
         [&](GpBrush& b) { return b.CreateTextureBrush(image_, kFlipX); });
    Are("GdipGetTextureImage(#1, out)", [](GpBrush& b) { return b.GetImage(); });
}

// These don't ask for the type.
TEST_F(BrushCalls, OfPartsOfTextures) {
    const auto integers = [&](auto... arguments) {
        return [=, this](GpBrush& b) { return b.CreateTextureBrushI(image_, arguments...); };
    };
    const auto floats = [&](auto... arguments) {
        return [=, this](GpBrush& b) { return b.CreateTextureBrushF(image_, arguments...); };
    };
    Are("GdipCreateTexture(#4, 0, out); GdipDeleteBrush(#1)", integers());
    Are("GdipCreateTexture(#4, 1, out); GdipDeleteBrush(#1)", integers(0, 0, 0, 0, kFlipX));
    Are("GdipCreateTexture2I(#4, 0, 6, 0, 0, 0, out); GdipDeleteBrush(#1)", integers(6));
    Are("GdipCreateTexture2I(#4, 0, 0, 6, 0, 0, out); GdipDeleteBrush(#1)", integers(0, 6));
    Are("GdipCreateTexture2I(#4, 0, 0, 0, 6, 0, out); GdipDeleteBrush(#1)", integers(0, 0, 6));
    Are("GdipCreateTexture2I(#4, 1, 0, 0, 0, 6, out); GdipDeleteBrush(#1)",
        integers(0, 0, 0, 6, kFlipX));
    Are("GdipCreateTextureIAI(#4, #5, 0, 0, 0, 0, out); GdipDeleteBrush(#1)",
        integers(0, 0, 0, 0, kFlipX, attributes_));
    Are("GdipCreateTextureIAI(#4, #5, 5, 6, 7, 8, out); GdipDeleteBrush(#1)",
        integers(5, 6, 7, 8, kFlipX, attributes_));
    Are("GdipCreateTexture2(#4, 0, 0, 0, 0, 0, out); GdipDeleteBrush(#1)", floats());
    Are("GdipCreateTexture2(#4, 1, 5, 6, 7, 8.5, out); GdipDeleteBrush(#1)",
        floats(5, 6, 7, 8.5f, kFlipX));
    Are("GdipCreateTextureIA(#4, #5, 5, 6, 7, 8.5, out); GdipDeleteBrush(#1)",
        floats(5, 6, 7, 8.5f, kFlipX, attributes_));
    Renew();
    integers()(*object_);
    EXPECT_EQ(object_->GetWrapMode(), 0);
    spy_.Taken();
    object_->GetType();
    EXPECT_EQ(spy_.Taken(), "GdipGetBrushType(#9, out)");
}

}  // namespace
}  // namespace vxgui
