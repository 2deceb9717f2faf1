#include "vxgui/pixels/Blur.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

Ref<cAlphaDIBSection> Noise() {
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    EXPECT_TRUE(surface->Create(19, 11));
    uint32_t seed = 1;
    for (ARGB& pixel : surface->Pixels()) {
        pixel = ARGBFromValue(static_cast<int32_t>(seed *= 2654435761u));
    }
    return surface;
}

std::vector<ARGB> PixelsOf(const Ref<cAlphaDIBSection>& surface) {
    return {surface->Pixels().begin(), surface->Pixels().end()};
}

std::vector<ARGB> Blurred(const BoxKernel& horizontal, const BoxKernel& vertical,
                          const PixelBox& box = {0, 0, 18, 10}) {
    std::vector<ARGB> pixels = PixelsOf(Noise());
    Blur(pixels, 19, box, horizontal, vertical);
    return pixels;
}

TEST(SurfaceBlur, GaussianBlurTakesARadiusEachWay) {
    const Ref<cAlphaDIBSection> surface = Noise();
    EXPECT_EQ(surface->GaussianBlur(5, 2), 0);
    EXPECT_EQ(PixelsOf(surface), Blurred(GaussianKernel(5), GaussianKernel(2)));
}

TEST(SurfaceBlur, GaussianBlurIsFourEachWayByDefault) {
    const Ref<cAlphaDIBSection> surface = Noise(), part = Noise();
    surface->GaussianBlur();
    part->GaussianBlurEx();
    EXPECT_EQ(PixelsOf(surface), Blurred(GaussianKernel(4), GaussianKernel(4)));
    EXPECT_EQ(PixelsOf(part), PixelsOf(surface));
}

TEST(SurfaceBlur, GaussianBlurExStaysInItsRectangle) {
    const Ref<cAlphaDIBSection> surface = Noise();
    EXPECT_EQ(surface->GaussianBlurEx(3, 4, 2, 1, 9, 6), 0);
    EXPECT_EQ(PixelsOf(surface), Blurred(GaussianKernel(3), GaussianKernel(4), {2, 1, 9, 6}));
}

TEST(SurfaceBlur, BlurIsTheMeanOverItsWidthAndHeight) {
    const Ref<cAlphaDIBSection> surface = Noise();
    surface->blur(5, 2, 0, 0);
    EXPECT_EQ(PixelsOf(surface), Blurred(MeanKernel(5), MeanKernel(2)));
}

TEST(SurfaceBlur, BlurWithAColourPaintsItUnderTheAlpha) {
    const Ref<cAlphaDIBSection> surface = Noise();
    surface->blur(5, 2, -1, 0xFF0000);
    for (ARGB pixel : surface->Pixels()) {
        EXPECT_EQ(pixel.Red + pixel.Green, 0);
        EXPECT_LE(pixel.Blue, pixel.Alpha);
    }
}

TEST(SurfaceBlur, EmptySurfaceIsRefused) {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->blur(3, 3, 0, 0);
    EXPECT_LT(surface->GaussianBlur(), 0);
    EXPECT_LT(surface->GaussianBlurEx(), 0);
}

intptr_t NoService(intptr_t) { return 0; }

TEST(SurfaceBlur, WithoutTheServicesNothingHappens) {
    const Ref<cAlphaDIBSection> surface = Noise();
    ASSERT_EQ(surface->GaussianBlur(0, 0), 0);  // so that every stub has been in use
    UnbindAllStubs();
    corehlp::VxCoreHlpEntry(2, reinterpret_cast<intptr_t>(GetServiceAddress.Place()),
                            reinterpret_cast<intptr_t>(&NoService), 0);
    surface->blur(5, 5, 0, 0);
    EXPECT_EQ(surface->GaussianBlur(), 0);
    EXPECT_EQ(surface->GaussianBlurEx(), 0);
    EXPECT_EQ(PixelsOf(surface), PixelsOf(Noise()));
    UnbindAllStubs();
}

}  // namespace
}  // namespace vxgui
