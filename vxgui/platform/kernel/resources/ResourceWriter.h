#pragma once

#include "vxgui/platform/kernel.h"

namespace vxgui::kernel {

/// The section of resources of a module, to stand at an address: the directories of types, of
/// names and of languages, then what describes the data, the texts of names, and the data, each
/// block at a multiple of 8.
ByteArray ResourceSection(const std::vector<ModuleResource>& resources, uint32_t address);

}  // namespace vxgui::kernel
