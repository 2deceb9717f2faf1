#pragma once

#include "vxgui/platform/kernel/Module.h"

namespace vxgui::kernel {

std::unique_ptr<Module> OpenSharedObject(const std::string& path);

}  // namespace vxgui::kernel
