#include <thread>

#include "tests/frame/FrameTest.h"
#include "vxgui/frame/modGdiplus.h"
#include "vxgui/frame/modMsImg32.h"
#include "vxgui/frame/modMsvfw32.h"
#include "vxgui/frame/modVxCoreHlp.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::atomic<int> gCalls{0};

BOOL ActedAlphaBlend(gdi::HDC, int x, int y, int w, int h, gdi::HDC, int sx, int sy, int sw, int sh,
                     DWORD blend) {
    ++gCalls;
    return x + 2 * y + 3 * w + 4 * h + 5 * sx + 6 * sy + 7 * sw + 8 * sh + static_cast<int>(blend);
}
BOOL ActedTransparentBlt(gdi::HDC, int, int, int, int, gdi::HDC, int, int, int, int, UINT key) {
    return static_cast<BOOL>(key);
}
BOOL ActedGradientFill(gdi::HDC, const gdi::TRIVERTEX*, DWORD count, const void*, DWORD mesh,
                       DWORD mode) {
    return static_cast<BOOL>(count * 100 + mesh * 10 + mode);
}
gdi::HDRAWDIB ActedOpen() { return reinterpret_cast<gdi::HDRAWDIB>(uintptr_t{0xD1B}); }
BOOL ActedClose(gdi::HDRAWDIB handle) { return handle == ActedOpen(); }
BOOL ActedDraw(gdi::HDRAWDIB, gdi::HDC, int, int, int, int, const gdi::BITMAPINFOHEADER*,
               const void*, int, int, int, int, UINT flags) {
    return static_cast<BOOL>(flags);
}
gdiplus::GpStatus ActedWidth(gdiplus::GpImage*, UINT* width) {
    *width = 640;
    return gdiplus::Win32Error;
}

BOOL CallAlphaBlend() { return msimg32::AlphaBlend(nullptr, 1, 2, 3, 4, nullptr, 5, 6, 7, 8, 9); }
constexpr BOOL kBlended = 1 + 4 + 9 + 16 + 25 + 36 + 49 + 64 + 9;

class LateBinding : public FrameTest {
protected:
    LateBinding() { gCalls = 0; }
};

TEST_F(LateBinding, ReachesEachExportOfMsImg32) {
    AddHelper();
    kernel_.Add("msimg32.dll").exports = {{"AlphaBlend", AsExport(&ActedAlphaBlend)},
                                          {"TransparentBlt", AsExport(&ActedTransparentBlt)},
                                          {"GradientFill", AsExport(&ActedGradientFill)}};
    EXPECT_EQ(CallAlphaBlend(), kBlended);
    EXPECT_EQ(msimg32::TransparentBlt(nullptr, 0, 0, 1, 1, nullptr, 0, 0, 1, 1, 0xFF00FF),
              0xFF00FF);
    EXPECT_EQ(msimg32::GradientFillRect(nullptr, nullptr, 2, nullptr, 1, 0), 210);
    EXPECT_EQ(msimg32::GradientFillTriangle(nullptr, nullptr, 3, nullptr, 1, 2), 312);
}

TEST_F(LateBinding, BindsEachSignatureOfGradientFillByItself) {
    AddHelper();
    kernel_.Add("msimg32.dll").exports = {{"GradientFill", AsExport(&ActedGradientFill)}};
    msimg32::GradientFillRect(nullptr, nullptr, 2, nullptr, 1, 0);
    EXPECT_TRUE(msimg32::GradientFillRect.IsBound());
    EXPECT_FALSE(msimg32::GradientFillTriangle.IsBound());
}

TEST_F(LateBinding, ReachesEachExportOfMsvfw32) {
    AddHelper();
    kernel_.Add("msvfw32.dll").exports = {{"DrawDibOpen", AsExport(&ActedOpen)},
                                          {"DrawDibClose", AsExport(&ActedClose)},
                                          {"DrawDibDraw", AsExport(&ActedDraw)}};
    EXPECT_EQ(msvfw32::DrawDibOpen(), ActedOpen());
    EXPECT_TRUE(msvfw32::DrawDibClose(ActedOpen()));
    EXPECT_EQ(msvfw32::DrawDibDraw(nullptr, nullptr, 0, 0, 1, 1, nullptr, nullptr, 0, 0, 1, 1, 42),
              42);
}

TEST_F(LateBinding, ReachesAFlatFunctionByItsName) {
    AddHelper();
    kernel_.Add("GDIPLUS.DLL").exports = {{"GdipGetImageWidth", AsExport(&ActedWidth)}};
    UINT width = 0;
    EXPECT_EQ(flat::GdipGetImageWidth(nullptr, &width), gdiplus::Win32Error);
    EXPECT_EQ(width, 640u);
}

TEST_F(LateBinding, MissingModuleAnswersNothingWithoutAMessage) {
    AddHelper();
    EXPECT_EQ(CallAlphaBlend(), 0);
    EXPECT_FALSE(msimg32::AlphaBlend.IsBound());
    EXPECT_EQ(gMsImg32Module, nullptr);
    EXPECT_EQ(msvfw32::DrawDibOpen(), nullptr);
    EXPECT_THAT(kernel_.calls, ElementsAre("load msimg32.dll", "load msvfw32.dll"));
}

TEST_F(LateBinding, MissingExportAnswersNothingWithoutAMessage) {
    ActedModule& module = kernel_.Add("msimg32.dll");
    EXPECT_EQ(CallAlphaBlend(), 0);
    EXPECT_EQ(CallAlphaBlend(), 0);
    EXPECT_EQ(gMsImg32Module, module.Handle());
    EXPECT_THAT(kernel_.calls,
                ElementsAre("load msimg32.dll", "find AlphaBlend", "find AlphaBlend"));
}

TEST_F(LateBinding, FindsAnExportThatAppearsLater) {
    AddHelper();
    ActedModule& module = kernel_.Add("msimg32.dll");
    EXPECT_EQ(CallAlphaBlend(), 0);
    module.exports["AlphaBlend"] = AsExport(&ActedAlphaBlend);
    EXPECT_EQ(CallAlphaBlend(), kBlended);
}

TEST_F(LateBinding, FindsAModuleThatAppearsLater) {
    AddHelper();
    UINT width = 0;
    EXPECT_EQ(flat::GdipGetImageWidth(nullptr, &width), gdiplus::Ok);
    EXPECT_EQ(width, 0u);
    kernel_.Add("GDIPLUS.DLL").exports = {{"GdipGetImageWidth", AsExport(&ActedWidth)}};
    EXPECT_EQ(flat::GdipGetImageWidth(nullptr, &width), gdiplus::Win32Error);
}

TEST_F(LateBinding, MakesNoLookUpOnceItIsBound) {
    AddHelper();
    ActedModule& module = kernel_.Add("msimg32.dll");
    module.exports["AlphaBlend"] = AsExport(&ActedAlphaBlend);
    CallAlphaBlend();
    const size_t calls = kernel_.calls.size();
    module.exports.clear();
    EXPECT_EQ(CallAlphaBlend(), kBlended);
    EXPECT_EQ(kernel_.calls.size(), calls);
}

TEST_F(LateBinding, LooksForGdiplusInTheProcessBeforeItLoadsIt) {
    AddHelper();
    ActedModule& module = kernel_.Add("GDIPLUS.DLL", true);
    EXPECT_EQ(GetGdipProc("GdipFlush"), nullptr);
    module.exports["GdipFlush"] = AsExport(&ActedOpen);
    EXPECT_EQ(GetGdipProc("GdipFlush"), AsExport(&ActedOpen));
    EXPECT_EQ(gGdiplusModule, module.Handle());
    EXPECT_THAT(kernel_.calls,
                ElementsAre("handle GDIPLUS.DLL", "find GdipFlush", "find GdipFlush"));
}

TEST_F(LateBinding, LoadsGdiplusWhenTheProcessHasNone) {
    ActedModule& module = kernel_.Add("GDIPLUS.DLL");
    EXPECT_EQ(GetGdipProc("GdipFlush"), nullptr);
    EXPECT_EQ(gGdiplusModule, module.Handle());
    EXPECT_THAT(kernel_.calls,
                ElementsAre("handle GDIPLUS.DLL", "load GDIPLUS.DLL", "find GdipFlush"));
}

TEST_F(LateBinding, MissingFlatFunctionIsNotBoundToTheHelpersEntry) {
    AddHelper();
    kernel_.Add("GDIPLUS.DLL");
    UINT width = 0;
    EXPECT_EQ(flat::GdipGetImageWidth(nullptr, &width), gdiplus::Ok);
    EXPECT_FALSE(flat::GdipGetImageWidth.IsBound());
}

TEST_F(LateBinding, FirstFlatCallEndsTheProcessWhenTheHelperIsMissing) {
    UINT width = 0;
    EXPECT_EQ(flat::GdipGetImageWidth(nullptr, &width), gdiplus::Ok);
    EXPECT_EQ(kernel_.calls.back(), "exit 61440");
}

TEST_F(LateBinding, StaysUnboundWhenTheBindServiceRefuses) {
    AddHelper();
    kernel_.Add("msimg32.dll").exports = {{"AlphaBlend", AsExport(&ActedAlphaBlend)}};
    gHelpers[0].bindsStubs = false;
    EXPECT_EQ(CallAlphaBlend(), 0);
    EXPECT_FALSE(msimg32::AlphaBlend.IsBound());
    gHelpers[0].bindsStubs = true;
    EXPECT_EQ(CallAlphaBlend(), kBlended);
}

TEST_F(LateBinding, CanBeUndoneForAllStubs) {
    AddHelper();
    kernel_.Add("msimg32.dll").exports = {{"AlphaBlend", AsExport(&ActedAlphaBlend)}};
    CallAlphaBlend();
    ASSERT_TRUE(msimg32::AlphaBlend.IsBound());
    UnbindAllStubs();
    EXPECT_FALSE(msimg32::AlphaBlend.IsBound());
    EXPECT_FALSE(BindStub.IsBound());
    EXPECT_FALSE(CoreHlpEntry.IsBound());
}

TEST_F(LateBinding, GivesTheSameTargetToTwoThreadsThatBindAtOnce) {
    AddHelper();
    kernel_.Add("msimg32.dll").exports = {{"AlphaBlend", AsExport(&ActedAlphaBlend)}};
    constexpr int kRounds = 50;
    for (int round = 0; round < kRounds; ++round) {
        UnbindAllStubs();
        std::atomic<int> waiting{2};
        const auto meet = [&] {
            --waiting;
            while (waiting != 0) std::this_thread::yield();
            EXPECT_EQ(CallAlphaBlend(), kBlended);
        };
        std::thread first(meet);
        std::thread second(meet);
        first.join();
        second.join();
    }
    EXPECT_EQ(gCalls, 2 * kRounds);
    EXPECT_TRUE(msimg32::AlphaBlend.IsBound());
}

}  // namespace
}  // namespace vxgui
