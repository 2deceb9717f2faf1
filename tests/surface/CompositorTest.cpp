#include "tests/surface/SurfaceSupport.h"
#include "vxgui/surface/modDraw.h"

namespace vxgui::test {
namespace {

ARGB Blended(ARGB source, ARGB target, int32_t alpha, bool hasAlpha) {
    AlphaDibBits(&source, &target, sizeof target, alpha, hasAlpha);
    return target;
}

TEST(Compositor, WhiteOverBlackWithoutAlphaGives254) {
    EXPECT_EQ(Blended(Pixel(255, 255, 255, 0), Pixel(0, 0, 0, 77), 255, false),
              Pixel(254, 254, 254, 77));
}

TEST(Compositor, APremultipliedSourceAddsWhatItsAlphaLeavesOfTheTarget) {
    EXPECT_EQ(Blended(Pixel(200, 0, 0, 128), Pixel(100, 0, 0, 0), 255, true).Blue, 250);
}

TEST(Compositor, AStraightSourceIsScaledByTheConstantAlpha) {
    EXPECT_EQ(Blended(Pixel(200, 0, 0, 128), Pixel(100, 0, 0, 0), 128, true).Blue, 125);
}

TEST(Compositor, ThePremultipliedFormulaSaturatesAndTheStraightOneCannotOverflow) {
    EXPECT_EQ(Blended(Pixel(255, 255, 255, 1), Pixel(255, 255, 255, 255), 255, true),
              Pixel(255, 255, 255, 255));
    for (int alpha = 1; alpha < 255; ++alpha) {
        const ARGB over =
            Blended(Pixel(255, 255, 255, 255), Pixel(255, 255, 255, 255), alpha, true);
        EXPECT_GE(over.Blue, 253) << alpha;
        EXPECT_EQ(over.Blue,
                  255 * (255 * alpha / 256) / 256 + 255 * (256 - 255 * alpha / 256) / 256);
    }
}

TEST(Compositor, AClearPremultipliedPixelStillAddsItsColours) {
    EXPECT_EQ(Blended(Pixel(10, 20, 30, 0), Pixel(1, 2, 3, 4), 255, true), Pixel(11, 22, 33, 4));
}

TEST(Compositor, AnAlphaOfZeroOrLessDoesNothingAndOneOver255IsOpaque) {
    const ARGB source = Pixel(9, 9, 9, 200);
    const ARGB target = Pixel(100, 110, 120, 130);
    EXPECT_EQ(Blended(source, target, 0, true), target);
    EXPECT_EQ(Blended(source, target, -1, false), target);
    EXPECT_EQ(Blended(source, target, 1000, true), Blended(source, target, 255, true));
    EXPECT_EQ(Blended(source, target, 1000, false), Blended(source, target, 255, false));
}

TEST(Compositor, NoBytesAndNoMemoryAreLeftAlone) {
    ARGB pixel = Pixel(1, 2, 3, 4);
    const ARGB source = Pixel(9, 9, 9, 9);
    AlphaDibBits(&source, &pixel, 0, 255, true);
    AlphaDibBits(&source, &pixel, -4, 255, true);
    AlphaDibBits(nullptr, &pixel, 4, 255, true);
    AlphaDibBits(&source, nullptr, 4, 255, true);
    PreMultiplyBits(nullptr, 0);
    PreMultiplyBits(&pixel, -4);
    EXPECT_EQ(pixel, Pixel(1, 2, 3, 4));
}

// The byte index goes up in fours to the last byte: a pixel that the count cuts is blended whole.
TEST(Compositor, ACountThatEndsWithinAPixelBlendsThatPixelButDoesNotPremultiplyIt) {
    const std::vector<ARGB> source(3, Pixel(10, 20, 30, 0));
    for (int32_t count = 5; count <= 8; ++count) {
        for (const int32_t alpha : {128, 255}) {
            for (const bool hasAlpha : {false, true}) {
                const ARGB old = Pixel(100, 100, 100, 100);
                const ARGB blended = Blended(source[0], old, alpha, hasAlpha);
                std::vector<ARGB> target(3, old);
                AlphaDibBits(source.data(), target.data(), count, alpha, hasAlpha);
                EXPECT_EQ(target, (std::vector<ARGB>{blended, blended, old})) << count;
            }
        }
        std::vector<ARGB> pixels(3, Pixel(255, 255, 255, 127));
        PreMultiplyBits(pixels.data(), count);
        const ARGB second = count < 8 ? Pixel(255, 255, 255, 127) : Pixel(127, 127, 127, 127);
        EXPECT_EQ(pixels, (std::vector<ARGB>{Pixel(127, 127, 127, 127), second,
                                             Pixel(255, 255, 255, 127)}));
    }
}

TEST(Compositor, PremultipliesByAlphaPlusOneOver256) {
    std::vector<ARGB> pixels{Pixel(255, 128, 255, 127), Pixel(9, 9, 9, 0), Pixel(9, 8, 7, 255)};
    PreMultiplyBits(pixels.data(), 12);
    EXPECT_EQ(pixels, (std::vector<ARGB>{Pixel(127, 64, 127, 127), Pixel(0, 0, 0, 0),
                                         Pixel(9, 8, 7, 255)}));
}

TEST(Compositor, TheBlendFunctionHoldsTheConstantAndTheFormat) {
    EXPECT_EQ(PackBlendFunction(0x80, true), 0x1800000u);
    EXPECT_EQ(PackBlendFunction(0xFF, false), 0xFF0000u);
}

// A failure inside is shown to the user and not passed on: here the helper library, which the
// colour-key merge is bound from, is missing.
TEST(Compositor, AFailureIsReportedUnderTheProcedureThatFailed) {
    const auto surface = MakeSurface(2, 2, Pixel(1, 1, 1, 1));
    GuardedTarget target(2, 2);
    MissingModule kernel("VxCoreHlp.dll");
    const auto module = std::exchange(gCoreHlpModule, nullptr);
    Vex_TransparentBlt(target.dc(), 0, 0, 2, 2, surface->hDC(), 0, 0, 2, 2, 0);
    gCoreHlpModule = module;
    ASSERT_FALSE(kernel.messages.empty());
    EXPECT_NE(kernel.messages.back().Utf8().find("modDraw::Public Function Vex_TransparentBlt"),
              std::string::npos)
        << kernel.messages.back().Utf8();
    EXPECT_EQ(target.At(0, 0), ARGB{});
}

}  // namespace
}  // namespace vxgui::test
