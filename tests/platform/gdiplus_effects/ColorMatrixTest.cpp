#include <algorithm>
#include <cmath>
#include <random>

#include "tests/platform/gdiplus_effects/AttributesFixture.h"

namespace vxgui::gdiplus {
namespace {

constexpr ColorMatrix kSwapRedBlue{
    {{0, 0, 1, 0, 0}, {0, 1, 0, 0, 0}, {1, 0, 0, 0, 0}, {0, 0, 0, 1, 0}, {0, 0, 0, 0, 1}}};
constexpr ColorMatrix kHalfAlpha{
    {{1, 0, 0, 0, 0}, {0, 1, 0, 0, 0}, {0, 0, 1, 0, 0}, {0, 0, 0, 0.5f, 0}, {0, 0, 0, 0, 1}}};

class GdiplusColorMatrix : public test::AttributesFixture {
protected:
    void Set(const ColorMatrix& color, const ColorMatrix* gray = nullptr,
             ColorMatrixFlags flags = ColorMatrixFlagsDefault) {
        EXPECT_EQ(GdipSetImageAttributesColorMatrix(attributes_, ColorAdjustTypeBitmap, 1, &color,
                                                    gray, flags),
                  Ok);
    }
};

// One pixel by the formula itself: (r, g, b, a, 1) times the matrix.
uint32_t Reference(uint32_t pixel, const ColorMatrix& matrix) {
    constexpr int kShifts[] = {16, 8, 0, 24};
    uint32_t result = 0;
    for (int to = 0; to < 4; ++to) {
        float sum = 0;
        for (int from = 0; from < 4; ++from) {
            sum += static_cast<float>(pixel >> kShifts[from] & 255) * matrix.m[from][to];
        }
        sum += matrix.m[4][to] * 255;
        const float bounded = std::clamp(sum, 0.0f, 255.0f);
        result |= static_cast<uint32_t>(std::floor(bounded + 0.5f)) << kShifts[to];
    }
    return result;
}

TEST_F(GdiplusColorMatrix, ExchangesChannelsAndFadesAlpha) {
    Set(kSwapRedBlue);
    EXPECT_EQ(Adjusted(0xFF112233), 0xFF332211u);
    Set(kHalfAlpha);
    EXPECT_EQ(Adjusted(0xFF112233), 0x80112233u);
}

TEST_F(GdiplusColorMatrix, AgreesWithTheFormulaOnRandomPixelsAndMatrices) {
    std::mt19937 random(7);
    std::uniform_real_distribution<float> entry(-1.5f, 1.5f);
    for (int round = 0; round < 20; ++round) {
        ColorMatrix matrix{};
        for (auto& row : matrix.m) std::ranges::generate(row, [&] { return entry(random); });
        Set(matrix);
        Colors colors(2000);
        std::ranges::generate(colors, [&] { return static_cast<uint32_t>(random()); });
        const Colors actual = Adjusted(colors);
        for (size_t i = 0; i < colors.size(); ++i) {
            ASSERT_EQ(actual[i], Reference(colors[i], matrix)) << std::hex << colors[i];
        }
    }
}

TEST_F(GdiplusColorMatrix, IsExactOnEveryByteOfAScaledChannel) {
    ColorMatrix scaled = kHalfAlpha;
    scaled.m[0][0] = 0.3f;
    scaled.m[4][1] = 0.1f;
    Set(scaled);
    Colors colors;
    for (uint32_t i = 0; i < 256; ++i) colors.push_back(i * 0x01010101);
    const Colors actual = Adjusted(colors);
    for (size_t i = 0; i < 256; ++i) EXPECT_EQ(actual[i], Reference(colors[i], scaled)) << i;
}

TEST_F(GdiplusColorMatrix, LeavesGraysWhenTold) {
    Set(kHalfAlpha, nullptr, ColorMatrixFlagsSkipGrays);
    EXPECT_EQ(Adjusted(0xFF808080), 0xFF808080u);
    EXPECT_EQ(Adjusted(0xFF808081), 0x80808081u);
}

TEST_F(GdiplusColorMatrix, GivesGraysTheirOwnMatrixWhenTold) {
    Set(kSwapRedBlue, &kHalfAlpha, ColorMatrixFlagsAltGray);
    EXPECT_EQ(Adjusted(0xFF404040), 0x80404040u);
    EXPECT_EQ(Adjusted(0xFF112233), 0xFF332211u);
}

TEST_F(GdiplusColorMatrix, GrayMatrixDoesNotCountByDefault) {
    Set(kSwapRedBlue, &kHalfAlpha);
    EXPECT_EQ(Adjusted(0xFF404040), 0xFF404040u);
}

TEST_F(GdiplusColorMatrix, RefusesWhatIsMissing) {
    const auto set = [&](const ColorMatrix* color, ColorMatrixFlags flags, ColorAdjustType type) {
        return GdipSetImageAttributesColorMatrix(attributes_, type, 1, color, nullptr, flags);
    };
    EXPECT_EQ(set(nullptr, ColorMatrixFlagsDefault, ColorAdjustTypeDefault), InvalidParameter);
    EXPECT_EQ(set(&kHalfAlpha, ColorMatrixFlagsAltGray, ColorAdjustTypeDefault), InvalidParameter);
    EXPECT_EQ(set(&kHalfAlpha, ColorMatrixFlagsDefault, ColorAdjustTypeCount), InvalidParameter);
    EXPECT_EQ(GdipSetImageAttributesColorMatrix(nullptr, ColorAdjustTypeDefault, 1, &kHalfAlpha,
                                                nullptr, ColorMatrixFlagsDefault),
              InvalidParameter);
}

TEST_F(GdiplusColorMatrix, IsClearedByAZeroFlagWhateverTheValues) {
    Set(kSwapRedBlue);
    EXPECT_EQ(GdipSetImageAttributesColorMatrix(attributes_, ColorAdjustTypeBitmap, 0, nullptr,
                                                nullptr, ColorMatrixFlagsDefault),
              Ok);
    EXPECT_EQ(Adjusted(0xFF112233), 0xFF112233u);
}

}  // namespace
}  // namespace vxgui::gdiplus
