#include <thread>

#include "tests/frame/FrameTest.h"
#include "vxgui/base/Error.h"
#include "vxgui/colour/ColorAdjust_HSL.h"
#include "vxgui/colour/GpColor.h"
#include "vxgui/frame/modGdiplus.h"
#include "vxgui/frame/modUtilities.h"
#include "vxgui/gdip/GpPath.h"
#include "vxgui/surface/cAlphaDIBSectionClip.h"
#include "vxgui/text/LFonts.h"
#include "vxgui/text/TextStyles.h"
#include "vxgui/theme/ThemeSet.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kAlready = "write modUtilities::GDIPlusInitialize already Initialized! at 4";
constexpr const char* kFailed = "write modUtilities::GDIPlusInitialize faild!  at 4";

/// What happened, in its order; one test runs at a time, and its threads one after the other.
std::vector<std::string> gEvents;
uintptr_t gNextDrawDib = 0;
uintptr_t gNextToken = 0;
/// The version that the acted-out GDI+ is the first to refuse.
uint32_t gFirstRefused = 3;

class ActedTrace : public core7::Trace {
public:
    void Start(const String& application, int32_t level) override {
        gEvents.push_back("start " + application.Utf8() + " " + std::to_string(level));
    }
    void Write(const String& text, int32_t level) override {
        gEvents.push_back("write " + text.Utf8() + " at " + std::to_string(level));
    }
};

class ActedInformation : public core7::SystemInformation {
public:
    bool PrefersSystemAlphaBlend() override { return true; }
    String ErrorText(uint32_t) override { return {}; }
};

gdi::HDRAWDIB ActedOpen() {
    gEvents.push_back("open DrawDib");
    return reinterpret_cast<gdi::HDRAWDIB>(++gNextDrawDib);
}
BOOL ActedClose(gdi::HDRAWDIB handle) {
    gEvents.push_back("close DrawDib " + std::to_string(reinterpret_cast<uintptr_t>(handle)));
    return 1;
}
gdi::HDRAWDIB FailingOpen() { throw Error(ErrorNumber::OutOfMemory, "acted", "no DrawDib"); }

gdiplus::GpStatus ActedStartup(uintptr_t* token, const gdiplus::GdiplusStartupInput* input,
                               gdiplus::GdiplusStartupOutput*) {
    gEvents.push_back("start GDI+ " + std::to_string(input->GdiplusVersion));
    EXPECT_EQ(input->DebugEventCallback, nullptr);
    EXPECT_FALSE(input->SuppressBackgroundThread);
    EXPECT_FALSE(input->SuppressExternalCodecs);
    if (input->GdiplusVersion >= gFirstRefused) return gdiplus::UnsupportedGdiplusVersion;
    *token = ++gNextToken;
    return gdiplus::Ok;
}

void UseActedServices() {
    gServices.createTrace = [] { return Ref<core7::Trace>(New<ActedTrace>()); };
    gServices.createSystemInformation = [] {
        return Ref<core7::SystemInformation>(New<ActedInformation>());
    };
}

class StartUp : public FrameTest {
protected:
    StartUp() {
        gEvents.clear();
        gNextDrawDib = gNextToken = 0;
        gFirstRefused = 3;
        UseActedServices();
        AddHelper();
        kernel_.Add("msvfw32.dll").exports = {{"DrawDibOpen", AsExport(&ActedOpen)},
                                              {"DrawDibClose", AsExport(&ActedClose)}};
        kernel_.Add("GDIPLUS.DLL").exports = {{"GdiplusStartup", AsExport(&ActedStartup)}};
    }
    ~StartUp() override { gDllLife = nullptr; }
};

TEST_F(StartUp, RunsItsStepsInOrder) {
    Main();
    EXPECT_THAT(gEvents, ElementsAre("start VxGUI 1", "open DrawDib", "start GDI+ 2"));
    EXPECT_NE(gTrace, nullptr);
    EXPECT_NE(gSysInfo, nullptr);
    EXPECT_NE(gDllLife, nullptr);
    EXPECT_TRUE(gUseSystemAlphaBlend);
    EXPECT_EQ(gDrawDib, reinterpret_cast<gdi::HDRAWDIB>(1));
    EXPECT_EQ(gGdipToken, 1u);
}

TEST_F(StartUp, ReportsAFailedStepAndGoesOn) {
    gServices.createTrace = []() -> Ref<core7::Trace> {
        throw Error(ErrorNumber::Overflow, "acted", "no trace");
    };
    kernel_.Add("msvfw32.dll").exports = {{"DrawDibOpen", AsExport(&FailingOpen)}};
    Main();
    std::vector<std::string> messages;
    for (const std::string& call : kernel_.calls) {
        if (call.starts_with("message")) messages.push_back(call);
    }
    const std::string head =
        "message 在过程 modUtilities::Public Sub Main 发生意外的错误: \r\n错误代码:";
    EXPECT_THAT(messages,
                ElementsAre(head + "6 0x6\r\n错误描述:no trace|VxGUI|10010",
                            head + "91 0x5B\r\n错误描述:Object variable not set|VxGUI|10010",
                            head + "7 0x7\r\n错误描述:no DrawDib|VxGUI|10010"));
    EXPECT_EQ(gTrace, nullptr);
    EXPECT_TRUE(gUseSystemAlphaBlend);  // of the step between
}

TEST_F(StartUp, HappensOnceAnApartment) {
    std::thread([] {
        UseActedServices();
        SetUpApartment();
        SetUpApartment();
    }).join();
    EXPECT_THAT(gEvents,
                ElementsAre("start VxGUI 1", "open DrawDib", "start GDI+ 2", "close DrawDib 1"));
}

/// What happens when an object of the class is the first of its apartment.
template <class T>
void ExpectSetUpBy() {
    gEvents.clear();
    std::thread([] {
        UseActedServices();
        New<T>();
        EXPECT_TRUE(gDllLife);
    }).join();
    EXPECT_THAT(gEvents, ::testing::SizeIs(4)) << typeid(T).name();
}

TEST_F(StartUp, ComesWithTheFirstObjectOfAnyClass) {
    ExpectSetUpBy<cAlphaDIBSection>();
    ExpectSetUpBy<cAlphaDIBSectionClip>();
    ExpectSetUpBy<GpColor>();
    ExpectSetUpBy<ColorAdjust_HSL>();
    ExpectSetUpBy<LFont>();
    ExpectSetUpBy<LFonts>();
    ExpectSetUpBy<TextStyles>();
    ExpectSetUpBy<ThemeItem>();
    ExpectSetUpBy<ThemeItems>();
    ExpectSetUpBy<ThemeSet>();
    ExpectSetUpBy<GpPath>();
}

TEST_F(StartUp, OfASecondApartmentHasItsOwnVariables) {
    Main();
    gEvents.clear();
    const auto* trace = gTrace.get();
    const auto* life = gDllLife.get();
    std::thread([&] {
        EXPECT_EQ(gTrace, nullptr);
        EXPECT_EQ(gDrawDib, nullptr);
        EXPECT_EQ(gGdipToken, 0u);
        UseActedServices();
        Main();
        EXPECT_NE(gTrace.get(), trace);
        EXPECT_NE(gDllLife.get(), life);
        EXPECT_EQ(gDrawDib, reinterpret_cast<gdi::HDRAWDIB>(2));
        EXPECT_EQ(gGdipToken, 2u);
        gUseSystemAlphaBlend = false;
    }).join();
    EXPECT_THAT(gEvents,
                ElementsAre("start VxGUI 1", "open DrawDib", "start GDI+ 2", "close DrawDib 2"));
    EXPECT_EQ(gTrace.get(), trace);
    EXPECT_EQ(gDrawDib, reinterpret_cast<gdi::HDRAWDIB>(1));
    EXPECT_EQ(gGdipToken, 1u);
    EXPECT_TRUE(gUseSystemAlphaBlend);
}

TEST_F(StartUp, GoesOnWithoutDrawDib) {
    kernel_.Remove("msvfw32.dll");
    Main();
    EXPECT_EQ(gDrawDib, nullptr);
    EXPECT_EQ(gGdipToken, 1u);
    EXPECT_THAT(gEvents, ElementsAre("start VxGUI 1", "start GDI+ 2"));
}

TEST_F(StartUp, EndsTheProcessWithoutTheHelper) {
    kernel_.Remove("VxCoreHlp.dll");
    kernel_.Remove("msvfw32.dll");
    Main();
    EXPECT_THAT(kernel_.calls, ::testing::Contains("exit 61440"));
}

TEST_F(StartUp, OfGdiplusTriesTheEarlierVersionNext) {
    gFirstRefused = 2;
    EXPECT_TRUE(GDIPlusInitialize());
    EXPECT_THAT(gEvents, ElementsAre("start GDI+ 2", "start GDI+ 1"));
    EXPECT_EQ(gGdipToken, 1u);
}

TEST_F(StartUp, OfGdiplusThatFailsIsTraced) {
    gFirstRefused = 1;
    gTrace = New<ActedTrace>();
    EXPECT_FALSE(GDIPlusInitialize());
    EXPECT_THAT(gEvents, ElementsAre("start GDI+ 2", "start GDI+ 1", kFailed));
    EXPECT_EQ(gGdipToken, 0u);
}

TEST_F(StartUp, OfGdiplusTwiceIsTracedTheSecondTime) {
    gTrace = New<ActedTrace>();
    EXPECT_TRUE(GDIPlusInitialize());
    EXPECT_THAT(gEvents, ElementsAre("start GDI+ 2"));
    EXPECT_TRUE(GDIPlusInitialize());
    EXPECT_THAT(gEvents, ElementsAre("start GDI+ 2", kAlready));
    EXPECT_EQ(gGdipToken, 1u);
}

TEST_F(StartUp, OfGdiplusWithoutATraceWritesNothing) {
    EXPECT_TRUE(GDIPlusInitialize());
    EXPECT_TRUE(GDIPlusInitialize());
    gGdipToken = 0;
    gFirstRefused = 1;
    EXPECT_FALSE(GDIPlusInitialize());
    for (const std::string& event : gEvents) EXPECT_FALSE(event.starts_with("write")) << event;
}

TEST_F(StartUp, OfGdiplusThatCannotBeBoundReadsAsSuccessAndIsTriedAgain) {
    kernel_.Remove("GDIPLUS.DLL");
    EXPECT_TRUE(GDIPlusInitialize());
    EXPECT_EQ(gGdipToken, 0u);
    kernel_.Add("GDIPLUS.DLL").exports = {{"GdiplusStartup", AsExport(&ActedStartup)}};
    EXPECT_TRUE(GDIPlusInitialize());
    EXPECT_EQ(gGdipToken, 1u);
}

TEST_F(StartUp, OpensDrawDibOnceAndClosesItOnce) {
    OpenDrawDib(false);
    OpenDrawDib(true);
    OpenDrawDib(true);
    OpenDrawDib(false);
    OpenDrawDib(false);
    EXPECT_THAT(gEvents, ElementsAre("open DrawDib", "close DrawDib 1"));
    EXPECT_EQ(gDrawDib, nullptr);
}

TEST_F(StartUp, EndClosesDrawDibAndLeavesGdiplusUp) {
    Main();
    gEvents.clear();
    gDllLife = nullptr;
    EXPECT_THAT(gEvents, ElementsAre("close DrawDib 1"));
    EXPECT_EQ(gDrawDib, nullptr);
    EXPECT_EQ(gGdipToken, 1u);
}

TEST_F(StartUp, IsNeverInADevelopmentEnvironment) { EXPECT_FALSE(InIde()); }

}  // namespace
}  // namespace vxgui
