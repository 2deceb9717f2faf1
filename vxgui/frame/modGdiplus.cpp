#include "vxgui/frame/modGdiplus.h"

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/modVxCoreHlp.h"

namespace vxgui {

kernel::FARPROC GetGdipProc(const char* name) {
    constexpr const char* kFileName = "GDIPLUS.DLL";
    kernel::Kernel& kernel = kernel::TheKernel();
    if (!gGdiplusModule) gGdiplusModule = kernel.GetModuleHandleA(kFileName);
    if (!gGdiplusModule) gGdiplusModule = kernel.LoadLibraryA(kFileName);
    return gGdiplusModule ? kernel.GetProcAddress(gGdiplusModule, name) : nullptr;
}

bool BindGdip(const char* name, corehlp::Slot stub) { return BindExport(stub, GetGdipProc(name)); }

}  // namespace vxgui
