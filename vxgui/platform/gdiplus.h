#pragma once

/// The flat GDI+ interface, whole. It draws and decodes in software; the module name under which
/// late binding finds it is "GDIPLUS.DLL".
#include "vxgui/platform/gdiplus_images.h"
#include "vxgui/platform/gdiplus_types.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::gdiplus {

extern "C" {

/// Starts the calling process's use; creating functions answer `GdiplusNotInitialized` before.
/// Starts are counted, and each token stops one of them.
VXPLATFORM_API GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                                       GdiplusStartupOutput* output);
VXPLATFORM_API void GdiplusShutdown(ULONG_PTR token);

}  // extern "C"

/// Every function above by name, ended by a null address.
extern VXPLATFORM_API const kernel::Export kGdiplusExports[];

}  // namespace vxgui::gdiplus
