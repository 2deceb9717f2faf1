#include <algorithm>
#include <cmath>

#include "tests/platform/gdiplus_graphics/ImageFixture.h"

namespace vxgui::gdiplus {
namespace {

/// Whole pictures, against those that were looked at.
class GdiplusPictures : public test::ImageFixture {
protected:
    GdiplusPictures() { GdipCreatePen1(0xFF202060, 2, UnitWorld, &pen_); }
    ~GdiplusPictures() override { GdipDeletePen(pen_); }

    GpGraphics* Sheet(int width, int height) {
        sheet_ = MakeBitmap(Box(0, 0, 0, 0, 0, 0xFFF0F0E8, width, height));
        return GraphicsOf(sheet_);
    }
    // A ball with a dark rim on clear pixels, lit from the left.
    static test::TestPicture Ball(int size) {
        test::TestPicture picture{size, size, {}};
        const double middle = (size - 1) / 2.0;
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const double distance = std::hypot(x - middle, y - middle) / middle;
                const auto light = static_cast<uint32_t>(std::max(40, 255 - x * 200 / size));
                picture.pixels.push_back(distance > 1     ? 0
                                         : distance > 0.8 ? 0xFF303030
                                                          : 0xFF000000 | light << 16 |
                                                                light / 2 << 8 | (light / 4 + 60));
            }
        }
        return picture;
    }

    GpBitmap* sheet_ = nullptr;
    GpPen* pen_ = nullptr;
};

TEST_F(GdiplusPictures, OfEveryInterpolation) {
    GpGraphics* graphics = Sheet(8 + 5 * 56, 8 + 4 * 56);
    GpImage* small = AsImage(MakeBitmap(Ball(9)));
    GpImage* large = AsImage(MakeBitmap(Ball(150)));
    constexpr InterpolationMode kModes[] = {
        InterpolationModeNearestNeighbor, InterpolationModeBilinear, InterpolationModeBicubic,
        InterpolationModeHighQualityBilinear, InterpolationModeHighQualityBicubic};
    INT x = 8;
    for (const InterpolationMode mode : kModes) {
        GdipSetInterpolationMode(graphics, mode);
        GdipSetPixelOffsetMode(graphics, PixelOffsetModeNone);
        GdipDrawImageRectI(graphics, small, x, 8, 48, 48);
        GdipSetPixelOffsetMode(graphics, PixelOffsetModeHalf);
        GdipDrawImageRectI(graphics, small, x, 64, 48, 48);
        GdipDrawImageRectI(graphics, large, x, 120, 48, 48);
        const GpPointF corners[] = {{x + 14.0f, 176}, {x + 46.0f, 188}, {x + 2.0f, 208}};
        GdipDrawImagePoints(graphics, large, corners, 3);
        x += 56;
    }
    test::ExpectGolden("gdiplus/interpolation", PictureOf(sheet_), 1);
}

TEST_F(GdiplusPictures, OfClipsAndWorlds) {
    GpGraphics* graphics = Sheet(200, 120);
    GpImage* ball = AsImage(MakeBitmap(Ball(40)));
    GdipSetSmoothingMode(graphics, SmoothingModeAntiAlias);
    GdipTranslateWorldTransform(graphics, 50, 60, MatrixOrderPrepend);
    for (int i = 0; i < 6; ++i) {
        GdipRotateWorldTransform(graphics, 60, MatrixOrderPrepend);
        GdipFillRectangleI(graphics, Solid(0x8040A0FFu), 8, -6, 36, 12);
        GdipDrawRectangleI(graphics, pen_, 8, -6, 36, 12);
    }
    GdipResetWorldTransform(graphics);
    GdipScaleWorldTransform(graphics, 10, 10, MatrixOrderPrepend);
    GdipTranslateWorldTransform(graphics, 10, 1, MatrixOrderPrepend);
    GdipSetClipPath(graphics, Nested(), CombineModeReplace);
    GdipResetWorldTransform(graphics);
    GdipTranslateWorldTransform(graphics, 150, 60, MatrixOrderPrepend);
    GdipRotateWorldTransform(graphics, 20, MatrixOrderPrepend);
    GdipSetClipRectI(graphics, -50, -30, 100, 60, CombineModeIntersect);
    GdipDrawImageRectI(graphics, ball, -60, -40, 120, 80);
    GdipResetClip(graphics);
    GdipDrawRectangleI(graphics, pen_, -50, -30, 100, 60);
    test::ExpectGolden("gdiplus/clips", PictureOf(sheet_), 1);
}

}  // namespace
}  // namespace vxgui::gdiplus
