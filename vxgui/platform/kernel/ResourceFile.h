#pragma once

#include "vxgui/platform/kernel/Module.h"

namespace vxgui::kernel {

/// A portable executable whose bytes are kept for its resources; none of its code is run.
std::unique_ptr<Module> OpenResourceFile(const std::string& path);

/// The bytes of a module that `OpenResourceFile` opened, empty for any other. They belong to
/// the module.
ResourceBlock ModuleFileBytes(HMODULE module);

}  // namespace vxgui::kernel
