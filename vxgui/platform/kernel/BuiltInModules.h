#pragma once

#include <vector>

#include "vxgui/platform/kernel.h"

namespace vxgui::kernel {

struct BuiltInEntry {
    const char* name;
    const Export* exports;
};

/// The modules that are part of this library. They are named here, rather than each entering
/// itself, so that a program that is linked statically gets them all.
std::vector<BuiltInEntry> BuiltInModules();

}  // namespace vxgui::kernel
