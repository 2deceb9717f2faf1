#include <gmock/gmock.h>

#include <thread>

#include "vxgui/platform/kernel.h"

namespace vxgui::kernel {
namespace {

using ::testing::ExitedWithCode;

class SilentKernel : public Kernel {
public:
    HMODULE GetModuleHandleA(const char*) override { return nullptr; }
    HMODULE LoadLibraryA(const char*) override { return nullptr; }
    BOOL FreeLibrary(HMODULE) override { return 0; }
    FARPROC GetProcAddress(HMODULE, const char*) override { return nullptr; }
    String GetModuleFileNameA(HMODULE) override { return {}; }
    int MessageBox(const String&, const String&, UINT) override { return 7; }
    void ExitProcess(UINT) override {}
};

String gShown;
UINT gShownStyle = 0;

TEST(Kernel, CanBeReplacedAndBroughtBack) {
    SilentKernel silent;
    EXPECT_EQ(SetKernel(&silent), &RealKernel());
    EXPECT_EQ(&TheKernel(), &silent);
    EXPECT_EQ(TheKernel().MessageBox("text", "caption", MB_OK), 7);
    EXPECT_EQ(SetKernel(nullptr), &silent);
    EXPECT_EQ(&TheKernel(), &RealKernel());
}

TEST(LastError, BelongsToItsThread) {
    SetLastError(5);
    std::thread([] {
        EXPECT_EQ(GetLastError(), 0u);
        SetLastError(7);
    }).join();
    EXPECT_EQ(GetLastError(), 5u);
    SetLastError(0);
}

TEST(MessageBox, WithoutAToolkitGoesToTheStandardErrorStream) {
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(RealKernel().MessageBox("第一行\r\nsecond", "VxGUI", MB_ICONERROR), IDOK);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "VxGUI: 第一行\nsecond\n");
}

TEST(MessageBox, GoesToTheToolkitThatSetItsFunction) {
    SetMessageBoxFunction([](const String& text, const String& caption, UINT style) {
        gShown = caption + "/" + text;
        gShownStyle = style;
        return 2;
    });
    EXPECT_EQ(RealKernel().MessageBox("text", "caption", MB_ICONERROR), 2);
    SetMessageBoxFunction(nullptr);
    EXPECT_EQ(gShown, String("caption/text"));
    EXPECT_EQ(gShownStyle, MB_ICONERROR);
}

TEST(ExitProcessDeathTest, EndsWithACodeThatFits) {
    EXPECT_EXIT(RealKernel().ExitProcess(3), ExitedWithCode(3), "");
    EXPECT_EXIT(RealKernel().ExitProcess(0), ExitedWithCode(0), "");
}

TEST(ExitProcessDeathTest, NeverTurnsALargeCodeIntoSuccess) {
    EXPECT_EXIT(RealKernel().ExitProcess(61440), ExitedWithCode(255), "");
}

}  // namespace
}  // namespace vxgui::kernel
