#pragma once

#include "vxgui/base/Ref.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/kernel.h"

/// The variables that each apartment, which is a thread of the host, has to itself. Two
/// apartments share none of them, so they need no lock.
namespace vxgui {

class DllLife;

/// The trace sink; that it is empty says that `Main` has not run in this apartment.
extern thread_local Ref<core7::Trace> gTrace;
/// The system information service, set by `Main`.
extern thread_local Ref<core7::SystemInformation> gSysInfo;
/// Whether the platform's own AlphaBlend and TransparentBlt are preferred to the software blits.
extern thread_local bool gUseSystemAlphaBlend;
/// Keeps GDI+ and DrawDib open.
extern thread_local Ref<DllLife> gDllLife;
/// Null when DrawDib is closed or not to be had.
extern thread_local gdi::HDRAWDIB gDrawDib;
/// What GdiplusStartup gave; 0 when GDI+ is not started.
extern thread_local uintptr_t gGdipToken;

/// Modules that are bound late, null until first needed.
extern thread_local kernel::HMODULE gGdiplusModule;
extern thread_local kernel::HMODULE gCoreHlpModule;
extern thread_local kernel::HMODULE gMsImg32Module;
extern thread_local kernel::HMODULE gMsvfw32Module;

}  // namespace vxgui
