#include "vxgui/frame/VxGuiGlobal.h"

#include <thread>

#include "tests/frame/FrameTest.h"
#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;

constexpr uint32_t kMagenta = 0x00FF00FF;

/// A 2 x 1 picture of a host, with its context.
class Picture {
public:
    explicit Picture(uint32_t left, uint32_t right)
        : pixels{left, right}, dc(gdi::CreateHostDC({pixels, 2, 1, 8, true})) {}
    ~Picture() { gdi::DeleteDC(dc); }

    uint32_t pixels[2];
    gdi::HDC dc;
};

int gPlatformCalls = 0;
DWORD gBlend = 0;
UINT gKey = 0;

BOOL ActedAlphaBlend(gdi::HDC, int, int, int, int, gdi::HDC, int, int, int, int, DWORD blend) {
    ++gPlatformCalls;
    gBlend = blend;
    return 1;
}
BOOL ActedTransparentBlt(gdi::HDC, int, int, int, int, gdi::HDC, int, int, int, int, UINT key) {
    ++gPlatformCalls;
    gKey = key;
    return 1;
}

/// The service's rule, pixel by pixel; the key is magenta, which reads the same both ways.
int32_t ActedMerge(const void* source, void* target, int32_t byteCount, int32_t key) {
    const auto* from = static_cast<const uint32_t*>(source);
    auto* to = static_cast<uint32_t*>(target);
    for (int32_t i = 0; i < byteCount / 4; ++i) {
        if ((from[i] & 0xFFFFFF) != static_cast<uint32_t>(key)) to[i] = from[i];
    }
    return 0;
}

class GlobalObject : public FrameTest {
protected:
    GlobalObject() {
        gPlatformCalls = 0;
        gBlend = gKey = 0;
        AddHelper();
        gHelpers[0].services[corehlp::kMergeTransparent] = AsExport(&ActedMerge);
        kernel_.Add("msimg32.dll").exports = {{"AlphaBlend", AsExport(&ActedAlphaBlend)},
                                              {"TransparentBlt", AsExport(&ActedTransparentBlt)}};
    }

    int32_t AlphaBlend(uint8_t constantAlpha, bool hasAlpha) {
        return Global().AlphaBlend(target_.dc, 0, 0, 2, 1, source_.dc, 0, 0, 2, 1, constantAlpha,
                                   hasAlpha);
    }
    int32_t TransparentBlt() {
        return Global().TransparentBlt(target_.dc, 0, 0, 2, 1, source_.dc, 0, 0, 2, 1, kMagenta);
    }

    Picture source_{0xFF102030, 0xFFFF00FF};
    Picture target_{0x00000000, 0xFFFFFFFF};
};

TEST_F(GlobalObject, IsOneForEachApartment) {
    VxGuiGlobal* here = &Global();
    EXPECT_EQ(&Global(), here);
    std::thread([here] { EXPECT_NE(&Global(), here); }).join();
}

TEST_F(GlobalObject, SetsItsApartmentUpWithoutAnySurface) {
    std::thread([] {
        EXPECT_EQ(gTrace, nullptr);
        Global();
        EXPECT_NE(gTrace, nullptr);
        EXPECT_NE(gSysInfo, nullptr);
        EXPECT_NE(gDllLife, nullptr);
    }).join();
}

TEST_F(GlobalObject, SwitchesThePlatformsBlitsForItsApartment) {
    Global().UseSystemAlphaAlphaBlend(true);
    EXPECT_TRUE(gUseSystemAlphaBlend);
    EXPECT_TRUE(Global().UseSystemAlphaAlphaBlend());
    std::thread([] { EXPECT_FALSE(Global().UseSystemAlphaAlphaBlend()); }).join();
    Global().UseSystemAlphaAlphaBlend(false);
    EXPECT_FALSE(gUseSystemAlphaBlend);
}

TEST_F(GlobalObject, BlendsInSoftwareWhileTheSwitchIsOff) {
    EXPECT_EQ(AlphaBlend(255, false), 0);
    EXPECT_EQ(gPlatformCalls, 0);
    // (src * 255 + dst) / 256 for each colour; the target keeps its alpha.
    EXPECT_THAT(target_.pixels, ElementsAre(0x000F1F2Fu, 0xFFFF00FFu));
}

TEST_F(GlobalObject, BlendsByThePlatformWhileTheSwitchIsOn) {
    Global().UseSystemAlphaAlphaBlend(true);
    EXPECT_EQ(AlphaBlend(128, false), 0);
    EXPECT_EQ(gBlend, 0x800000u);
    EXPECT_EQ(AlphaBlend(128, true), 0);
    EXPECT_EQ(gBlend, 0x1800000u);
    EXPECT_EQ(gPlatformCalls, 2);
    EXPECT_THAT(target_.pixels, ElementsAre(0u, 0xFFFFFFFFu));
}

TEST_F(GlobalObject, BlendsFullyAndWithTheAlphaChannelByDefault) {
    Global().UseSystemAlphaAlphaBlend(true);
    EXPECT_EQ(Global().AlphaBlend(target_.dc, 0, 0, 2, 1, source_.dc, 0, 0, 2, 1), 0);
    EXPECT_EQ(gBlend, 0x1FF0000u);
}

TEST_F(GlobalObject, LeavesOutTheKeyInSoftwareWhileTheSwitchIsOff) {
    EXPECT_EQ(TransparentBlt(), 0);
    EXPECT_EQ(gPlatformCalls, 0);
    EXPECT_THAT(target_.pixels, ElementsAre(0xFF102030u, 0xFFFFFFFFu));
}

TEST_F(GlobalObject, LeavesOutTheKeyByThePlatformWhileTheSwitchIsOn) {
    Global().UseSystemAlphaAlphaBlend(true);
    EXPECT_EQ(TransparentBlt(), 0);
    EXPECT_EQ(gKey, kMagenta);
    EXPECT_EQ(gPlatformCalls, 1);
}

TEST_F(GlobalObject, AnswersZeroWhateverHappens) {
    for (const bool system : {false, true}) {
        Global().UseSystemAlphaAlphaBlend(system);
        EXPECT_EQ(Global().AlphaBlend(nullptr, 0, 0, 2, 1, nullptr, 0, 0, 2, 1), 0);
        EXPECT_EQ(Global().TransparentBlt(nullptr, 0, 0, 2, 1, nullptr, 0, 0, 2, 1, 0), 0);
    }
}

TEST_F(GlobalObject, SwitchHoldsForSurfacesThatWouldUseThePlatform) {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    ASSERT_TRUE(surface->Create(2, 1));
    surface->UseMsImag32(true);
    for (const bool system : {false, true}) {
        gPlatformCalls = 0;
        Global().UseSystemAlphaAlphaBlend(system);
        surface->AlphaPaintPicture(target_.dc, 0, 0);
        surface->TransPaintPicture(target_.dc, 0, 0);
        EXPECT_EQ(gPlatformCalls, system ? 2 : 0);
    }
}

}  // namespace
}  // namespace vxgui
