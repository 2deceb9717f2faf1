#pragma once

#include "vxgui/platform/kernel.h"

namespace vxgui::corehlp {

/// What the built-in module "VxCoreHlp.dll" exports: its entry, by ordinal 1.
extern const kernel::Export kCoreHlpExports[];

}  // namespace vxgui::corehlp
