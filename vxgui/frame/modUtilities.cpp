#include "vxgui/frame/modUtilities.h"

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/DllLife.h"
#include "vxgui/frame/ErrorBox.h"
#include "vxgui/frame/Report.h"
#include "vxgui/frame/Services.h"
#include "vxgui/frame/modGdiplus.h"
#include "vxgui/frame/modMsvfw32.h"

namespace vxgui {

namespace {

constexpr ErrorReporter ReportError{"modUtilities"};
constexpr int32_t kTraceLevel = 4;

void TraceLine(const char* text) {
    if (gTrace) gTrace->Write(text, kTraceLevel);
}

template <class T>
T& Needed(const Ref<T>& object) {
    if (object) return *object;
    throw Error(ErrorNumber::ObjectNotSet, "modUtilities", "Object variable not set");
}

bool StartGdiplus(uint32_t version) {
    gdiplus::GdiplusStartupInput input{};
    input.GdiplusVersion = version;
    uintptr_t token = 0;
    if (flat::GdiplusStartup(&token, &input, nullptr) != gdiplus::Ok) return false;
    gGdipToken = token;
    return true;
}

thread_local bool gSetUp = false;

}  // namespace

void Main() {
    gSetUp = true;
    const auto step = [](auto body) { ReportError.Guard("Public Sub Main", body); };
    step([] { gTrace = gServices.createTrace(); });
    step([] { Needed(gTrace).Start(kApplicationTitle, 1); });
    step([] { gSysInfo = gServices.createSystemInformation(); });
    step([] { gUseSystemAlphaBlend = Needed(gSysInfo).PrefersSystemAlphaBlend(); });
    step([] { gDllLife = New<DllLife>(); });
}

void SetUpApartment() {
    if (!gSetUp) Main();
}

bool GDIPlusInitialize() {
    if (gGdipToken != 0) {
        TraceLine("modUtilities::GDIPlusInitialize already Initialized!");
        return true;
    }
    // The later generation has the effects; the first one does for all else.
    if (StartGdiplus(2) || StartGdiplus(1)) return true;
    TraceLine("modUtilities::GDIPlusInitialize faild! ");  // spelt and ended so on purpose
    return false;
}

void OpenDrawDib(bool Open) {
    if (Open) {
        if (!gDrawDib) gDrawDib = msvfw32::DrawDibOpen();
    } else if (gDrawDib) {
        msvfw32::DrawDibClose(gDrawDib);
        gDrawDib = nullptr;
    }
}

}  // namespace vxgui
