#include "vxgui/platform/kernel/BuiltInModules.h"

namespace vxgui::kernel {

std::vector<BuiltInEntry> BuiltInModules() { return {}; }

}  // namespace vxgui::kernel
