#include <fstream>

#include "vxgui/platform/kernel/Module.h"
#include "vxgui/platform/kernel/ResourceFile.h"
#include "vxgui/platform/kernel/SharedObject.h"

namespace vxgui::kernel {

std::unique_ptr<Module> OpenModuleFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    char magic[4] = {};
    file.read(magic, sizeof magic);
    const std::string_view start(magic, static_cast<size_t>(file.gcount()));
    if (start ==
        "\x7F"
        "ELF")
        return OpenSharedObject(path);
    if (start.starts_with("MZ")) return OpenResourceFile(path);
    SetLastError(start.empty() ? ERROR_MOD_NOT_FOUND : ERROR_BAD_EXE_FORMAT);
    return nullptr;
}

}  // namespace vxgui::kernel
