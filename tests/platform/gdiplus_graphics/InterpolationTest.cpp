#include <algorithm>
#include <cmath>
#include <functional>

#include "tests/platform/gdiplus_graphics/ImageFixture.h"

namespace vxgui::gdiplus {
namespace {

using GdiplusInterpolation = test::ImageFixture;

constexpr InterpolationMode kAllModes[] = {
    InterpolationModeDefault,
    InterpolationModeLowQuality,
    InterpolationModeHighQuality,
    InterpolationModeBilinear,
    InterpolationModeBicubic,
    InterpolationModeNearestNeighbor,
    InterpolationModeHighQualityBilinear,
    InterpolationModeHighQualityBicubic,
};

// A channel of an opaque picture at a place whose whole numbers are the middles of pixels, mixed
// of the pixels in reach; beyond the edges the last pixels go on.
double Mixed(const test::TestPicture& picture, double x, double y, int shift, int reach,
             const std::function<double(double)>& kernel) {
    double sum = 0, weights = 0;
    for (int j = static_cast<int>(std::floor(y)) - reach; j <= y + reach; ++j) {
        for (int i = static_cast<int>(std::floor(x)) - reach; i <= x + reach; ++i) {
            const double weight = kernel(i - x) * kernel(j - y);
            const uint32_t pixel = picture.At(std::clamp(i, 0, picture.width - 1),
                                              std::clamp(j, 0, picture.height - 1));
            sum += weight * (pixel >> shift & 255);
            weights += weight;
        }
    }
    return std::clamp(sum / weights, 0.0, 255.0);
}

// `picture` drawn as large as `width` by `height`, each pixel sampled `half` from its corner.
test::TestPicture Expected(const test::TestPicture& picture, int width, int height, double half,
                           int reach, const std::function<double(double)>& kernel) {
    test::TestPicture result{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = (x + half) * picture.width / width - half;
            const double v = (y + half) * picture.height / height - half;
            uint32_t pixel = 0xFF000000;
            for (const int shift : {0, 8, 16}) {
                const double value = Mixed(picture, u, v, shift, reach, kernel);
                pixel |= static_cast<uint32_t>(std::lround(value)) << shift;
            }
            result.pixels.push_back(pixel);
        }
    }
    return result;
}

double Tent(double t) { return std::max(0.0, 1 - std::abs(t)); }
double Keys(double t) {
    t = std::abs(t);
    if (t < 1) return 1.5 * t * t * t - 2.5 * t * t + 1;
    return t < 2 ? -0.5 * t * t * t + 2.5 * t * t - 4 * t + 2 : 0;
}

TEST_F(GdiplusInterpolation, ShowsAnImageOfTheSameSizeExactly) {
    const test::TestPicture image = Mosaic(7, 5);
    for (const InterpolationMode mode : kAllModes) {
        for (const PixelOffsetMode offset : {PixelOffsetModeNone, PixelOffsetModeHalf}) {
            SCOPED_TRACE(mode);
            ExpectSame(Draw(image, 7, 5, {{0, 0, 7, 5}, {0, 0, 7, 5}, mode, offset}), image);
        }
    }
}

TEST_F(GdiplusInterpolation, RepeatsTheNearestPixel) {
    const test::TestPicture image = Mosaic(3, 3);
    const test::TestPicture large = Draw(image, 12, 12, {{0, 0, 12, 12}, {0, 0, 3, 3}});
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) EXPECT_EQ(large.At(x, y), image.At(x / 4, y / 4));
    }
}

TEST_F(GdiplusInterpolation, HalvesTheFirstPixelWhenCornersAreSampled) {
    const test::TestPicture image = Mosaic(3, 1);
    const test::TestPicture large =
        Draw(image, 12, 1,
             {{0, 0, 12, 1}, {0, 0, 3, 1}, InterpolationModeNearestNeighbor, PixelOffsetModeNone});
    for (int x = 0; x < 12; ++x) {
        EXPECT_EQ(large.At(x, 0), image.At(std::min((x + 2) / 4, 2), 0)) << x;
    }
}

TEST_F(GdiplusInterpolation, MixesTwoByTwo) {
    const test::TestPicture image = Mosaic(5, 4);
    for (const InterpolationMode mode :
         {InterpolationModeBilinear, InterpolationModeHighQualityBilinear}) {
        ExpectSame(Draw(image, 17, 13, {{0, 0, 17, 13}, {0, 0, 5, 4}, mode}),
                   Expected(image, 17, 13, 0.5, 1, Tent), 1);
        ExpectSame(Draw(image, 17, 13, {{0, 0, 17, 13}, {0, 0, 5, 4}, mode, PixelOffsetModeNone}),
                   Expected(image, 17, 13, 0, 1, Tent), 1);
    }
}

TEST_F(GdiplusInterpolation, MixesFourByFour) {
    const test::TestPicture image = Mosaic(6, 5);
    for (const InterpolationMode mode :
         {InterpolationModeBicubic, InterpolationModeHighQualityBicubic}) {
        ExpectSame(Draw(image, 19, 14, {{0, 0, 19, 14}, {0, 0, 6, 5}, mode}),
                   Expected(image, 19, 14, 0.5, 2, Keys), 1);
    }
}

TEST_F(GdiplusInterpolation, PrefiltersInHighQualityAlone) {
    test::TestPicture stripes{64, 64, {}};
    for (int i = 0; i < 64 * 64; ++i) stripes.pixels.push_back(i % 2 ? 0xFFFFFFFF : 0xFF000000);
    const auto grey = [&](InterpolationMode mode) {
        return static_cast<int>(Draw(stripes, 4, 4, {{0, 0, 4, 4}, {0, 0, 64, 64}, mode}).At(1, 1) &
                                255);
    };
    EXPECT_NEAR(grey(InterpolationModeHighQualityBilinear), 128, 2);
    EXPECT_NEAR(grey(InterpolationModeHighQualityBicubic), 128, 2);
    EXPECT_TRUE(grey(InterpolationModeNearestNeighbor) % 255 == 0);
}

TEST_F(GdiplusInterpolation, KeepsThePlaceOfWhatItPrefilters) {
    // A white left half stays the left half, whatever the offset mode.
    const test::TestPicture halves = Box(0, 0, 32, 64, 0xFFFFFFFF, 0xFF000000, 64, 64);
    for (const PixelOffsetMode offset : {PixelOffsetModeNone, PixelOffsetModeHalf}) {
        const test::TestPicture small =
            Draw(halves, 8, 8,
                 {{0, 0, 8, 8}, {0, 0, 64, 64}, InterpolationModeHighQualityBilinear, offset});
        EXPECT_EQ(small.At(2, 4) & 255, 255u);
        EXPECT_EQ(small.At(5, 4) & 255, 0u);
        EXPECT_NEAR(static_cast<int>((small.At(3, 4) & 255) + (small.At(4, 4) & 255)), 255, 2);
    }
}

TEST_F(GdiplusInterpolation, StretchesAnEdgeAlongOneAxis) {
    const test::TestPicture column = Mosaic(1, 6);
    for (const InterpolationMode mode : kAllModes) {
        for (const PixelOffsetMode offset : {PixelOffsetModeNone, PixelOffsetModeHalf}) {
            SCOPED_TRACE(mode);
            const test::TestPicture wide =
                Draw(column, 9, 6, {{0, 0, 9, 6}, {0, 0, 1, 6}, mode, offset});
            for (int y = 0; y < 6; ++y) {
                for (int x = 0; x < 9; ++x) EXPECT_EQ(wide.At(x, y), column.At(0, y));
            }
        }
    }
}

TEST_F(GdiplusInterpolation, LetsNothingBleedInFromBesideAPart) {
    const test::TestPicture sheet = Box(3, 3, 7, 7, kGreen, 0xFFFF00FF, 10, 10);
    for (const InterpolationMode mode : kAllModes) {
        for (const PixelOffsetMode offset : {PixelOffsetModeNone, PixelOffsetModeHalf}) {
            for (const REAL size : {2.0f, 4.0f, 13.0f}) {
                SCOPED_TRACE(mode);
                const auto extent = static_cast<int>(size);
                ExpectSame(Draw(sheet, 16, 16, {{0, 0, size, size}, {3, 3, 4, 4}, mode, offset}),
                           Box(0, 0, extent, extent, kGreen, 0, 16, 16));
            }
        }
    }
}

TEST_F(GdiplusInterpolation, GivesClearPixelsNoColour) {
    // Straight colours would show a green fringe.
    const test::TestPicture image = Box(2, 0, 4, 4, kRed, 0x0000FF00, 6, 4);
    for (const InterpolationMode mode : kAllModes) {
        const test::TestPicture large = Draw(image, 30, 20, {{0, 0, 30, 20}, {0, 0, 6, 4}, mode});
        for (const uint32_t pixel : large.pixels) EXPECT_EQ(pixel & 0x00FF00, 0u);
    }
}

TEST_F(GdiplusInterpolation, MirrorsNegativeSizesExactly) {
    const test::TestPicture image = Mosaic(5, 4);
    for (const InterpolationMode mode : kAllModes) {
        for (const PixelOffsetMode offset : {PixelOffsetModeNone, PixelOffsetModeHalf}) {
            SCOPED_TRACE(mode);
            const test::TestPicture turned =
                Draw(image, 5, 4, {{5, 4, -5, -4}, {0, 0, 5, 4}, mode, offset});
            const test::TestPicture flipped =
                Draw(image, 5, 4, {{0, 0, 5, 4}, {0, 4, 5, -4}, mode, offset});
            for (int y = 0; y < 4; ++y) {
                for (int x = 0; x < 5; ++x) {
                    EXPECT_EQ(turned.At(x, y), image.At(4 - x, 3 - y));
                    EXPECT_EQ(flipped.At(x, y), image.At(x, 3 - y));
                }
            }
        }
    }
}

TEST_F(GdiplusInterpolation, LeavesOutWhatLiesBeyondTheImage) {
    const test::TestPicture image = Mosaic(4, 4);
    const test::TestPicture drawn = Draw(image, 12, 12, {{0, 0, 12, 12}, {-1, 1, 6, 6}});
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x) {
            const int u = x / 2 - 1, v = y / 2 + 1;
            const bool inside = u >= 0 && u < 4 && v < 4;
            EXPECT_EQ(drawn.At(x, y), inside ? image.At(u, v) : 0u) << x << ", " << y;
        }
    }
}

}  // namespace
}  // namespace vxgui::gdiplus
