#include <thread>

#include "tests/frame/FrameTest.h"
#include "vxgui/frame/modMsImg32.h"
#include "vxgui/frame/modUtilities.h"
#include "vxgui/frame/modVxCoreHlp.h"

namespace vxgui {
namespace {

/// The companions that this library itself provides, through the real kernel.
class Companions : public FrameTest {
protected:
    Companions() { kernel::SetKernel(nullptr); }
};

TEST_F(Companions, HelperIsThereAndFit) {
    EXPECT_EQ(LoadCoreHlp(), 0);
    EXPECT_NE(gCoreHlpModule, nullptr);
    EXPECT_EQ(CoreHlpFileName(), kernel::RealKernel().GetModuleFileNameA(nullptr));
}

TEST_F(Companions, HelperBindsEachPixelService) {
    constexpr uint32_t kWhite = 0xFFFFFFFF;
    uint32_t source[2] = {0xFF112233, 0xFFFF00FF};
    uint32_t target[2] = {kWhite, kWhite};
    HlpMergeTransparent(source, target, sizeof target, 0xFF00FF);
    EXPECT_THAT(target, ::testing::ElementsAre(0xFF112233u, kWhite));
    HlpSetTransColor(source, 0xFF00FF, sizeof source, 0, 255, 0);
    EXPECT_EQ(source[1] >> 24, 0u);
    HlpGaussianBlur(target, 0, 2, 1, 0, 0);
    HlpGaussianBlurEx(target, 0, 2, 1, 0, 0, 0, 0, 2, 1);
    HlpBlur(target, 2, 1, 0, 0, 0, 0);
    EXPECT_TRUE(HlpMergeTransparent.IsBound());
    EXPECT_TRUE(HlpSetTransColor.IsBound());
    EXPECT_TRUE(HlpGaussianBlur.IsBound());
    EXPECT_TRUE(HlpGaussianBlurEx.IsBound());
    EXPECT_TRUE(HlpBlur.IsBound());
}

TEST_F(Companions, PlatformBlitsAreReached) {
    uint32_t pixels[1] = {0};
    uint32_t white[1] = {0xFFFFFFFF};
    const gdi::HDC target = gdi::CreateHostDC({pixels, 1, 1, 4, true});
    const gdi::HDC source = gdi::CreateHostDC({white, 1, 1, 4, true});
    EXPECT_TRUE(msimg32::AlphaBlend(target, 0, 0, 1, 1, source, 0, 0, 1, 1, 0xFF0000));
    EXPECT_EQ(pixels[0], 0xFFFFFFFFu);
    gdi::DeleteDC(target);
    gdi::DeleteDC(source);
}

TEST_F(Companions, StartAnApartmentWithoutAMessage) {
    ::testing::internal::CaptureStderr();
    std::thread([] {
        Main();
        EXPECT_NE(gDrawDib, nullptr);
        EXPECT_NE(gTrace, nullptr);
        EXPECT_FALSE(gUseSystemAlphaBlend);
    }).join();
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

/// The real kernel, without the helper.
class KernelWithoutHelper : public ActedKernel {
public:
    int MessageBox(const String& text, const String& caption, UINT style) override {
        return kernel::RealKernel().MessageBox(text, caption, style);
    }
    void ExitProcess(UINT code) override { kernel::RealKernel().ExitProcess(code); }
};

TEST_F(Companions, MissingHelperEndsTheProcessAtTheFirstServiceDeathTest) {
    KernelWithoutHelper kernel;
    kernel::SetKernel(&kernel);
    EXPECT_EXIT(HlpBlur(nullptr, 0, 0, 0, 0, 0, 0), ::testing::ExitedWithCode(255),
                "VxGUI: 未找到文件：VxCoreHlp.dll");
    kernel::SetKernel(nullptr);
}

}  // namespace
}  // namespace vxgui
