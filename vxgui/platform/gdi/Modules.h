#pragma once

#include "vxgui/platform/kernel.h"

namespace vxgui::gdi {

/// What the built-in modules "msimg32.dll" and "msvfw32.dll" export, and the wide text calls of
/// "user32.dll" and "gdi32.dll". Each table ends with a null address.
extern const kernel::Export kMsImg32Exports[];
extern const kernel::Export kMsVfw32Exports[];
extern const kernel::Export kUser32Exports[];
extern const kernel::Export kGdi32Exports[];

}  // namespace vxgui::gdi
