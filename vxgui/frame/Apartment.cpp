#include "vxgui/frame/Apartment.h"

#include "vxgui/frame/DllLife.h"
#include "vxgui/frame/Services.h"

namespace vxgui {

// gDllLife stands last: it goes first at the apartment's end, while all that it needs is there.
thread_local Services gServices;
thread_local gdi::HDRAWDIB gDrawDib = nullptr;
thread_local uintptr_t gGdipToken = 0;
thread_local kernel::HMODULE gGdiplusModule = nullptr;
thread_local kernel::HMODULE gCoreHlpModule = nullptr;
thread_local kernel::HMODULE gMsImg32Module = nullptr;
thread_local kernel::HMODULE gMsvfw32Module = nullptr;
thread_local bool gUseSystemAlphaBlend = false;
thread_local Ref<core7::Trace> gTrace;
thread_local Ref<core7::SystemInformation> gSysInfo;
thread_local Ref<DllLife> gDllLife;

}  // namespace vxgui
