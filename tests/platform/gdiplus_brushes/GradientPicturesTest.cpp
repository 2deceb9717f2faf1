#include <gtest/gtest.h>

#include <cmath>

#include "tests/platform/gdiplus_brushes/BrushFixture.h"
#include "vxgui/platform/gdiplus/Path.h"

namespace vxgui::gdiplus {
namespace {

constexpr int kSide = 72;

// Swatches side by side on white.
class GradientPictures : public test::BrushFixture {
protected:
    void Show(GpBrush* brush) { swatches_.push_back(Paint(Keep(brush), kSide, kSide)); }

    void ExpectSheet(const char* name, int columns) {
        const int rows = (static_cast<int>(swatches_.size()) + columns - 1) / columns;
        test::TestPicture sheet{columns * kSide, rows * kSide, {}};
        sheet.pixels.assign(static_cast<size_t>(sheet.width * sheet.height), 0xFFFFFFFF);
        for (size_t i = 0; i < swatches_.size(); ++i) {
            const auto at = static_cast<int>(i);
            Copy(swatches_[i], sheet, at % columns * kSide, at / columns * kSide);
        }
        test::ExpectGolden(name, sheet, 2);
    }

private:
    static void Copy(const test::TestPicture& from, test::TestPicture& to, int left, int top) {
        for (int y = 0; y < kSide; ++y) {
            for (int x = 0; x < kSide; ++x) {
                to.At(left + x, top + y) = OverWhite(from.At(x, y));
            }
        }
    }
    static uint32_t OverWhite(uint32_t pixel) {
        return 0xFF000000 | (pixel + (255 - (pixel >> 24)) * 0x010101);
    }

    std::vector<test::TestPicture> swatches_;
};

TEST_F(GradientPictures, Lines) {
    const GpRectF rect{4, 12, 64, 40};
    const auto make = [&](REAL angle, BOOL scalable, WrapMode wrap) {
        GpBrush* brush = nullptr;
        GdipCreateLineBrushFromRectWithAngle(&rect, 0xFF2040C0, 0xFFFFE060, angle, scalable, wrap,
                                             &brush);
        return brush;
    };
    Show(make(0, 0, WrapModeTile));
    Show(make(90, 0, WrapModeTileFlipXY));
    Show(make(30, 0, WrapModeTileFlipX));
    Show(make(45, 1, WrapModeTile));
    GpBrush* brush = make(0, 0, WrapModeTileFlipX);
    GdipSetLineSigmaBlend(brush, 0.3f, 1);
    Show(brush);
    brush = make(0, 0, WrapModeTileFlipX);
    GdipSetLineLinearBlend(brush, 0.7f, 0.8f);
    Show(brush);
    brush = make(20, 0, WrapModeTileFlipX);
    const ARGB colors[] = {0xFFFF0000, 0xFFFFFF00, 0xFF00C000, 0xFF0000FF};
    const REAL places[] = {0, 0.4f, 0.4f, 1};
    GdipSetLinePresetBlend(brush, colors, places, 4);
    GdipSetLineGammaCorrection(brush, 1);
    Show(brush);
    brush = make(0, 0, WrapModeTile);
    GdipSetLineColors(brush, 0x00FF0000, 0xFF0000FF);
    GdipRotateLineTransform(brush, 15, MatrixOrderAppend);
    Show(brush);
    ExpectSheet("gdiplus/line-gradients", 4);
}

GpBrush* Star(WrapMode wrap) {
    std::vector<GpPointF> points;
    for (int i = 0; i < 10; ++i) {
        const double angle = i * 3.14159265 / 5 - 1.5707963, radius = i % 2 == 0 ? 34 : 14;
        points.push_back({static_cast<REAL>(36 + radius * std::cos(angle)),
                          static_cast<REAL>(36 + radius * std::sin(angle))});
    }
    GpBrush* brush = nullptr;
    GdipCreatePathGradient(points.data(), 10, wrap, &brush);
    ARGB colors[] = {0xFF000000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF, 0xFF000000,
                     0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF, 0xFF000000, 0xFF00FF00};
    INT count = 10;
    GdipSetPathGradientSurroundColorsWithCount(brush, colors, &count);
    GdipSetPathGradientCenterColor(brush, 0xFFFF0000);
    return brush;
}

GpBrush* Box(WrapMode wrap, REAL size) {
    const GpPointF points[] = {{4, 4}, {4 + size, 4}, {4 + size, 4 + size}, {4, 4 + size}};
    GpBrush* brush = nullptr;
    GdipCreatePathGradient(points, 4, wrap, &brush);
    const ARGB colors[] = {0xFFC02020, 0xFF20C020, 0xFF2020C0, 0xFFC0C020};
    INT count = 4;
    GdipSetPathGradientSurroundColorsWithCount(brush, colors, &count);
    GdipSetPathGradientCenterColor(brush, 0xFFFFFFFF);
    return brush;
}

GpBrush* Disc() {
    const Ref<Path> path = New<Path>(FillModeAlternate);
    constexpr REAL r = 32, k = r * 0.5522848f, c = 36;
    path->data.points = {{c + r, c},     {c + r, c + k}, {c + k, c + r}, {c, c + r},
                         {c - k, c + r}, {c - r, c + k}, {c - r, c},     {c - r, c - k},
                         {c - k, c - r}, {c, c - r},     {c + k, c - r}, {c + r, c - k},
                         {c + r, c}};
    path->data.types = {0, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 0x83};
    void* handle = EnterObject(path);
    GpBrush* brush = nullptr;
    GdipCreatePathGradientFromPath(static_cast<GpPath*>(handle), &brush);
    RetireObject(handle);
    return brush;
}

TEST_F(GradientPictures, Paths) {
    Show(Star(WrapModeClamp));
    Show(Box(WrapModeClamp, 64));
    GpBrush* brush = Box(WrapModeClamp, 64);
    GdipSetPathGradientFocusScales(brush, 0.6f, 0.2f);
    Show(brush);
    Show(Box(WrapModeTileFlipXY, 27));
    brush = Disc();
    GdipSetPathGradientCenterColor(brush, 0xFFFF4040);
    Show(brush);
    brush = Disc();
    const GpPointF center{26, 24};
    GdipSetPathGradientCenterPoint(brush, &center);
    GdipSetPathGradientCenterColor(brush, 0xFFFFFFFF);
    const ARGB edge = 0xFF102060;
    INT one = 1;
    GdipSetPathGradientSurroundColorsWithCount(brush, &edge, &one);
    GdipSetPathGradientGammaCorrection(brush, 1);
    Show(brush);
    brush = Disc();
    const ARGB colors[] = {0xFF800000, 0xFFFF8000, 0xFFFFFF00, 0xFF00A000, 0xFF0000FF};
    const REAL places[] = {0, 0.25f, 0.5f, 0.5f, 1};
    GdipSetPathGradientPresetBlend(brush, colors, places, 5);
    Show(brush);
    const GpPointF hook[] = {{4, 4}, {68, 4}, {68, 20}, {22, 20}, {22, 68}, {4, 68}};
    GdipCreatePathGradient(hook, 6, WrapModeClamp, &brush);
    const GpPointF corner{13, 12};
    GdipSetPathGradientCenterPoint(brush, &corner);
    GdipSetPathGradientCenterColor(brush, 0xFF6000A0);
    Show(brush);
    ExpectSheet("gdiplus/path-gradients", 4);
}

}  // namespace
}  // namespace vxgui::gdiplus
