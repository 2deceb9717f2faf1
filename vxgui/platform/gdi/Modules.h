#pragma once

#include "vxgui/platform/kernel.h"

namespace vxgui::gdi {

/// What the built-in modules "msimg32.dll" and "msvfw32.dll" export. Each table ends with a null
/// address.
extern const kernel::Export kMsImg32Exports[];
extern const kernel::Export kMsVfw32Exports[];

}  // namespace vxgui::gdi
